#include "ui/grid/spread.h"

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
  return {{.header = "일자", .width = 7, .kind = CellKind::MonthDay, .align = CellAlign::Center},
          {.header = "고객명", .width = 16},
          {.header = "구분", .width = 8, .kind = CellKind::Combo, .combo = {"가스", "수금", "용대"}},
          {.header = "수량", .group = "금액", .width = 7, .kind = CellKind::Integer},
          {.header = "단가", .group = "금액", .width = 10, .kind = CellKind::Money},
          {.header = "미수금", .width = 10, .kind = CellKind::Money, .locked = true},
          {.header = "코드", .hidden = true},
          {.header = "확인", .width = 5, .kind = CellKind::CheckBox}};
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
    model.setRows({{"06-01", "한강식당", "가스", "2", "36000", "1234567", "1", "0"},
                   {"06-02", "새마을 101동", "수금", "0", "0", "-5000", "2", "1"},
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
  QString refused = "no";
};

TEST_F(SpreadTest, TypingReplacesAndF2KeepsTheText) {
  tests::type("ab");
  EXPECT_EQ(grid->editingText(), "ab");
  tests::key(Qt::Key_Escape);
  EXPECT_FALSE(grid->isEditing());
  EXPECT_EQ(model.text(1, 2), "한강식당");

  tests::key(Qt::Key_F2);
  tests::enter("2");
  EXPECT_EQ(model.text(1, 2), "한강식당2");
  EXPECT_EQ(finished, QStringList{"1,2:한강식당>한강식당2"});
  EXPECT_EQ(grid->activeCol(), 3) << "Enter goes on to the next open cell";
}

TEST_F(SpreadTest, UnchangedCellWritesNothing) {
  tests::keys({Qt::Key_F2, Qt::Key_Return});
  grid->setActiveCell(1, 5);
  tests::enter("36000");
  EXPECT_EQ(finished, QStringList());
}

TEST_F(SpreadTest, RefusedTextStaysInTheOpenEditorAndCancelsWhoeverAsked) {
  tests::enter("no");
  EXPECT_TRUE(grid->isEditing());
  EXPECT_EQ(grid->editingText(), "no");
  EXPECT_EQ(grid->activeCol(), 2);

  EXPECT_FALSE(grid->commitEdit());
  EXPECT_FALSE(grid->setActiveCell(2, 2));
  tests::key(Qt::Key_Down);
  EXPECT_EQ(grid->activeRow(), 1);
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->cellRect(2, 4).center());
  EXPECT_EQ(grid->activeRow(), 1);
  EXPECT_EQ(grid->editingText(), "no");

  tests::key(Qt::Key_Escape);
  EXPECT_EQ(model.text(1, 2), "한강식당");
  EXPECT_TRUE(grid->setActiveCell(2, 2));
}

TEST_F(SpreadTest, RuleThatPutsTheOldTextBackKeepsTheFocusThere) {
  grid->cellFinished = [this](int, int, const QString&, const QString&) {
    grid->cancelEdit();
    return false;
  };
  tests::enter("zz");
  EXPECT_FALSE(grid->isEditing());
  EXPECT_EQ(grid->activeCol(), 2);
  EXPECT_EQ(model.text(1, 2), "한강식당");
}

TEST_F(SpreadTest, LeavingTheGridFinishesTheCellAndARefusalBringsTheFocusBack) {
  tests::type("ok");
  below->setFocus();
  QApplication::processEvents();
  EXPECT_EQ(model.text(1, 2), "ok");
  EXPECT_TRUE(below->hasFocus());

  grid->setFocus();
  tests::type("no");
  below->setFocus();
  QApplication::processEvents();
  EXPECT_TRUE(grid->hasFocus());
  EXPECT_EQ(grid->editingText(), "no");
}

// The first letter opens the cell; were the focus to move then, the syllable would fall apart.
TEST_F(SpreadTest, HangulTypedIntoARestingCellArrivesWhole) {
  QWidget* const keyboard = QApplication::focusWidget();
  tests::compose({"ㅎ", "하", "한"}, "한");
  EXPECT_EQ(QApplication::focusWidget(), keyboard);
  tests::compose({"ㄱ", "그", "글"}, "글");
  EXPECT_EQ(grid->editingText(), "한글");
  tests::key(Qt::Key_Return);
  EXPECT_EQ(model.text(1, 2), "한글");
  EXPECT_EQ(finished.size(), 1);
}

TEST_F(SpreadTest, UnfinishedSyllableBelongsToTheText) {
  QInputMethodEvent step("수", {});
  QApplication::sendEvent(QApplication::focusWidget(), &step);
  EXPECT_EQ(grid->editingText(), "수");
  EXPECT_TRUE(grid->commitEdit());
  EXPECT_EQ(model.text(1, 2), "수");

  // A composition into a cell that may not be edited opens nothing.
  grid->setActiveCell(1, 6);
  tests::compose({"ㅎ"}, "하");
  EXPECT_FALSE(grid->isEditing());
}

TEST_F(SpreadTest, LockedHiddenAndNumberCells) {
  grid->setActiveCell(1, 6);
  tests::type("5");
  tests::key(Qt::Key_F2);
  EXPECT_FALSE(grid->isEditing());
  tests::key(Qt::Key_Right);
  EXPECT_EQ(grid->activeCol(), 8) << "the hidden column is passed over";

  grid->setActiveCell(1, 4);
  tests::enter("1,x2");
  EXPECT_EQ(model.text(1, 4), "12") << "offered without separators";

  grid->setActiveCell(1, 1);
  tests::enter("0615");
  EXPECT_EQ(model.text(1, 1), "06-15") << "the mask writes the dash";
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
    if (open) tests::type("AB(");
    window.keys.clear();
    QList<int> expected;
    for (const auto& [key, modifiers] : idle) {
      QKeyEvent event(QEvent::KeyPress, key, modifiers);
      QApplication::sendEvent(QApplication::focusWidget(), &event);
      expected << key;
    }
    EXPECT_EQ(window.keys, expected) << (open ? "in an open cell" : "at rest");
    EXPECT_EQ(grid->editingText(), open ? "AB(" : QString());
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
    EXPECT_EQ(offered(col, composes("ㅐ")), QString()) << col;
    EXPECT_EQ(offered(col, pastes("원")), QString()) << col;
    EXPECT_EQ(offered(col, types("-")), QString()) << col;
    EXPECT_EQ(offered(col,
                      [] {
                        tests::type("7");
                        tests::key(Qt::Key_Backspace);
                      }),
              QString())
        << col << ": what was taken back was never there";
    EXPECT_EQ(offered(col, [] { tests::keys({Qt::Key_Backspace, Qt::Key_Delete}); }), QString()) << col;
  }
  EXPECT_EQ(offered(5, types(".,-")), QString());
  EXPECT_EQ(offered(5, types("o5")), "1,5:36000>5");
  EXPECT_EQ(offered(5, composes("7")), "1,5:5>7") << "figures may come through the input method";
  EXPECT_EQ(offered(5, pastes("₩ 1,200원\n3")), "1,5:7>1200");
  EXPECT_EQ(offered(4, pastes("12.5")), "1,4:2>12");
  EXPECT_EQ(offered(1, pastes("2026-07-09")), "1,1:06-01>07-09");
  EXPECT_EQ(offered(4, types("1234567890123456789")), "1,4:12>123456789012");
  EXPECT_EQ(offered(8, types("x")), QString());

  // A syllable begun and taken back.
  EXPECT_EQ(offered(2,
                    [] {
                      QInputMethodEvent begun("ㅎ", {});
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
  EXPECT_EQ(offered(2, emptied), "1,2:한강식당>") << "emptied on purpose";
  EXPECT_EQ(offered(5, emptied), "1,5:1200>");
}

TEST_F(SpreadTest, APageThatIsLeftKeepsNoOpenEditor) {
  QTabWidget pages;
  auto* const second = new QLineEdit;
  pages.addTab(grid, "하나");
  pages.addTab(second, "둘");
  tests::show(pages);
  grid->setFocus();
  grid->setActiveCell(1, 2);
  tests::type("ok");
  pages.setCurrentIndex(1);
  QApplication::processEvents();
  EXPECT_EQ(model.text(1, 2), "ok");

  pages.setCurrentIndex(0);
  grid->setFocus();
  tests::type("no");
  pages.setCurrentIndex(1);
  QApplication::processEvents();
  EXPECT_FALSE(grid->isEditing()) << "what was refused cannot be mended out of sight";
  EXPECT_EQ(model.text(1, 2), "ok");

  // The rule itself turns the page and refuses.
  pages.setCurrentIndex(0);
  grid->setFocus();
  grid->cellFinished = [&](int, int, const QString&, const QString&) {
    pages.setCurrentIndex(1);
    return false;
  };
  tests::enter("x");
  EXPECT_FALSE(grid->isEditing());
  EXPECT_TRUE(second->hasFocus());

  pages.setCurrentIndex(0);
  grid->setFocus();
  grid->cellFinished = [](int, int, const QString&, const QString&) { return false; };
  tests::type("x");
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
  tests::type("53");
  tests::keys({Qt::Key_F12, Qt::Key_Return});
  EXPECT_TRUE(grid->isEditing()) << "the form took Enter for its search";
  tests::keys({Qt::Key_Delete, Qt::Key_Escape, Qt::Key_Delete});
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
  tests::enter("x");
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
  tests::keys({Qt::Key_Down, Qt::Key_Return});
  EXPECT_FALSE(list->isVisible());
  EXPECT_EQ(finished, QStringList{"1,3:가스>수금"});
  EXPECT_EQ(grid->activeCol(), 4);

  grid->setActiveCell(1, 3);
  tests::compose({}, "용");
  EXPECT_TRUE(list->isVisible());
  EXPECT_EQ(list->currentRow(), 2);
  tests::compose({"가"}, "가");
  EXPECT_EQ(list->currentRow(), 0) << "syllables search in the open list too";
  tests::key(Qt::Key_Escape);
  EXPECT_EQ(model.text(1, 3), "수금");

  refused = "용대";
  tests::key(Qt::Key_Space);
  list->setCurrentRow(2);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(model.text(1, 3), "수금") << "the screen never shows what was refused";
  EXPECT_EQ(grid->activeCol(), 3);
}

TEST_F(SpreadTest, CheckBoxTurnsBySpaceAndClick) {
  grid->setActiveCell(1, 8);
  tests::key(Qt::Key_Space);
  EXPECT_EQ(model.text(1, 8), "1");
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->cellRect(1, 8).center());
  EXPECT_EQ(model.text(1, 8), "0");
}

TEST_F(SpreadTest, RowsComeAndGoUnderTheOpenEditor) {
  grid->setActiveCell(2, 2);
  tests::type("abc");
  model.insertRow(1);
  EXPECT_EQ(grid->editingText(), "abc");
  EXPECT_TRUE(grid->commitEdit());
  EXPECT_EQ(model.text(3, 2), "abc") << "the text follows its row";

  tests::type("mine");
  model.setText(3, 3, "beside");
  EXPECT_EQ(grid->editingText(), "mine");
  model.setText(3, 2, "the rule's");
  EXPECT_FALSE(grid->isEditing()) << "a rule wrote into the open cell";
  EXPECT_EQ(model.text(3, 2), "the rule's");

  tests::type("gone");
  model.deleteRow(3);
  EXPECT_FALSE(grid->isEditing());
  EXPECT_TRUE(grid->commitEdit());
  model.clear();
  EXPECT_EQ(grid->activeRow(), 0);
  tests::enter("x");
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
  tests::keys({Qt::Key_Left, Qt::Key_Down});
  EXPECT_EQ(entered, QStringList{"2"});
  model.setRows({{}, {}});
  grid->setActiveCell(2, 2);
  EXPECT_EQ(entered, (QStringList{"2", "2"})) << "the same place in new rows is another row";
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
  EXPECT_EQ(QApplication::clipboard()->text(), "36000\t1234567\t0\n0\t-5000\t1") << "hidden ones left out";
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
  tests::grab(window, "spread_frozen");
  tests::key(Qt::Key_Right);
  EXPECT_GT(grid->cellRect(1, 3).left(), name.right()) << "the current cell comes out from under them";
  // The open editor may not cover the names when the wheel moves its cell under them.
  tests::key(Qt::Key_Right);
  tests::type("7");
  grid->horizontalScrollBar()->setValue(grid->horizontalScrollBar()->maximum());
  EXPECT_FALSE(grid->findChild<QLineEdit*>()->geometry().intersects(name));
  grid->cancelEdit();

  grid->setFixedWidth(2 * name.right() - 20);
  QApplication::processEvents();
  tests::key(Qt::Key_End);
  EXPECT_LT(grid->cellRect(1, 2).left(), name.left()) << "in a narrow grid the names make room";
}

TEST_F(SpreadTest, PageAndEditAreFastWithManyRows) {
  std::vector<std::vector<QString>> rows(100'000, {"06-01", "한강식당", "가스", "2", "36000"});
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
  tests::grab(window, "spread");
}

}  // namespace
