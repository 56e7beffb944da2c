#include "ui/spread.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QVBoxLayout>

#include "tests/ui/grab.h"

using namespace Qt::StringLiterals;

namespace {

std::vector<SpreadColumn> saleColumns() {
  return {
      {.header = u"일자"_s, .width = 7, .kind = CellKind::MonthDay, .align = CellAlign::Center},
      {.header = u"고객명"_s, .width = 16},
      {.header = u"구분"_s, .width = 8, .kind = CellKind::Combo, .combo = {u"가스"_s, u"수금"_s, u"용대"_s}},
      {.header = u"수량"_s, .group = u"금액"_s, .width = 7, .kind = CellKind::Integer},
      {.header = u"단가"_s, .group = u"금액"_s, .width = 10, .kind = CellKind::Money},
      {.header = u"미수금"_s, .width = 10, .kind = CellKind::Money, .locked = true},
      {.header = u"코드"_s, .hidden = true},
      {.header = u"확인"_s, .width = 5, .kind = CellKind::CheckBox}};
}

class SpreadTest : public ::testing::Test {
 protected:
  SpreadTest() {
    model.setColumns(saleColumns());
    model.setRows({{u"06-01"_s, u"한강식당"_s, u"가스"_s, u"2"_s, u"36000"_s, u"1234567"_s, u"1"_s, u"0"_s},
                   {u"06-02"_s, u"새마을 101동"_s, u"수금"_s, u"0"_s, u"0"_s, u"-5000"_s, u"2"_s, u"1"_s},
                   {}});
    grid = new Spread(model, &window);
    below = new QLineEdit(&window);
    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(grid);
    layout->addWidget(below);
    window.resize(720, 260);
    grid->cellFinished = [this](int row, int col, const QString& before, const QString& after) {
      finished << u"%1,%2:%3>%4"_s.arg(row).arg(col).arg(before, after);
      if (after == refused) return false;
      model.setText(row, col, after);
      return true;
    };
    tests::show(window);
    grid->setFocus();
    grid->setActiveCell(1, 2);
  }

  SpreadModel model;
  QWidget window;
  Spread* grid;
  QLineEdit* below;
  QStringList finished;
  QString refused = u"no"_s;
};

TEST_F(SpreadTest, TypingReplacesAndF2KeepsTheText) {
  tests::type(u"ab"_s);
  EXPECT_EQ(grid->editingText(), u"ab"_s);
  tests::key(Qt::Key_Escape);
  EXPECT_FALSE(grid->isEditing());
  EXPECT_EQ(model.text(1, 2), u"한강식당"_s);

  tests::key(Qt::Key_F2);
  tests::type(u"2"_s);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(model.text(1, 2), u"한강식당2"_s);
  EXPECT_EQ(finished, QStringList{u"1,2:한강식당>한강식당2"_s});
  EXPECT_EQ(grid->activeCol(), 3) << "Enter goes on to the next open cell";
}

TEST_F(SpreadTest, UnchangedCellWritesNothing) {
  tests::key(Qt::Key_F2);
  tests::key(Qt::Key_Return);
  grid->setActiveCell(1, 5);
  tests::type(u"36000"_s);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(finished, QStringList());
}

TEST_F(SpreadTest, RefusedTextStaysInTheOpenEditorAndCancelsWhoeverAsked) {
  tests::type(u"no"_s);
  tests::key(Qt::Key_Return);
  EXPECT_TRUE(grid->isEditing());
  EXPECT_EQ(grid->editingText(), u"no"_s);
  EXPECT_EQ(grid->activeCol(), 2);

  EXPECT_FALSE(grid->commitEdit());
  EXPECT_FALSE(grid->setActiveCell(2, 2));
  tests::key(Qt::Key_Down);
  EXPECT_EQ(grid->activeRow(), 1);
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->cellRect(2, 4).center());
  EXPECT_EQ(grid->activeRow(), 1);
  EXPECT_EQ(grid->editingText(), u"no"_s);

  tests::key(Qt::Key_Escape);
  EXPECT_EQ(model.text(1, 2), u"한강식당"_s);
  EXPECT_TRUE(grid->setActiveCell(2, 2));
}

TEST_F(SpreadTest, RuleThatPutsTheOldTextBackKeepsTheFocusThere) {
  grid->cellFinished = [this](int, int, const QString&, const QString&) {
    grid->cancelEdit();
    return false;
  };
  tests::type(u"zz"_s);
  tests::key(Qt::Key_Return);
  EXPECT_FALSE(grid->isEditing());
  EXPECT_EQ(grid->activeCol(), 2);
  EXPECT_EQ(model.text(1, 2), u"한강식당"_s);
}

TEST_F(SpreadTest, LeavingTheGridFinishesTheCellAndARefusalBringsTheFocusBack) {
  tests::type(u"ok"_s);
  below->setFocus();
  QApplication::processEvents();
  EXPECT_EQ(model.text(1, 2), u"ok"_s);
  EXPECT_TRUE(below->hasFocus());

  grid->setFocus();
  tests::type(u"no"_s);
  below->setFocus();
  QApplication::processEvents();
  EXPECT_TRUE(grid->hasFocus());
  EXPECT_EQ(grid->editingText(), u"no"_s);
}

// The first letter opens the cell; were the focus to move then, the syllable would fall apart.
TEST_F(SpreadTest, HangulTypedIntoARestingCellArrivesWhole) {
  QWidget* const keyboard = QApplication::focusWidget();
  tests::compose({u"ㅎ"_s, u"하"_s, u"한"_s}, u"한"_s);
  EXPECT_EQ(QApplication::focusWidget(), keyboard);
  tests::compose({u"ㄱ"_s, u"그"_s, u"글"_s}, u"글"_s);
  EXPECT_EQ(grid->editingText(), u"한글"_s);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(model.text(1, 2), u"한글"_s);
  EXPECT_EQ(finished.size(), 1);
}

TEST_F(SpreadTest, UnfinishedSyllableBelongsToTheText) {
  QInputMethodEvent step(u"수"_s, {});
  QApplication::sendEvent(QApplication::focusWidget(), &step);
  EXPECT_EQ(grid->editingText(), u"수"_s);
  EXPECT_TRUE(grid->commitEdit());
  EXPECT_EQ(model.text(1, 2), u"수"_s);

  // A composition into a cell that may not be edited opens nothing.
  grid->setActiveCell(1, 6);
  tests::compose({u"ㅎ"_s}, u"하"_s);
  EXPECT_FALSE(grid->isEditing());
}

TEST_F(SpreadTest, LockedHiddenAndNumberCells) {
  grid->setActiveCell(1, 6);
  tests::type(u"5"_s);
  tests::key(Qt::Key_F2);
  EXPECT_FALSE(grid->isEditing());
  tests::key(Qt::Key_Right);
  EXPECT_EQ(grid->activeCol(), 8) << "the hidden column is passed over";

  grid->setActiveCell(1, 4);
  tests::type(u"a"_s);
  EXPECT_EQ(grid->editingText(), QString());
  tests::key(Qt::Key_Escape);
  tests::type(u"1,x2"_s);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(model.text(1, 4), u"12"_s) << "offered without separators";

  grid->setActiveCell(1, 1);
  tests::type(u"0615"_s);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(model.text(1, 1), u"06-15"_s) << "the mask writes the dash";
}

TEST_F(SpreadTest, KeysGoToTheFormFirstAndWithTheTypedText) {
  QStringList seen;
  grid->keyPressed = [&](int row, int col, int key, Qt::KeyboardModifiers) {
    seen << u"%1,%2 %3 %4"_s.arg(row).arg(col).arg(key).arg(grid->editingText());
    return key == Qt::Key_F12 || (key == Qt::Key_Return && col == 2);
  };
  tests::type(u"53"_s);
  tests::key(Qt::Key_F12);
  tests::key(Qt::Key_Return);
  EXPECT_TRUE(grid->isEditing()) << "the form took Enter for its search";
  tests::key(Qt::Key_Delete);
  tests::key(Qt::Key_Escape);
  tests::key(Qt::Key_Delete);
  EXPECT_EQ(seen, (QStringList{u"1,2 %1 53"_s.arg(int(Qt::Key_F12)), u"1,2 %1 53"_s.arg(int(Qt::Key_Return)),
                               u"1,2 %1 "_s.arg(int(Qt::Key_Delete))}))
      << "Delete belongs to the text while it is edited";
}

TEST_F(SpreadTest, RuleMovesTheCursorAndEnterDoesNotMoveItAgain) {
  int enters = 0;
  grid->enterPressed = [&](int, int) { ++enters; };
  grid->cellFinished = [this](int row, int col, const QString&, const QString& text) {
    model.setText(row, col, text);
    grid->setActiveCell(row, 8);
    return true;
  };
  tests::type(u"x"_s);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(grid->activeCol(), 8);
  EXPECT_EQ(enters, 0);
  EXPECT_FALSE(grid->isEditing());
  tests::key(Qt::Key_Return);
  EXPECT_EQ(enters, 1);
}

TEST_F(SpreadTest, ComboOpensByTypingAndEnterAndTakesByEnter) {
  grid->setActiveCell(1, 3);
  tests::key(Qt::Key_Return);
  auto* const list = grid->findChild<QListWidget*>();
  ASSERT_TRUE(list && list->isVisible());
  tests::key(Qt::Key_Down);
  tests::key(Qt::Key_Return);
  EXPECT_FALSE(list->isVisible());
  EXPECT_EQ(finished, QStringList{u"1,3:가스>수금"_s});
  EXPECT_EQ(grid->activeCol(), 4);

  grid->setActiveCell(1, 3);
  tests::compose({}, u"용"_s);
  EXPECT_TRUE(list->isVisible());
  EXPECT_EQ(list->currentRow(), 2);
  tests::key(Qt::Key_Escape);
  EXPECT_EQ(model.text(1, 3), u"수금"_s);

  refused = u"용대"_s;
  tests::key(Qt::Key_Space);
  list->setCurrentRow(2);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(model.text(1, 3), u"수금"_s) << "the screen never shows what was refused";
  EXPECT_EQ(grid->activeCol(), 3);
}

TEST_F(SpreadTest, CheckBoxTurnsBySpaceAndClick) {
  grid->setActiveCell(1, 8);
  tests::key(Qt::Key_Space);
  EXPECT_EQ(model.text(1, 8), u"1"_s);
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->cellRect(1, 8).center());
  EXPECT_EQ(model.text(1, 8), u"0"_s);
}

TEST_F(SpreadTest, RowsComeAndGoUnderTheOpenEditor) {
  grid->setActiveCell(2, 2);
  tests::type(u"abc"_s);
  model.insertRow(1);
  EXPECT_EQ(grid->editingText(), u"abc"_s);
  EXPECT_TRUE(grid->commitEdit());
  EXPECT_EQ(model.text(3, 2), u"abc"_s) << "the text follows its row";

  tests::type(u"gone"_s);
  model.deleteRow(3);
  EXPECT_FALSE(grid->isEditing());
  EXPECT_TRUE(grid->commitEdit());
  model.clear();
  EXPECT_EQ(grid->activeRow(), 0);
  tests::type(u"x"_s);
  tests::key(Qt::Key_Return);
  EXPECT_FALSE(grid->isEditing());
}

TEST_F(SpreadTest, FormHoldsTheOperatorInARow) {
  QStringList entered;
  grid->rowEntered = [&](int row) { entered << QString::number(row); };
  grid->cellLeaving = [](int row, int, int toRow, int) { return row == toRow; };
  tests::key(Qt::Key_Down);
  EXPECT_EQ(grid->activeRow(), 1);
  tests::key(Qt::Key_Right);
  EXPECT_EQ(grid->activeCol(), 3);
  grid->cellLeaving = nullptr;
  tests::key(Qt::Key_Left);
  tests::key(Qt::Key_Down);
  EXPECT_EQ(entered, QStringList{u"2"_s});
  model.setRows({{}, {}});
  grid->setActiveCell(2, 2);
  EXPECT_EQ(entered, (QStringList{u"2"_s, u"2"_s})) << "the same place in new rows is another row";
}

TEST_F(SpreadTest, ColumnsAreDrawnWiderAndBlocksCopied) {
  int told = 0;
  grid->columnResized = [&](int col) { told = col; };
  const QPoint edge(grid->cellRect(1, 2).right() + 1, 5);
  const double before = grid->colWidth(2);
  QTest::mousePress(grid->viewport(), Qt::LeftButton, {}, edge);
  QTest::mouseMove(grid->viewport(), edge + QPoint(40, 0));
  QTest::mouseRelease(grid->viewport(), Qt::LeftButton, {}, edge + QPoint(40, 0));
  EXPECT_EQ(told, 2);
  EXPECT_GT(grid->colWidth(2), before + 2);

  grid->setActiveCell(1, 5);
  tests::key(Qt::Key_Down, Qt::ShiftModifier);
  tests::key(Qt::Key_End, Qt::ShiftModifier);
  tests::key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), u"36000\t1234567\t0\n0\t-5000\t1"_s) << "hidden ones left out";
}

TEST_F(SpreadTest, PageAndEditAreFastWithManyRows) {
  std::vector<std::vector<QString>> rows(100'000, {u"06-01"_s, u"한강식당"_s, u"가스"_s, u"2"_s, u"36000"_s});
  model.setRows(std::move(rows));
  grid->setActiveCell(1, 2);
  window.grab();
  QElapsedTimer clock;
  clock.start();
  for (int page = 0; page < 20; ++page) {
    tests::key(Qt::Key_PageDown);
    window.grab();
  }
  // One page with its drawing; generous, for a build with sanitizers on a busy machine.
  EXPECT_LT(clock.elapsed() / 20, 150);
  EXPECT_EQ(grid->activeRow(), 1 + 20 * grid->rowsOnPage());
  tests::key(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(grid->activeRow(), 100'000);
  EXPECT_EQ(grid->verticalScrollBar()->value(), grid->verticalScrollBar()->maximum());
}

TEST_F(SpreadTest, Picture) {
  tests::grab(window, u"spread"_s);
}

}  // namespace
