#include "giro/slip.h"

#include "billing/reading_screen.h"
#include "giro/scan_line.h"
#include "store/data_access.h"
#include "store/date_text.h"
#include "store/rounding.h"
#include "store/session.h"
#include "store/settings_table.h"
#include "store/text_width.h"
#include "store/vb.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int amountPlaces = 13, codePlaces = 7;

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

SlipWriter::SlipWriter(Session& session, const ReadingScreen& screen, const SlipRules& rules,
                       const GiroInput& input)
    : session_(session),
      screen_(screen),
      rules_(rules),
      arrearsOnly_(input.monthsArrearsOnly),
      giroNumber_(session.pc.settings.read(setting::ApprovalNumber)),
      rates_(session, screen.book(), rules.buildingsRate),
      payState_(companyPayState(session)) {
  writeCommon(input);
  writeBanks(input.banks);
  writeCompany(input.companyPreprinted);
  if (const QString entry = screen.buildingEntry(); !isWholeBook(entry))
    buildingLabel_ = BuildingLabelForDong(session, entry);
}

void SlipWriter::writeCommon(const GiroInput& input) {
  const auto put = [&](SlipText what, const QString& text) { common_[size_t(what)] = text; };
  const QDate thisYear(session_.pc.clock.today().year(), 1, 1);
  const QDate issue = thisYear.addMonths(screen_.month() - 2);  // kept: the month before the shown one
  put(SlipText::IssueYear, issue.toString(u"yyyy"_s));
  put(SlipText::IssueMonth, twoDigits(issue.month()));
  put(SlipText::MonthTitle, twoDigits(issue.month()) + u"월분"_s);
  put(SlipText::UsePeriod, input.useFrom + QString::fromUtf16(rules_.periodBetween) + input.useTo);
  put(SlipText::DueYear, input.year);
  put(SlipText::DueMonth, input.month);
  put(SlipText::DueDay, input.day);
  put(SlipText::DueDate, QString::fromUtf16(rules_.dueDate).arg(input.year, input.month, input.day));
}

void SlipWriter::writeBanks(const std::vector<SlipBank>& banks) {
  const auto labelled = [&](const QString& label, const QString& text) {
    return rules_.labelsBank && !text.isEmpty() ? label + text : text;
  };
  for (size_t at = 0; at < std::min<size_t>(banks.size(), 3); ++at) {
    QString* const places = &common_[size_t(SlipText::Bank) + 3 * at];
    places[0] = labelled(u"은행명 : "_s, banks[at].name);
    places[1] = banks[at].account;
    places[2] = labelled(u"예금주 : "_s, banks[at].holder);
  }
}

void SlipWriter::writeCompany(bool preprinted) {
  const auto put = [&](SlipText what, const QString& text) { common_[size_t(what)] = text; };
  // On paper that has the words already, blanks of the same width stand in for them.
  put(SlipText::FeeLabel, preprinted ? QString(10, u' ') : u"안전관리비"_s);
  put(SlipText::PhoneLabel, preprinted ? QString(11, u' ') : u"문의전화 : "_s);
  jet::Recordset company;
  if (preprinted ||
      !OpenSnapshot(session_.prompts, session_.dbBasic, company, u"Select Company, Tel From User"_s) ||
      company.atEnd())
    return;
  put(SlipText::Company, company[0].toText());
  put(SlipText::Phone, company[1].toText());
}

/** Kept: a paper that reads the rule anew follows a change in the middle of its run, and lets 0 through. */
double SlipWriter::rounded(double won) const {
  if (!rules_.roundsAnew) return roundToTen(won, payState_);
  return won == 0 ? won : RoundByPayState(session_, won);
}

QString SlipWriter::figure(double amount) const {
  const QString text = moneyText(amount);
  return rules_.padsFigures ? text.rightJustified(amountPlaces) : text;
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
  const auto charge = [&](double on) { return rounded(rate / 100 * on); };
  const double total = number(EvaCol::Total), arrears = number(EvaCol::Trust),
               amount = number(EvaCol::UsePay), fee = number(EvaCol::Manage);
  const double afterDue =
      charge(rules_.afterDueByMethod && session_.AfterDueMethod == 1 ? amount + fee : total);
  put(SlipText::Total, figure(total));
  put(SlipText::AmountToPay, cell(EvaCol::PayWay) == "3"_L1 ? u"(자동이체)"_s : figure(total));
  put(SlipText::AfterDueCharge, figure(afterDue));
  put(SlipText::AfterDueAmount, figure(total + afterDue));
  put(SlipText::Late, arrearsOnly_ ? QString() : figure(charge(arrears)));
  put(SlipText::PrevReading, figure(number(EvaCol::PrevUseGage)));
  put(SlipText::Reading, figure(number(EvaCol::UseGage)));
  put(SlipText::Use, figure(number(EvaCol::UseMuch)));
  put(SlipText::Amount, figure(amount));
  put(SlipText::Manage, figure(fee));
  put(SlipText::Arrears, figure(arrears));

  put(SlipText::Code, code.rightJustified(codePlaces, u'0'));
  put(SlipText::Name, cell(EvaCol::Name));
  put(SlipText::NameSir, cell(EvaCol::Name) + u" 님"_s);
  if (screen_.book() == HouseStyle::Individual) {
    put(SlipText::Address, cell(EvaCol::Address));
    put(SlipText::AddressLine, cell(EvaCol::Address));
  } else {
    const auto [dong, room] = householdOf(cell(EvaCol::Name));
    const QString building = cell(EvaCol::BDName);
    const QString label = buildingLabel_.value_or(building);
    put(SlipText::Address,
        (rules_.buildingByList ? label : building) + u' ' + dong + u"동  "_s + room + u"호"_s);
    put(SlipText::AddressLine, label + u' ' + dong + u"동 "_s + room + u"호"_s);
  }
  put(SlipText::ScanLine, scanLine(giroNumber_, code, cell(EvaCol::Total)));
  return texts;
}
