#include "master/catalogue/frmSearchSize.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "master/catalogue/size_search.h"
#include "master/registers/form_context.h"
#include "ui/forms/picker_dialog.h"

using namespace Qt::StringLiterals;

std::optional<ItemChoice> frmSearchSize(FormContext& context, const QString& kind, TradeSide side,
                                        QWidget* parent) {
  const SizeSearch search(context.session, kind, side);
  SpreadModel list;
  if (!search.load(list)) return {};
  PickerDialog dialog(u"frmSearchSize"_s, search.title(), context.session, list, "SpSize", parent);
  dialog.grid()->setFillColumn(1);
  dialog.mayTake = [&](int row) { return SizeSearch::choice(list, row).has_value(); };

  // The catalogue is a window of its own: it opens once this one and the handler that asked for it have ended.
  QPushButton* const toCatalogue = dialog.addButton("btnNew", u"신규등록(&N)"_s, [&] {
    dialog.reject();
    QTimer::singleShot(0, qApp, [&commands = context.commands] { commands.openForm(u"frmGasUtil"_s); });
  });
  auto* const row = new QHBoxLayout;
  row->addStretch(1);
  row->addWidget(toCatalogue);
  dialog.head()->addLayout(row);

  const int taken = dialog.pick();
  return taken ? SizeSearch::choice(list, taken) : std::nullopt;
}
