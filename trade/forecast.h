#pragma once
// Who will run out of gas soon: a customer's last eight deliveries, the gap between them, and so the next one.
#include <functional>
#include <optional>

#include "store/session.h"
#include "ui/model/spread_model.h"

/** The columns of the forecast. Dates as "MM-DD". */
namespace ForecastCol {
enum {
  Name = 1,
  Tel,
  First,        ///< the oldest of the last eight deliveries, the next ones to its right
  Newest = 11,  ///< the latest delivery once more
  Expected,
  Average,   ///< days between two deliveries
  Reserved,  ///< Client.EstimateDate, the only column that is typed in
  Code,      ///< Client.Code, hidden
};
}

enum class ForecastOf { Nobody, General, Volume, All };

class Forecast {
 public:
  explicit Forecast(Session& session);

  SpreadModel& grid() { return grid_; }

  /** Whether the year has a file; told when not. */
  bool hasYear(const QString& year);
  /** Fills the grid, a row for each customer with a delivery since the first of January of the year before the working
   *  year. shownYear: dates of other years are set off by colour. day: only customers whose reserved day, else whose
   *  expected one, is exactly this "MM-DD". tell: how many customers of all are done; False stops and keeps the rows so
   *  far. False when nothing was shown, which is told; the grid is then empty. */
  bool ExtractForecast(ForecastOf which, const QString& shownYear, const std::optional<QString>& day,
                       const std::function<bool(int done, int all)>& tell = {});
  /** The reserved day of a row as it was typed; written at once. False: no date, which is told, and nothing is written.
   *  Throws jet::Error. */
  bool setReserved(int row, const QString& typed);
  /** Every row in columns 1 to 13 and a closing one, as the report takes them. Throws jet::Error. */
  void print();

 private:
  struct Deliveries;
  /** A year's file and the condition on the days that it is looked through for. */
  struct DeliveryFile {
    const jet::Database* book;
    QString period;
  };
  bool read(const DeliveryFile& file, const QString& code, ForecastOf which, Deliveries& into) const;
  std::vector<QString> rowOf(const Deliveries& of) const;
  QString period() const;
  void colour(int row, const Deliveries& of);

  Session& session_;
  SpreadModel grid_;
  QString shownYear_;
};
