// The form tests' entry: one application off-screen, a limit on every hanging box.
#include <gtest/gtest.h>

#include <QApplication>

#include "ui/forms/style.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QTEST_FUNCTION_TIMEOUT", "60000");
  QApplication application(argc, argv);
  look::apply(application);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
