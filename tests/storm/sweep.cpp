#include "tests/storm/sweep.h"

#include <QRegularExpression>
#include <memory>
#include <optional>

#include "app/start_up.h"
#include "store/jet/error.h"
#include "tests/files.h"
#include "tests/store/old_books.h"
#include "tests/storm/poster.h"
#include "tests/storm/swept_works.h"

using namespace Qt::StringLiterals;

namespace storm {
namespace {

constexpr int faultsTold = 20;  ///< then a sweep gives up

/** All files below a folder, to be laid down again. */
class Folder {
 public:
  explicit Folder(QString root) : root_(std::move(root)) {}
  void take() { files_ = tests::contentsOf(root_); }
  void layDown() const {
    QDir(root_).removeRecursively();
    for (auto at = files_.begin(); at != files_.end(); ++at) {
      QFile file(root_ + '/' + at.key());
      QDir().mkpath(QFileInfo(file).path());
      if (!file.open(QIODevice::WriteOnly) || file.write(at.value()) != at.value().size()) ::_exit(9);
    }
  }

 private:
  QString root_;
  QMap<QString, QByteArray> files_;
};

QString stateOf(const QString& root) {
  QString state;
  Pc here(root);
  const jet::Workspace workspace = openWorkspace(here.session, here.session.DbPath);
  // What a closing keeps of the file that it replaced lies there once more, under a dated name.
  for (const QString& name :
       here.pc.paths.list(here.session.DbPath, "*.mdb").filter(QRegularExpression("^[^-]*$")))
    state += name + u'\n' + tests::dumpOf(workspace.OpenDatabase(here.session.DbPath + name));
  return state;
}

/** The first line in which two states differ. */
QString difference(const QString& found, const QString& due) {
  const QStringList lines = found.split(u'\n'), others = due.split(u'\n');
  qsizetype at = 0;
  while (at < lines.size() && at < others.size() && lines.at(at) == others.at(at)) ++at;
  return ": " + lines.value(at) + " for " + others.value(at);
}

class Sweep {
 public:
  Sweep(const QStringList& arguments)
      : root_(arguments.at(0)),
        name_(arguments.at(1)),
        fault_(DiskFault(arguments.at(2).toInt())),
        lasting_(arguments.at(3).toInt() != 0),
        folder_(root_) {
    makeBooksFor(name_, root_);
    folder_.take();
    runClean();
  }

  void at(long place) {
    ++places_;
    try {
      tryAt(place);
    } catch (const jet::Error& error) {
      if (++wrong_ <= faultsTold)
        report(u"fault %1 at %2: cannot be read afterwards: %3"_s.arg(name_).arg(place).arg(
            error.description()));
    }
  }

  /** Of the whole work, where nothing fails. */
  long calls() const { return calls_; }
  int places() const { return places_; }
  int told() const { return told_; }
  int wrong() const { return wrong_; }

 private:
  void tryAt(long place) {
    folder_.layDown();
    auto here = std::make_unique<Pc>(root_);
    auto work = makeWork(name_, *here);
    size_t done = 0;
    disk_.arm(root_.toUtf8().constData(), int(fault_), place, lasting_);
    while (done < work->steps().size() && attempt(*here, *work, done)) ++done;
    disk_.rest();
    const bool told = done < work->steps().size();
    told_ += told;
    if (told && work->opensAnew()) {  // a program that did not start is started once more
      work.reset();
      here.reset();
      here = std::make_unique<Pc>(root_);
      work = makeWork(name_, *here);
    }
    const auto wrong = [&](const QString& what) { tell(place, done, *here, what); };
    if (told) {
      checkTexts(*here, wrong);
      const QString found = work->opensAnew() ? QString() : state();
      if (!work->opensAnew() && !work->hasMoreStates()) {
        if (found == states_.at(done + 1) && found != states_.at(done))
          return;  // what came behind it has failed
        if (found != states_.at(done))
          return wrong("half of it stands" + difference(found, states_.at(done)));
      }
      for (; done < work->steps().size(); ++done)
        if (!attempt(*here, *work, done)) return wrong("it does not go on when the disk is well");
    }
    const bool mayBeQuiet = work->opensAnew() && (fault_ == DiskFault::Denied || fault_ == DiskFault::Short);
    work.reset();
    here->close();
    if (mayBeQuiet && !told && state() != states_.back()) {
      // A start passes over what it may not open, or takes for no data file, without a word; the next one does it.
      Pc next(root_);
      makeWork(name_, next)->steps().front()();
    }
    if (const QString end = state(); end != states_.back())
      wrong((told ? "done again it is not what it should be" : "it is not done, and nobody was told") +
            difference(end, states_.back()));
    if (name_.endsWith("start")) return;
    if (const QStringList faults = faultsOf(root_); !faults.isEmpty()) wrong(faults.join("; "));
  }

  QString state() const { return stateOf(root_) + leftBeside(name_, root_); }

  /** The states that there may be: before the first step and behind each. */
  void runClean() {
    folder_.layDown();
    Pc here(root_);
    auto work = makeWork(name_, here);
    states_ = {state()};
    for (const auto& step : work->steps()) {
      disk_.arm(root_.toUtf8().constData(), int(fault_), 0, 0);
      step();
      calls_ += disk_.rest();
      states_ << state();
    }
    notices_ = here.prompts.told;
    if (!here.prompts.failures.isEmpty())
      report("fault the work itself: " + here.prompts.failureTexts.join(u' '));
  }

  /** True when a step ran to its end without a word. */
  bool attempt(Pc& here, Work& work, size_t step) {
    const qsizetype failures = here.prompts.failures.size();
    const auto notices = [&] {
      return std::ranges::count_if(here.prompts.told,
                                   [&](const QString& text) { return !notices_.contains(text); });
    };
    const auto before = notices();
    try {
      work.steps().at(step)();
    } catch (const jet::Error& error) {
      here.prompts.ErrorBox({}, error.number(), error.description());
    }
    return here.prompts.failures.size() == failures && notices() == before;
  }

  /** Nothing is damaged; only who never gets a byte more can take it for that. */
  void checkTexts(const Pc& here, const std::function<void(const QString&)>& wrong) const {
    if (fault_ == DiskFault::Short && lasting_) return;
    for (const QString& text : here.prompts.failureTexts + here.prompts.told)
      if (text.contains("손상")) wrong("damage is told");
  }

  void tell(long place, size_t done, const Pc& here, const QString& what) {
    if (++wrong_ > faultsTold) return;
    const QString told = (here.prompts.told + here.prompts.failureTexts).join(" / ");
    report(u"fault %1 at %2, step %3: %4 [%5]"_s.arg(name_).arg(place).arg(done).arg(
        what, QString(told).replace(u'\n', u' ')));
  }

  QString root_, name_;
  DiskFault fault_;
  bool lasting_;
  Folder folder_;
  FailingDisk disk_ = FailingDisk::loaded();
  QStringList states_, notices_;
  long calls_ = 0;
  int places_ = 0, told_ = 0, wrong_ = 0;
};

}  // namespace

int runSweep(const QStringList& arguments) {
  if (!FailingDisk::loaded().arm) return 10;
  Sweep sweep(arguments);
  const long wanted = arguments.at(4).toLong(), all = sweep.calls();
  const long stride = wanted == 0 ? 1 : std::max(1L, all / wanted);
  for (long place = (stride + 1) / 2; place <= all && sweep.wrong() < faultsTold; place += stride)
    sweep.at(place);
  report(u"swept %1 %2"_s.arg(sweep.places()).arg(sweep.told()));
  return 0;
}

}  // namespace storm
