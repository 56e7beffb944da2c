#include "trade/frmBuy.h"

#include <QLabel>
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
  onKey(Qt::Key_F10, [this] { context_.commands.openForm("frmPrtBuy"); });
  setBottomLine("          Esc:전체보기         Delete,F4:삭제         F10:구매대장 출력");
  resize(sizeHint());
  showDate();
  guard([this] { showAll(); });
}

void frmBuy::buildPanel() {
  addHead(2,
          [this](Fields& fields) {
            tel_ = fields.value("LblTel", "전화번호");
            address_ = fields.value("LblAddr", "주소", 0, 2);
            owner_ = fields.value("LblUser", "대표자");
            fax_ = fields.value("LblFax", "팩스");
            keepRoom(tel_, "0000-0000-0000");
          },
          "가스미불 :", "자재미불 :", {addButton("btnPrint", "인쇄(&P)", [this] {
            PrintGrid(session(), grid_->model(), "구매관리", this);
          })});
  lastLines_->setOwedHeader("외상금액");
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
