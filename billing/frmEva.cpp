#include "billing/frmEva.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTimer>

#include <memory>

#include "billing/reading_load.h"
#include "billing/reading_months.h"
#include "ui/forms/FrmProgress.h"
#include "ui/forms/choose.h"
#include "ui/forms/keys.h"

using namespace Qt::StringLiterals;

frmEva::frmEva(FormContext& context, QWidget* parent)
    : Form(u"frmEva"_s, u"체적검침 관리"_s, context.session, parent),
      context_(context),
      sheet_(context.session) {
  buildBooks();
  buildChoice();
  buildGrid();
  buildButtons();
  resize(sizeHint());
  setBottomLine(
      u" F5:검침원/수금원   F8:다음 확인   오른쪽 단추:사용량 수정, 재계산, 사용량 클리어   Ctrl+1~6:지로"_s);

  guard([this] {
    if (!readRateBook(session()))
      session().prompts.MsgWarn(
          u"연체료 및 안전관리비에 대한 기본설정이 되어 있지 않습니다!\n"
          "사용자 등록화면에서 설정해 주시기 바랍니다"_s,
          u"검침 관리자"_s);
    sheet_.month = sheet_.calendarMonth();
    tabs_->setCurrentIndex(int(session().CheckKind));
    chooseBook(tabs_->currentIndex());
    showReadingDay();
  });
  onChoice(
      *this, tabs_, [this] { return int(sheet_.book); },
      [this](int index) { command([&] { chooseBook(index); }); });
}

void frmEva::showEvent(QShowEvent* event) {
  Form::showEvent(event);
  QTimer::singleShot(0, this, [this] { focusWork(); });
}

/** The readings; before them the building, whose month is the present one as a rule. */
void frmEva::focusWork() {
  if (sheet_.grid.MaxRows() > 0)
    grid_->setFocus();
  else if (sheet_.book != HouseStyle::Individual)
    cboBDName_->setFocus();
  else
    cboMon_->setFocus();
}

QSize frmEva::sizeHint() const {
  return {Form::sizeHint().width(), 34 * grid_->fontMetrics().height() + 200};
}

void frmEva::closeEvent(QCloseEvent* event) {
  Form::closeEvent(event);
  if (event->isAccepted()) context_.commands.showStatus({});
}

// --- what is shown ------------------------------------------------------------------------------------------

void frmEva::showPage(const QString& page) {
  tabs_->setCurrentIndex(int(bookOfPage(page)));
  if (isVisible()) focusWork();
}

void frmEva::chooseBook(int index) {
  sheet_.book = HouseStyle(index);
  const bool individual = sheet_.book == HouseStyle::Individual;
  for (QWidget* const ofBuildings : {static_cast<QWidget*>(cboBDName_), static_cast<QWidget*>(chkOrdSeq_),
                                     static_cast<QWidget*>(chkDongShow_)})
    ofBuildings->setVisible(!individual);
  sheet_.grid.setColumnHeader(EvaCol::Name, individual ? u"상호/성명"_s : u"동 / 호"_s);
  fillChoices();
  if (individual) refresh();
}

/** The lists of months and buildings anew; no building is chosen then. */
void frmEva::fillChoices() {
  const QSignalBlocker months(cboMon_), buildings(cboBDName_);
  cboMon_->clear();
  cboMon_->addItems(FillMonthList(session().pc.clock));
  sheet_.month = qMin(sheet_.month, cboMon_->count() - 1);
  cboMon_->setCurrentIndex(sheet_.month);
  btnNoEva_->setEnabled(maySkipReadings(sheet_));
  fillBuildings(sheet_);
  cboBDName_->clear();
  cboBDName_->addItems(sheet_.buildings);
  cboBDName_->setCurrentIndex(sheet_.building);
  clearRows();
}

void frmEva::clearRows() {
  sheet_.grid.clear();
  showMarks();
  showPanel({});
}

void frmEva::showPanel(const ReadingPanel& panel) {
  panel_ = panel;
  pnlMan_->setText(panel.man);
  context_.commands.showStatus(panel.status);
}

void frmEva::chooseMonth(int index) {
  command([&] {
    sheet_.month = index;
    btnNoEva_->setEnabled(maySkipReadings(sheet_));
    // The hand stays in the list: it may be on its way to another month, and a digit of "02" is no reading.
    if (sheet_.book == HouseStyle::Individual)
      reload(1, firstColumn);
    else
      clearRows();
  });
}

void frmEva::chooseBuilding(int index) {
  command([&] {
    sheet_.building = index;
    clearRows();
  });
}

void frmEva::refresh() {
  switch (CheckSelection(sheet_)) {
    case Selection::NoMonth:
      return focus(cboMon_);
    case Selection::NoBuilding:
      return focus(cboBDName_);
    case Selection::Complete:
      break;
  }
  reload(1, firstColumn);
  if (sheet_.grid.MaxRows() > 0) grid_->setFocus();
}

void frmEva::reload(int row, int col) {
  showReadings(sheet_);
  const QString today = sheet_.readingDay;
  showPanel({});
  grid_->setActiveCell(qMin(row, sheet_.grid.MaxRows()), col);
  sheet_.readingDay = today;  // the row the cursor stands on after loading does not change it
  showReadingDay();
  showMarks();
}

/** The marks follow whatever was done to the rows. */
void frmEva::showMarks() {
  const QString counts = countsText(markReadings(sheet_));
  pnlMarks_->setText(counts);
  btnNextMark_->setVisible(!counts.isEmpty());
  if (!pnlMan_->text().isEmpty()) pnlUse_->setText(useText(sheet_, grid_->activeRow()));
}

void frmEva::goToMarked(int fromRow, int step) {
  const int row = nextMarked(sheet_, fromRow, step);
  if (row == 0) return showHelp(u"확인할 검침이 없습니다"_s);
  grid_->setActiveCell(row, firstColumn);
  grid_->setFocus();
}

void frmEva::showCustomer(int row) {
  showPanel(enterReadingRow(sheet_, row));
  showReadingDay();
}

// --- the reading day ----------------------------------------------------------------------------------------

void frmEva::showReadingDay() {
  if (txtDay_->text() != sheet_.readingDay) txtDay_->setText(sheet_.readingDay);
}

bool frmEva::eventFilter(QObject* watched, QEvent* event) {
  if (watched == txtDay_ && event->type() == QEvent::KeyPress &&
      isEnterKey(static_cast<QKeyEvent*>(event)->key())) {
    leaveReadingDay();
    grid_->setFocus();
    return true;
  }
  return Form::eventFilter(watched, event);
}

void frmEva::leaveReadingDay() {
  guard([this] {
    takeReadingDay(sheet_, txtDay_->text());
    showReadingDay();
  });
}

// --- the grid -----------------------------------------------------------------------------------------------

bool frmEva::cellFinished(int row, int col, const QString& typed) {
  ReadingEdit edit;
  if (col == EvaCol::UseGage) pnlUse_->setText(useText(sheet_, row, typed));
  const auto finish = [&] { edit = finishReadingCell(sheet_, row, col, typed); };
  if (col != EvaCol::PayDelayed)
    finish();
  else if (!trap(u"SpEva_ButtonClicked"_s, finish))
    return false;
  justEdited_ = true;
  grid_->cancelEdit();
  showMarks();
  if (edit.end == ReadingEdit::PutBack) return false;
  grid_->setActiveCell(edit.next.row, edit.next.col);
  return true;
}

bool frmEva::gridKey(int row, int col, int key, Qt::KeyboardModifiers modifiers) {
  justEdited_ = false;
  if (key == Qt::Key_F8) {
    if (grid_->commitEdit()) goToMarked(row, modifiers & Qt::ShiftModifier ? -1 : 1);
    return true;
  }
  if (key != Qt::Key_F5) return false;
  if (!grid_->commitEdit()) return true;
  askPerson(sheet_, row, col);
  const QString day = sheet_.readingDay;
  showPanel(enterReadingRow(sheet_, grid_->activeRow()));
  sheet_.readingDay = day;  // a name was asked for: the day in the box stays
  return true;
}

/** Enter on a cell that was not changed goes the way an edit would, and from a column without one to the next cell. */
void frmEva::moveOn(int row, int col) {
  if (justEdited_) return;
  const CellPlace next = MoveAfterEdit(sheet_, row, col);
  const bool bottom = col == EvaCol::UseGage || col == EvaCol::Pay;
  if (next.row == row && next.col == col && !bottom)
    grid_->moveToNextOpenCell();
  else
    grid_->setActiveCell(next.row, next.col);
}

void frmEva::showPopup(const QPoint& place) {
  if (sheet_.isOpening() || !grid_->commitEdit()) return;
  enum { Close, CorrectUse, Recalculate, ClearUse };
  QMenu menu(this);
  menu.setObjectName(u"MnuEva"_s);
  const auto add = [&menu](const QString& caption, int id) { menu.addAction(caption)->setData(id); };
  add(u"사용량 수정"_s, CorrectUse);
  add(u"재계산(미수,연체료,사용량)"_s, Recalculate);
  add(u"사용량 클리어"_s, ClearUse);
  menu.addSeparator();
  add(u"메 뉴 닫기"_s, Close);
  const QAction* const chosen = menu.exec(place);
  if (!chosen) return;
  switch (chosen->data().toInt()) {
    case CorrectUse:
      correctUse(sheet_, grid_->activeRow());
      showMarks();
      break;
    case Recalculate:
      recalculate(sheet_, progress(u"재계산"_s));
      showMarks();
      showCustomer(grid_->activeRow());
      break;
    case ClearUse:
      if (clearUse(sheet_, progress(u"사용량 클리어"_s))) reload(grid_->activeRow(), grid_->activeCol());
      break;
    default:
      break;
  }
}

/** A bar that comes up when the work is longer than its first group, and is gone before what is told at the end. */
ReadingProgress frmEva::progress(const QString& caption) {
  return [this, caption, bar = std::shared_ptr<FrmProgress>()](int done, int count) mutable {
    if (!bar && done < count) bar = std::make_shared<FrmProgress>(caption, count, true, this);
    const bool goOn = !bar || bar->step(done);
    if (!goOn || done == count) bar.reset();
    return goOn;
  };
}
