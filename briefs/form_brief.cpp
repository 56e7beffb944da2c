#include "briefs/form_brief.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

#include <memory>

#include "briefs/form_brief_asks.h"
#include "briefs/form_brief_chart.h"
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
  body()->addWidget(gridAndChart(), 1);
  body()->addWidget(footRow());
  connect(tabs_, &QTabBar::currentChanged, this, [this](int at) { guard([&] { turnTo(at, false); }); });
}

QWidget* BriefForm::gridAndChart() {
  const auto hasChart = [](const BriefPage& page) { return page.chart.kind != BriefChart::Kind::None; };
  if (std::ranges::none_of(run_.brief().pages, hasChart)) return grids_;
  auto* const split = new QSplitter(Qt::Horizontal, this);
  split->setChildrenCollapsible(false);
  chart_ = new BriefChartPane(session(), run_.brief().form, split);
  split->addWidget(grids_);
  split->addWidget(chart_);
  split->setStretchFactor(0, 1);
  connect(split, &QSplitter::splitterMoved, this, [this] { sharedByHand_ = true; });
  split_ = split;
  return split;
}

void BriefForm::addPage(int at) {
  const BriefPage& page = run_.page(at);
  tabs_->addTab(page.tab);
  if (page.selection) {
    auto* const told = new QLabel(u"기간을 넣고 엔터나 F10을 누르면 보고서가 나옵니다."_s, grids_);
    told->setMargin(12);
    grids_->addWidget(told);
    return;
  }
  Spread* const grid = addSpread(qPrintable(page.grid), run_.grid(at));
  grid->setFillColumn(page.fill);
  if (page.behind) {
    grid->enterPressed = [this](int row, int) { openBehind(row); };
    grid->doubleClicked = [this](int row, int) { openBehind(row); };
  }
  grids_->addWidget(grid);
}

QWidget* BriefForm::questionRow() {
  auto* const panel = new QFrame(this);
  panel->setFrameShape(QFrame::StyledPanel);
  auto* const row = new QHBoxLayout(panel);
  row->setContentsMargins(6, 4, 6, 4);
  row->setSpacing(5);
  asks_ = new BriefAsks(*this, context_, run_);
  row->addWidget(asks_, 1);
  if (!isLedger())
    row->addWidget(
        addButton(run_.brief().searchButton.toUtf8().constData(), u"조회"_s, [this] { refresh(); }));
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
  if (!isLedger())
    line->addWidget(addButton(run_.brief().excelButton.toUtf8().constData(), u"엑셀"_s, [this] {
      const QString& sheet = run_.brief().sheet;
      ExportToExcelFile(session(), run_.grid(page()), sheet.isEmpty() ? windowTitle() : sheet);
    }));
  if (chart_) line->addWidget(addButton("BtnChart", u"그래프"_s, [this] { turnChart(); }));
  line->addWidget(addButton("BtnExit", u"닫기"_s, [this] { close(); }));
  return row;
}

void BriefForm::addKeys() {
  QStringList keys{u"F10:인쇄"_s, u"Esc:닫기"_s};
  if (!isLedger()) keys.prepend(u"F5:조회"_s);
  for (const BriefPage& page : run_.brief().pages)
    if (page.behind && !keys.contains(u"Enter:내역"_s)) keys.prepend(u"Enter:내역"_s);
  onKey(Qt::Key_F5, [this] { refresh(); });
  if (chart_) {
    keys.insert(keys.size() - 2, u"F8:그래프"_s);
    onKey(Qt::Key_F8, [this] { turnChart(); });
  }
  setBottomLine(keys.join(u"  "_s));
  onKey(Qt::Key_F10, [this] { print(); });
  onKey(Qt::Key_Escape, [this] { back(); });
}

// --- pages ----------------------------------------------------------------------------------------------------

/** Its pages have no grid: what is asked for goes straight into a report. */
bool BriefForm::isLedger() const {
  return bool(run_.page(0).selection);
}

/** The hand begins with the first question, or with the rows it was opened on. */
void BriefForm::showEvent(QShowEvent* event) {
  const bool first = !begun_ && !event->spontaneous();
  Form::showEvent(event);
  if (!first) return;
  begun_ = true;
  shareWidth();
  if (!run_.rows(page()).rows.empty())
    focusGrid();
  else if (QWidget* const box = asks_->firstAsked())
    focus(box);
}

void BriefForm::resizeEvent(QResizeEvent* event) {
  Form::resizeEvent(event);
  shareWidth();
}

/** The page's grid is given what its columns need, the picture the rest, within reason; what the operator drew stays. */
void BriefForm::shareWidth() {
  if (!split_ || !begun_ || sharedByHand_) return;
  constexpr int least = 320, most = 720;
  const int picture = std::clamp(split_->width() - grid()->fullWidth() - 24, least, most);
  split_->setSizes({split_->width() - picture, picture});
}

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
  showChart();
  shareWidth();
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
  const bool live = bool(run_.page(page()).selection);
  if (const auto wrong = run_.check(ask)) {
    if (QWidget* const box = asks_->box(*wrong)) focus(box);
    return false;
  }
  asks_->put(ask);
  const BusyPointer busy;
  if (live) {
    const bool printed = run_.printLive(ask);
    showHelp(run_.rows(page()).note);
    return printed;
  }
  const BriefPage& shown = run_.page(page());
  std::unique_ptr<FrmProgress> bar;
  const auto tell = [&](int done, int total) {
    if (!bar && shown.working && done < total)
      bar = std::make_unique<FrmProgress>(shown.working(ask), total, false, this);
    if (bar) bar->step(done);
  };
  const bool found = run_.load(ask, tell);
  bar.reset();
  showPanels();
  showChart();
  if (!found) {
    if (QWidget* const box = asks_->clientWanted()) focus(box);
    return false;
  }
  grid()->setActiveCell(1, 1);
  focusGrid();
  const BriefRows& rows = run_.rows(page());
  QString told = QString::number(rows.rows.size()) + u"건을 조회했습니다."_s;
  if (shown.behind) told += u"   엔터를 누르면 내역이 나옵니다."_s;
  showHelp(rows.note.isEmpty() ? told : told + u"   "_s + rows.note);
  return true;
}

void BriefForm::print() {
  if (run_.rows(page()).rows.empty()) run_.answer(asks_->read(page()));
  if (run_.page(page()).selection)
    load();
  else if (const BriefPage& shown = run_.page(page()); shown.report.isEmpty())
    PrintGrid(session(), run_.grid(page()), shown.printTitle(run_.ask(page())), this);
  else
    run_.print(page(), chart_ && chart_->isVisible() ? chart_->picture() : QByteArray());
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

void BriefForm::showChart() {
  if (!chart_) return;
  const BriefPage& shown = run_.page(page());
  const bool has = shown.chart.kind != BriefChart::Kind::None;
  findChild<QPushButton*>(u"BtnChart"_s)->setEnabled(has);
  chart_->setVisible(has && chart_->isWanted());
  if (has) chart_->setRows(shown.chart, shown.columns, run_.rows(page()).rows);
}

void BriefForm::turnChart() {
  chart_->setWanted(!chart_->isWanted());
  showChart();
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
