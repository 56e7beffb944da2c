#include "documents/pickers/FrmNewTrader.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "documents/vat_split.h"
#include "store/business_number.h"
#include "store/date_text.h"
#include "ui/forms/fields.h"

FrmNewTrader::FrmNewTrader(Session& session, Pickers& pickers, bool customer, QWidget* parent)
    : Dialog("FrmNewTrader", "거래처 등록", session.prompts, parent),
      session_(session),
      pickers_(pickers),
      customer_(customer) {
  Fields fields(addPanel(), 2);
  name_ = fields.text("txtName", "상호명", 30, 60);
  person_ = fields.text("txtUser", "성명", 20, 30);
  phone_ = fields.tel("txtPhone", "전화번호");
  fax_ = fields.tel("txtFax", "팩스번호");
  QStringList codes;
  for (int code = 0; code < 3; ++code) codes << QString::number(code) + " " + vatCaptions()[code];
  vat_ = fields.combo("cboVAT", "부가세", codes);
  charge_ = fields.text("txtCharge", "담당자", 14, 6);
  serial_ = fields.text("txtSerial", "사업/주민번호", 18, 14);
  status_ = fields.text("txtStatus", "업태", 20, 30);
  item_ = fields.text("txtItem", "종목", 20, 30);
  fields.newRow();
  address_ = fields.text("txtAddr1", "주소", 0, 100, 2);
  lot_ = fields.text("txtAddr2", "번지", 0, 100, 2);
  remark_ = fields.text("txtBigo", "기타", 0, 255, 2);
  balance_ = fields.money("txtTotNoPay", customer ? "미 수 금" : "미 불 금");
  fields.newRow();
  DateBox* const opened = fields.date("txtOpenDate", "개업일자");
  DateBox* const closed = fields.date("txtCloseDate", "폐업일자");
  open_ = opened;
  close_ = closed;

  help(name_, "상호명을 입력하세요.");
  help(person_, "성명을 입력하세요.");
  help(phone_, "전화번호를 입력하세요.");
  help(fax_, "팩스번호를 입력하세요.");
  help(vat_, "부가세 계산방법. 0:계산안함  1:단가/1.1  2:단가*0.1");
  help(charge_, "코드나 이름으로 담당자를 검색하세요.");
  help(serial_, "사업/주민번호를 입력하세요.");
  help(status_, "업태를 입력하세요.");
  help(item_, "종목을 입력하세요.");
  help(address_, "읍/면/동 입력 후 Enter로 검색. [전체검색 : PageDown]");
  help(lot_, "번지를 입력하세요.");
  help(remark_, "기타 사항을 입력하세요.");
  help(balance_, customer ? "초기 미수금을 입력하세요" : "초기 미불금을 입력하세요.");
  help(open_, "개업일자를 입력하세요.");
  help(close_, "폐업일자를 입력하세요.");
  help_ = addText(helps_.value(name_), "PnlHelp");
  auto* const post = addButton("btnPost", "우편번호(&P)", [this] { searchPost({}); });
  post->setFocusPolicy(Qt::NoFocus);
  QPushButton* const save = addButton("BtnSave", "저장(&S)", [this] { this->save(); });
  addLeave("btnQuit", "종료(&X)");
  enterOrder({name_, person_, phone_, fax_, vat_, charge_, serial_, status_, item_, address_, lot_, remark_,
              balance_, open_, close_, save});
  address_->installEventFilter(this);
  charge_->installEventFilter(this);
  name_->setFocus();
}

void FrmNewTrader::help(QWidget* box, const QString& text) {
  helps_[box] = text;
  box->installEventFilter(this);
}

bool FrmNewTrader::enter() {
  exec();
  return stored_;
}

bool FrmNewTrader::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn && helps_.contains(watched)) help_->setText(helps_.value(watched));
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (watched == address_ && key == Qt::Key_PageDown) {
      guard([this] { searchPost({}); });
      return true;
    }
    if (watched == address_ && enter && post_.isEmpty() && !address_->text().trimmed().isEmpty()) {
      guard([this] { searchPost(address_->text()); });
      return true;
    }
    if (watched == charge_ && key == Qt::Key_F12) {
      guard([this] {
        if (const auto person = pickers_.searchResponse()) charge_->setText(*person);
      });
      return true;
    }
  }
  return Dialog::eventFilter(watched, event);
}

void FrmNewTrader::searchPost(const QString& text) {
  const auto post = pickers_.searchPost(text);
  if (!post) {
    address_->setFocus();
    return;
  }
  post_ = post->zipCode;
  address_->setText(post->address);
  lot_->setFocus();
}

TraderFields FrmNewTrader::typed() const {
  const auto day = [&](QLineEdit* box) {
    return checkedDate(static_cast<DateBox*>(box)->dateText(), session_.pc.clock);
  };
  return {.C_Name = name_->text().trimmed(),
          .U_Name = person_->text(),
          .Serial = serial_->text(),
          .Phone = phone_->text(),
          .Fax = fax_->text(),
          .Charge = charge_->text(),
          .VAT = vat_->currentIndex(),
          .Addr1 = address_->text(),
          .Addr2 = lot_->text(),
          .Post = post_,
          .Status = status_->text(),
          .Item = item_->text(),
          .OpenDate = day(open_),
          .CloseDate = day(close_),
          .Section = customer_ ? "1" : "2",
          .TotNoPay = balance_->value(),
          .Bigo = remark_->text()};
}

bool FrmNewTrader::mayLeave() {
  if (stored_ || (name_->text() + phone_->text() + address_->text()).isEmpty()) return true;
  return prompts().MsgAsk("입력한 내용을 저장하지 않았습니다!\n저장하지 않고 버리시겠습니까?", "거래처 등록",
                          false);
}

void FrmNewTrader::save() {
  for (QLineEdit* box : {open_, close_}) {
    const QString date = static_cast<DateBox*>(box)->dateText();
    if (date.isEmpty() || !checkedDate(date, session_.pc.clock).isEmpty()) continue;
    prompts().MsgWarn("잘못된 날짜 형식입니다.\n정확한 날짜 형식을 입력하세요.");
    box->setFocus();
    return;
  }
  tellBusinessNumber(prompts(), serial_->text());
  switch (saveNewTrader(session_, typed())) {
    case TraderSaved::Stored:
      stored_ = true;
      return accept();
    case TraderSaved::Left:
      return Dialog::done(Rejected);
    case TraderSaved::BackToName:
      name_->setFocus();
      name_->selectAll();
  }
}
