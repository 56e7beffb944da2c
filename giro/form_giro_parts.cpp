#include "giro/form_giro_parts.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

SelectionGroup::SelectionGroup(QWidget* parent) : QGroupBox(u"발행 대상"_s, parent) {
  const QString captions[] = {
      u"현재 선택된 한명의 고객만 발행합니다."_s, u"현재 발행이 체크된 고객만 발행합니다."_s,
      u"현재 발행이 체크 안된 고객만 발행합니다."_s, u"현재 화면에 출력된 모든 고객을 발행합니다."_s};
  auto* rows = new QVBoxLayout(this);
  for (int i = 0; i < 4; ++i) {
    options_[i] = new QRadioButton(captions[i]);
    options_[i]->setObjectName(u"Opt"_s + QString::number(i + 1));
    rows->addWidget(options_[i]);
  }
  rows->addStretch();
  options_[0]->setChecked(true);
}

GiroSelection SelectionGroup::chosen() const {
  for (int i = 1; i < 4; ++i)
    if (options_[i]->isChecked()) return GiroSelection(i + 1);
  return GiroSelection::Active;
}

DueDateBoxes::DueDateBoxes(const QDate& day, QWidget* parent) : QWidget(parent) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  year_ = box(*row, u"TxtYear"_s, day.toString(u"yyyy"_s), 4, u"년"_s);
  month_ = box(*row, u"TxtMon"_s, day.toString(u"MM"_s), 2, u"월"_s);
  day_ = box(*row, u"TxtDay"_s, day.toString(u"dd"_s), 2, u"일"_s);
  row->addStretch();
}

QLineEdit* DueDateBoxes::box(QHBoxLayout& row, const QString& name, const QString& text, int digits,
                             const QString& label) {
  auto* made = new QLineEdit(text);
  made->setObjectName(name);
  made->setMaxLength(digits);
  made->setAlignment(Qt::AlignRight);
  made->setFixedWidth(digits * made->fontMetrics().horizontalAdvance(u'0') + 18);
  row.addWidget(made);
  row.addWidget(new QLabel(label));
  row.addSpacing(4);
  return made;
}

QString DueDateBoxes::year() const {
  return year_->text();
}

QString DueDateBoxes::month() const {
  return month_->text();
}

QString DueDateBoxes::day() const {
  return day_->text();
}

PeriodBoxes::PeriodBoxes(const char* fromName, const char* toName, const QString& mask, QWidget* parent)
    : QWidget(parent) {
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  for (auto [box, name] : {std::pair{&from_, fromName}, std::pair{&to_, toName}}) {
    *box = new QLineEdit;
    (*box)->setObjectName(QString::fromUtf8(name));
    (*box)->setMaxLength(10);
    (*box)->setInputMask(mask);
    (*box)->setFixedWidth(10 * fontMetrics().horizontalAdvance(u'0') + 22);
    if (row->count()) row->addWidget(new QLabel(u"-"_s));
    row->addWidget(*box);
  }
  row->addStretch();
}

QString PeriodBoxes::from() const {
  return from_->text();
}

QString PeriodBoxes::to() const {
  return to_->text();
}

void PeriodBoxes::set(const QString& from, const QString& to) {
  from_->setText(from);
  to_->setText(to);
}

BankPanel::BankPanel(int number, QWidget* parent) : QGroupBox(u"수납은행선택"_s, parent) {
  const QString suffix = number > 1 ? QString::number(number) : QString();
  if (number > 1) setTitle(title() + u' ' + suffix);
  auto* const grid = new QGridLayout(this);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(5);
  const auto box = [&](int row, const QString& name, const QString& label) {
    auto* const made = new QLineEdit;
    made->setObjectName(name + suffix);
    made->setMaxLength(40);
    made->setMinimumWidth(24 * fontMetrics().horizontalAdvance(u'0'));
    grid->addWidget(new QLabel(label), row, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(made, row, 1);
    return made;
  };
  name_ = box(0, u"TxtBank"_s, u"은행명"_s);
  account_ = box(1, u"TxtNumber"_s, u"계좌번호"_s);
  holder_ = box(2, u"TxtUser"_s, u"예금주"_s);
  search_ = new QPushButton(number > 1 ? u"조회"_s : u"조회(&F)"_s);
  search_->setObjectName(u"BtnRef"_s + suffix);
  search_->setAutoDefault(false);
  search_->setToolTip(u"등록된 은행에서 고릅니다"_s);
  grid->addWidget(search_, 0, 2);
  grid->setRowStretch(3, 1);
}

SlipBank BankPanel::bank() const {
  return {name_->text(), account_->text(), holder_->text()};
}

void BankPanel::setBank(const SlipBank& bank) {
  name_->setText(bank.name);
  account_->setText(bank.account);
  holder_->setText(bank.holder);
}
