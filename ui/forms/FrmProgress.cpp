#include "ui/forms/FrmProgress.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include <memory>

#include "ui/forms/push_button.h"

using namespace Qt::StringLiterals;

FrmProgress::FrmProgress(const QString& caption, int total, bool mayStop, QWidget* parent) : QDialog(parent) {
  setObjectName(u"FrmProgress"_s);
  setWindowTitle(caption);
  setWindowModality(Qt::ApplicationModal);
  auto* const whole = new QVBoxLayout(this);
  note_ = new QLabel(caption, this);
  note_->setObjectName(u"LblNote"_s);
  note_->setMinimumWidth(fontMetrics().horizontalAdvance(u'0') * 46);
  whole->addWidget(note_);
  bar_ = new QProgressBar(this);
  bar_->setObjectName(u"ProgressBar"_s);
  bar_->setRange(0, total);
  whole->addWidget(bar_);
  if (mayStop) {
    stop_ = new PushButton("BtnStop", u"중지(&S)"_s, this);
    // The Enter that began the work, held a moment too long, must not stop it.
    stop_->setAutoDefault(false);
    connect(stop_, &QPushButton::clicked, this, [this] { reject(); });
    whole->addWidget(stop_, 0, Qt::AlignRight);
  }
  show();
  QApplication::processEvents();
  sinceDrawn_.start();
}

bool FrmProgress::step(int done, const QString& note) {
  const bool last = bar_->maximum() > 0 && done >= bar_->maximum();
  if (stopped_ || (!last && sinceDrawn_.elapsed() < drawEvery)) return !stopped_;
  bar_->setValue(done);
  if (!note.isEmpty()) note_->setText(note);
  QApplication::processEvents();
  sinceDrawn_.restart();
  return !stopped_;
}

void FrmProgress::begin(const QString& note, int total) {
  note_->setText(note);
  bar_->setRange(0, total);
  bar_->setValue(0);
  QApplication::processEvents();
  sinceDrawn_.restart();
}

/** Esc and the window's own cross ask the work to stop where it may; the window goes when the work ends. */
void FrmProgress::reject() {
  if (!stop_) return;
  stopped_ = true;
  stop_->setEnabled(false);
}

void FrmProgress::closeEvent(QCloseEvent* event) {
  reject();
  event->ignore();
}

std::function<bool(int done)> barTeller(const QString& caption, int total, QWidget* over) {
  auto bar = std::make_shared<std::unique_ptr<FrmProgress>>();
  return [=](int done) {
    if (!*bar && done < total) *bar = std::make_unique<FrmProgress>(caption, total, false, over);
    return !*bar || (*bar)->step(done);
  };
}
