#include "master/buildings/frmHouseStyle.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QRadioButton>
#include <QRegularExpressionValidator>

#include "master/registers/form_lookups.h"
#include "ui/forms/FrmProgress.h"
#include "ui/forms/keys.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 mostWon = 999'999'999;

}  // namespace

frmHouseStyle::frmHouseStyle(FormContext& context, QWidget* parent)
    : RegisterForm(u"frmHouseStyle"_s, u"아파트/다가구 등록"_s, context.session, parent),
      context_(context),
      buildings_{BuildingRegister(context.session, HouseStyle::Apartment),
                 BuildingRegister(context.session, HouseStyle::MultiHousehold)} {
  buildPage(buildings_[0], pages_[0], "SpApt", u"아파트(&1)"_s);
  buildPage(buildings_[1], pages_[1], "SpMany", u"다가구(&2)"_s);
  withoutDeleteButton();
  setBottomLine(u" 아파트/다가구의 고객을 등록합니다"_s);
  onKey(Qt::Key_F12, [this] { lookUpBuilding(); });
  start();
  for (Page& each : pages_) {
    attachPostCode(*this, context.pickers, each.post, each.address);
    each.pressure->installEventFilter(this);
  }
}

void frmHouseStyle::buildPage(BuildingRegister& buildings, Page& page, const char* gridName,
                              const QString& title) {
  buildings.beginWork = [this](int count) {
    return barTeller(u"세대별 고객을 등록하고 있습니다..."_s, count, this);
  };
  page.sheet = addPage(buildings, gridName, u"건물자료 삭제 : Delete"_s, "TabHouse", title);
  page.sheet->boxPanel()->setStyleSheet(u"#PnlBoxes { border: none; margin-top: 0; padding: 0; }"_s);
  auto* const halves = new QHBoxLayout(page.sheet->boxPanel());
  halves->setContentsMargins(0, 0, 0, 0);
  halves->addWidget(buildBoxes(page), 0);

  page.side = addGroup(u"호수"_s);
  auto* const whole = new QVBoxLayout(page.side);
  whole->setContentsMargins(6, 4, 6, 4);
  page.units = addSpread("SpBDAddress", buildings.units(), page.side);
  page.units->setMinimumHeight(10 * fontMetrics().lineSpacing());
  page.units->cellEntered = [this](int, int) {
    showHelp(this->buildings().isNew() ? u"없는 세대는 호수를 지우십시오. 지운 세대는 등록되지 않습니다"_s
                                       : u"등록된 세대의 호수입니다"_s);
  };
  page.units->cellFinished = [&buildings](int row, int col, const QString&, const QString& typed) {
    buildings.units().setText(row, col, typed.trimmed());
    markTwins(buildings.units());
    return true;
  };
  whole->addWidget(page.units);
  halves->addWidget(page.side, 1);
}

QGroupBox* frmHouseStyle::buildBoxes(Page& page) {
  QGroupBox* const group = addGroup(u"건물"_s);
  Fields fields(group, 2);
  RegisterPage* const sheet = page.sheet;
  const auto count = [&](const char* name, const QString& label, int digits, qint64 most) {
    MoneyBox* const box = fields.money(name, label, 8);
    box->setMaxLength(digits);
    box->setRange(0, most);
    return box;
  };
  page.name = fields.text("TxtBDName", u"건물명"_s, 20, 40);
  sheet->bind(page.name, u"Name"_s, u"건물명을 입력합니다.   전체조회 = F12"_s);
  page.dong = fields.text("TxtDong", u"동"_s, 8, 10);
  sheet->bind(page.dong, u"Dong"_s, u"건물의 동명을 입력합니다. ex) 101"_s);

  const QList<QRadioButton*> structure =
      fields.options(u"세대구조"_s, {{"OptStair", u"계단식"_s}, {"OptFloor", u"복도식"_s}}, 2);
  for (QRadioButton* const option : structure) {
    setHelp(option, u"세대구조를 화살표키로 선택합니다"_s);
    connect(option, &QRadioButton::toggled, this, [this] { showUnits(); });
  }
  sheet->bind(structure.front(), u"Structure"_s, u"세대구조를 화살표키로 선택합니다"_s);

  page.floors = count("TxtHeight", u"층수"_s, 2, BuildingPlan::Most);
  sheet->bind(page.floors, u"Height"_s, u"건물의 층수를 입력합니다"_s);
  page.width = count("TxtWidth", u"층당 세대수"_s, 2, BuildingPlan::Most);
  sheet->bind(page.width, u"Width"_s, u"건물의 층당 세대수를 입력합니다"_s);
  const auto exists = [&](const char* name, const QString& caption) {
    QCheckBox* const box = fields.check(name, caption);
    sheet->bind(box, QString::fromLatin1(name), u"해당하는 층이나 호가 없으면 스페이스바로 지우세요"_s);
    connect(box, &QCheckBox::toggled, this, [this] { showUnits(); });
    QSizePolicy place = box->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    box->setSizePolicy(place);
    return box;
  };
  page.floor4 = exists("Chk4", u"4층포함"_s);
  page.unit4 = exists("Chk4Ho", u"4호포함"_s);
  for (MoneyBox* const box : {page.floors, page.width})
    connect(box, &QLineEdit::textChanged, this, [this] { showUnits(); });

  page.post = fields.text("TxtPost", u"우편번호"_s, 10, 7);
  sheet->bind(page.post, u"PostCode"_s, u"엔터나 F12를 누른후 입력하세요"_s);
  fields.newRow();
  page.address = fields.text("TxtAddress", u"주소"_s, 0, 100, 2);
  sheet->bind(page.address, u"Address"_s, u"건물의 주소를 입력합니다"_s);

  page.metered = fields.check("ChkEvaporation", u"체적검침 건물"_s);
  sheet->bind(page.metered, u"Evaporation"_s, u"체적은 스페이스바로 체크, 일반은 엔터 치세요"_s);
  page.pressure = fields.text("TxtPressure", u"압력조정기"_s, 12, 20);
  sheet->bind(page.pressure, u"Pressure"_s, u"엔터를 누른후 압력조정기를 선택하세요"_s);
  page.price = count("TxtEva", u"체적단가"_s, 11, mostWon);
  sheet->bind(page.price, u"Eva"_s, u"사용량 계산시 적용할 단가를 입력합니다"_s);
  connect(page.metered, &QCheckBox::toggled, this, [&page](bool on) {
    page.pressure->setEnabled(on);
    page.price->setEnabled(on);
  });
  QLineEdit* const rate = fields.text("TxtDelayPay", u"연체료율(%)"_s, 8, 8);
  rate->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  static const QRegularExpression percent(u"[0-9]{0,3}(\\.[0-9]{0,3})?"_s);
  rate->setValidator(new QRegularExpressionValidator(percent, rate));
  sheet->bind(rate, u"delaypay"_s, u"해당 아파트에 대한 연체료율을 입력하세요."_s);
  return group;
}

void frmHouseStyle::recordShown() {
  if (!pages_[1].units) return;  // while the first page is being built
  const bool fresh = buildings().isNew();
  for (QLineEdit* const box :
       {boxes().name, static_cast<QLineEdit*>(boxes().floors), static_cast<QLineEdit*>(boxes().width)})
    box->setReadOnly(!fresh);
  boxes().side->setTitle(fresh ? u"호수 (저장하기 전에 고칠 수 있습니다)"_s : u"호수"_s);
  for (QCheckBox* const box : {boxes().floor4, boxes().unit4}) {
    box->setVisible(fresh);
    if (!fresh) box->setChecked(true);  // a block that has gone meanwhile begins anew with all its numbers
  }
  boxes().pressure->setEnabled(boxes().metered->isChecked());
  boxes().price->setEnabled(boxes().metered->isChecked());
  guard([this] { buildings().showUnits(boxes().sheet->boxes()); });
}

void frmHouseStyle::showUnits() {
  if (!pages_[1].units || !buildings().isNew()) return;
  guard([this] { buildings().showUnits(boxes().sheet->boxes()); });
}

void frmHouseStyle::lookUpBuilding() {
  if (focusWidget() == boxes().pressure) {
    lookUpPressure();
    return;
  }
  if (focusWidget() != boxes().name || !buildings().isNew()) return;
  const auto chosen = context_.pickers.searchBuilding(buildings().houseStyle());
  activateWindow();
  if (!chosen) return focus(boxes().name);
  boxes().name->setText(chosen->name);
  boxes().post->setText(chosen->postCode);
  boxes().address->setText(chosen->address);
  focus(boxes().dong);
}

bool frmHouseStyle::lookUpPressure() {
  QLineEdit* const pressure = boxes().pressure;
  guard([&] {
    const auto chosen = context_.pickers.searchVolume();
    activateWindow();
    if (!chosen) return focus(pressure);
    pressure->setText(chosen->size);
    boxes().price->setValue(qint64(chosen->unit));
    focus(boxes().price);
  });
  return true;
}

bool frmHouseStyle::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && watched == boxes().pressure &&
      boxes().pressure->text().trimmed().isEmpty()) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (isEnterKey(key)) return lookUpPressure();
  }
  return RegisterForm::eventFilter(watched, event);
}
