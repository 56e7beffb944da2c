#include "documents/pickers/FrmTraderList.h"

#include <QLineEdit>

#include "documents/pickers/trader_search.h"
#include "ui/forms/picker_dialog.h"

TraderFound FrmTraderList(Session& session, Pickers& pickers, const QString& text, QWidget* parent) {
  TraderSearch search(session);
  SpreadModel& list = search.list();
  const auto chosen = [&](int row) {
    return ClientChoice{list.text(row, TraderCol::Code).toLongLong(), list.text(row, TraderCol::Name)};
  };
  const int hits = search.search(text);
  if (hits == 0) return {.any = false, .trader = {}};
  if (hits == 1 && !text.isEmpty()) return {.any = true, .trader = chosen(1)};

  PickerDialog dialog("FrmTraderList", "거래처 리스트", session, list, "grdTrader", parent);
  dialog.grid()->setFillColumn(TraderCol::Address);
  dialog.addFind("txtFind", "상호명", [&](const QString& typed) {
    const int row = search.find(typed.trimmed());
    if (row == 0) return;
    dialog.grid()->setActiveCell(row, TraderCol::Name);
    dialog.grid()->setFocus();
  });
  dialog.findBox()->setPlaceholderText("상호명으로 검색  [검색:엔터]");
  dialog.showHelp("거래처를 선택하세요.  [클릭 또는 엔터]");
  int row = 0;
  dialog.grid()->clicked = [&](int clicked, int) {
    row = clicked;
    dialog.accept();
  };
  dialog.addButton("btnSelect", "선택(&S)", [&] {
    if (dialog.grid()->activeRow() == 0) return;
    row = dialog.grid()->activeRow();
    dialog.accept();
  });
  dialog.addButton("btnNew", "신규(&N)", [&] {
    if (pickers.registerTrader(true)) search.search(text);
  });
  dialog.addLeave("btnQuit", "닫기(&Q)");
  if (const int picked = dialog.pick()) row = picked;
  if (row == 0) return {};
  return {.any = true, .trader = chosen(row)};
}
