#include "tests/storm/pcs.h"

#include <sys/resource.h>
#include <unistd.h>

#include <QFile>
#include <QThread>
#include <csignal>

#include "app/start_up.h"
#include "documents/invoices/tax_issue.h"
#include "documents/statements/deal_issue.h"
#include "documents/statements/deal_search.h"
#include "store/long_work.h"
#include "tests/storm/books.h"
#include "tests/storm/builder.h"
#include "tests/storm/closer.h"
#include "tests/storm/packer.h"
#include "tests/storm/poster.h"
#include "tests/storm/sweep.h"

namespace storm {
namespace {

bool toldToStop(const QString& root) {
  return QFile::exists(root + "/stop");
}

/** ROOT: one group that writes to both files and is held open until there is a file "stop". */
int holdLock(const QStringList& arguments) {
  OpenPc here(arguments.at(0));
  here.session.wsMain.Together([&] {
    here.session.dbYear.Execute("Update Client Set Memo = 'held' Where Code = 1");
    here.session.dbYear.Execute("Update Sale Set Response = '' Where SaleID = 0");
    report(word::ready);
    while (!toldToStop(arguments.at(0))) QThread::msleep(5);
  });
  return 0;
}

/** ROOT: long work over both files, as a recalculation is, until there is a file "stop"; tells its steps. */
int workLong(const QStringList& arguments) {
  OpenPc here(arguments.at(0));
  report(word::ready);
  const Session& session = here.session;
  const auto step = [&](int at) {
    const QString code = QString::number(clientCount + 1 + at % meteredCount);
    session.dbYear.Execute("Update Client Set Memo = '" + QString::number(at) + "' Where Code = " + code);
    session.dbYear.Execute("Update Evaporation Set UseMuch = UseMuch + 1 Where Mon = 9 And ClientCode = " +
                           code);
  };
  const int done =
      run(session.wsMain,
          {.count = 100'000'000, .step = step, .tell = [&](int) { return !toldToStop(arguments.at(0)); }});
  report(word::done, done, 0);
  return 0;
}

/** ROOT: a program that is started and ended. */
int startOnce(const QStringList& arguments) {
  Pc here(arguments.at(0));
  StartUp startUp(here.session);
  const bool started = startUp.SubMain([&] { startUp.load(); });
  for (qsizetype i = 0; i < here.prompts.failures.size(); ++i)
    report(word::told, here.prompts.failures.at(i), here.prompts.failureTexts.at(i));
  if (!started || !here.session.dbYear.isOpen()) return 4;
  startUp.shutDown();
  return 0;
}

/** ROOT: the same again and again until there is a file "stop"; tells its starts. */
int startOver(const QStringList& arguments) {
  int starts = 0;
  for (; !toldToStop(arguments.at(0)); ++starts) {
    if (starts == 1) report(word::ready);
    if (const int failed = startOnce(arguments)) return failed;
  }
  report(word::done, starts, 0);
  return 0;
}

/** BYTES and the poster's arguments: no file may grow beyond so many bytes. */
int postWithinLimit(const QStringList& arguments) {
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  limit.rlim_cur = arguments.at(0).toULong();
  setrlimit(RLIMIT_FSIZE, &limit);
  return runPoster(arguments.mid(1));
}

/** The poster as a user whom permissions bind. */
int postAsAnyone(const QStringList& arguments) {
  if (geteuid() == 0 && seteuid(anyone) != 0) return 5;
  return runPoster(arguments);
}

/** ROOT: issues statements and invoices of March, all it can get, a few at a time until nothing is pending; tells each
 *  line and number it put on a paper. */
int issueDocuments(const QStringList& arguments) {
  OpenPc here(arguments.at(0));
  here.session.dbYear.Execute("Update Client Set Memo = Memo Where Code = 0");
  report(word::ready);
  const auto first = [](const SpreadModel& grid, int codeCol) {
    std::vector<int> rows;
    for (int row = 1; row <= grid.MaxRows() && rows.size() < 7; ++row)
      if (!grid.text(row, codeCol).isEmpty()) rows.push_back(row);
    return rows;
  };
  const QDate from(2026, 3, 1), to(2026, 3, 31);
  const jet::Database history;  // this storm has none: the state on the line alone must do
  DealSearch deals(here.session, history);
  for (;;) {
    deals.search({.from = from, .to = to});
    const std::vector<int> rows = first(deals.grid(), DealCol::Code);
    if (rows.empty()) break;
    for (const int row : claimDeals(here.session, deals.grid(), rows, DealMark::SaleId))
      report(word::line, "statement", deals.grid().text(row, DealCol::Code));
  }
  clsPrintTax tax(here.session.dbTax, taxStation(to));
  TaxGatherer gatherer(here.session, tax);
  TaxIssuer issuer(here.session, tax, gatherer);
  TaxSheet sheet;
  for (;;) {
    gatherer.gather(from, to, TaxGathering::Daily);
    sheet.listPending(tax, Vat::Included, TaxGathering::Daily);
    const std::vector<int> rows = first(sheet.grid(), TaxCol::TaxCode);
    if (rows.empty()) break;
    const TaxIssueAsk ask{.gathering = TaxGathering::Daily, .serial = "2603001"};
    for (const TaxInvoice& invoice : issuer.issue(sheet, rows, ask).issued)
      report(word::line, "invoice", invoice.serial, invoice.dealDate, invoice.clientCode);
  }
  return 0;
}

}  // namespace

int runPc(const QStringList& arguments) {
  const QString work = arguments.value(0);
  if (work == u"post") return runPoster(arguments.mid(1));
  if (work == u"read") return runReader(arguments.mid(1));
  if (work == u"build") return runBuilder(arguments.mid(1));
  if (work == u"close") return runCloser(arguments.mid(1));
  if (work == u"hold") return holdLock(arguments.mid(1));
  if (work == u"work-long") return workLong(arguments.mid(1));
  if (work == u"start-once") return startOnce(arguments.mid(1));
  if (work == u"start") return startOver(arguments.mid(1));
  if (work == u"post-limited") return postWithinLimit(arguments.mid(1));
  if (work == u"sweep") return runSweep(arguments.mid(1));
  if (work == u"pack") return runPacker(arguments.mid(1));
  if (work == u"put-back") return runRestorer(arguments.mid(1));
  if (work == u"issue") return issueDocuments(arguments.mid(1));
  if (work == u"post-as-anyone") return postAsAnyone(arguments.mid(1));
  return 1;
}

int measure(int shortOne, int longOne) {
  return qEnvironmentVariable("HAEON_STORM") == u"long" ? longOne : shortOne;
}

}  // namespace storm
