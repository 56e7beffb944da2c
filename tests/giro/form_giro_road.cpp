// From the reading screen to the slip: the real windows, the printers alone are a recorder.
#include <QMdiArea>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "app/frmMain.h"
#include "tests/billing/meter_desk.h"
#include "tests/idle_context.h"
#include "tests/recorded_print.h"
#include "tests/ui/grab.h"
#include "tests/ui/modal.h"
#include "ui/grid/spread.h"

namespace {

TEST(GiroRoad, TheSlipShowsWhatTheReadingScreenShows) {
  tests::MeterDesk desk({2026, 3, 16});
  tests::RecordedPrinters printers;
  desk.session.printers = &printers;
  desk.pc.pc.settings.SaveSetting("해온판매", "프린터설정", "DEVICENAME", "지로프린터");
  const int code = desk.customer("달빛식당", 1500);
  desk.set(code, 2, "UseGage = 1100, Total = 12000");
  desk.set(code, 3,
           "UseGage = 1130, UseMuch = 30, UsePay = 45000, Trust = 12000, Delay = 240, Manage = 1000, "
           "Total = 58240");
  const int other = desk.customer("별빛식당", 1500);
  desk.set(other, 3, "Total = 1000");

  tests::IdlePickers pickers;
  frmMain window(desk.session, pickers);
  tests::show(window);
  ASSERT_TRUE(window.openForm("frmEva:1"));
  QWidget* screen = window.activeForm();
  ASSERT_EQ(screen->objectName(), "frmEva");
  auto* const grid = screen->findChild<Spread*>("SpEva");
  ASSERT_TRUE(grid && QTest::qWaitFor([&] { return grid->model().MaxRows() > 0; }));
  // The six buttons by their keys, the hand in the grid: what opens, and the sheets of two slips.
  const std::pair<const char*, int> papers[] = {{"OCR", 2},  {"OCR-A4", 1},   {"MICR-A4", 2},
                                                {"MICR", 2}, {"일반지로", 2}, {"일반지로(A4) 발행", 1}};
  int number = 0;
  for (const auto& [paper, pages] : papers) {
    SCOPED_TRACE(paper);
    QString opened;
    tests::whenModal([&](QWidget& dialog) {
      opened = dialog.windowTitle();
      dialog.findChild<QRadioButton*>("Opt1")->setFocus();
      for (int down = 0; down < 3; ++down) tests::key(Qt::Key_Down);
      QTest::keyClick(&dialog, Qt::Key_P, Qt::AltModifier);
      QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    QApplication::setActiveWindow(&window);
    grid->setFocus();
    QTest::keyClick(grid, Qt::Key(Qt::Key_1 + number), Qt::ControlModifier);
    EXPECT_EQ(opened, paper);
    ASSERT_EQ(printers.jobs.size(), size_t(++number));
    const auto& job = *printers.jobs.back();
    EXPECT_EQ(job.pages, pages);
    QStringList texts;
    for (const QString& text : job.texts()) texts << text.trimmed();
    // 2% of 12,000 in arrears; 2% of 58,240 is 1,164, cut to ten
    EXPECT_FALSE(texts.filter("달빛식당").isEmpty());
    for (const char* text :
         {"1,100", "1,130", "30", "45,000", "1,000", "12,000", "240", "58,240", "1,160", "59,400", "대구"})
      EXPECT_TRUE(texts.contains(QString::fromUtf8(text))) << text;
    // 58240 from the right: 0 + 12 + 2 + 56 + 15 = 85
    EXPECT_EQ(texts.filter("+582405<").size(), opened.startsWith("OCR") ? 1 : 0)
        << "the total without separators";
  }
  window.setSilentClose();
  window.close();
}

}  // namespace
