#pragma once
// The bar for long work that runs in its handler.
#include <QDialog>
#include <QElapsedTimer>

#include <functional>

class QLabel;
class QProgressBar;
class QPushButton;

/** Shown while it lives, over the window that works; other windows take no input meanwhile. Nothing of it runs by itself,
 *  so it has no guard of its own: it is drawn by the work, which stands under the guard of who began it. */
class FrmProgress : public QDialog {
 public:
  /** Milliseconds from one drawing to the next; a test that wants each step drawn makes it 0. */
  static inline int drawEvery = 50;

  /** total: steps of the work; 0 when it is not known. A stop button only when the work may be broken off. */
  FrmProgress(const QString& caption, int total, bool mayStop, QWidget* parent = nullptr);

  /** Shows the step, not oftener than the eye sees. False once the operator has asked to stop. */
  bool step(int done, const QString& note = {});
  /** The bar from its start for another piece of the work. */
  void begin(const QString& note, int total);

 protected:
  QLabel* note() const { return note_; }
  QProgressBar* bar() const { return bar_; }
  void closeEvent(QCloseEvent* event) override;
  void reject() override;

 private:
  QLabel* note_;
  QProgressBar* bar_;
  QPushButton* stop_ = nullptr;
  QElapsedTimer sinceDrawn_;
  bool stopped_ = false;
};

/** A teller for work of so many steps that may not be stopped: the bar comes up with the first word before the end, so
 *  short work is done without one, and goes when the teller does. */
std::function<bool(int done)> barTeller(const QString& caption, int total, QWidget* over);
