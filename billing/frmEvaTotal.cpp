#include "billing/frmEvaTotal.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

#include "billing/reading_sheet.h"
#include "store/vb.h"
#include "ui/forms/fields.h"

using namespace Qt::StringLiterals;

namespace {

QHBoxLayout* tightRow(QWidget* box) {
  auto* const row = new QHBoxLayout(box);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(5);
  return row;
}

QComboBox* monthCombo(const QString& name, int month, QWidget* parent) {
  auto* const box = new QComboBox(parent);
  box->setObjectName(name);
  for (int each = 1; each <= 12; ++each) box->addItem(u"%1월"_s.arg(each, 2, 10, QChar(u'0')));
  box->setCurrentIndex(month - 1);
  box->setMaxVisibleItems(12);
  return box;
}

DateBox* dayBox(const QString& name, const QDate& day, QWidget* parent) {
  auto* const box = new DateBox(DateBox::Mask::MonthDay, parent);
  box->setObjectName(name);
  box->setDateText(day.toString(u"MM-dd"_s));
  box->setFixedWidth(7 * box->fontMetrics().horizontalAdvance(u'0') + 16);
  return box;
}

QLineEdit* numberBox(const char* name, QWidget* parent) {
  auto* const box = new QLineEdit(parent);
  box->setObjectName(QString::fromLatin1(name));
  box->setMaxLength(10);
  box->setFixedWidth(7 * box->fontMetrics().horizontalAdvance(u'0') + 16);
  return box;
}

}  // namespace

frmEvaTotal::frmEvaTotal(FormContext& context, QWidget* parent)
    : Form(u"frmEvaTotal"_s, u"검침현황 조회"_s, context.session, parent), total_(context.session) {
  tabs_ = new QTabBar(this);
  tabs_->setObjectName(u"TabEvaTotal"_s);
  tabs_->setExpanding(false);
  tabs_->setFocusPolicy(Qt::NoFocus);
  for (const MeterBook each : {MeterBook::Individual, MeterBook::Apartment, MeterBook::MultiHousehold})
    tabs_->addTab(bookCaption(each));
  grid_ = addSpread("SpEvaTotal", total_.grid());
  grid_->setFillColumn(TotalCol::Name);
  auto* const head = new QVBoxLayout;
  head->setSpacing(0);
  head->addWidget(tabs_);
  head->addWidget(questionRow());
  body()->addLayout(head);
  body()->addWidget(grid_, 1);
  body()->addWidget(sumRow());

  setHelp(building_, u"조회할 건물을 선택합니다"_s);
  setHelp(dong_, u"동을 입력하면 그 동만 조회합니다"_s);
  setHelp(ho_, u"호를 입력하면 그 호만 조회합니다"_s);
  for (QWidget* box : {static_cast<QWidget*>(fromMonth_), static_cast<QWidget*>(toMonth_)})
    setHelp(box, u"조회할 검침월을 선택합니다"_s);
  for (QWidget* box : {fromDay_, toDay_}) setHelp(box, u"조회할 수금일자를 월일로 입력합니다"_s);
  setHelp(byCollection_, u"선택하면 검침월이 아닌 수금일자로 조회합니다"_s);
  setBottomLine(u"F10:인쇄  Esc:닫기"_s);
  enterOrder({building_, dong_, ho_, fromMonth_, toMonth_, fromDay_, toDay_}, [this] { refresh(); });
  onKey(Qt::Key_F10, [this] { total_.print(); });
  onKey(Qt::Key_Escape, [this] { close(); });

  connect(tabs_, &QTabBar::currentChanged, this, [this] { guard([this] { turnToBook(); }); });
  connect(byCollection_, &QCheckBox::toggled, this, [this](bool on) {
    total_.rememberByCollection(on);
    turnToPeriod();
  });
  byCollection_->setChecked(total_.byCollection());
  turnToPeriod();
  guard([this] { turnToBook(); });
  showPage(session().CheckKind);
}

void frmEvaTotal::showPage(const QString& kind) {
  const int place = kind.toInt() - 1;
  if (place >= 0 && place < tabs_->count()) tabs_->setCurrentIndex(place);
}

MeterBook frmEvaTotal::book() const {
  return MeterBook(tabs_->currentIndex());
}

QWidget* frmEvaTotal::questionRow() {
  auto* const panel = addGroup(QString());
  auto* const row = new QHBoxLayout(panel);
  row->setContentsMargins(6, 4, 6, 4);
  row->setSpacing(5);
  const auto labelled = [&](QHBoxLayout* in, const QString& text, QWidget* box) {
    auto* const label = new QLabel(text, panel);
    label->setBuddy(box);
    in->addWidget(label);
    in->addWidget(box);
    in->addSpacing(8);
  };
  buildingBoxes_ = new QWidget(panel);
  QHBoxLayout* const of = tightRow(buildingBoxes_);
  building_ = new QComboBox(buildingBoxes_);
  building_->setObjectName(u"CboGubun"_s);
  building_->setMinimumWidth(20 * fontMetrics().horizontalAdvance(u'0'));
  dong_ = numberBox("txtDong", buildingBoxes_);
  ho_ = numberBox("txtHo", buildingBoxes_);
  labelled(of, u"건물구분"_s, building_);
  labelled(of, u"동"_s, dong_);
  labelled(of, u"호"_s, ho_);
  row->addWidget(buildingBoxes_);
  labelled(row, u"조회기간"_s, periodBox(panel));
  byCollection_ = new QCheckBox(u"수금일자 기준 검색"_s, panel);
  byCollection_->setObjectName(u"chkSuKum"_s);
  row->addWidget(byCollection_);
  row->addStretch(1);
  row->addWidget(addButton("BtnRefresh", u"조회"_s, [this] { refresh(); }));
  return panel;
}

/** Months, or days while the collections are asked for: this month, or its days up to today. */
QWidget* frmEvaTotal::periodBox(QWidget* parent) {
  const QDate today = session().pc.clock.today();
  period_ = new QStackedWidget(parent);
  period_->setObjectName(u"htDate"_s);
  const auto pair = [&](auto*& from, auto*& to, auto make) {
    auto* const box = new QWidget(period_);
    QHBoxLayout* const row = tightRow(box);
    row->addWidget(from = make(u"From"_s, box));
    row->addWidget(new QLabel(u"~"_s, box));
    row->addWidget(to = make(u"To"_s, box));
    row->addStretch(1);
    period_->addWidget(box);
  };
  pair(fromMonth_, toMonth_,
       [&](const QString& end, QWidget* box) { return monthCombo(u"CboMon"_s + end, today.month(), box); });
  pair(fromDay_, toDay_, [&](const QString& end, QWidget* box) {
    return dayBox(u"TxtDay"_s + end, end == "From"_L1 ? QDate(today.year(), today.month(), 1) : today, box);
  });
  period_->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
  return period_;
}

QWidget* frmEvaTotal::sumRow() {
  auto* const row = new QWidget(this);
  QHBoxLayout* const line = tightRow(row);
  const auto panel = [&](const char* name, const QString& caption, int width) {
    line->addWidget(new QLabel(caption, row));
    auto* const shown = new QLabel(row);
    shown->setObjectName(QString::fromLatin1(name));
    shown->setProperty("role", "value");
    shown->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    shown->setTextInteractionFlags(Qt::TextSelectableByMouse);
    shown->setFixedWidth(width * fontMetrics().horizontalAdvance(u'0') + 16);
    line->addWidget(shown);
    line->addSpacing(8);
    return shown;
  };
  pnlPeriod_ = panel("PnlPeriod", u"기간"_s, 15);
  pnlPeriod_->setAlignment(Qt::AlignCenter);
  pnlPrev_ = panel("PnlPrev", u"전월이월"_s, 14);
  pnlIncome_ = panel("PnlIncome", u"수금"_s, 14);
  pnlRemain_ = panel("PnlRemain", u"잔액"_s, 14);
  line->addStretch(1);
  line->addWidget(addButton("BtnPrt", u"인쇄"_s, [this] { total_.print(); }));
  line->addWidget(addButton("BtnExit", u"닫기"_s, [this] { close(); }));
  return row;
}

void frmEvaTotal::turnToBook() {
  buildingBoxes_->setVisible(book() != MeterBook::Individual);
  building_->clear();
  building_->addItems(total_.buildings(book()));
  dong_->clear();
  ho_->clear();
  total_.clear();
  showSums();
}

void frmEvaTotal::turnToPeriod() {
  period_->setCurrentIndex(byCollection_->isChecked() ? 1 : 0);
}

EvaTotalAsk frmEvaTotal::ask() const {
  return {.book = book(),
          .byCollection = byCollection_->isChecked(),
          .fromMonth = fromMonth_->currentIndex() + 1,
          .toMonth = toMonth_->currentIndex() + 1,
          .fromDay = fromDay_->dateText(),
          .toDay = toDay_->dateText(),
          .building = building_->currentIndex() > 0 ? building_->currentText() : QString(),
          .dong = dong_->text(),
          .ho = ho_->text()};
}

void frmEvaTotal::refresh() {
  const BusyPointer busy;
  total_.refresh(ask());
  showSums();
}

void frmEvaTotal::showSums() {
  const auto won = [](qint64 sum) { return vb::Format(double(sum), u"#,##0"_s); };
  pnlPeriod_->setText(total_.period());
  pnlPrev_->setText(won(total_.prev()));
  pnlIncome_->setText(won(total_.income()));
  pnlRemain_->setText(won(total_.remain()));
}
