#include "documents/pickers/FrmPost.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "documents/pickers/post_list.h"
#include "ui/forms/picker_dialog.h"

using namespace Qt::StringLiterals;

std::optional<PostCodeChoice> FrmPost(Session& session, const QString& text, QWidget* parent) {
  PostList posts(session);
  if (!posts.open()) return {};
  PickerDialog dialog("FrmPost", "우편번호 검색", session, posts.list(), "SpPost", parent);
  dialog.grid()->setFillColumn(2);
  const auto search = [&](const QString& typed) {
    if (!posts.search(typed)) session.prompts.MsgInfo(u"'%1' 가 없습니다."_s.arg(typed));
    dialog.showFound();
  };
  // On a loaded list the hand goes to the village or postcode that is typed whole; else it is searched.
  const auto find = [&](const QString& text) {
    const QString typed = text.trimmed();
    const int row = typed.isEmpty() ? 0 : posts.find(typed);
    if (row == 0) return search(typed);
    dialog.grid()->setActiveCell(row, 1);
    dialog.grid()->setFocus();
  };
  QLineEdit* const box = dialog.addFind("txtFind", "읍/면/동", find);
  auto* const button = dialog.findChild<QPushButton*>("BtnFind");
  button->setObjectName("btnFind");
  button->setText("검색(&F)");
  dialog.showHelp("읍/면/동으로 검색하세요. [전체검색 : 빈칸]");
  dialog.addLeave("btnQuit", "닫기(&Q)");
  box->setText(text);
  QTimer::singleShot(0, &dialog, [&] {
    dialog.guard([&] {
      if (text.trimmed().isEmpty())
        posts.search({});  // all of them, and the hand stays in the box
      else
        search(text.trimmed());
    });
  });
  const int row = dialog.pick();
  return row ? posts.choice(row) : std::nullopt;
}
