#pragma once
// TOP over rows that come in their order: where reading ends.
#include <memory>
#include <vector>

struct sqlite3_stmt;
struct sqlite3_value;

namespace jet {

struct Compiled;

class TopRows {
 public:
  explicit TopRows(const Compiled& compiled) : compiled_(compiled) {}
  /** Whether the row that the statement stands on is one of the top ones or ties with the last of them; asked once for
   *  each row. */
  bool takes(sqlite3_stmt* row);

 private:
  struct Free {
    void operator()(sqlite3_value* value) const;
  };
  const Compiled& compiled_;
  int taken_ = 0;
  std::vector<std::unique_ptr<sqlite3_value, Free>> last_;  ///< what the last of the top ones is ordered by
};

}  // namespace jet
