#include "store/closing/closing_forecast.h"

#include <QSet>

#include "store/closing/file_replacement.h"
#include "store/data_access.h"
#include "store/data_files.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

namespace {

int count(const jet::Database& file, const QString& what, const QString& dated, const QString& year) {
  return int(file.OpenRecordset(u"Select Count("_s + what + u") From "_s + dated + u" >= '"_s +
                                plainText(year) + u"-01-01'"_s)[0]
                 .toLong());
}

void readDecember(const jet::Database& year, ClosingForecast& forecast) {
  QSet<qint64> all, january;
  for (jet::Recordset row = year.OpenRecordset(u"Select ClientCode, Mon From Evaporation"_s); !row.atEnd();
       row.MoveNext()) {
    all << row[0].toLong();
    if (row[1].toLong() == 1) january << row[0].toLong();
  }
  forecast.customers = int(all.size());
  for (
      jet::Recordset row = year.OpenRecordset(
          u"Select Evaporation.ClientCode, Client.Name, Evaporation.Trust, Evaporation.UseGage, Evaporation.Total "_s
          u"From Evaporation Left Join Client On Evaporation.ClientCode = Client.Code "_s
          u"Where Evaporation.Mon = 12 Order By Evaporation.ClientCode"_s);
      !row.atEnd(); row.MoveNext()) {
    const ForecastLine line{.code = row[0].toLong(),
                            .name = row[1].toText(),
                            .trust = row[2].toDouble(),
                            .reading = row[3].toDouble(),
                            .total = row[4].toDouble(),
                            .hasJanuary = january.contains(row[0].toLong())};
    if (line.hasJanuary) {
      forecast.arrears += line.total;
      forecast.owing += line.total != 0;
    }
    forecast.lines.push_back(line);
  }
}

void readNext(const jet::Database& year, const jet::Database& next, ClosingForecast& forecast) {
  const QString dated = QString::number(forecast.year + 1);
  const auto onlyInNext = [&](const QString& what, const QString& rows) {
    return qMax(0, count(next, what, rows, dated) - count(year, what, rows, dated));
  };
  forecast.sales = onlyInNext(u"SaleID"_s, u"Sale Where SaleDate"_s);
  forecast.purchases = onlyInNext(u"BuyID"_s, u"Buy Where BuyDate"_s);
  const jet::Recordset work = next.OpenRecordset(
      u"Select Count(Mon), Sum(Pay) From Evaporation Where Mon > 0 And "_s
      u"(UseMuch <> 0 Or UsePay <> 0 Or Pay <> 0 Or Total <> 0)"_s);
  forecast.readings = int(work[0].toLong());
  forecast.collected = work[1].toDouble();
}

}  // namespace

QString closingFolder() {
  return installedDataFolder();
}

QString closingFile(int year) {
  return closingFolder() + yearFileName(QString::number(year));
}

ClosingForecast forecastClosing(const Session& session) {
  ClosingForecast forecast;
  forecast.year = session.WorkYear.toInt();
  forecast.folder = closingFolder();
  forecast.folderMoved = session.DbPath.compare(forecast.folder, Qt::CaseInsensitive) != 0;
  const jet::Database year = session.wsMain.OpenDatabase(yearFile(session, session.WorkYear));
  readDecember(year, forecast);
  forecast.kept = keptBeside(session.pc.paths, closingFile(forecast.year + 1));
  const QString nextFile = yearFile(session, forecast.year + 1);
  forecast.nextStands = isThere(session.pc.paths, nextFile);
  if (!forecast.nextStands) return forecast;
  try {
    readNext(year, session.wsMain.OpenDatabase(nextFile), forecast);
  } catch (const jet::Error&) {  // damaged, or in use alone; the closing would replace it all the same
    forecast.nextIsRead = false;
  }
  return forecast;
}
