#include "links/frmPrtSafe.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpressionValidator>

#include "links/safe_note.h"
#include "store/date_text.h"
#include "ui/forms/fields.h"

using namespace Qt::StringLiterals;

frmPrtSafe::frmPrtSafe(FormContext& context, QWidget* parent)
    : Dialog(u"frmPrtSafe"_s, u"안전관리대장 출력"_s, context.session.prompts, parent),
      session_(context.session) {
  const QDate today = session_.pc.clock.today();
  auto* const days = new QWidget;
  auto* const row = new QHBoxLayout(days);
  row->setContentsMargins(0, 0, 0, 0);
  const auto day = [&](const char* name, const QDate& date, const QString& unit) {
    auto* const box = new DateBox(DateBox::Mask::YearMonthDay);
    box->setObjectName(QString::fromLatin1(name));
    box->setFixedWidth(12 * fontMetrics().horizontalAdvance(u'0') + 16);
    box->setDateText(date.toString(u"yyyy-MM-dd"_s));
    row->addWidget(box);
    row->addWidget(new QLabel(unit));
    return box;
  };
  from_ = day("txtDate0", QDate(today.year(), today.month(), 1), u"부터"_s);
  to_ = day("txtDate1", today, u"까지"_s);
  Fields boxes(addPanel(), 1);
  boxes.add(u"판매일자"_s, days);
  month_ = boxes.text("TxtMon", u"정기점검월"_s, 4, 2);
  month_->setValidator(new QRegularExpressionValidator(QRegularExpression(u"[0-9]{0,2}"_s), month_));
  month_->setText(today.toString(u"MM"_s));
  QPushButton* const print = addButton("BtnPrint", u"인쇄(&P)"_s, [this] { this->print(); });
  addLeave("BtnExit", u"닫기(&X)"_s);
  enterOrder({from_, to_, month_, print});
  from_->setFocus();
}

void frmPrtSafe::print() {
  if (showSafeNote(session_, {from_->dateText(), to_->dateText(), month_->text().trimmed()})) return;
  const auto isDay = [this](const DateBox* box) {
    return !checkedDate(box->dateText(), session_.pc.clock).isEmpty();
  };
  (isDay(from_) && !isDay(to_) ? to_ : from_)->setFocus();
}
