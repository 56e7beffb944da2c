#include "giro/slip.h"

#include "billing/reading_screen.h"
#include "giro/scan_line.h"
#include "store/rounding.h"
#include "store/session.h"
#include "store/settings_table.h"
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

SlipWriter::SlipWriter(Session& session, const ReadingScreen& screen, OcrPaper paper, const GiroInput& input)
    : screen_(screen),
      giroNumber_(session.pc.settings.read(setting::ApprovalNumber)),
      rates_(session, screen.book(), paper == OcrPaper::A4),
      payState_(companyPayState(session)) {
  const auto put = [&](SlipText what, const QString& text) { common_[size_t(what)] = text; };
  const QDate thisYear(session.pc.clock.today().year(), 1, 1);
  const QDate issue = thisYear.addMonths(screen.month() - 2);  // kept: the month before the shown one
  put(SlipText::IssueYear, issue.toString(u"yyyy"_s));
  put(SlipText::IssueMonth, issue.toString(u"MM"_s));
  put(SlipText::UsePeriod, input.useFrom + u'-' + input.useTo);
  put(SlipText::DueYear, input.year);
  put(SlipText::DueMonth, input.month);
  put(SlipText::DueDay, input.day);
  if (const QString entry = screen.buildingEntry(); !isWholeBook(entry))
    buildingLabel_ = BuildingLabelForDong(session, entry);
}

QString SlipWriter::customer(int row) const {
  return screen_.readings().text(row, EvaCol::Name);
}

SlipTexts SlipWriter::texts(int row) const {
  const SpreadModel& readings = screen_.readings();
  const auto cell = [&](int col) { return readings.text(row, col); };
  const auto number = [&](int col) { return vb::Val(cell(col)); };
  SlipTexts texts = common_;
  const auto put = [&](SlipText what, const QString& text) { texts[size_t(what)] = text; };

  const QString code = cell(EvaCol::Code);
  const double rate = rates_.of(code.toLongLong());
  const auto charge = [&](double on) { return rate == 0 ? 0 : roundToTen(rate / 100 * on, payState_); };
  const double total = number(EvaCol::Total), arrears = number(EvaCol::Trust);
  const double afterDue = charge(total);
  const QString totalText = amountText(total);
  put(SlipText::Total, totalText);
  put(SlipText::AmountToPay, cell(EvaCol::PayWay) == "3"_L1 ? u"(자동이체)"_s : totalText);
  put(SlipText::AfterDueCharge, amountText(afterDue));
  put(SlipText::AfterDueAmount, amountText(total + afterDue));
  put(SlipText::Late, amountText(charge(arrears)));
  put(SlipText::PrevReading, amountText(number(EvaCol::PrevUseGage)));
  put(SlipText::Reading, amountText(number(EvaCol::UseGage)));
  put(SlipText::Use, amountText(number(EvaCol::UseMuch)));
  put(SlipText::Amount, amountText(number(EvaCol::UsePay)));
  put(SlipText::Manage, amountText(number(EvaCol::Manage)));
  put(SlipText::Arrears, amountText(arrears));

  put(SlipText::Code, code.rightJustified(codePlaces, u'0'));
  put(SlipText::Name, cell(EvaCol::Name));
  if (screen_.book() == HouseStyle::Individual) {
    put(SlipText::Address, cell(EvaCol::Address));
    put(SlipText::AddressLine, cell(EvaCol::Address));
  } else {
    const auto [dong, room] = householdOf(cell(EvaCol::Name));
    const QString building = cell(EvaCol::BDName);
    const QString label = buildingLabel_.value_or(building);
    put(SlipText::Address, building + u' ' + dong + u"동  "_s + room + u"호"_s);
    put(SlipText::AddressLine, label + u' ' + dong + u"동 "_s + room + u"호"_s);
  }
  put(SlipText::ScanLine, scanLine(giroNumber_, code, cell(EvaCol::Total)));
  return texts;
}
