#include "trade/frmBuy.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "trade/form_last_lines.h"
#include "ui/forms/fields.h"
#include "ui/paper/grid_print.h"

frmBuy::frmBuy(FormContext& context, QWidget* parent)
    : LineForm("frmBuy", "구매등록", context, book_, entry_, parent),
      book_(context.session),
      entry_(book_, context.pickers) {
  buildPanel();
  grid_ = addLines("SpBuy", book_.grid());
  body()->addWidget(grid_, 1);
  book_.beforeFill = [this] { grid_->cancelEdit(); };
  onKey(Qt::Key_F10, [this] { context_.commands.openForm("frmPrtBuy"); });
  setBottomLine("          Esc:전체보기         Delete,F4:삭제         F10:구매대장 출력");
  resize(sizeHint());
  showDate();
  guard([this] { showAll(); });
}

void frmBuy::buildPanel() {
  auto* const row = new QHBoxLayout;
  row->setSpacing(5);
  auto* const panel = new QWidget(this);
  panel->setObjectName("PnlClient");
  Fields fields(panel, 2);
  addDate(fields);
  tel_ = fields.value("LblTel", "전화번호");
  address_ = fields.value("LblAddr", "주소", 0, 2);
  owner_ = fields.value("LblUser", "대표자");
  fax_ = fields.value("LblFax", "팩스");
  tel_->setMinimumWidth(fontMetrics().horizontalAdvance("0000-0000-0000") + 18);
  row->addWidget(panel, 1);
  row->addWidget(owedPanel("LblGasTrust", "가스미불 :", "LblUtilTrust", "자재미불 :"));
  lastLines_->setOwedHeader("외상금액");
  row->addWidget(lastLines_);
  auto* const buttons = new QVBoxLayout;
  buttons->addWidget(
      addButton("btnPrint", "인쇄(&P)", [this] { PrintGrid(session(), grid_->model(), "구매관리", this); }));
  buttons->addStretch(1);
  row->addLayout(buttons);
  body()->addLayout(row);
}

void frmBuy::showAll() {
  book_.FillBuyGrid(true);
  toBottomRow();
}

void frmBuy::showPartner(int row) {
  const BuyStationPanel station = book_.panel(row);
  address_->setText(station.address);
  tel_->setText(station.tel);
  owner_->setText(station.owner);
  fax_->setText(station.fax);
  showOwed(station.gasOwed, station.utilOwed);
}
