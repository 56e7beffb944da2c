#include "app/FrmYearEnd.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/forms/style.h"
#include "ui/grid/spread.h"
#include "ui/paper/grid_print.h"

using namespace Qt::StringLiterals;

FrmYearEnd::FrmYearEnd(const QString& caption, Session& session, YearEndPage& page, const QString& yes,
                       const QString& no, QWidget* parent)
    : Dialog(u"FrmYearEnd"_s, caption, session.prompts, parent), session_(session), page_(page) {
  addText(page.head, "LblHead")->setFont(look::textFont(10, true));
  lines_ = new Spread(page.lines, this);
  lines_->setObjectName(u"SpLines"_s);
  lines_->setFillColumn(2);
  lines_->guard = [this](const std::function<void()>& work) { return guard(work); };
  body()->addWidget(lines_, 1);
  if (!page.warning.isEmpty()) {
    QLabel* const warning = addText(page.warning, "LblWarning");
    QPalette red = warning->palette();
    red.setColor(QPalette::WindowText, look::negative);
    warning->setPalette(red);
    warning->setFont(look::textFont(10, true));
  }
  addButton("BtnPrt", u"인쇄(&P)"_s, [this] { print(); });
  const bool minds = yes.isEmpty() || !page.warning.isEmpty();
  if (!yes.isEmpty() && minds) addButton("BtnYes", yes, [this] { accept(); });
  if (!minds) addDefault("BtnYes", yes, [this] { accept(); });
  if (minds)
    addDefault("BtnNo", no, [this] { reject(); });
  else
    addLeave("BtnNo", no);
  allowResize({900, 560});
  findChild<QPushButton*>(minds ? u"BtnNo"_s : u"BtnYes"_s)->setFocus();
}

void FrmYearEnd::showEvent(QShowEvent* event) {
  Dialog::showEvent(event);
  if (page_.lines.DataRowCnt() > 0) lines_->setActiveCell(1, 1);
}

void FrmYearEnd::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F10 && !event->modifiers()) return print();
  Dialog::keyPressEvent(event);
}

void FrmYearEnd::print() {
  guard([this] { PrintGrid(session_, page_.lines, windowTitle(), this); });
}
