#include "master/partners/frmPostCode.h"

#include <QLineEdit>
#include <QTimer>

#include "master/partners/post_code_search.h"
#include "ui/forms/picker_dialog.h"

using namespace Qt::StringLiterals;

std::optional<PostCodeChoice> frmPostCode(Session& session, const QString& text, QWidget* parent) {
  PostCodeSearch search(session);
  if (!search.open()) return {};
  SpreadModel list;
  list.setColumns(PostCodeSearch::columns());
  PickerDialog dialog(u"frmPostCode"_s, u"우편번호 조회"_s, session, list, "SpPostCode", parent);
  dialog.grid()->setFillColumn(2);
  dialog.mayTake = [&](int row) { return PostCodeSearch::choice(list, row).has_value(); };
  const auto find = [&](const QString& typed, PostCodeSearch::Asked asked) {
    if (!search.find(list, typed.trimmed(), asked)) dialog.findBox()->clear();
    dialog.activateWindow();
    dialog.showFound();
  };
  QLineEdit* const box = dialog.addFind("TxtFind", u"읍/면/동, 우편번호"_s, [&](const QString& typed) {
    find(typed, PostCodeSearch::Asked::ByButton);
  });
  dialog.showHelp(u"읍/면/동 이름이나 우편번호를 입력하고 엔터   선택 : 엔터   닫기 : Esc"_s);
  if (!text.isEmpty()) {
    box->setText(text);
    QTimer::singleShot(0, &dialog,
                       [&] { dialog.guard([&] { find(text, PostCodeSearch::Asked::ByCaller); }); });
  }
  const int row = dialog.pick();
  return row ? PostCodeSearch::choice(list, row) : std::nullopt;
}
