#include "tests/storm/poster.h"

#include <unistd.h>

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <deque>

#include "store/jet/error.h"
#include "tests/storm/books.h"
#include "trade/sale_entry.h"

namespace storm {
namespace {

constexpr int failuresBorne = 60;  ///< then a poster with a count of steps gives up

class Poster {
 public:
  Poster(Pc& here, quint32 seed) : here_(here), random_(seed) {}

  bool tells = true;  ///< each step on the standard output
  int steps() const { return steps_; }
  int failures() const { return int(here_.prompts.failures.size()); }
  qint64 longest() const { return longest_; }

  /** One line from its customer to its money, at times changed once more or deleted. */
  void sell() {
    const SaleSheet sheet = below(4) == 0 ? SaleSheet::Material : SaleSheet::General;
    posting_.FillSaleGrid(sheet, true);
    pickers_.client = {1 + below(clientCount), "손님"};
    pickers_.item = sheet == SaleSheet::Material ? ItemChoice{"밸브", "15A", 3000, 0}
                    : below(2)                   ? ItemChoice{"LPG", "20", 41000, 0}
                                                 : ItemChoice{"LPG", "50", 98000, 0};
    const int row = entry_.enterKey(grid().MaxRows(), LineCol::Partner, "손님").row;
    if (row == 0) return;
    const QStringList kinds = labelsOf(saleKinds(sheet));
    begin(row, [&] { entry_.finishCell(row, LineCol::Kind, kinds.at(below(int(kinds.size())))); });
    if (failed_ || key(row).isEmpty()) return;
    if (posting_.kindOf(row).isPayment()) {
      finish(row, LineCol::Paid, 1 + below(9000));
    } else {
      step(row,
           [&] { entry_.search(row, LineCol::Item, {}); });  // Enter would take what the customer had last
      finish(row, LineCol::Number, 1 + below(4));
      finish(row, LineCol::Paid, below(40) * 1000);
    }
    if (below(3) == 0) finish(row, LineCol::Paid, 1 + below(3000));
    // A material line stays: its deletion takes the credit off the other balance.
    if (below(5) == 0 && sheet == SaleSheet::General && !failed_) erase(row);
  }

 private:
  template <typename... Words>
  void say(const char* word, const Words&... more) const {
    if (tells) report(word, more...);
  }
  SpreadModel& grid() { return posting_.grid(); }
  QString key(int row) { return grid().text(row, LineCol::Key); }
  int kind(int row) { return posting_.kindOf(row).code; }
  int below(int limit) { return int(random_.bounded(limit)); }

  void finish(int row, int col, int figure) {
    step(row, [&] { entry_.finishCell(row, col, QString::number(figure)); });
  }

  /** The first step writes a line without figures, of the sheet's first kind, whatever the row shows. */
  void begin(int row, const std::function<void()>& work) {
    timed(key(row), work);
    if (failed_ || key(row).isEmpty()) return;
    tell(row, posting_.kinds().front().code, "0 0 0");
  }

  /** A line whose step failed is left as it is; the operator would look first. */
  void step(int row, const std::function<void()>& work) {
    if (failed_) return;
    timed(key(row), work);
    if (failed_) return;
    QStringList figures;
    for (const int col : {LineCol::Number, LineCol::Paid, LineCol::Trust})
      figures << QString::number(lineWhole(grid().text(row, col)));
    tell(row, kind(row), figures.join(u' '));
  }

  void tell(int row, int kind, const QString& figures) {
    say(word::line, key(row), grid().text(row, LineCol::Code), kind, figures);
  }

  void erase(int row) {
    const QString gone = key(row);
    timed(gone, [&] { posting_.deleteRow(row); });
    if (!failed_) say(word::gone, gone);
  }

  void timed(const QString& key, const std::function<void()>& work) {
    say(word::at, key.isEmpty() ? "0" : key);
    QElapsedTimer since;
    since.start();
    const qsizetype before = here_.prompts.failures.size();
    try {
      work();
    } catch (const jet::Error& error) {
      here_.prompts.ErrorBox({}, error.number(), error.description());
    }
    failed_ = here_.prompts.failures.size() > before;
    if (failed_) say(word::told, here_.prompts.failures.last(), here_.prompts.failureTexts.last());
    longest_ = std::max(longest_, since.elapsed());
    ++steps_;
  }

  Pc& here_;
  QRandomGenerator random_;
  ChosenPickers pickers_;
  tests::IdleCalls calls_;
  SaleBook posting_{here_.session};
  SaleEntry entry_{posting_, pickers_, calls_};
  bool failed_ = false;
  int steps_ = 0;
  qint64 longest_ = 0;  // milliseconds
};

}  // namespace

void report(const QString& text) {
  const QByteArray bytes = text.toUtf8() + '\n';
  // Straight to the pipe: a report held back in a buffer would die with the process.
  if (::write(STDOUT_FILENO, bytes.constData(), size_t(bytes.size())) != bytes.size()) ::_exit(3);
}

void postLines(Pc& here, quint32 seed, int steps) {
  Poster poster(here, seed);
  poster.tells = false;
  while (poster.steps() < steps) poster.sell();
}

int runPoster(const QStringList& arguments) {
  OpenPc here(arguments.at(0));
  Poster poster(here, arguments.at(1).toUInt());
  const int steps = arguments.at(2).toInt();
  report(word::ready);
  while (steps == 0 || (poster.steps() < steps && poster.failures() < failuresBorne)) poster.sell();
  report(word::done, poster.steps(), poster.longest());
  return 0;
}

}  // namespace storm
