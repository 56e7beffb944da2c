#include "giro/slip.h"

#include "billing/building_rate.h"
#include "billing/reading_screen.h"
#include "giro/giro_run.h"
#include "giro/scan_line.h"
#include "store/rounding.h"
#include "store/session.h"
#include "store/text_width.h"
#include "store/vb.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int amountPlaces = 13, codePlaces = 7;

QString amountText(double amount) {
  return moneyText(amount).rightJustified(amountPlaces);
}

/** "101동 203호" */
struct Household {
  QString dong, room;
};

Household householdOf(const QString& cell) {
  const qsizetype dong = cell.indexOf(u'동');
  return {dong < 0 ? QString() : cell.left(dong), cell.mid(dong + 1).section(u'호', 0, 0).trimmed()};
}

bool isWholeBook(const QString& entry) {
  return entry == u"아파트 전체" || entry == u"다가구 전체";
}

}  // namespace

SlipTexts slipTexts(Session& session, const ReadingScreen& screen, int row, OcrPaper paper,
                    const GiroInput& input) {
  const SpreadModel& readings = screen.readings();
  const auto cell = [&](int col) { return readings.text(row, col); };
  const auto number = [&](int col) { return vb::Val(cell(col)); };
  SlipTexts texts;
  const auto put = [&](SlipText what, const QString& text) { texts[size_t(what)] = text; };

  const QDate thisYear(session.pc.clock.today().year(), 1, 1);
  const QDate issue = thisYear.addMonths(screen.month() - 2);  // kept: the month before the shown one
  put(SlipText::IssueYear, issue.toString(u"yyyy"_s));
  put(SlipText::IssueMonth, issue.toString(u"MM"_s));
  put(SlipText::UsePeriod, input.useFrom + u'-' + input.useTo);
  put(SlipText::DueYear, input.year);
  put(SlipText::DueMonth, input.month);
  put(SlipText::DueDay, input.day);

  const QString code = cell(EvaCol::Code);
  const double rate = paper == OcrPaper::A4 ? lateRate(session, screen.book(), code.toLongLong())
                                            : session.rates.of(screen.book()).rate;
  const auto charge = [&](double on) { return rate == 0 ? 0 : RoundByPayState(session, rate / 100 * on); };
  const double total = number(EvaCol::Total);
  const double afterDue = charge(total);
  put(SlipText::Total, amountText(total));
  put(SlipText::AmountToPay, cell(EvaCol::PayWay) == "3"_L1 ? automaticTransfer() : amountText(total));
  put(SlipText::AfterDueCharge, amountText(afterDue));
  put(SlipText::AfterDueAmount, amountText(total + afterDue));
  put(SlipText::Late, amountText(charge(number(EvaCol::Trust))));
  put(SlipText::PrevReading, amountText(number(EvaCol::PrevUseGage)));
  put(SlipText::Reading, amountText(number(EvaCol::UseGage)));
  put(SlipText::Use, amountText(number(EvaCol::UseMuch)));
  put(SlipText::Amount, amountText(number(EvaCol::UsePay)));
  put(SlipText::Manage, amountText(number(EvaCol::Manage)));
  put(SlipText::Arrears, amountText(number(EvaCol::Trust)));

  put(SlipText::Code, code.rightJustified(codePlaces, u'0'));
  put(SlipText::Name, cell(EvaCol::Name));
  if (screen.book() == MeterBook::Individual) {
    put(SlipText::Address, cell(EvaCol::Address));
    put(SlipText::AddressLine, cell(EvaCol::Address));
  } else {
    const auto [dong, room] = householdOf(cell(EvaCol::Name));
    const QString building = cell(EvaCol::BDName), entry = screen.buildingEntry();
    const QString label = isWholeBook(entry) ? building : BuildingLabelForDong(session, entry);
    put(SlipText::Address, building + u' ' + dong + u"동  "_s + room + u"호"_s);
    put(SlipText::AddressLine, label + u' ' + dong + u"동 "_s + room + u"호"_s);
  }

  const QString giroNumber =
      session.pc.settings.GetSetting(session.AppTitle, u"Registration"_s, u"Ocr"_s, u"0000000"_s);
  put(SlipText::ScanLine, scanLine(giroNumber, code, cell(EvaCol::Total)));
  return texts;
}
