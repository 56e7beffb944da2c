#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QScreen>

#include "pc/ini_file.h"
#include "tests/support.h"
#include "tests/ui/grab.h"
#include "ui/forms/form.h"
#include "ui/forms/form_ini.h"
#include "ui/grid/grid_menu.h"

namespace {

class PlainForm : public Form {
 public:
  explicit PlainForm(Session& session) : Form("frmPlain", "보기", session) {
    rows.setColumns({{.header = "가", .width = 8}, {.header = "나", .width = 9}});
    grid = addSpread("SpPlain", rows);
    resize(500, 300);
  }
  SpreadModel rows;
  Spread* grid;
};

class FormMemory : public ::testing::Test {
 protected:
  QString file() { return at.pc.paths.native("C:\\RWGas\\FormIni\\frmPlain.ini"); }
  void write(const QByteArray& content) {
    QDir().mkpath(QFileInfo(file()).path());
    QFile ini(file());
    ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
    ini.write(content);
  }
  /** Chooses an entry of the grid's menu. */
  void choose(PlainForm& form, const QString& text) {
    showGridMenu(form, *form.grid, QPoint(5, 5));
    for (QAction* entry : form.grid->findChild<QMenu*>()->actions())
      if (entry->text() == text) entry->trigger();
    form.grid->findChild<QMenu*>()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  tests::TestPc at;
};

TEST_F(FormMemory, FormWithoutAFileKeepsItsDesign) {
  PlainForm form(at.session);
  tests::show(form);
  EXPECT_EQ(form.size(), QSize(500, 300));
  EXPECT_EQ(form.grid->colWidth(1), 8);
}

TEST_F(FormMemory, TextThatIsNoNumberIsPassedOver) {
  write(
      "[FormPosition]\r\nLeft=12\r\nTop=abc\r\nWidth=640\r\nHeight= 320 "
      "\r\n[SpPlain_ColsWidth]\r\n1=x\r\n2=21.5\r\n"
      "[SpPlain_General]\r\nFontSize=0\r\nRowHeight=18\r\n");
  PlainForm form(at.session);
  tests::show(form);
  EXPECT_EQ(form.size(), QSize(640, 320));
  EXPECT_EQ(form.grid->colWidth(1), 8);
  EXPECT_EQ(form.grid->colWidth(2), 21.5);
  EXPECT_EQ(form.grid->fontSize(), 10);
  EXPECT_EQ(form.grid->rowHeight(), 18);

  PlainForm placed(at.session);
  FormIni(at.pc.paths).LoadFormIni(placed, false);
  EXPECT_EQ(placed.size(), QSize(500, 300)) << "its size is left alone";
}

TEST_F(FormMemory, WhatNoScreenHoldsIsPassedOver) {
  write(
      "[FormPosition]\r\nLeft=nan\r\nTop=9999999999\r\nWidth=inf\r\nHeight=9999999999\r\nWindowState=inf\r\n"
      "[SpPlain_ColsWidth]\r\n1=inf\r\n[SpPlain_General]\r\nFontSize=9999999999\r\nRowHeight=-inf\r\n");
  PlainForm form(at.session);
  tests::show(form);
  EXPECT_EQ(form.size(), QSize(500, 300));
  EXPECT_EQ(form.grid->colWidth(1), 8);
  EXPECT_EQ(form.grid->fontSize(), 10);
  EXPECT_EQ(form.grid->rowHeight(), 0);
}

TEST_F(FormMemory, PlaceOnAScreenThatIsGoneIsPassedOver) {
  write("[FormPosition]\r\nLeft=9000\r\nTop=20\r\nWidth=300\r\nHeight=200\r\n");
  PlainForm form(at.session);
  tests::show(form);
  EXPECT_LT(form.x(), 9000);
  EXPECT_EQ(form.width(), 300);
}

// The main window was larger then, or the screen was another.
TEST_F(FormMemory, AWindowComesBackWhollyInsideItsRoom) {
  write("[FormPosition]\r\nLeft=900\r\nTop=-40\r\nWidth=3000\r\nHeight=300\r\n");
  QMdiArea ground;
  ground.resize(700, 500);
  tests::show(ground);
  auto* const child = ground.addSubWindow(new PlainForm(at.session));
  child->show();
  const QRect room = ground.viewport()->rect();
  EXPECT_TRUE(room.contains(child->geometry()));
  EXPECT_EQ(child->size(), QSize(room.width(), 300));
  PlainForm alone(at.session);
  tests::show(alone);
  const QRect screen = alone.screen()->availableGeometry();
  EXPECT_EQ(alone.size(), QSize(screen.width(), 300));
  EXPECT_EQ(alone.pos(), screen.topLeft());
}

TEST_F(FormMemory, AFormThatFillsTheScreenKeepsTheSizeItHadBefore) {
  PlainForm form(at.session);
  tests::show(form);
  const FormIni ini(at.pc.paths);
  form.resize(520, 310);
  ini.SaveFormIni(form);
  form.setWindowState(Qt::WindowMaximized);
  QApplication::processEvents();
  ini.SaveFormIni(form);
  const pc::IniFile kept(file());
  EXPECT_EQ(kept.value("FormPosition", "Width") + u'x' + kept.value("FormPosition", "Height"), "520x310");
  EXPECT_EQ(kept.value("FormPosition", "WindowState"), "2");
}

TEST_F(FormMemory, NothingIsWrittenForAFormThatIsNotSeen) {
  PlainForm form(at.session);
  FormIni(at.pc.paths).SaveFormIni(form);
  FormIni(at.pc.paths).SaveSpreadIni(form, *form.grid, 1);
  EXPECT_FALSE(QFileInfo::exists(file()));
}

TEST_F(FormMemory, MenuChangesRowHeightAndFontAndGoesBackToTheDesign) {
  PlainForm form(at.session);
  tests::show(form);
  at.prompts.expectInput("줄높이를 입력하세요.(입력범위: 8~20, 0:기본값)", "20");
  choose(form, "그리드 줄높이 변경");
  EXPECT_EQ(form.grid->rowHeight(), 20);
  at.prompts.expectInput("글자크기", "8");
  choose(form, "글자크기        변경");
  EXPECT_EQ(form.grid->fontSize(), 8);
  at.prompts.expectInput("글자크기", "0");
  choose(form, "글자크기        변경");
  EXPECT_EQ(form.grid->fontSize(), 10) << "the design's own";
  at.prompts.expectInput("글자크기", "14");
  choose(form, "글자크기        변경");
  EXPECT_EQ(form.grid->fontSize(), 14);
  at.prompts.expectInput("글자크기", "21");
  at.prompts.expect("8에서 20");
  choose(form, "글자크기        변경");
  EXPECT_EQ(form.grid->fontSize(), 14);
  EXPECT_EQ(pc::IniFile(file()).value("SpPlain_General", "RowHeight"), "20");

  at.prompts.expect("정말 수정하시겠습니까?", false);
  choose(form, "폼 및 그리드 설정 초기화");
  EXPECT_TRUE(QFileInfo::exists(file()));
  at.prompts.expect("정말 수정하시겠습니까?", true);
  choose(form, "폼 및 그리드 설정 초기화");
  EXPECT_FALSE(QFileInfo::exists(file()));
  EXPECT_EQ(form.grid->rowHeight(), 0);
  EXPECT_EQ(form.grid->fontSize(), 10);
}

TEST_F(FormMemory, MenuPutsTheFormBackToItsDesignForGood) {
  write("[FormPosition]\r\nLeft=40\r\nTop=30\r\nWidth=640\r\nHeight=320\r\n");
  QMdiArea ground;
  ground.resize(900, 600);
  tests::show(ground);
  const auto open = [&] {
    auto* const form = new PlainForm(at.session);
    auto* const child = ground.addSubWindow(form);
    child->setAttribute(Qt::WA_DeleteOnClose);
    child->setGeometry(10, 20, 500, 300);
    child->show();
    return form;
  };
  PlainForm* const form = open();
  QWidget* const child = form->parentWidget();
  ASSERT_EQ(child->geometry(), QRect(40, 30, 640, 320));
  child->showMaximized();
  at.prompts.expect("정말 수정하시겠습니까?");
  choose(*form, "폼 및 그리드 설정 초기화");
  EXPECT_EQ(child->geometry(), QRect(10, 20, 500, 300));
  child->close();
  EXPECT_EQ(open()->parentWidget()->geometry(), QRect(10, 20, 500, 300)) << "closing remembers nothing older";
}

}  // namespace
