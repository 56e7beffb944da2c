#include "tests/storm/poster.h"

#include <unistd.h>

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <deque>

#include "store/jet/error.h"
#include "tests/storm/books.h"
#include "trade/sale_entry.h"

using namespace Qt::StringLiterals;

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
    pickers_.client = {1 + below(clientCount), u"손님"_s};
    pickers_.item = sheet == SaleSheet::Material ? ItemChoice{u"밸브"_s, u"15A"_s, 3000, 0}
                    : below(2)                   ? ItemChoice{u"LPG"_s, u"20"_s, 41000, 0}
                                                 : ItemChoice{u"LPG"_s, u"50"_s, 98000, 0};
    const int row = entry_.enterKey(grid().MaxRows(), LineCol::Partner, u"손님"_s).row;
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
  void say(const QString& text) const {
    if (tells) report(text);
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
    tell(row, posting_.kinds().front().code, u"0 0 0"_s);
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
    say(u"%1 %2 %3 %4 %5"_s.arg(QLatin1String(word::line), key(row), grid().text(row, LineCol::Code))
            .arg(kind)
            .arg(figures));
  }

  void erase(int row) {
    const QString gone = key(row);
    timed(gone, [&] { posting_.deleteRow(row); });
    if (!failed_) say(QLatin1String(word::gone) + u' ' + gone);
  }

  void timed(const QString& key, const std::function<void()>& work) {
    say(QLatin1String(word::at) + u' ' + (key.isEmpty() ? u"0"_s : key));
    QElapsedTimer since;
    since.start();
    const qsizetype before = here_.prompts.failures.size();
    try {
      work();
    } catch (const jet::Error& error) {
      here_.prompts.ErrorBox({}, error.number(), error.description());
    }
    failed_ = here_.prompts.failures.size() > before;
    if (failed_)
      say(u"%1 %2 %3"_s.arg(QLatin1String(word::told))
              .arg(here_.prompts.failures.last())
              .arg(here_.prompts.failureTexts.last()));
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
  Pc here(arguments.at(0));
  here.open();
  Poster poster(here, arguments.at(1).toUInt());
  const int steps = arguments.at(2).toInt();
  report(QLatin1String(word::ready));
  while (steps == 0 || (poster.steps() < steps && poster.failures() < failuresBorne)) poster.sell();
  report(u"%1 %2 %3"_s.arg(QLatin1String(word::done)).arg(poster.steps()).arg(poster.longest()));
  return 0;
}

}  // namespace storm
