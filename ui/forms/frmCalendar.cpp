#include "ui/forms/frmCalendar.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTextCharFormat>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/forms/dialog.h"
#include "ui/forms/style.h"

using namespace Qt::StringLiterals;

namespace {

const QString dateForm = u"yyyy-MM-dd"_s;

QCalendarWidget* monthSheet(QWidget* parent, const QDate& today, const QDate& chosen) {
  auto* const sheet = new QCalendarWidget(parent);
  sheet->setObjectName(u"Calendar"_s);
  sheet->setLocale(QLocale(QLocale::Korean, QLocale::SouthKorea));
  sheet->setFirstDayOfWeek(Qt::Sunday);
  sheet->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  sheet->setHorizontalHeaderFormat(QCalendarWidget::ShortDayNames);
  sheet->setGridVisible(true);
  sheet->setNavigationBarVisible(false);
  QTextCharFormat weekday;
  weekday.setForeground(look::negative);
  sheet->setWeekdayTextFormat(Qt::Sunday, weekday);
  weekday.setForeground(look::accent);
  sheet->setWeekdayTextFormat(Qt::Saturday, weekday);
  QTextCharFormat now;
  now.setFontWeight(QFont::Bold);
  now.setBackground(look::accentSoft);
  sheet->setDateTextFormat(today, now);
  sheet->setSelectedDate(chosen);
  return sheet;
}

/** "2026년 6월" between the two buttons that turn the page. */
QHBoxLayout* pageHead(Dialog& dialog, QCalendarWidget* sheet) {
  auto* const title = new QLabel(&dialog);
  title->setObjectName(u"LblMonth"_s);
  title->setAlignment(Qt::AlignCenter);
  title->setFont(look::textFont(12, true));
  const auto show = [=] { title->setText(u"%1년 %2월"_s.arg(sheet->yearShown()).arg(sheet->monthShown())); };
  QObject::connect(sheet, &QCalendarWidget::currentPageChanged, title, show);
  show();
  const auto turner = [&](const QString& text, auto turn) {
    auto* const button = new QToolButton(&dialog);
    button->setText(text);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    QObject::connect(button, &QToolButton::clicked, sheet, turn);
    return button;
  };
  auto* const head = new QHBoxLayout;
  head->addWidget(turner(u"◀"_s, &QCalendarWidget::showPreviousMonth));
  head->addWidget(title, 1);
  head->addWidget(turner(u"▶"_s, &QCalendarWidget::showNextMonth));
  return head;
}

}  // namespace

std::optional<QString> frmCalendar(Prompts& prompts, const QString& initial, const QDate& today,
                                   QWidget* parent) {
  Dialog dialog(u"frmCalendar"_s, u"달력"_s, prompts, parent);
  dialog.layout()->setContentsMargins(6, 6, 6, 6);
  dialog.layout()->setSpacing(5);
  const QDate start = QDate::fromString(initial, dateForm);
  auto* const sheet = monthSheet(&dialog, today, start.isValid() ? start : today);
  dialog.on(sheet, &QCalendarWidget::activated, [&] { dialog.accept(); });
  dialog.body()->addLayout(pageHead(dialog, sheet));
  dialog.body()->addWidget(sheet);

  auto* const help = new QLabel(u"엔터 : 선택   PgUp/PgDn : 월 이동   Esc : 닫기"_s, &dialog);
  help->setObjectName(u"PnlHelp"_s);
  dialog.foot()->addWidget(help, 1);
  dialog.addButton("BtnToday", u"오늘(&T)"_s, [&] { sheet->setSelectedDate(today); })
      ->setFocusPolicy(Qt::NoFocus);
  sheet->setFocus();
  if (dialog.exec() != QDialog::Accepted) return {};
  return sheet->selectedDate().toString(dateForm);
}
