#include "ui/grid/spread.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "tests/cpu_clock.h"
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

/** Counts the keys that nothing inside wanted. */
struct Desk : QWidget {
  QList<int> keys;
  void keyPressEvent(QKeyEvent* event) override { keys << event->key(); }
};

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
  Desk window;
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
  tests::enter(u"2"_s);
  EXPECT_EQ(model.text(1, 2), u"한강식당2"_s);
  EXPECT_EQ(finished, QStringList{u"1,2:한강식당>한강식당2"_s});
  EXPECT_EQ(grid->activeCol(), 3) << "Enter goes on to the next open cell";
}

TEST_F(SpreadTest, UnchangedCellWritesNothing) {
  tests::key(Qt::Key_F2);
  tests::key(Qt::Key_Return);
  grid->setActiveCell(1, 5);
  tests::enter(u"36000"_s);
  EXPECT_EQ(finished, QStringList());
}

TEST_F(SpreadTest, RefusedTextStaysInTheOpenEditorAndCancelsWhoeverAsked) {
  tests::enter(u"no"_s);
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
  tests::enter(u"zz"_s);
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
  tests::enter(u"1,x2"_s);
  EXPECT_EQ(model.text(1, 4), u"12"_s) << "offered without separators";

  grid->setActiveCell(1, 1);
  tests::enter(u"0615"_s);
  EXPECT_EQ(model.text(1, 1), u"06-15"_s) << "the mask writes the dash";
}

// A key that goes round between the grid and its line box never ends.
TEST_F(SpreadTest, KeysThatNothingWantsReachTheFormOnce) {
  const QList<std::pair<int, Qt::KeyboardModifiers>> idle{{Qt::Key_Shift, Qt::ShiftModifier},
                                                          {Qt::Key_Control, Qt::ControlModifier},
                                                          {Qt::Key_Alt, Qt::AltModifier},
                                                          {Qt::Key_Meta, Qt::MetaModifier},
                                                          {Qt::Key_CapsLock, {}},
                                                          {Qt::Key_Hangul, {}},
                                                          {Qt::Key_Hangul_Hanja, {}},
                                                          {Qt::Key_Insert, {}},
                                                          {Qt::Key_M, Qt::AltModifier},
                                                          {Qt::Key_Tab, Qt::AltModifier},
                                                          {Qt::Key_Tab, Qt::ControlModifier},
                                                          {Qt::Key_PageDown, Qt::ControlModifier},
                                                          {Qt::Key_F7, {}},
                                                          {Qt::Key_F4, Qt::ControlModifier},
                                                          {Qt::Key_1, Qt::ControlModifier},
                                                          {Qt::Key_X, Qt::AltModifier}};
  for (const bool open : {true, false}) {
    if (open) tests::type(u"AB("_s);
    window.keys.clear();
    QList<int> expected;
    for (const auto& [key, modifiers] : idle) {
      QKeyEvent event(QEvent::KeyPress, key, modifiers);
      QApplication::sendEvent(QApplication::focusWidget(), &event);
      expected << key;
    }
    EXPECT_EQ(window.keys, expected) << (open ? "in an open cell" : "at rest");
    EXPECT_EQ(grid->editingText(), open ? u"AB("_s : QString());
    EXPECT_EQ(grid->activeCol(), 2);
    grid->cancelEdit();
  }
}

TEST_F(SpreadTest, KeysWithModifiersAreNotThePlainKeys) {
  QList<int> seen;
  grid->keyPressed = [&](int, int, int key, Qt::KeyboardModifiers) {
    seen << key;
    return true;
  };
  for (const auto modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
    for (const int key : {Qt::Key_Delete, Qt::Key_F4, Qt::Key_F12}) tests::key(key, modifier);
  EXPECT_EQ(seen, QList<int>());
  tests::key(Qt::Key_Delete);
  tests::key(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(seen, (QList<int>{Qt::Key_Delete, Qt::Key_Return}))
      << "Shift may still be held from the last letter";
}

TEST_F(SpreadTest, TabWalksThroughTheRowsAndOutAtTheEnds) {
  const auto at = [&] { return u"%1,%2"_s.arg(grid->activeRow()).arg(grid->activeCol()); };
  grid->setActiveCell(1, 6);
  tests::key(Qt::Key_Tab);
  EXPECT_EQ(at(), u"1,8"_s) << "the hidden one is passed over";
  tests::key(Qt::Key_Tab);
  EXPECT_EQ(at(), u"2,1"_s);
  tests::key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(at(), u"1,8"_s);
  grid->setActiveCell(1, 1);
  tests::key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(at(), u"1,1"_s);
  EXPECT_FALSE(grid->hasFocus());
  grid->setFocus();
  grid->setActiveCell(3, 8);
  tests::key(Qt::Key_Tab);
  EXPECT_TRUE(below->hasFocus());
}

// An amount that was never typed must not be posted as 0.
TEST_F(SpreadTest, ACellOpensOnlyForWhatItCanTake) {
  const auto clip = [](const QString& text) { QApplication::clipboard()->setText(text); };
  const auto offered = [&](int col, const std::function<void()>& hand) {
    finished.clear();
    grid->setActiveCell(1, col);
    hand();
    tests::key(Qt::Key_Return);
    return finished.join(u' ');
  };
  const auto types = [](const char* text) { return [text] { tests::type(QString::fromUtf8(text)); }; };
  const auto composes = [](const QString& text) { return [text] { tests::compose({text}, text); }; };
  const auto pastes = [&](const QString& text) {
    return [&, text] {
      clip(text);
      tests::key(Qt::Key_V, Qt::ControlModifier);
    };
  };
  for (const int col : {1, 4, 5}) {
    EXPECT_EQ(offered(col, types("oO x/")), QString()) << col;
    EXPECT_EQ(offered(col, composes(u"ㅐ"_s)), QString()) << col;
    EXPECT_EQ(offered(col, pastes(u"원"_s)), QString()) << col;
    EXPECT_EQ(offered(col, types("-")), QString()) << col;
    EXPECT_EQ(offered(col,
                      [] {
                        tests::type(u"7"_s);
                        tests::key(Qt::Key_Backspace);
                      }),
              QString())
        << col << ": what was taken back was never there";
    EXPECT_EQ(offered(col,
                      [] {
                        tests::key(Qt::Key_Backspace);
                        tests::key(Qt::Key_Delete);
                      }),
              QString())
        << col;
  }
  EXPECT_EQ(offered(5, types(".,-")), QString());
  EXPECT_EQ(offered(5, types("o5")), u"1,5:36000>5"_s);
  EXPECT_EQ(offered(5, composes(u"7"_s)), u"1,5:5>7"_s) << "figures may come through the input method";
  EXPECT_EQ(offered(5, pastes(u"₩ 1,200원\n3"_s)), u"1,5:7>1200"_s);
  EXPECT_EQ(offered(4, pastes(u"12.5"_s)), u"1,4:2>12"_s);
  EXPECT_EQ(offered(1, pastes(u"2026-07-09"_s)), u"1,1:06-01>07-09"_s);
  EXPECT_EQ(offered(4, types("1234567890123456789")), u"1,4:12>123456789012"_s);
  EXPECT_EQ(offered(8, types("x")), QString());

  // A syllable begun and taken back.
  EXPECT_EQ(offered(2,
                    [] {
                      QInputMethodEvent begun(u"ㅎ"_s, {});
                      QApplication::sendEvent(QApplication::focusWidget(), &begun);
                      QInputMethodEvent gone;
                      QApplication::sendEvent(QApplication::focusWidget(), &gone);
                    }),
            QString());
  const auto emptied = [] {
    tests::key(Qt::Key_F2);
    tests::key(Qt::Key_A, Qt::ControlModifier);
    tests::key(Qt::Key_Delete);
  };
  EXPECT_EQ(offered(2, emptied), u"1,2:한강식당>"_s) << "emptied on purpose";
  EXPECT_EQ(offered(5, emptied), u"1,5:1200>"_s);
}

TEST_F(SpreadTest, APageThatIsLeftKeepsNoOpenEditor) {
  QTabWidget pages;
  auto* const second = new QLineEdit;
  pages.addTab(grid, u"하나"_s);
  pages.addTab(second, u"둘"_s);
  tests::show(pages);
  grid->setFocus();
  grid->setActiveCell(1, 2);
  tests::type(u"ok"_s);
  pages.setCurrentIndex(1);
  QApplication::processEvents();
  EXPECT_EQ(model.text(1, 2), u"ok"_s);

  pages.setCurrentIndex(0);
  grid->setFocus();
  tests::type(u"no"_s);
  pages.setCurrentIndex(1);
  QApplication::processEvents();
  EXPECT_FALSE(grid->isEditing()) << "what was refused cannot be mended out of sight";
  EXPECT_EQ(model.text(1, 2), u"ok"_s);

  // The rule itself turns the page and refuses.
  pages.setCurrentIndex(0);
  grid->setFocus();
  grid->cellFinished = [&](int, int, const QString&, const QString&) {
    pages.setCurrentIndex(1);
    return false;
  };
  tests::enter(u"x"_s);
  EXPECT_FALSE(grid->isEditing());
  EXPECT_TRUE(second->hasFocus());

  pages.setCurrentIndex(0);
  grid->setFocus();
  grid->cellFinished = [](int, int, const QString&, const QString&) { return false; };
  tests::type(u"x"_s);
  grid->leaveEdit();
  EXPECT_FALSE(grid->isEditing());
  grid->setParent(&window);
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
  tests::enter(u"x"_s);
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
  tests::compose({u"가"_s}, u"가"_s);
  EXPECT_EQ(list->currentRow(), 0) << "syllables search in the open list too";
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

  tests::type(u"mine"_s);
  model.setText(3, 3, u"beside"_s);
  EXPECT_EQ(grid->editingText(), u"mine"_s);
  model.setText(3, 2, u"the rule's"_s);
  EXPECT_FALSE(grid->isEditing()) << "a rule wrote into the open cell";
  EXPECT_EQ(model.text(3, 2), u"the rule's"_s);

  tests::type(u"gone"_s);
  model.deleteRow(3);
  EXPECT_FALSE(grid->isEditing());
  EXPECT_TRUE(grid->commitEdit());
  model.clear();
  EXPECT_EQ(grid->activeRow(), 0);
  tests::enter(u"x"_s);
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

TEST_F(SpreadTest, NamesStayInViewWhileTheOthersAreScrolled) {
  grid->setFrozenCols(2);
  grid->setFixedWidth(430);
  QApplication::processEvents();
  const QRect name = grid->cellRect(1, 2);
  tests::key(Qt::Key_End);
  EXPECT_EQ(grid->activeCol(), 8);
  EXPECT_EQ(grid->cellRect(1, 2), name);
  EXPECT_GT(grid->horizontalScrollBar()->value(), 0);
  EXPECT_LE(grid->cellRect(1, 8).right(), grid->viewport()->width());
  EXPECT_LT(grid->cellRect(1, 3).left(), name.right()) << "scrolled under the names";
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, name.center());
  EXPECT_EQ(grid->activeCol(), 2) << "a click takes what is seen";
  tests::grab(window, u"spread_frozen"_s);
  tests::key(Qt::Key_Right);
  EXPECT_GT(grid->cellRect(1, 3).left(), name.right()) << "the current cell comes out from under them";
  // The open editor may not cover the names when the wheel moves its cell under them.
  tests::key(Qt::Key_Right);
  tests::type(u"7"_s);
  grid->horizontalScrollBar()->setValue(grid->horizontalScrollBar()->maximum());
  EXPECT_FALSE(grid->findChild<QLineEdit*>()->geometry().intersects(name));
  grid->cancelEdit();

  grid->setFixedWidth(2 * name.right() - 20);
  QApplication::processEvents();
  tests::key(Qt::Key_End);
  EXPECT_LT(grid->cellRect(1, 2).left(), name.left()) << "in a narrow grid the names make room";
}

TEST_F(SpreadTest, PageAndEditAreFastWithManyRows) {
  std::vector<std::vector<QString>> rows(100'000, {u"06-01"_s, u"한강식당"_s, u"가스"_s, u"2"_s, u"36000"_s});
  model.setRows(std::move(rows));
  grid->setActiveCell(1, 2);
  window.grab();
  const tests::CpuClock clock;
  for (int page = 0; page < 20; ++page) {
    tests::key(Qt::Key_PageDown);
    window.grab();
  }
  // One page with its drawing; generous, for a build with sanitizers.
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
