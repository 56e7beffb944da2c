// The page of a customer's map: what stands on it, and its way to the printer.
#include "master/customers/FrmPreView.h"

#include <QPushButton>

#include "master/customers/map_handshake.h"
#include "tests/idle_context.h"
#include "tests/recorded_print.h"
#include "tests/support.h"
#include "tests/ui/grab.h"
#include "ui/paper/print_report.h"

namespace {

struct MapPaper : testing::Test, tests::TestPc {
  MapPaper() {
    openBooks(QDate(2026, 3, 31));
    session.printers = &printers;
    printChooser() = [this](Session&, int, QWidget*) { return choice; };
    session.dbBasic.Execute(
        u"Insert Into Client(Code, Name, Tel, Address, HouseStyle, Position) Values(1, '산골식당', "
        u"'053-123-4567', '대구 수성구 지산동 1', 0, 'C:\\RWGas\\Map\\1.png')");
    pc.paths.makeFolder("C:\\RWGas\\Map\\");
  }
  void drawMap() {
    QImage map(600, 400, QImage::Format_RGB32);
    map.fill(QColor(0xDC, 0xE8, 0xF6));
    ASSERT_TRUE(map.save(pc.paths.native("C:\\RWGas\\Map\\1.png")));
  }
  tests::RecordedPrinters printers;
  std::optional<PrintChoice> choice = PrintChoice{"지로프린터"};
  tests::IdleContext idle{session};
};

TEST_F(MapPaper, TellsTheCustomerAndShowsTheMap) {
  drawMap();
  ASSERT_TRUE(MapHandshake(session).handOver(1));
  FrmPreView form(idle.context);
  tests::show(form);
  form.resize(form.sizeHint());
  tests::grab(form, "FrmPreView");
  prompts.expect("약도 정보를 출력하시겠습니까?", false);
  tests::key(Qt::Key_F10);
  EXPECT_TRUE(printers.jobs.empty());
  prompts.expect("약도 출력");
  tests::key(Qt::Key_F10);
  ASSERT_EQ(printers.jobs.size(), 1u);
  EXPECT_EQ(printers.jobs[0]->texts(),
            QStringList({"[ 고객 약도 정보 ]", "고 객 명  ", "산골식당", "전화번호  ", "053-123-4567",
                         "주    소  ", "대구 수성구 지산동 1"}));
  EXPECT_EQ(printers.jobs[0]->items.back().kind, tests::PrintedItem::Picture);
  EXPECT_TRUE(printers.jobs[0]->ended);
  printers.refusal = "용지가 없습니다.";
  prompts.expect("약도 출력");
  prompts.expect("인쇄를 시작할 수 없습니다!");
  tests::show(form);  // off-screen nothing brings the window back in front after the bar
  tests::key(Qt::Key_F10);
}

TEST_F(MapPaper, WithoutAFileTheBoxSaysSoAndTheNextCustomerTakesItsPlace) {
  ASSERT_TRUE(MapHandshake(session).handOver(1));
  FrmPreView form(idle.context);
  tests::show(form);
  const auto printed = [&] {
    prompts.expect("약도 출력");
    tests::show(form);  // off-screen nothing brings the window back in front after the bar
    tests::key(Qt::Key_F10);
    return printers.jobs.back()->texts();
  };
  EXPECT_EQ(printed().last(), "등록된 약도 그림이 없습니다.");
  session.dbBasic.Execute(u"Insert Into Client(Code, Name) Values(2, '다음')");
  ASSERT_TRUE(MapHandshake(session).handOver(2));
  form.showPage("customer");
  EXPECT_TRUE(printed().contains("다음"));
  prompts.expect("약도를 출력할 고객을 먼저 선택하십시오");
  EXPECT_FALSE(MapHandshake(session).handOver(0));
  choice.reset();
  prompts.expect("약도 출력");
  tests::show(form);
  tests::key(Qt::Key_F10);
  EXPECT_EQ(printers.jobs.size(), 2u) << "he left the question for the printer";
}

}  // namespace
