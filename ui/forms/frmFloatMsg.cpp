#include "ui/forms/frmFloatMsg.h"

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

class frmFloatMsg : public QWidget {
 public:
  frmFloatMsg(const QString& text, int milliseconds, QWidget* over)
      : QWidget(over, Qt::ToolTip | Qt::FramelessWindowHint) {
    setObjectName(u"frmFloatMsg"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* const caption = new QLabel(text, this);
    caption->setObjectName(u"pnlCaption"_s);
    caption->setAlignment(Qt::AlignCenter);
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(caption);
    auto* const timer = new QTimer(this);
    timer->setObjectName(u"Timer1"_s);
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, this, &QWidget::close);
    timer->start(milliseconds);
    adjustSize();
    if (over) move(over->mapToGlobal(over->rect().center()) - rect().center());
  }
};

}  // namespace

void showFloatMsg(const QString& text, int milliseconds, QWidget* over) {
  static QPointer<QWidget> last;
  if (last) last->close();
  last = new frmFloatMsg(text, milliseconds, over ? over : QApplication::activeWindow());
  last->show();
}
