#pragma once
// One row of the table: a piece of the program's work, and beside it the least code on plain SQLite (or plain drawing)
// that does the same to equal data. Both run in one process, turn by turn. Printed are the ratio of their medians and,
// beside it, the lowest and highest ratio of a turn.
#include <QString>

#include <functional>
#include <vector>

struct sqlite3;

namespace bench {

using Rows = std::vector<std::vector<QString>>;

/** What is timed. It prepares itself for one size of work and is then run several times; setUp of each run is not
 *  timed. */
struct Side {
  std::function<void()> setUp;
  std::function<void()> run;
  /** What a run came to, its rows in any order: asked after the first run, untimed; both sides' must be equal. Where
   *  there is none, run itself holds the two together. */
  std::function<Rows()> outcome;
};

struct Pair {
  const char* work;
  double limit;            ///< the ratio to reach, at most
  std::vector<int> sizes;  ///< of the work: 1x, 10x, 100x
  /** Makes the data of one size and the two sides on it; what the sides hold lives until the pair is done. */
  std::function<void(int size, Side& ours, Side& plain)> make;
  int repetitions = 5;  ///< turns of both sides
};

/** Rows stand in the order in which they were added. */
int addPair(Pair pair);

/** A figure that is no time: memory as a ratio, frames of the screen. */
struct Figure {
  const char* work;
  double limit;
  const char* unit;
  std::function<double()> measure;
};
int addFigure(Figure figure);

/** Stops the run: a side that fails measures nothing. */
void require(bool holds, const char* what);
/** A statement of plain SQLite that must succeed. */
void exec(sqlite3* db, const char* sql);

}  // namespace bench
