#include "master/customers/form_client_boxes.h"

#include <QCheckBox>
#include <QRadioButton>

#include "master/customers/tel_format.h"
#include "master/registers/form_business_number.h"
#include "ui/forms/fields.h"
#include "ui/forms/form.h"

namespace {

constexpr int moneyLimit = 999999999;
constexpr int pairsARow = 4;

QString typedText(const QLineEdit* box) {
  return box ? box->text().trimmed() : QString();
}

void showText(QLineEdit* box, const QString& text) {
  if (!box) return;
  box->setText(text);
  box->setCursorPosition(0);
}

void showMoney(MoneyBox* box, const QString& text) {
  if (!box) return;
  const double won = QString(text).remove(u',').toDouble();
  if (text.isEmpty()) {
    box->clear();
  } else {
    box->setValue(qint64(won));
  }
}

}  // namespace

ClientBoxes::ClientBoxes(Form& form, Pickers& pickers, QWidget* panel, HouseStyle style, Set set)
    : form_(form), pickers_(pickers), panel_(panel), style_(style) {
  Fields fields(panel, set == Set::Short ? 2 : pairsARow);
  if (set == Set::Short) {
    buildShort(fields);
  } else if (style == HouseStyle::Individual) {
    buildPlain(fields);
  } else {
    buildHousehold(fields);
  }
}

// --- laying out ---------------------------------------------------------------------------------------------

void ClientBoxes::help(QWidget* box, const QString& text) {
  form_.setHelp(box, text);
}

QLineEdit* ClientBoxes::line(Fields& fields, const char* name, const QString& label, int width, int maxLength,
                             int span) {
  QLineEdit* const box = fields.text(name, label, width, maxLength, span);
  order_ << box;
  return box;
}

void ClientBoxes::buildPlain(Fields& fields) {
  name_ = line(fields, "TxtName", "이름/상호", 0, 50);
  help(name_, "고객의 이름이나 상호를 입력합니다");
  boxes_[ClientBox::Name] = name_;
  uname_ = line(fields, "TxtUName", "검색이름", 14, 10);
  help(uname_, "이름/상호/번지등 검색시 사용할 이름등록, 고객검색:F12");
  fields.newRow();
  addTelephones(fields, true);
  fields.newRow();
  addPlace(fields);
  addDatesAndMoney(fields);
  addPayment(fields);
  addMeter(fields);
  serial_ = line(fields, "TxtSerial", "사업자번호", 16, 12);
  help(serial_, "사업자등록번호나 주민등록번호를 입력합니다");
  watchBusinessNumber(form_, serial_);
  status_ = line(fields, "TxtStatus", "업태", 14, 10);
  help(status_, "사업자의 업태를 입력합니다");
  item_ = line(fields, "TxtItem", "종목", 22, 20);
  help(item_, "사업자의 종목을 입력합니다");
  fields.newRow();
  addMemo(fields, pairsARow);
}

void ClientBoxes::buildHousehold(Fields& fields) {
  building_ = line(fields, "TxtBDName", style_ == HouseStyle::Apartment ? "아파트명" : "다가구명", 0, 40);
  help(building_, "건물명을 입력합니다.   전체조회 = F12");
  dong_ = line(fields, "TxtDong", "동", 10, 10);
  help(dong_, "건물의 동명을 입력합니다. ex) 101");
  ho_ = line(fields, "TxtHo", "호", 10, 10);
  help(ho_, "호수를 입력합니다. ex) 1203");
  fields.newRow();
  name_ = line(fields, "TxtName", "이름", 0, 50);
  help(name_, "고객의 이름을 입력합니다");
  boxes_[ClientBox::Name] = name_;
  addTelephones(fields, true);
  addPlace(fields);
  addDatesAndMoney(fields);
  addPayment(fields);
  addMeter(fields);
  addMemo(fields, pairsARow);
}

void ClientBoxes::buildShort(Fields& fields) {
  name_ = line(fields, "TxtName", "이름/상호", 0, 50);
  help(name_, "고객의 이름이나 상호를 입력합니다");
  boxes_[ClientBox::Name] = name_;
  addTelephones(fields, false);
  fields.newRow();
  post_ = line(fields, "TxtPost", "우편번호", 12, 7);
  fields.newRow();
  address_ = line(fields, "TxtAddress", "주소", 0, 100, 2);
  help(post_, "우편번호나 읍/면/동 이름을 입력한 후 엔터를 치세요.  조회 = F12");
  help(address_, "고객의 거주지 주소를 입력합니다");
  addMemo(fields, 2);
  addMeter(fields, true);
}

void ClientBoxes::addTelephones(Fields& fields, bool all) {
  const auto add = [&](const char* name, const QString& label, int maxLength, ClientBox which) {
    TelBox* const box = fields.tel(name, label);
    box->setMaxLength(maxLength);
    help(box, "고객의 전화번호를 등록합니다");
    QObject::connect(box, &QLineEdit::editingFinished, box, [box] {
      if (!box->isModified()) return;
      box->setText(FormatTel(box->text()).text);
      box->setModified(true);
    });
    tels_ << box;
    order_ << box;
    boxes_[which] = box;
  };
  add("TxtTel", "전화번호", 20, ClientBox::Tel);
  if (!all) return;
  add("TxtTel1", "전화번호 2", 14, ClientBox::Tel1);
  add("TxtTel2", "전화번호 3", 14, ClientBox::Tel2);
}

void ClientBoxes::addPlace(Fields& fields) {
  fields.newRow();
  post_ = line(fields, "TxtPost", "우편번호", 12, 7);
  help(post_, "우편번호나 읍/면/동 이름을 입력한 후 엔터를 치세요.  조회 = F12");
  address_ = line(fields, "TxtAddress", "주소", 0, 100, 3);
  help(address_, "고객의 거주지 주소를 입력합니다");
}

void ClientBoxes::addDatesAndMoney(Fields& fields) {
  appDate_ = fields.date("TxtAppDate", "가입일자");
  help(appDate_, "가입일자를 입력합니다.  달력조회 = F12");
  birth_ = fields.date("TxtBirth", "생일");
  help(birth_, "고객의 생일을 등록합니다.   달력조회 = F12");
  gasInit_ = fields.money("TxtGasInit", "가스미수");
  help(gasInit_, "등록시의 가스미수금을 입력합니다");
  utilInit_ = fields.money("TxtUtilInit", "자재미수");
  help(utilInit_, "등록시의 시설/자재 미수금을 입력합니다");
  for (MoneyBox* const box : {gasInit_, utilInit_}) box->setRange(-moneyLimit, moneyLimit);
  order_ << appDate_ << birth_ << gasInit_ << utilInit_;
  boxes_[ClientBox::AppDate] = appDate_;
  boxes_[ClientBox::Birth] = birth_;
  boxes_[ClientBox::GasInit] = gasInit_;
  boxes_[ClientBox::UtilInit] = utilInit_;
}

void ClientBoxes::addPayment(Fields& fields) {
  payWays_ =
      fields.options("수금방법", {{"OptCash", "방문"}, {"OptJiro", "지로"}, {"OptAutoAC", "자동이체"}});
  for (QRadioButton* const option : payWays_) {
    help(option, "수금방법을 화살표키로 선택합니다");
    order_ << option;
  }
  payWays_.front()->setChecked(true);
}

void ClientBoxes::addMeter(Fields& fields, bool checkAlone) {
  volume_ = fields.check("ChkVolume", "체적고객");
  help(volume_, "체적은 스페이스바로 체크, 일반은 엔터 치세요");
  order_ << volume_;
  if (checkAlone) fields.newRow();
  pressure_ = line(fields, "TxtPressure", "압력조정기", 14, 20);
  help(pressure_, "엔터를 누른후 압력조정기를 선택하세요");
  unit_ = fields.money("TxtVolumeUnit", "체적단가");
  unit_->setRange(0, moneyLimit);
  help(unit_, "사용량 계산시 적용할 단가를 입력합니다");
  order_ << unit_;
  boxes_[ClientBox::Pressure] = pressure_;
  boxes_[ClientBox::VolumeUnit] = unit_;
  QObject::connect(volume_, &QCheckBox::toggled, panel_, [this](bool on) { meterSwitched(on); });
  meterSwitched(false);
}

void ClientBoxes::addMemo(Fields& fields, int span) {
  memo_ = line(fields, "TxtMemo", "메모사항", 0, 255, span);
  help(memo_, "고객에 대한 메모/특이사항을 입력합니다");
}

void ClientBoxes::meterSwitched(bool on) {
  pressure_->setEnabled(on);
  unit_->setEnabled(on);
}

// --- showing and reading ------------------------------------------------------------------------------------

void ClientBoxes::show(const ClientEntry& entry) {
  showText(name_, entry.name);
  showText(uname_, entry.uname);
  const QString tels[] = {entry.tel, entry.tel1, entry.tel2};
  for (int i = 0; i < tels_.size(); ++i) tels_[i]->setText(tels[i]);
  showText(post_, entry.postCode);
  showText(address_, entry.address);
  showText(memo_, entry.memo);
  if (birth_) birth_->setDateText(entry.birth);
  if (appDate_) appDate_->setDateText(entry.appDate);
  showMoney(gasInit_, entry.gasInit);
  showMoney(utilInit_, entry.utilInit);
  if (!payWays_.isEmpty()) payWays_[int(entry.payWay) - 1]->setChecked(true);
  volume_->setChecked(entry.volume);
  showText(pressure_, entry.pressure);
  showMoney(unit_, entry.volumeUnit == "0" ? QString() : entry.volumeUnit);
  showText(building_, entry.bdName);
  showText(dong_, entry.dong);
  showText(ho_, entry.ho);
  showText(serial_, entry.serial);
  showText(status_, entry.status);
  showText(item_, entry.item);
}

ClientEntry ClientBoxes::entry() const {
  ClientEntry entry;
  entry.houseStyle = style_;
  entry.name = typedText(name_);
  entry.uname = typedText(uname_);
  QString* const tels[] = {&entry.tel, &entry.tel1, &entry.tel2};
  for (int i = 0; i < tels_.size(); ++i) *tels[i] = typedText(tels_[i]);
  entry.postCode = typedText(post_);
  entry.address = typedText(address_);
  entry.memo = typedText(memo_);
  if (birth_) entry.birth = birth_->dateText();
  if (appDate_) entry.appDate = appDate_->dateText();
  if (gasInit_) entry.gasInit = gasInit_->plainText();
  if (utilInit_) entry.utilInit = utilInit_->plainText();
  for (int i = 0; i < payWays_.size(); ++i) {
    if (payWays_[i]->isChecked()) entry.payWay = PayWay(i + 1);
  }
  entry.volume = volume_->isChecked();
  entry.pressure = typedText(pressure_);
  entry.volumeUnit = unit_->plainText();
  entry.bdName = typedText(building_);
  entry.dong = typedText(dong_);
  entry.ho = typedText(ho_);
  entry.serial = typedText(serial_);
  entry.status = typedText(status_);
  entry.item = typedText(item_);
  return entry;
}

// --- Enter and F12 ------------------------------------------------------------------------------------------

bool ClientBoxes::postCode(ClientEntry& entry) {
  return lookUpPostCode(form_.session(), pickers_, entry);
}
bool ClientBoxes::regulator(ClientEntry& entry) {
  return lookUpRegulator(pickers_, entry);
}
bool ClientBoxes::building(ClientEntry& entry) {
  return lookUpBuilding(pickers_, entry);
}

/** Runs a search on the boxes as they stand; what it filled is shown, and the focus goes where the hand goes next. */
bool ClientBoxes::fill(bool (ClientBoxes::*lookUp)(ClientEntry&), QWidget* next) {
  QWidget* const from = panel_->window()->focusWidget();
  form_.guard([&] {
    ClientEntry boxes = entry();
    const bool filled = (this->*lookUp)(boxes);
    if (filled) show(boxes);
    QWidget* const to = filled ? next : from;
    panel_->window()->activateWindow();
    if (to) Form::focus(to);
    if (filled && to == address_) address_->end(false);
  });
  return true;
}

bool ClientBoxes::date(DateBox* box) {
  form_.guard([&] {
    const auto day = pickers_.pickDate(box->dateText());
    if (day) box->setDateText(*day);
    panel_->window()->activateWindow();
    Form::focus(box);
  });
  return true;
}

bool ClientBoxes::enter(QWidget* box) {
  if (box == post_ && post_->isModified() && !typedText(post_).isEmpty())
    return fill(&ClientBoxes::postCode, address_);
  if (box == pressure_ && typedText(pressure_).isEmpty()) return fill(&ClientBoxes::regulator, unit_);
  if (building_ && box == building_ && typedText(building_).isEmpty())
    return fill(&ClientBoxes::building, ho_);
  return false;
}

bool ClientBoxes::f12(QWidget* box) {
  if (box == post_) return fill(&ClientBoxes::postCode, address_);
  if (box == pressure_) return fill(&ClientBoxes::regulator, unit_);
  if (building_ && box == building_) return fill(&ClientBoxes::building, ho_);
  if (box && (box == birth_ || box == appDate_)) return date(static_cast<DateBox*>(box));
  return false;
}

void ClientBoxes::focusApostrophe() {
  for (QWidget* const box : order_) {
    auto* const line = qobject_cast<QLineEdit*>(box);
    if (!line || !hasApostrophe(line->text())) continue;
    return Form::focus(line);
  }
}
