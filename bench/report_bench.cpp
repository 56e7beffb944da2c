// The reports on the sample retailer's two years: from the button that asks to the picture with the first rows.
#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTabBar>

#include <algorithm>
#include <memory>

#include "app/form_table.h"
#include "bench/books.h"
#include "bench/pairs.h"
#include "briefs/form_brief.h"
#include "samples/sample_books.h"
#include "store/data_files.h"
#include "store/upgrades.h"
#include "store/year_file.h"
#include "tests/idle_context.h"
#include "ui/forms/style.h"
#include "ui/paper/printers.h"
#include "ui/paper/report_viewer.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double promised = 300;  ///< milliseconds

/** A page of which nothing is shown says so; here the next one is measured. */
struct QuietPrompts : bench::NoPrompts {
  void MsgInfo(const QString&, const QString&) override {}
};

struct SampleShop {
  SampleShop() {
    pc.clock.set(QDateTime({2026, 3, 16}, {9, 0}));
    samples::makeBooks(pc, prompts);
    session.AppTitle = u"해온판매"_s;
    session.DbPath = installedDataFolder();
    session.WorkYear = u"2026"_s;
    session.wsMain = openWorkspace(session, session.DbPath);
    session.dbBasic = session.wsMain.OpenDatabase(session.DbPath + u"Basic.mdb"_s);
    bench::require(upgrades::relink(session), "links");
    session.dbYear = session.wsMain.OpenDatabase(yearFile(session, session.WorkYear));
    session.dbTax = session.wsMain.OpenDatabase(session.DbPath + u"dbTax.mdb"_s);
    session.dbCommon = session.dbBasic;
    session.reports = &reports;
    session.printers = &printers;
  }

  QTemporaryDir folder;
  pc::Pc pc{folder.path()};
  QuietPrompts prompts;
  Session session{pc, prompts};
  PcPrinters printers{pc};
  ReportViewer reports{session};
  tests::IdleContext idle{session};
};

/** Both years where a period is asked for, the caller where a customer is. */
void answer(BriefForm& form) {
  for (QLineEdit* const box : form.findChildren<QLineEdit*>()) {
    if (box->objectName().endsWith("From"_L1)) box->setText(u"2025-01-01"_s);
    if (box->objectName().endsWith("To"_L1)) box->setText(u"2026-03-15"_s);
  }
}

/** Milliseconds from the button to the picture of every window that shows it. */
double shown(BriefForm& form) {
  QElapsedTimer timer;
  timer.start();
  auto* find = form.findChild<QAbstractButton*>(u"BtnRefresh"_s);
  if (!find) find = form.findChild<QAbstractButton*>(u"BtnPrt"_s);  // of a ledger, which is shown as a page
  find->click();
  for (QWidget* const window : QApplication::topLevelWidgets())
    if (window->isVisible()) window->grab();
  const double took = double(timer.nsecsElapsed()) / 1e6;
  for (QWidget* const window : QApplication::topLevelWidgets())
    if (window != &form && window->isVisible()) window->close();
  return took;
}

double slowestReport() {
  look::apply(*qApp);
  SampleShop shop;
  double slowest = 0;
  int pages = 0;
  for (const FormEntry& entry : builtForms()) {
    const std::unique_ptr<QWidget> widget(entry.create(shop.idle.context, nullptr));
    auto* const form = dynamic_cast<BriefForm*>(widget.get());
    if (!form) continue;
    if (QString::fromUtf16(entry.name) == "frmAClientSaleBrief"_L1) form->showPage(u"lines?TxtClient=1"_s);
    form->resize(1280, 800);
    form->show();
    QApplication::processEvents();
    auto* const tabs = form->findChild<QTabBar*>();
    for (int page = 0; page < (tabs ? tabs->count() : 1); ++page) {
      if (tabs) tabs->setCurrentIndex(page);
      answer(*form);
      slowest = std::max(slowest, shown(*form));
      ++pages;
    }
  }
  bench::require(pages > 20, "report forms");
  return slowest / promised;
}

const int firstRows = bench::addFigure(
    {"any report on the sample books: button to picture, the slowest", 1, "x 0.3 s", slowestReport});

}  // namespace
