// What the operator waits for while the customer is on the line.
#include <memory>

#include "bench/books.h"
#include "bench/pairs.h"
#include "master/customers/client_search.h"

namespace {

void searchPair(int size, bench::Side& ours, bench::Side& plain) {
  auto books = std::make_shared<bench::Books>(size);
  auto beside = std::make_shared<bench::Plain>(*books);
  auto search = std::make_shared<ClientSearch>(books->session);
  ours.run = [books, search] { search->find("4567", ClientSearchMode::All, false); };
  sqlite3_stmt* like = beside->prepare(
      "SELECT * FROM Client WHERE (Tel LIKE '%' || ?1 || '%' OR Tel1 LIKE '%' || ?1 || '%' OR Tel2 LIKE '%' "
      "|| ?1 || "
      "'%' OR Name LIKE '%' || ?1 || '%')");
  plain.run = [beside, search, like] {
    sqlite3_bind_text(like, 1, "4567", 4, SQLITE_STATIC);
    int rows = 0;
    qint64 sum = 0;
    for (; sqlite3_step(like) == SQLITE_ROW; ++rows)
      for (int column = 0; column < sqlite3_column_count(like); ++column)
        sum += sqlite3_column_bytes(like, column);
    sqlite3_reset(like);
    bench::require(rows == search->list().MaxRows() && sum > 0, "other customers");
  };
}

const int byFourDigits =
    bench::addPair({"finding customers by four digits", 1.3, {1000, 10000, 100000}, searchPair, 9});

}  // namespace
