#include "documents/pickers/FrmPost.h"

#include <QLineEdit>
#include <QTimer>

#include "documents/pickers/post_list.h"
#include "ui/forms/picker_dialog.h"

std::optional<PostCodeChoice> FrmPost(Session& session, const QString& text, QWidget* parent) {
  PostList posts(session);
  if (!posts.open()) return {};
  PickerDialog dialog("FrmPost", "우편번호 검색", session, posts.list(), "SpPost", parent);
  dialog.grid()->setFillColumn(2);
  const auto search = [&](const QString& typed) {
    if (!posts.search(typed)) session.prompts.MsgInfo(QString("'%1' 가 없습니다.").arg(typed));
    dialog.showFound();
  };
  QLineEdit* const box =
      dialog.addFind("txtFind", "읍/면/동", [&](const QString& typed) { search(typed.trimmed()); });
  dialog.showHelp("읍/면/동으로 검색하세요. [전체검색 : 빈칸]");
  dialog.addButton("btnFind", "검색(&F)", [&] {
    const QString typed = box->text().trimmed();
    if (const int row = posts.find(typed)) {
      dialog.grid()->setActiveCell(row, 1);
      dialog.grid()->setFocus();
    } else {
      search(typed);
    }
  });
  dialog.addLeave("btnQuit", "닫기(&Q)");
  if (!text.isEmpty()) {
    box->setText(text);
    QTimer::singleShot(0, &dialog, [&] { dialog.guard([&] { search(text.trimmed()); }); });
  }
  const int row = dialog.pick();
  return row ? posts.choice(row) : std::nullopt;
}
