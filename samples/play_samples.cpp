// The newcomer's first look where there is no display: plays the sample day and the sample month and tells what
// happened.
#include <QCoreApplication>
#include <QDir>
#include <QTextStream>
#include <stdexcept>

#include "pc/program_line.h"
#include "samples/day.h"
#include "samples/month.h"

using namespace Qt::StringLiterals;

namespace {

constexpr pc::ProgramLine programLine{
    "play_samples", "PROGRAMS PC OUT",
    "Plays the sample day and month on a virtual screen and tells what they did.\n"
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

void playMonth(const samples::Stage::Options& options) {
  out() << "\n";
  const samples::MonthReport report = samples::playMonth(
      [&](const QString& clock) {
        samples::Stage::Options own = options;
        own.clock = clock;
        own.pdf = QDir(options.pictures).absoluteFilePath("slips.pdf");
        return own;
      },
      tell);
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
  if (arguments.size() != 4) return pc::wrongUse(programLine);
  samples::Stage::Options options;
  options.programs = arguments[1];
  options.pcRoot = arguments[2];
  options.clock = QString::fromLatin1(samples::dayClock);
  options.pictures = arguments[3];
  try {
    playDay(options);
    playMonth(options);
  } catch (const std::runtime_error& failure) {
    out() << "the play stopped: " << failure.what() << Qt::endl;
    return 1;
  }
  return 0;
}
