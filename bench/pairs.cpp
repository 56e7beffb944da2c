#include "bench/pairs.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <QCoreApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>

#include "ui/model/spread_model.h"

namespace bench {
namespace {

std::vector<Pair>& pairs() {
  static std::vector<Pair> all;
  return all;
}
std::vector<Figure>& figures() {
  static std::vector<Figure> all;
  return all;
}

double median(std::vector<double> seconds) {
  std::sort(seconds.begin(), seconds.end());
  return seconds[seconds.size() / 2];
}

/** Collects the times of one pair's two sides, a turn each, and prints the row when all are there. */
class Table : public benchmark::BenchmarkReporter {
 public:
  static void heading() {
    std::printf("%-74s %9s %12s %12s %7s %7s %7s %6s\n", "work", "size", "ours, ms", "plain, ms", "ratio",
                "lowest", "highest", "limit");
  }
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      times_[run.run_name.function_name].push_back(run.real_accumulated_time / double(run.iterations));
    }
  }
  void row(const Pair& pair, int size) {
    const std::vector<double>&ours = times_["ours"], &plain = times_["plain"];
    std::vector<double> turns;
    for (size_t turn = 0; turn < ours.size(); ++turn) turns.push_back(ours[turn] / plain[turn]);
    const auto [lowest, highest] = std::minmax_element(turns.begin(), turns.end());
    const double ratio = median(ours) / median(plain);
    std::printf("%-74s %9d %12.3f %12.3f %7.2f %7.2f %7.2f %6.2f%s\n", pair.work, size, median(ours) * 1e3,
                median(plain) * 1e3, ratio, *lowest, *highest, pair.limit,
                ratio > pair.limit ? "  over" : "");
    std::fflush(stdout);
    times_.clear();
  }

 private:
  std::map<std::string, std::vector<double>> times_;
};

void addTurn(const char* name, const Side& side) {
  benchmark::RegisterBenchmark(
      name,
      [&side](benchmark::State& state) {
        for (auto _ : state) {
          if (side.setUp) side.setUp();
          const auto start = std::chrono::steady_clock::now();
          side.run();
          state.SetIterationTime(
              std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        }
      })
      ->UseManualTime()
      ->Iterations(1);
}

/** A comparison of unlike work says nothing. */
void holdTogether(const Pair& pair, const Side& ours, const Side& plain) {
  if (!ours.outcome) return;
  Rows left = ours.outcome(), right = plain.outcome();
  std::sort(left.begin(), left.end());
  std::sort(right.begin(), right.end());
  if (left == right) return;
  const auto told = [](const char* side, const Rows& rows, size_t at) {
    const QString row =
        at < rows.size() ? QStringList(rows[at].begin(), rows[at].end()).join('|') : QString();
    std::fprintf(stderr, "%s: %zu rows, the first other one: %s\n", side, rows.size(),
                 row.toUtf8().constData());
  };
  const size_t at =
      size_t(std::mismatch(left.begin(), left.end(), right.begin(), right.end()).first - left.begin());
  told("ours", left, at);
  told("plain", right, at);
  require(false, pair.work);
}

void measure(const Pair& pair, int size, Table& table) {
  Side ours, plain;
  pair.make(size, ours, plain);
  for (const Side* side : {&ours, &plain}) {  // untimed: files come into memory, statements are prepared
    if (side->setUp) side->setUp();
    side->run();
  }
  holdTogether(pair, ours, plain);
  // Run as they are added: what disturbs the machine for a while disturbs both sides. Neither is always the first.
  for (int turn = 0; turn < pair.repetitions; ++turn) {
    if (turn % 2 == 0) addTurn("ours", ours);
    addTurn("plain", plain);
    if (turn % 2 == 1) addTurn("ours", ours);
  }
  benchmark::RunSpecifiedBenchmarks(&table);
  benchmark::ClearRegisteredBenchmarks();
  table.row(pair, size);
}

}  // namespace

int addPair(Pair pair) {
  pairs().push_back(std::move(pair));
  return 0;
}
int addFigure(Figure figure) {
  figures().push_back(figure);
  return 0;
}

void require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "the benchmark itself failed: %s\n", what);
  std::abort();
}

void exec(sqlite3* db, const char* sql) {
  require(sqlite3_exec(db, sql, nullptr, nullptr, nullptr) == SQLITE_OK, sql);
}

/** filter: part of a row's name; empty runs all. quick: only the smallest size of each. */
void runAll(const QString& filter, bool quick) {
  Table table;
  Table::heading();
  for (const Pair& pair : pairs()) {
    if (!QString::fromUtf8(pair.work).contains(filter)) continue;
    for (const int size : pair.sizes) {
      measure(pair, size, table);
      if (quick) break;
    }
  }
  for (const Figure& figure : figures()) {
    if (!QString::fromUtf8(figure.work).contains(filter)) continue;
    const double value = figure.measure();
    std::printf("%-74s %9s %12s %12s %7.2f %7s %7s %6.2f %s%s\n", figure.work, "", "", "", value, "", "",
                figure.limit, figure.unit, value > figure.limit ? "  over" : "");
  }
}

}  // namespace bench
