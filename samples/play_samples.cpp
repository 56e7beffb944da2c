// The newcomer's first look where there is no display: plays the sample day and month, or the turn of the year, and tells
// what happened.
#include <QCoreApplication>
#include <QDir>
#include <QTextStream>
#include <stdexcept>

#include "pc/program_line.h"
#include "samples/day.h"
#include "samples/month.h"
#include "samples/year_end.h"

using namespace Qt::StringLiterals;

namespace {

constexpr pc::ProgramLine programLine{
    "play_samples", "day|year PROGRAMS PC OUT",
    "Plays the sample day and month, or the turn of the year, on a virtual screen and tells what they did.\n"
    "  PROGRAMS   folder of haeon and jetsql\n"
    "  PC         folder with the books that make_books has made\n"
    "  OUT        folder for the screenshots and the slips"};

QTextStream& out() {
  static QTextStream stream(stdout);
  return stream;
}

void tell(const QString& step) {
  out() << "- " << step << Qt::endl;
}

QString column(const QString& text, int width) {
  return text.rightJustified(width);
}

void playDay(const samples::Stage::Options& options) {
  samples::Stage stage(options);
  const samples::DayReport report = samples::playDay(stage, tell);
  const auto row = [](const char* what, qint64 before, qint64 after) {
    out() << QString::fromUtf8(what).leftJustified(34) << column(QString::number(before), 12)
          << column(QString::number(after), 12) << '\n';
  };
  out() << "\n" << u"the customer and the 20 kg gas"_s.leftJustified(34) << "      before       after\n";
  row("owed for gas (GasInit), won", report.before.gasInit, report.after.gasInit);
  row("owed for materials (UtilInit), won", report.before.utilInit, report.after.utilInit);
  row("gas in stock (LPGStock), kg", report.before.stockKilograms, report.after.stockKilograms);
  row("full cylinders (CANFull)", report.before.full, report.after.full);
  row("empty cylinders (CANEmpty)", report.before.empty, report.after.empty);
  row("cylinders lent (CANLoan)", report.before.loan, report.after.loan);
  row("cylinders held (CANTotalHold)", report.before.total, report.after.total);
  out() << "\nlines of the day (kind, item, size, number, income, credit)\n";
  for (const QString& line : report.lines) out() << "  " << line << '\n';
  out() << "purchases of the day (station, kind, item, size, number, payment, credit)\n";
  for (const QString& line : report.purchases) out() << "  " << line << '\n';
  out() << "full 20 kg cylinders in the month (opening, bought, sold, closing)\n  " << report.stock << '\n';
}

/** The stage of a play that moves the clock on. */
std::function<samples::Stage::Options(const QString&)> atClock(const samples::Stage::Options& options) {
  return [options](const QString& clock) {
    samples::Stage::Options own = options;
    own.clock = clock;
    own.pdf = QDir(options.pictures).absoluteFilePath("slips.pdf");
    return own;
  };
}

void playYearEnd(const samples::Stage::Options& options) {
  const samples::YearEndReport report = samples::playYearEnd(atClock(options), tell);
  out() << "\nrows of the new book's January with arrears: " << report.carried
        << "\nhouseholds of the block: December's bill; January's arrears, late charge and bill, won\n";
  for (const char* const head : {"room", "December", "arrears", "late", "issued"}) out() << column(head, 12);
  out() << '\n';
  for (qsizetype at = 0; at < 6; ++at) {
    const samples::MonthBill &december = report.december[at], &january = report.january[at];
    out() << column(december.name.section(u' ', -1).remove(u'호'), 12);
    for (const qint64 figure : {december.issued, january.arrears, january.late, january.issued})
      out() << column(QString::number(figure), 12);
    out() << '\n';
  }
  out() << column("...", 12) << '\n';
}

void playMonth(const samples::Stage::Options& options) {
  out() << "\n";
  const samples::MonthReport report = samples::playMonth(atClock(options), tell);
  out() << "\nhouseholds of the block, March in won; then what April opens with\n";
  const QStringList heads{"room", "use", "gas", "arrears", "late", "fee", "issued", "paid", "April"};
  for (const QString& head : heads) out() << column(head, 10);
  out() << '\n';
  for (const samples::MonthBill& bill : report.block.first(6)) {
    out() << column(bill.name.section(u' ', -1).remove(u'호'), 10);
    for (const qint64 figure :
         {bill.use, bill.amount, bill.arrears, bill.late, bill.fee, bill.issued, bill.paid, bill.nextArrears})
      out() << column(QString::number(figure), 10);
    out() << '\n';
  }
  out() << column("...", 10) << '\n';
}

}  // namespace

int main(int argc, char** argv) {
  if (pc::saidOfItself(programLine, argc, argv)) return 0;
  QCoreApplication application(argc, argv);
  const QStringList arguments = application.arguments();
  const QString play = arguments.value(1);
  if (arguments.size() != 5 || (play != u"day" && play != u"year")) return pc::wrongUse(programLine);
  samples::Stage::Options options;
  options.programs = arguments[2];
  options.pcRoot = arguments[3];
  options.clock = QString::fromLatin1(samples::dayClock);
  options.pictures = arguments[4];
  try {
    if (play == u"year") {
      playYearEnd(options);
    } else {
      playDay(options);
      playMonth(options);
    }
  } catch (const std::runtime_error& failure) {
    out() << "the play stopped: " << failure.what() << Qt::endl;
    return 1;
  }
  return 0;
}
