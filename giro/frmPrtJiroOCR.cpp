#include "giro/frmPrtJiroOCR.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "billing/reading_screen.h"
#include "giro/form_giro_parts.h"
#include "papers/form_document_run.h"
#include "papers/paper_printer.h"
#include "ui/forms/frmFloatMsg.h"
#include "ui/grid/spread.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int noteLinesOffered = 8;
}

frmPrtJiroOCR::frmPrtJiroOCR(FormContext& context, QWidget* parent)
    : Dialog(u"frmPrtJiroOCR"_s, {}, context.session.prompts, parent),
      context_(context),
      rules_(context.session,
             [&context] { return dynamic_cast<const ReadingScreen*>(context.commands.activeForm()); }) {
  selection_ = new SelectionGroup;
  lblPrinter_ = new QLabel;
  lblPrinter_->setObjectName(u"LblPrinter"_s);
  lblPrinter_->setTextFormat(Qt::PlainText);

  foot()->addWidget(lblPrinter_, 1);
  auto* giroPrinter =
      addButton("BtnPrtChange", u"지로프린터(&G)..."_s, [this] { openSetUp(u"frmPrtChange"_s); });
  giroPrinter->setToolTip(u"지로용지를 출력할 프린터와 위치를 설정합니다"_s);
  auto* printer = addButton("BtnPrinter", u"프린터설정(&S)..."_s, [this] { openSetUp(u"FrmSetPrinter"_s); });
  printer->setToolTip(u"거래명세표 등 문서별 프린터를 설정합니다"_s);
  auto* jiro = addButton("BtnJiro", u"지로발행(&P)"_s, [this] { print(); });
  addLeave("BtnExit", u"닫기(&X)"_s);

  auto* grid = new QGridLayout;
  grid->setSpacing(8);
  grid->addWidget(buildDates(), 0, 0);
  grid->addWidget(selection_, 1, 0);
  grid->addWidget(buildNotes(), 0, 1, 2, 1);
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(1, 1);
  body()->addLayout(grid);
  allowResize();
  QList<QWidget*> order;
  for (QLineEdit* const box : due_->findChildren<QLineEdit*>()) order << box;
  enterOrder(order << cmbUseMon_ << txtUse1_ << txtUse2_ << chkThisMon_ << jiro);

  showPage(u"continuous"_s);
  startUseMonth();
  showPrinter();
  due_->first()->setFocus();
  due_->first()->selectAll();
}

QGroupBox* frmPrtJiroOCR::buildDates() {
  auto* group = new QGroupBox(u"납부와 사용 기간"_s);
  auto* grid = new QGridLayout(group);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(6);
  const auto label = [&](int row, const QString& text) {
    grid->addWidget(new QLabel(text), row, 0, Qt::AlignRight | Qt::AlignVCenter);
  };
  due_ = new DueDateBoxes(rules_.dueDate());
  label(0, u"납부마감일"_s);
  grid->addWidget(due_, 0, 1);

  cmbUseMon_ = new QComboBox;
  cmbUseMon_->setObjectName(u"cmbUseMon"_s);
  for (int month = 1; month <= 12; ++month) cmbUseMon_->addItem(QString::number(month) + u"월"_s);
  label(1, u"사용월"_s);
  grid->addWidget(cmbUseMon_, 1, 1, Qt::AlignLeft);

  auto* period = new QHBoxLayout;
  period->setSpacing(4);
  for (auto [box, name] : {std::pair{&txtUse1_, u"TxtUse1"_s}, std::pair{&txtUse2_, u"TxtUse2"_s}}) {
    *box = new QLineEdit;
    (*box)->setObjectName(name);
    (*box)->setMaxLength(10);
    (*box)->setFixedWidth(10 * fontMetrics().horizontalAdvance(u'0') + 22);
    if (period->count()) period->addWidget(new QLabel(u"-"_s));
    period->addWidget(*box);
  }
  period->addStretch();
  label(2, u"사 용 기 간"_s);
  grid->addLayout(period, 2, 1);

  chkThisMon_ = new QCheckBox(u"처리당월을 기본값으로 사용하기"_s);
  chkThisMon_->setObjectName(u"chkThisMon"_s);
  chkThisMon_->setChecked(rules_.startsWithThisMonth());
  grid->addWidget(chkThisMon_, 3, 1);

  on(cmbUseMon_, &QComboBox::currentIndexChanged, [this] { fillUsePeriod(); });
  on(chkThisMon_, &QCheckBox::toggled, [this] {
    rules_.setStartsWithThisMonth(chkThisMon_->isChecked());
    startUseMonth();
  });
  return group;
}

QGroupBox* frmPrtJiroOCR::buildNotes() {
  auto* group = new QGroupBox(u"알림 글 (여덟 줄까지)"_s);
  notes_.setColumns({{.header = u"알림 글"_s, .width = 46}});
  notes_.setMaxRows(noteLinesOffered);
  txtAnnounce_ = new Spread(notes_);
  txtAnnounce_->setObjectName(u"TxtAnnounce"_s);
  txtAnnounce_->guard = [this](const std::function<void()>& work) { return guard(work); };
  txtAnnounce_->setMinimumWidth(txtAnnounce_->fullWidth());
  txtAnnounce_->setFillColumn(1);
  auto* rows = new QVBoxLayout(group);
  rows->addWidget(txtAnnounce_);
  return group;
}

void frmPrtJiroOCR::showPage(const QString& page) {
  const bool a4 = page == "a4"_L1;
  rules_.setPaper(a4 ? OcrPaper::A4 : OcrPaper::Continuous);
  setWindowTitle(a4 ? u"OCR-A4"_s : u"OCR"_s);
  // A line of Hangul, two half-width characters each, has room on the paper.
  notes_.setColumns({{.header = u"알림 글"_s, .width = 46, .maxLength = rules_.noteWidth() / 2}});
}

void frmPrtJiroOCR::startUseMonth() {
  cmbUseMon_->setCurrentIndex(rules_.firstUseMonth() - 1);
  fillUsePeriod();
}

void frmPrtJiroOCR::fillUsePeriod() {
  const auto [from, to] = rules_.usePeriod(cmbUseMon_->currentIndex() + 1);
  txtUse1_->setText(from);
  txtUse2_->setText(to);
}

void frmPrtJiroOCR::showPrinter() {
  const QString device = slipPrinter(context_.session).device;
  lblPrinter_->setText(u"지로프린터 : "_s + (device.isEmpty() ? u"없음"_s : device));
}

void frmPrtJiroOCR::openSetUp(const QString& form) {
  context_.commands.openForm(form);
  showPrinter();
}

void frmPrtJiroOCR::print() {
  if (!txtAnnounce_->commitEdit()) return;
  GiroInput input{due_->year(), due_->month(), due_->day(), txtUse1_->text(), txtUse2_->text(), {}};
  for (int row = 1; row <= notes_.MaxRows(); ++row) input.notes << notes_.text(row, 1);
  Session& session = context_.session;
  const QString printer = giroPrinter(session);
  if (printer.isEmpty()) return;
  const auto run = rules_.run(input, selection_->chosen());
  const int printed = run ? printRun(session, this, *run, printer) : 0;
  if (printed > 0) showFloatMsg(u"고객 %1명의 지로용지를 인쇄하였습니다."_s.arg(printed), 2000, this);
}
