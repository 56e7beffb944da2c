#include "app/FrmFirstSteps.h"

#include <QApplication>
#include <QFileDialog>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/forms/style.h"

using namespace Qt::StringLiterals;

FrmFirstSteps::FrmFirstSteps(FormContext& context, QWidget* parent)
    : Form(u"FrmFirstSteps"_s, u"처음 시작 안내"_s, context.session, parent),
      context_(context),
      rules_(context.session) {
  askFile = [this] {
    return QFileDialog::getOpenFileName(this, u"우편번호 파일 선택"_s, {}, u"우편번호 파일 (*.mdb)"_s);
  };
  auto* head = new QLabel(u"장사를 시작하는 데 필요한 다섯 가지입니다"_s);
  head->setFont(look::textFont(12, true));
  head->setContentsMargins(14, 12, 14, 4);
  body()->addWidget(head);
  auto* grid = new QGridLayout;
  grid->setContentsMargins(14, 4, 14, 8);
  grid->setHorizontalSpacing(14);
  grid->setVerticalSpacing(10);
  grid->setColumnStretch(1, 1);
  for (const FirstStep& step : rules_.steps()) addStep(*grid, step);
  body()->addLayout(grid);
  body()->addStretch(1);
  auto* const leave = addButton("BtnExit", u"닫기(&X)"_s, [this] { close(); });
  leave->installEventFilter(this);
  body()->addWidget(buttonRow({leave}));
  onKey(Qt::Key_Escape, [this] { close(); });
  showHelp(u"차례대로 하지 않아도 되고, 언제든 닫을 수 있습니다"_s);
  setBottomLine(u" [도움말 - 처음 시작 안내]에서 다시 엽니다"_s);
  resize(sizeHint());
  // Back from a step's form, or from another PC's work.
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* before, QWidget* now) {
    if (now && isAncestorOf(now) && !(before && isAncestorOf(before))) refresh();
  });
  refresh();
}

void FrmFirstSteps::addStep(QGridLayout& grid, const FirstStep& step) {
  const int at = int(rows_.size());
  auto* sign = new QLabel;
  sign->setObjectName(u"LblSign"_s + QString::number(at + 1));
  sign->setFont(look::textFont(15, true));
  sign->setFixedWidth(30);
  sign->setAlignment(Qt::AlignCenter);
  auto* words = new QLabel(u"<b>%1</b><br><span style='color:%2'>%3</span>"_s.arg(
      step.title, look::faintInk.name(), step.purpose));
  auto* count = new QLabel;
  count->setObjectName(u"LblCount"_s + QString::number(at + 1));
  count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  const QString caption = (step.form.isEmpty() ? u"파일 선택(&%1)"_s : u"열기(&%1)"_s).arg(at + 1);
  auto* open =
      addButton(qPrintable(u"BtnStep"_s + QString::number(at + 1)), caption, [this, at] { perform(at); });
  open->installEventFilter(this);
  grid.addWidget(sign, at, 0);
  grid.addWidget(words, at, 1);
  grid.addWidget(count, at, 2);
  grid.addWidget(open, at, 3);
  rows_ << Row{sign, count, open};
}

void FrmFirstSteps::perform(int at) {
  const QString form = rules_.steps().at(at).form;
  if (form.isEmpty())
    fetchPostCodes();
  else
    context_.commands.openForm(form);
}

void FrmFirstSteps::fetchPostCodes() {
  const QString file = askFile();
  if (file.isEmpty()) return;
  const QString failure = rules_.takePostCodes(file);
  if (failure.isEmpty())
    session().prompts.MsgInfo(u"우편번호 파일을 자료 폴더에 넣었습니다."_s, u"처음 시작 안내"_s);
  else
    session().prompts.MsgWarn(failure, u"처음 시작 안내"_s);
  refresh();
}

void FrmFirstSteps::refresh() {
  const QList<FirstStep> steps = rules_.steps();
  QPushButton* next = nullptr;
  for (int at = 0; at < steps.size(); ++at) {
    const FirstStep& step = steps[at];
    const Row& row = rows_[at];
    row.sign->setText(step.done() ? u"✓"_s : QString::number(at + 1));
    row.sign->setStyleSheet(u"color:"_s + (step.done() ? look::accent : look::faintInk).name());
    row.count->setText(!step.done() ? u"아직 없음"_s
                                    : QLocale(QLocale::Korean).toString(step.count) + u"건"_s);
    if (!step.done() && !next) next = row.open;
  }
  if (!next) next = findChild<QPushButton*>(u"BtnExit"_s);
  next->setFocus();
}

QSize FrmFirstSteps::sizeHint() const {
  return Form::sizeHint().expandedTo({620, 0});
}

/** Up and down between the steps, as in a list. */
bool FrmFirstSteps::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && qobject_cast<QPushButton*>(watched)) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Down || key == Qt::Key_Up) {
      focusNextPrevChild(key == Qt::Key_Down);
      return true;
    }
  }
  return Form::eventFilter(watched, event);
}
