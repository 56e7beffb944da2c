#include "giro/form_giro_parts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
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
