#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
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

using namespace Qt::StringLiterals;

namespace {

class PlainForm : public Form {
 public:
  explicit PlainForm(Session& session) : Form(u"frmPlain"_s, u"보기"_s, session) {
    rows.setColumns({{.header = u"가"_s, .width = 8}, {.header = u"나"_s, .width = 9}});
    grid = addSpread("SpPlain", rows);
    resize(500, 300);
  }
  SpreadModel rows;
  Spread* grid;
};

class FormMemory : public ::testing::Test {
 protected:
  QString file() { return at.pc.paths.native(u"C:\\RWGas\\FormIni\\frmPlain.ini"_s); }
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
  EXPECT_EQ(kept.value(u"FormPosition"_s, u"Width"_s) + u'x' + kept.value(u"FormPosition"_s, u"Height"_s),
            u"520x310"_s);
  EXPECT_EQ(kept.value(u"FormPosition"_s, u"WindowState"_s), u"2"_s);
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
  at.prompts.expectInput(u"줄높이를 입력하세요.(입력범위: 8~20, 0:기본값)"_s, u"20"_s);
  choose(form, u"그리드 줄높이 변경"_s);
  EXPECT_EQ(form.grid->rowHeight(), 20);
  at.prompts.expectInput(u"글자크기"_s, u"14"_s);
  choose(form, u"글자크기        변경"_s);
  EXPECT_EQ(form.grid->fontSize(), 14);
  at.prompts.expectInput(u"글자크기"_s, u"21"_s);
  at.prompts.expect(u"8에서 20"_s);
  choose(form, u"글자크기        변경"_s);
  EXPECT_EQ(form.grid->fontSize(), 14);
  EXPECT_EQ(pc::IniFile(file()).value(u"SpPlain_General"_s, u"RowHeight"_s), u"20"_s);

  at.prompts.expect(u"정말 수정하시겠습니까?"_s, false);
  choose(form, u"폼 및 그리드 설정 초기화"_s);
  EXPECT_TRUE(QFileInfo::exists(file()));
  at.prompts.expect(u"정말 수정하시겠습니까?"_s, true);
  choose(form, u"폼 및 그리드 설정 초기화"_s);
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
  at.prompts.expect(u"정말 수정하시겠습니까?"_s);
  choose(*form, u"폼 및 그리드 설정 초기화"_s);
  EXPECT_EQ(child->geometry(), QRect(10, 20, 500, 300));
  child->close();
  EXPECT_EQ(open()->parentWidget()->geometry(), QRect(10, 20, 500, 300)) << "closing remembers nothing older";
}

}  // namespace
