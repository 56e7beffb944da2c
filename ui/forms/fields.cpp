#include "ui/forms/fields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>

#include "ui/forms/form.h"

using namespace Qt::StringLiterals;

Fields::Fields(QWidget* panel, int pairs) : panel_(panel), grid_(new QGridLayout(panel)), pairs_(pairs) {
  grid_->setContentsMargins(6, 4, 6, 4);
  grid_->setHorizontalSpacing(6);
  grid_->setVerticalSpacing(3);
  for (int pair = 0; pair < pairs; ++pair) grid_->setColumnStretch(2 * pair + 1, 1);
}

void Fields::newRow() {
  if (at_ == 0) return;
  at_ = 0;
  ++row_;
}

void Fields::add(const QString& label, QWidget* box, int span) {
  if (at_ + span > pairs_) newRow();
  if (!label.isEmpty()) {
    auto* const words = new QLabel(label, panel_);
    words->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid_->addWidget(words, row_, 2 * at_);
    words->setBuddy(box);
  }
  // A box of its own width stays at the left of its column; the others fill it.
  const auto side =
      box->maximumWidth() < QWIDGETSIZE_MAX ? Qt::AlignLeft | Qt::AlignVCenter : Qt::Alignment();
  grid_->addWidget(box, row_, 2 * at_ + 1, 1, 2 * span - 1, side);
  at_ += span;
  if (at_ >= pairs_) newRow();
}

QLabel* Fields::labelOf(QWidget* box) {
  for (QLabel* const label : box->parentWidget()->findChildren<QLabel*>())
    if (label->buddy() == box) return label;
  return nullptr;
}

void Fields::tellRefusedKeys(QLineEdit* box) {
  QObject::connect(box, &QLineEdit::inputRejected, box, [box] {
    const bool full = !box->validator() && box->inputMask().isEmpty();
    const QString why = full ? u"%1자까지 입력할 수 있습니다"_s.arg(box->maxLength())
                             : u"이 칸에 넣을 수 없는 글자이거나 자릿수가 넘습니다"_s;
    for (QWidget* up = box->parentWidget(); up; up = up->parentWidget())
      if (auto* const form = qobject_cast<Form*>(up)) return form->showHelp(why);
  });
}

template <class Box>
Box* Fields::put(const char* name, const QString& label, Box* box, int width, int span) {
  box->setObjectName(QString::fromUtf8(name));
  if (width > 0) box->setFixedWidth(width * box->fontMetrics().horizontalAdvance(u'0') + 16);
  if constexpr (std::is_base_of_v<QLineEdit, Box>) tellRefusedKeys(box);
  add(label, box, span);
  return box;
}

QLineEdit* Fields::text(const char* name, const QString& label, int width, int maxLength, int span) {
  auto* const box = put(name, label, new QLineEdit(panel_), width, span);
  if (maxLength > 0) box->setMaxLength(maxLength);
  return box;
}

MoneyBox* Fields::money(const char* name, const QString& label, int width) {
  return put(name, label, new MoneyBox(panel_), width, 1);
}

DateBox* Fields::date(const char* name, const QString& label, DateBox::Mask mask) {
  return put(name, label, new DateBox(mask, panel_), mask == DateBox::Mask::YearMonthDay ? 12 : 7, 1);
}

TelBox* Fields::tel(const char* name, const QString& label, int width) {
  return put(name, label, new TelBox(panel_), width, 1);
}

QComboBox* Fields::combo(const char* name, const QString& label, const QStringList& entries, int width) {
  auto* const box = new QComboBox(panel_);
  box->addItems(entries);
  return put(name, label, box, width > 0 ? width + 3 : 0, 1);
}

QCheckBox* Fields::check(const char* name, const QString& caption) {
  return put(name, QString(), new QCheckBox(caption, panel_), 0, 1);
}

QList<QRadioButton*> Fields::options(const QString& label, const QList<std::pair<const char*, QString>>& each,
                                     int span) {
  auto* const row = new QWidget(panel_);
  auto* const side = new QHBoxLayout(row);
  side->setContentsMargins(0, 0, 0, 0);
  QList<QRadioButton*> made;
  for (const auto& [name, caption] : each) {
    made << new QRadioButton(caption, row);
    made.back()->setObjectName(QString::fromUtf8(name));
    side->addWidget(made.back());
  }
  side->addStretch(1);
  add(label, row, span);
  return made;
}

QPlainTextEdit* Fields::lines(const char* name, const QString& label, int rows, int span) {
  auto* const box = new QPlainTextEdit(panel_);
  box->setTabChangesFocus(true);
  box->setFixedHeight(rows * box->fontMetrics().lineSpacing() + 12);
  return put(name, label, box, 0, span);
}

QLabel* Fields::value(const char* name, const QString& label, int width, int span) {
  auto* const shown = new QLabel(panel_);
  shown->setProperty("role", "value");
  shown->setTextInteractionFlags(Qt::TextSelectableByMouse);
  // What is shown does not move its neighbours; the column is as wide as the form made it.
  shown->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  return put(name, label, shown, width, span);
}
