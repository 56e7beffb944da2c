#pragma once
// What a test does in a box or dialog that the program opens and waits for.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <type_traits>

namespace tests {

/** Runs act in the modal window that opens next, once it stands in front with the focus in it. Fails when none comes while
 *  the test runs, when it is no Window, and when the focus never gets there; that one is closed, so that the test ends. */
template <typename Window = QWidget>
void whenModal(std::function<void(std::type_identity_t<Window>&)> act) {
  auto* const look = new QTimer(qApp);
  const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
  const QPointer<QWidget> before = QApplication::activeModalWidget();
  QElapsedTimer since;
  since.start();
  QObject::connect(look, &QTimer::timeout, look, [=, act = std::move(act)] {
    const bool late = since.elapsed() > 20'000;
    const bool over = test != testing::UnitTest::GetInstance()->current_test_info();
    QWidget* const modal = QApplication::activeModalWidget();
    const bool there = !over && modal && modal != before && modal->isVisible();
    if (there) QApplication::setActiveWindow(modal);
    if (there && QApplication::focusWidget()) {
      look->stop();
      look->deleteLater();
      auto* const window = dynamic_cast<Window*>(modal);
      EXPECT_TRUE(window) << "another window: " << modal->objectName().toStdString();
      if (window) return act(*window);
      modal->close();
    } else if (late || over) {
      look->stop();
      look->deleteLater();
      ADD_FAILURE() << "no window to work in, in " << test->test_suite_name() << '.' << test->name();
      if (there) modal->close();
    }
  });
  look->start(1);
}

}  // namespace tests
