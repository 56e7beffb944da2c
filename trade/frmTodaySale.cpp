#include "trade/frmTodaySale.h"

#include <QLabel>
#include <QVBoxLayout>

#include "ui/forms/style.h"
#include "ui/model/column.h"

frmTodaySale::frmTodaySale(FormContext& context, QWidget* parent)
    : Form("frmTodaySale", "금일판매내역", context.session, parent), today_(context.session) {
  title_ = new QLabel(this);
  title_->setObjectName("LblTitle");
  title_->setFont(look::textFont(12, true));
  body()->addWidget(title_);
  sums_.setColumns(
      column::shown({column::centred("구분", 14), column::integer("판매수량", 14),
                     column::money("입금액", 14), column::money("D/C", 14), column::money("미수금", 14)}));
  grid_ = addSpread("SpToday", sums_);
  grid_->setFillColumn(1);
  body()->addWidget(grid_, 1);
  setBottomLine("Esc:닫기");
  onKey(Qt::Key_Escape, [this] { close(); });
  resize(sizeHint());
  load();
}

QSize frmTodaySale::sizeHint() const {
  return {grid_->fullWidth() + 40, 13 * fontMetrics().height()};
}

void frmTodaySale::load() {
  guard([this] {
    if (!today_.load()) return;
    title_->setText(today_.title());
    std::vector<std::vector<QString>> rows;
    const auto add = [&rows](const QString& name, const DaySum& sum) {
      rows.push_back({name, QString::number(sum.pieces), QString::number(sum.income),
                      QString::number(sum.discount), QString::number(sum.trust)});
    };
    add("일반판매", today_.sum(SaleSheet::General));
    add("체적판매", today_.sum(SaleSheet::Volume));
    add("시설/자재판매", today_.sum(SaleSheet::Material));
    sums_.setRows(std::move(rows));
  });
}
