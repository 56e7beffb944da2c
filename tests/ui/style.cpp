// Who works by keys must see where he is, on every kind of control.
#include "ui/forms/style.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QVBoxLayout>

#include "tests/ui/grab.h"
#include "ui/forms/boxes.h"
#include "ui/grid/spread.h"

using namespace Qt::StringLiterals;

namespace {

int accentPixels(QWidget& of) {
  const QImage picture = of.grab().toImage();
  int count = 0;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) count += picture.pixelColor(x, y) == look::accent;
  return count;
}

TEST(Look, TheFocusIsSeenOnEveryKindOfControl) {
  QWidget window;
  auto* const column = new QVBoxLayout(&window);
  SpreadModel rows, none;
  rows.setColumns({{.header = "상호"}});
  rows.setRows({{"한강식당"}});
  none.setColumns({{.header = "상호"}});
  auto* const combo = new QComboBox;
  combo->addItems({"일반", "체적"});
  auto* const tabs = new QTabBar;
  tabs->addTab("일반판매");
  tabs->addTab("체적판매");
  auto* const list = new QListWidget;
  list->addItems({"C:", "D:"});
  const QList<QWidget*> controls{new QLineEdit,
                                 new QPlainTextEdit,
                                 new DateBox(DateBox::Mask::MonthDay),
                                 new MoneyBox,
                                 combo,
                                 new QPushButton("저장(&S)"),
                                 new QCheckBox("재고관리"),
                                 new QRadioButton("개별"),
                                 list,
                                 tabs,
                                 new Spread(rows),
                                 new Spread(none)};
  for (QWidget* const control : controls) {
    control->setMaximumHeight(60);
    column->addWidget(control);
  }
  tests::show(window);
  for (QWidget* const control : controls) {
    // By the program, as a form does it: not only after a Tab.
    control->setFocus(Qt::OtherFocusReason);
    QApplication::processEvents();
    ASSERT_TRUE(control->hasFocus()) << control->metaObject()->className();
    const int with = accentPixels(*control);
    tests::grab(window, u"focus_%1"_s.arg(controls.indexOf(control)));
    (control == controls.first() ? controls.last() : controls.first())->setFocus(Qt::OtherFocusReason);
    QApplication::processEvents();
    EXPECT_GT(with - accentPixels(*control), 60) << control->metaObject()->className();
  }
}

}  // namespace
