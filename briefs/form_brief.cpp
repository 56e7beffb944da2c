#include "briefs/form_brief.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

#include <memory>

#include "briefs/form_brief_asks.h"
#include "store/vb.h"
#include "ui/forms/FrmProgress.h"
#include "ui/grid/excel_export.h"
#include "ui/paper/grid_print.h"

using namespace Qt::StringLiterals;

BriefForm::BriefForm(FormContext& context, Brief brief, QWidget* parent)
    : Form(brief.form, brief.caption, context.session, parent),
      context_(context),
      run_(context.session, std::move(brief)) {
  build();
  addKeys();
  guard([this] {
    const auto& first = run_.brief().opensOn;
    turnTo(first ? std::max(0, run_.pageOf(first(session()))) : 0, false);
  });
}

// --- building -----------------------------------------------------------------------------------------------

void BriefForm::build() {
  tabs_ = new QTabBar(this);
  tabs_->setObjectName(run_.brief().tabs);
  tabs_->setExpanding(false);
  tabs_->setFocusPolicy(Qt::NoFocus);
  grids_ = new QStackedWidget(this);
  for (int at = 0; at < int(run_.brief().pages.size()); ++at) addPage(at);
  tabs_->setVisible(tabs_->count() > 1);
  auto* const head = new QVBoxLayout;
  head->setSpacing(0);
  head->addWidget(tabs_);
  head->addWidget(questionRow());
  body()->addLayout(head);
  body()->addWidget(grids_, 1);
  body()->addWidget(footRow());
  connect(tabs_, &QTabBar::currentChanged, this, [this](int at) { guard([&] { turnTo(at, false); }); });
}

void BriefForm::addPage(int at) {
  const BriefPage& page = run_.page(at);
  tabs_->addTab(page.tab);
  Spread* const grid = addSpread(qPrintable(page.grid), run_.grid(at));
  grid->setFillColumn(page.fill);
  if (page.behind) {
    grid->enterPressed = [this](int row, int) { openBehind(row); };
    grid->doubleClicked = [this](int row, int) { openBehind(row); };
  }
  grids_->addWidget(grid);
}

QWidget* BriefForm::questionRow() {
  auto* const panel = addGroup(QString());
  auto* const row = new QHBoxLayout(panel);
  row->setContentsMargins(6, 4, 6, 4);
  row->setSpacing(5);
  asks_ = new BriefAsks(*this, context_, run_);
  row->addWidget(asks_, 1);
  row->addWidget(addButton("BtnRefresh", u"조회"_s, [this] { refresh(); }));
  enterOrder(asks_->boxes(), [this] { refresh(); });
  asks_->watchPicks();
  return panel;
}

QWidget* BriefForm::footRow() {
  auto* const row = new QWidget(this);
  auto* const line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(5);
  panels_ = new QWidget(row);
  auto* const panels = new QHBoxLayout(panels_);
  panels->setContentsMargins(0, 0, 0, 0);
  panels->setSpacing(5);
  line->addWidget(panels_);
  line->addStretch(1);
  if (run_.brief().printButton) line->addWidget(addButton("BtnPrt", u"인쇄"_s, [this] { print(); }));
  line->addWidget(addButton("BtnExcel", u"엑셀"_s,
                            [this] { ExportToExcelFile(session(), run_.grid(page()), windowTitle()); }));
  line->addWidget(addButton("BtnExit", u"닫기"_s, [this] { close(); }));
  return row;
}

void BriefForm::addKeys() {
  QStringList keys{u"F5:조회"_s, u"F10:인쇄"_s, u"Esc:닫기"_s};
  for (const BriefPage& page : run_.brief().pages)
    if (page.behind && !keys.contains(u"Enter:내역"_s)) keys.prepend(u"Enter:내역"_s);
  setBottomLine(keys.join(u"  "_s));
  onKey(Qt::Key_F5, [this] { refresh(); });
  onKey(Qt::Key_F10, [this] { print(); });
  onKey(Qt::Key_Escape, [this] { back(); });
}

// --- pages ----------------------------------------------------------------------------------------------------

int BriefForm::page() const {
  return grids_->currentIndex();
}

Spread* BriefForm::grid() const {
  return static_cast<Spread*>(grids_->currentWidget());
}

void BriefForm::turnTo(int at, bool keepsTrail) {
  if (!keepsTrail) trail_.clear();
  grids_->setCurrentIndex(at);
  if (tabs_->currentIndex() != at) {
    const QSignalBlocker quiet(tabs_);
    tabs_->setCurrentIndex(at);
  }
  asks_->turn(at, true);
  showPanels();
}

void BriefForm::showPage(const QString& text) {
  const BriefAddress address = readBriefAddress(text);
  if (const int at = run_.pageOf(address.page); at >= 0 && at != page())
    turnTo(at, !address.answers.isEmpty());
  if (address.answers.isEmpty()) return;
  for (const auto& [box, value] : address.answers) asks_->answer(box, value);
  guard([this] { load(); });
}

// --- what the operator asks for -------------------------------------------------------------------------------

void BriefForm::refresh() {
  trail_.clear();
  load();
}

bool BriefForm::load() {
  BriefAsk ask = asks_->read(page());
  if (const auto wrong = run_.check(ask)) {
    if (QWidget* const box = asks_->box(*wrong)) focus(box);
    return false;
  }
  asks_->put(ask);
  const BusyPointer busy;
  const BriefPage& shown = run_.page(page());
  std::unique_ptr<FrmProgress> bar;
  const auto tell = [&](int done, int total) {
    if (!shown.working) return true;
    if (!bar && done < total) bar = std::make_unique<FrmProgress>(shown.working(ask), total, true, this);
    return !bar || bar->step(done);
  };
  const bool found = run_.load(ask, tell);
  bar.reset();
  showPanels();
  if (!found) return false;
  if (const QString& note = run_.rows(page()).note; !note.isEmpty()) showHelp(note);
  grid()->setActiveCell(1, 1);
  focusGrid();
  return true;
}

void BriefForm::print() {
  if (const BriefPage& shown = run_.page(page()); shown.report.isEmpty())
    PrintGrid(session(), run_.grid(page()), shown.printTitle, this);
  else
    run_.print(page());
}

void BriefForm::openBehind(int row) {
  const BriefPage& shown = run_.page(page());
  const BriefCells cells = run_.cells(page(), row);
  if (cells.empty() || !shown.behind) return;
  const QString address = shown.behind(run_.ask(page()), cells);
  if (address.isEmpty()) return;
  const QString own = run_.brief().form + u':';
  if (!address.startsWith(own)) {
    context_.commands.openForm(address);
    return;
  }
  trail_.push_back({page(), run_.ask(page()), row, grid()->activeCol()});
  showPage(address.mid(own.size()));
}

void BriefForm::back() {
  if (trail_.empty()) {
    close();
    return;
  }
  const Step step = trail_.back();
  trail_.pop_back();
  turnTo(step.page, true);
  asks_->put(step.ask);
  grid()->setActiveCell(step.row, step.col);
  grid()->showRow(step.row);
  focusGrid();
}

void BriefForm::showPanels() {
  const BriefPage& shown = run_.page(page());
  const QStringList& texts = run_.rows(page()).figures;
  if (figures_.size() != qsizetype(shown.panels.size()) ||
      (!figures_.isEmpty() && figures_.front()->objectName() != shown.panels.front().name)) {
    qDeleteAll(panels_->findChildren<QLabel*>(Qt::FindDirectChildrenOnly));
    figures_.clear();
    for (const BriefPanel& panel : shown.panels) {
      panels_->layout()->addWidget(new QLabel(panel.caption, panels_));
      auto* const figure = new QLabel(panels_);
      figure->setObjectName(panel.name);
      figure->setProperty("role", "value");
      figure->setAlignment((panel.money ? Qt::AlignRight : Qt::AlignHCenter) | Qt::AlignVCenter);
      figure->setTextInteractionFlags(Qt::TextSelectableByMouse);
      figure->setFixedWidth(int(panel.width) * fontMetrics().horizontalAdvance(u'0') + 16);
      panels_->layout()->addWidget(figure);
      figures_ << figure;
    }
  }
  for (int at = 0; at < figures_.size(); ++at) {
    const QString text = texts.value(at);
    figures_[at]->setText(shown.panels[size_t(at)].money ? vb::Format(text.toDouble(), u"#,##0"_s) : text);
  }
}
