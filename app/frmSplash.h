#pragma once
// The start window: whose program it is, and the operator's own password.
#include <QPixmap>
#include <QWidget>
#include <functional>

#include "app/start_up.h"

class QLabel;
class QLineEdit;

class frmSplash : public QWidget {
 public:
  explicit frmSplash(StartUp& startUp, Session& session, QWidget* parent = nullptr);

  /** Shows what the start-up found. */
  void load();
  /** The sign-in is done; the window has closed. */
  std::function<void()> signedIn;
  /** The start has not come to its end, which the operator has been told when he tried to sign in. */
  std::function<void()> stuck;
  /** The program is to end: the operator left, or failed three times. */
  std::function<void()> ended;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void enter();

  StartUp& startUp_;
  Session& session_;
  QPixmap background_;
  QLabel* lblIdentify_;
  QLineEdit* txtUser_;
  QLineEdit* txtPassword_;
  bool open_ = true;  ///< the sign-in is still open
};
