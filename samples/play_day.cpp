// The newcomer's first look where there is no display: plays the sample day and tells what happened.
//   play_day PROGRAMS PC PICTURES
#include <QCoreApplication>
#include <QTextStream>
#include <stdexcept>

#include "samples/day.h"

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  const QStringList arguments = application.arguments();
  QTextStream out(stdout);
  if (arguments.size() != 4) {
    out << "usage: play_day PROGRAMS PC PICTURES\n";
    return 2;
  }
  try {
    samples::Stage stage({arguments[1], arguments[2], QString::fromLatin1(samples::dayClock), arguments[3]});
    samples::DayReport report;
    try {
      report = samples::playDay(stage, [&](const QString& step) { out << "- " << step << Qt::endl; });
    } catch (const std::runtime_error&) {
      stage.picture(QStringLiteral("day-stopped-here"));
      throw;
    }
    auto row = [&](const char* what, qint64 before, qint64 after) {
      out << QString::fromUtf8(what).leftJustified(34) << QString::number(before).rightJustified(12)
          << QString::number(after).rightJustified(12) << '\n';
    };
    out << "\n"
        << QStringLiteral("the customer and the 20 kg gas").leftJustified(34) << "      before       after\n";
    row("owed for gas (GasInit), won", report.before.gasInit, report.after.gasInit);
    row("owed for materials (UtilInit), won", report.before.utilInit, report.after.utilInit);
    row("gas in stock (LPGStock), kg", report.before.stockKilograms, report.after.stockKilograms);
    row("full cylinders (CANFull)", report.before.full, report.after.full);
    row("empty cylinders (CANEmpty)", report.before.empty, report.after.empty);
    row("cylinders lent (CANLoan)", report.before.loan, report.after.loan);
    row("cylinders held (CANTotalHold)", report.before.total, report.after.total);
    out << "\nlines of the day (kind, item, size, number, income, credit)\n";
    for (const QString& line : report.lines) out << "  " << line << '\n';
  } catch (const std::runtime_error& failure) {
    out << "the sample day stopped: " << failure.what() << '\n';
    return 1;
  }
  return 0;
}
