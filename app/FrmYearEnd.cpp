#include "app/FrmYearEnd.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "ui/forms/guard.h"
#include "ui/forms/style.h"
#include "ui/grid/spread.h"
#include "ui/paper/grid_print.h"

using namespace Qt::StringLiterals;

FrmYearEnd::FrmYearEnd(const QString& caption, Session& session, YearEndPage& page, const QString& yes,
                       const QString& no, QWidget* parent)
    : QDialog(parent), session_(session), page_(page) {
  setObjectName(u"FrmYearEnd"_s);
  setWindowTitle(caption);
  auto* const whole = new QVBoxLayout(this);
  whole->setContentsMargins(12, 10, 12, 10);
  whole->setSpacing(8);
  const auto text = [&](const char* name, const QString& words) {
    auto* const label = new QLabel(words, this);
    label->setObjectName(QString::fromUtf8(name));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setFocusPolicy(Qt::NoFocus);
    whole->addWidget(label);
    return label;
  };
  text("LblHead", page.head)->setFont(look::textFont(10, true));
  lines_ = new Spread(page.lines, this);
  lines_->setObjectName(u"SpLines"_s);
  lines_->setFillColumn(2);
  lines_->guard = [this](const std::function<void()>& work) { return guarded(session_.prompts, work); };
  whole->addWidget(lines_, 1);
  if (!page.warning.isEmpty()) {
    QLabel* const warning = text("LblWarning", page.warning);
    QPalette red = warning->palette();
    red.setColor(QPalette::WindowText, look::negative);
    warning->setPalette(red);
    warning->setFont(look::textFont(10, true));
  }
  auto* const foot = new QHBoxLayout;
  const auto button = [&](const char* name, const QString& words, auto work) {
    auto* const made = new QPushButton(words, this);
    made->setObjectName(QString::fromUtf8(name));
    made->setAutoDefault(true);
    connect(made, &QPushButton::clicked, this, work);
    foot->addWidget(made);
    return made;
  };
  QPushButton* const paper = button("BtnPrt", u"인쇄(&P)"_s, [this] { print(); });
  paper->setAutoDefault(false);
  foot->addStretch(1);
  QPushButton* const accepts = yes.isEmpty() ? nullptr : button("BtnYes", yes, [this] { accept(); });
  QPushButton* const leaves = button("BtnNo", no, [this] { reject(); });
  whole->addLayout(foot);
  resize(QSize(900, 560).boundedTo(screen()->availableSize()));
  QPushButton* const first = accepts && page.warning.isEmpty() ? accepts : leaves;
  first->setDefault(true);
  first->setFocus();
}

void FrmYearEnd::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (page_.lines.DataRowCnt() > 0) lines_->setActiveCell(1, 1);
}

void FrmYearEnd::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F10 && !event->modifiers()) return print();
  QDialog::keyPressEvent(event);
}

void FrmYearEnd::print() {
  guarded(session_.prompts, [this] { PrintGrid(session_, page_.lines, windowTitle(), this); });
}
