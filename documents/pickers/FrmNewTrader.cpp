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
#include "ui/forms/keys.h"

FrmNewTrader::FrmNewTrader(Session& session, Pickers& pickers, bool customer, QWidget* parent)
    : Dialog("FrmNewTrader", "거래처 등록", session.prompts, parent),
      session_(session),
      pickers_(pickers),
      customer_(customer) {
  Fields fields(addPanel(), 2);
  const auto helped = [this](auto* box, const char* text) {
    helps_[box] = text;
    box->installEventFilter(this);
    return box;
  };
  name_ = helped(fields.text("txtName", "상호명", 30, 60), "상호명을 입력하세요.");
  person_ = helped(fields.text("txtUser", "성명", 20, 30), "성명을 입력하세요.");
  phone_ = helped(fields.tel("txtPhone", "전화번호"), "전화번호를 입력하세요.");
  fax_ = helped(fields.tel("txtFax", "팩스번호"), "팩스번호를 입력하세요.");
  QStringList codes;
  for (int code = 0; code < 3; ++code) codes << QString::number(code) + " " + vatCaptions()[code];
  vat_ =
      helped(fields.combo("cboVAT", "부가세", codes), "부가세 계산방법. 0:계산안함  1:단가/1.1  2:단가*0.1");
  charge_ = helped(fields.text("txtCharge", "담당자", 14, 6), "코드나 이름으로 담당자를 검색하세요.");
  serial_ = helped(fields.text("txtSerial", "사업/주민번호", 18, 14), "사업/주민번호를 입력하세요.");
  fields.newRow();
  status_ = helped(fields.text("txtStatus", "업태", 20, 30), "업태를 입력하세요.");
  item_ = helped(fields.text("txtItem", "종목", 20, 30), "종목을 입력하세요.");
  address_ = helped(fields.text("txtAddr1", "주소", 0, 100, 2),
                    "읍/면/동 입력 후 Enter로 검색. [전체검색 : PageDown]");
  lot_ = helped(fields.text("txtAddr2", "번지", 0, 100, 2), "번지를 입력하세요.");
  remark_ = helped(fields.text("txtBigo", "기타", 0, 255, 2), "기타 사항을 입력하세요.");
  balance_ = helped(fields.money("txtTotNoPay", customer ? "미 수 금" : "미 불 금"),
                    customer ? "초기 미수금을 입력하세요" : "초기 미불금을 입력하세요.");
  fields.newRow();
  open_ = helped(fields.date("txtOpenDate", "개업일자"), "개업일자를 입력하세요.");
  close_ = helped(fields.date("txtCloseDate", "폐업일자"), "폐업일자를 입력하세요.");
  help_ = addText(helps_.value(name_), "PnlHelp");
  auto* const post = addButton("btnPost", "우편번호(&P)", [this] { searchPost({}); });
  post->setFocusPolicy(Qt::NoFocus);
  QPushButton* const save = addButton("BtnSave", "저장(&S)", [this] { this->save(); });
  addLeave("btnQuit", "종료(&X)");
  enterOrder({name_, person_, phone_, fax_, vat_, charge_, serial_, status_, item_, address_, lot_, remark_,
              balance_, open_, close_, save});
  name_->setFocus();
}

bool FrmNewTrader::enter() {
  exec();
  return stored_;
}

bool FrmNewTrader::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn && helps_.contains(watched)) help_->setText(helps_.value(watched));
  if (event->type() == QEvent::KeyPress) {
    const auto* const pressed = static_cast<QKeyEvent*>(event);
    const bool plain = !(pressed->modifiers() & ~Qt::KeypadModifier);
    const int key = plain ? pressed->key() : 0;
    const bool enter = isEnterKey(key);
    if (watched == address_ && key == Qt::Key_PageDown) {
      guard([this] { searchPost({}); });
      return true;
    }
    if (watched == address_ && enter && postCode().isEmpty() && !address_->text().trimmed().isEmpty()) {
      guard([this] { searchPost(address_->text()); });
      return true;
    }
    if (watched == charge_ && (key == Qt::Key_F12 || (enter && !charge_->text().trimmed().isEmpty()))) {
      guard([this, enter] { searchCharge(enter); });
      return true;
    }
  }
  return Dialog::eventFilter(watched, event);
}

/** typed: what stands in the box first tells a person by code or name; the list comes where it tells none. */
void FrmNewTrader::searchCharge(bool typed) {
  std::optional<QString> person;
  if (typed) person = responseNamed(session_, charge_->text());
  if (!person) person = pickers_.searchResponse();
  if (!person) return;
  charge_->setText(*person);
  serial_->setFocus();
}

void FrmNewTrader::searchPost(const QString& text) {
  const auto post = pickers_.searchPost(text);
  if (!post) {
    address_->setFocus();
    return;
  }
  post_ = *post;
  address_->setText(post->address);
  lot_->setFocus();
}

/** Of the chosen place, as long as the address is still there. */
QString FrmNewTrader::postCode() const {
  return address_->text().startsWith(post_.address) ? post_.zipCode : QString();
}

TraderFields FrmNewTrader::typed() const {
  const auto day = [&](const DateBox* box) { return checkedDate(box->dateText(), session_.pc.clock); };
  return {.C_Name = name_->text().trimmed(),
          .U_Name = person_->text(),
          .Serial = serial_->text(),
          .Phone = phone_->text(),
          .Fax = fax_->text(),
          .Charge = charge_->text(),
          .VAT = vat_->currentIndex(),
          .Addr1 = address_->text(),
          .Addr2 = lot_->text(),
          .Post = postCode(),
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
  for (DateBox* const box : {open_, close_}) {
    const QString date = box->dateText();
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
