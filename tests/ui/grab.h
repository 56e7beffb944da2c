#pragma once
// What the tests of forms share: pictures of a window, keys and input-method events as the PC sends them.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QInputMethodEvent>
#include <QTest>
#include <QWidget>

namespace tests {

/** Saves the window as NAME.png in the folder that HAEON_PICTURES names; does nothing when it is not set. */
inline void grab(QWidget& window, const QString& name) {
  const QString folder = qEnvironmentVariable("HAEON_PICTURES");
  if (folder.isEmpty()) return;
  QDir().mkpath(folder);
  QApplication::processEvents();
  window.grab().save(folder + u'/' + name + ".png");
}

/** Shows a window in front, with the focus in it. */
inline void show(QWidget& window) {
  window.show();
  window.activateWindow();
  QApplication::setActiveWindow(&window);
  QApplication::processEvents();
}

/** A control by its name. */
template <class Control = QWidget>
Control* part(const QWidget& form, const char* name) {
  auto* const found = form.findChild<Control*>(QString::fromUtf8(name));
  EXPECT_TRUE(found) << name;
  return found;
}
inline void press(const QWidget& form, const char* button) {
  if (auto* const found = part<QAbstractButton>(form, button)) found->click();
}

/** The name of the control that has the focus. */
inline QString focused() {
  return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
}

/** A key to whatever has the focus. */
inline void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QWidget* const popup = QApplication::activePopupWidget();
  QWidget* const target = popup ? popup : QApplication::focusWidget();
  ASSERT_TRUE(target) << "nothing has the focus";
  QTest::keyClick(target, Qt::Key(key), modifiers);
}

/** One after the other. */
inline void keys(std::initializer_list<Qt::Key> pressed) {
  for (const Qt::Key each : pressed) key(each);
}

/** Latin letters and digits, typed. */
inline void type(const QString& text) {
  for (const QChar letter : text) QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
}

/** The same, and Enter. */
inline void enter(const QString& text) {
  type(text);
  key(Qt::Key_Return);
}

/** The syllables an input method composes: every step as preedit, then the commit. */
inline void compose(const QStringList& preedits, const QString& commit) {
  for (const QString& preedit : preedits) {
    QInputMethodEvent step(preedit, {});
    QApplication::sendEvent(QApplication::focusWidget(), &step);
  }
  QInputMethodEvent done;
  done.setCommitString(commit);
  QApplication::sendEvent(QApplication::focusWidget(), &done);
}

}  // namespace tests
