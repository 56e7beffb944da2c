#include "app/frmSplash.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QVBoxLayout>

#include "ui/forms/guard.h"
#include "ui/forms/keys.h"
#include "ui/forms/style.h"

using namespace Qt::StringLiterals;

frmSplash::frmSplash(StartUp& startUp, Session& session, QWidget* parent)
    : QWidget(parent), startUp_(startUp), session_(session) {
  setObjectName(u"frmSplash"_s);
  setWindowTitle(u"로그인"_s);
  setFixedSize(460, 290);
  lblIdentify_ = new QLabel;
  lblIdentify_->setObjectName(u"lblIdentify"_s);
  lblIdentify_->setFont(look::textFont(12, true));
  txtUser_ = new QLineEdit;
  txtUser_->setObjectName(u"txtUser"_s);
  txtUser_->setReadOnly(true);
  txtUser_->setFocusPolicy(Qt::NoFocus);
  txtPassword_ = new QLineEdit;
  txtPassword_->setObjectName(u"txtPassword"_s);
  txtPassword_->installEventFilter(this);
  auto* userLabel = new QLabel(u"사용자"_s);
  auto* passwordLabel = new QLabel(u"패스워드"_s);

  auto* boxes = new QGridLayout;
  boxes->setHorizontalSpacing(10);
  boxes->setVerticalSpacing(8);
  boxes->addWidget(lblIdentify_, 0, 1);
  boxes->addWidget(userLabel, 1, 0, Qt::AlignRight);
  boxes->addWidget(txtUser_, 1, 1);
  boxes->addWidget(passwordLabel, 2, 0, Qt::AlignRight);
  boxes->addWidget(txtPassword_, 2, 1);
  boxes->setColumnMinimumWidth(0, 76);
  boxes->setColumnStretch(1, 1);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(34, 0, 44, 30);
  rows->addStretch();
  rows->addLayout(boxes);
}

void frmSplash::load() {
  background_.load(session_.pc.paths.native(session_.pc.paths.programFolder() + u"\\Image\\loginbg.jpg"_s));
  update();
  startUp_.load();
  const StartScreen& screen = startUp_.screen();
  lblIdentify_->setText(screen.identify);
  txtUser_->setText(screen.user);
  txtPassword_->setText(screen.password);
  txtPassword_->setEchoMode(screen.passwordVisible ? QLineEdit::Normal : QLineEdit::Password);
  txtPassword_->setFocus();
}

void frmSplash::enter() {
  const bool stood = guarded(session_.prompts, [this] {
    switch (startUp_.enterPassword(txtPassword_->text())) {
      case SignIn::Accepted:
        open_ = false;
        close();
        if (signedIn) signedIn();
        break;
      case SignIn::TryAgain:
        txtPassword_->clear();
        txtPassword_->setFocus();
        break;
      case SignIn::EndProgram:
        open_ = false;
        close();
        if (ended) ended();
        break;
    }
  });
  if (!stood && !startUp_.ready() && stuck) stuck();
}

bool frmSplash::eventFilter(QObject* watched, QEvent* event) {
  if (watched == txtPassword_ && open_) {
    // Where Enter alone signs in there is nothing to hide, and the box says so.
    if (event->type() == QEvent::FocusIn && !startUp_.screen().passwordVisible)
      txtPassword_->setEchoMode(QLineEdit::Password);
    if (event->type() == QEvent::KeyPress) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (isEnterKey(key)) {
        enter();
        return true;
      }
    }
  }
  return QWidget::eventFilter(watched, event);
}

void frmSplash::closeEvent(QCloseEvent* event) {
  if (!open_) return event->accept();
  bool leave = false;
  guarded(session_.prompts, [&] { leave = startUp_.askToLeave(); });
  if (!leave) return event->ignore();
  open_ = false;
  event->accept();
  if (ended) ended();
}

void frmSplash::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (!background_.isNull()) {
    painter.drawPixmap(rect(), background_);
    return;
  }
  painter.fillRect(rect(), look::paper);
  const QRect band(0, 0, width(), 122);
  painter.fillRect(band, look::accent);
  painter.setPen(look::paper);
  painter.setFont(look::textFont(15, true));
  painter.drawText(QRect(34, 34, width() - 68, 30), Qt::AlignLeft | Qt::AlignVCenter, u"해온판매"_s);
  painter.setFont(look::textFont());
  painter.drawText(QRect(34, 68, width() - 68, 24), Qt::AlignLeft | Qt::AlignVCenter,
                   u"LP가스 판매관리  Ver."_s + HAEON_VERSION);
  painter.setPen(look::line);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
