#include "giro/form_giro.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "billing/reading_screen.h"
#include "giro/form_giro_parts.h"
#include "papers/form_document_run.h"
#include "papers/paper_printer.h"
#include "ui/forms/frmFloatMsg.h"
#include "ui/grid/spread.h"

using namespace Qt::StringLiterals;

GiroForm::GiroForm(FormContext& context, const QString& name, const QString& caption, GiroPaper paper,
                   Period period, QWidget* parent)
    : Dialog(name, caption, context.session.prompts, parent),
      context_(context),
      slips_(context.session,
             [&context] { return dynamic_cast<const ReadingScreen*>(context.commands.activeForm()); }) {
  slips_.setPaper(paper);
  selection_ = new SelectionGroup;
  dates_ = buildDates(period);
  parts_ = new QGridLayout;
  parts_->setSpacing(8);
  parts_->setColumnStretch(1, 1);
  parts_->setRowStretch(1, 1);
  body()->addLayout(parts_);
}

/** Two parts at the right stand in the rows of those at the left, a bank alone beside the dates; the notes and three
 *  banks take the whole height. */
void GiroForm::placeParts() {
  const bool bankAlone = beside_.size() == 1 && !banks_.empty();
  parts_->addWidget(dates_, 0, 0);
  parts_->addWidget(selection_, 1, 0, 1, bankAlone ? 2 : 1);
  if (beside_.size() == 2 || bankAlone) {
    for (int row = 0; row < beside_.size(); ++row) parts_->addWidget(beside_[row], row, 1);
    return;
  }
  auto* const column = new QVBoxLayout;
  column->setSpacing(8);
  for (QWidget* const part : beside_) column->addWidget(part, 1);
  parts_->addLayout(column, 0, 1, 2, 1);
}

QWidget* GiroForm::buildDates(Period period) {
  auto* const group = new QGroupBox(u"납부와 사용 기간"_s);
  auto* const grid = new QGridLayout(group);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(6);
  const auto row = [&](const QString& label, QWidget* box) {
    const int at = grid->rowCount();
    grid->addWidget(new QLabel(label), at, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(box, at, 1);
  };
  due_ = new DueDateBoxes(slips_.dueDate());
  row(u"납부마감일"_s, due_);
  if (period == Period::ByMonth) {
    cmbUseMon_ = new QComboBox;
    cmbUseMon_->setObjectName(u"cmbUseMon"_s);
    cmbUseMon_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    for (int month = 1; month <= 12; ++month) cmbUseMon_->addItem(QString::number(month) + u"월"_s);
    row(u"사용월"_s, cmbUseMon_);
    period_ = new PeriodBoxes("TxtUse1", "TxtUse2", {});
  } else {
    period_ = new PeriodBoxes("use_start", "use_end", u"0000.00.00"_s);
    const auto [from, to] = slips_.lastMonth();
    period_->set(from, to);
  }
  row(u"사 용 기 간"_s, period_);
  checks_ = new QVBoxLayout;
  checks_->setSpacing(4);
  grid->addLayout(checks_, grid->rowCount(), 1);
  if (cmbUseMon_) {
    chkThisMon_ = addCheck("chkThisMon", u"처리당월을 기본값으로 사용하기"_s, slips_.startsWithThisMonth());
    on(chkThisMon_, &QCheckBox::toggled, [this] {
      slips_.setStartsWithThisMonth(chkThisMon_->isChecked());
      startUseMonth();
    });
    startUseMonth();
    on(cmbUseMon_, &QComboBox::currentIndexChanged, [this] { fillUsePeriod(); });
    on(cmbUseMon_, &QComboBox::activated, [this] { fillUsePeriod(); });
  }
  return group;
}

QCheckBox* GiroForm::addCheck(const char* name, const QString& caption, bool on) {
  auto* const made = new QCheckBox(caption);
  made->setObjectName(QString::fromUtf8(name));
  made->setChecked(on);
  checks_->addWidget(made);
  return made;
}

void GiroForm::addNote(const QString& text) {
  auto* const made = new QLabel(text);
  made->setObjectName(u"LblNote"_s);
  made->setProperty("role", u"faint"_s);
  checks_->addWidget(made);
}

void GiroForm::addBank() {
  auto* const panel = new BankPanel(int(banks_.size()) + 1);
  addBeside(panel);
  on(panel->search(), &QPushButton::clicked, [this, panel] {
    if (const auto chosen = context_.pickers.searchBank())
      panel->setBank({chosen->name, chosen->number, chosen->user});
  });
  if (banks_.empty())
    if (const auto bank = onlyBank(session())) panel->setBank(*bank);
  banks_.push_back(panel);
}

void GiroForm::addAfterDue() {
  auto* const group = new QGroupBox(u"납기후금액계산법"_s);
  auto* const rows = new QVBoxLayout(group);
  const std::pair<const char*, QString> options[] = {
      {"OptDue0", u"발행금액 전체에 대하여 연체료를 더합니다."_s},
      {"OptDue1", u"당월금액과 안전관리비에만 더합니다."_s}};
  for (int method = 0; method < 2; ++method) {
    auto* const option = new QRadioButton(options[method].second);
    option->setObjectName(QString::fromUtf8(options[method].first));
    option->setChecked(session().AfterDueMethod == method);
    rows->addWidget(option);
    on(option, &QRadioButton::clicked, [this, group, method] {
      if (session().AfterDueMethod == method) return;
      // The same setting rules what is carried on.
      if (prompts().MsgAsk(u"이 설정은 다음 달로 넘어가는 미납요금에도 적용됩니다.\n변경하시겠습니까?"_s,
                           u"지로 발행"_s, false))
        return setAfterDueMethod(session(), method);
      group->findChild<QRadioButton*>(u"OptDue"_s + QString::number(session().AfterDueMethod))
          ->setChecked(true);
    });
  }
  rows->addStretch();
  addBeside(group);
}

void GiroForm::buildFoot() {
  lblPrinter_ = addText({}, "LblPrinter");
  foot()->addWidget(lblPrinter_, 1);
  addButton("BtnPrtChange", u"지로프린터(&G)..."_s, [this] {
    openSetUp(u"frmPrtChange"_s);
  })->setToolTip(u"지로용지를 출력할 프린터와 위치를 설정합니다"_s);
  addButton("BtnPrinter", u"프린터설정(&S)..."_s, [this] {
    openSetUp(u"FrmSetPrinter"_s);
  })->setToolTip(u"거래명세표 등 문서별 프린터를 설정합니다"_s);
  addButton("BtnPreview", u"미리보기(&V)"_s, [this] { preview(); });
  addButton("BtnPdf", u"PDF 저장(&D)"_s, [this] {
    save();
  })->setToolTip(u"고객마다 한 파일로, 납부마감일과 고객 이름을 파일 이름으로 저장합니다"_s);
  print_ = addButton("BtnJiro", u"지로발행(&P)"_s, [this] { print(); });
  addLeave("BtnExit", u"닫기(&X)"_s);
  showPrinter();
  allowResize();
}

void GiroForm::begin() {
  placeParts();
  buildFoot();
  QList<QWidget*> order;
  for (QLineEdit* const box : due_->findChildren<QLineEdit*>()) order << box;
  if (cmbUseMon_) order << cmbUseMon_;
  for (QLineEdit* const box : period_->findChildren<QLineEdit*>()) order << box;
  for (QCheckBox* const box : findChildren<QCheckBox*>()) order << box;
  for (BankPanel* const panel : banks_)
    for (QLineEdit* const box : panel->findChildren<QLineEdit*>()) order << box;
  enterOrder(order << print_);
  due_->first()->setFocus();
  due_->first()->selectAll();
}

void GiroForm::startUseMonth() {
  cmbUseMon_->setCurrentIndex(slips_.firstUseMonth() - 1);
  fillUsePeriod();
}

void GiroForm::fillUsePeriod() {
  const auto [from, to] = slips_.usePeriod(cmbUseMon_->currentIndex() + 1);
  period_->set(from, to);
}

void GiroForm::showPrinter() {
  const QString device = slipPrinter(session()).device;
  const int room = 24 * fontMetrics().horizontalAdvance(u'0');
  lblPrinter_->setText(u"지로프린터 : "_s + (device.isEmpty()
                                                 ? u"없음"_s
                                                 : fontMetrics().elidedText(device, Qt::ElideMiddle, room)));
  lblPrinter_->setToolTip(device);
}

void GiroForm::openSetUp(const QString& form) {
  context_.commands.openForm(form);
  showPrinter();
}

std::optional<DocumentRun> GiroForm::makeRun() {
  GiroInput input{due_->year(), due_->month(), due_->day(), period_->from(), period_->to()};
  for (const BankPanel* const panel : banks_) input.banks.push_back(panel->bank());
  if (!addInput(input)) return {};
  auto run = slips_.run(input, selection_->chosen());
  if (!run && !isDay(input)) due_->first()->setFocus();
  return run;
}

void GiroForm::print() {
  const QString printer = giroPrinter(session());
  if (printer.isEmpty()) return;
  const auto run = makeRun();
  const int printed = run ? printRun(session(), this, *run, printer) : 0;
  if (printed > 0) showFloatMsg(u"고객 %1명의 지로용지를 인쇄하였습니다."_s.arg(printed), 2000, this);
}

void GiroForm::preview() {
  if (const auto run = makeRun()) previewRun(session(), this, *run, [this] { guard([this] { print(); }); });
}

void GiroForm::save() {
  const auto run = makeRun();
  const int saved = run ? saveRun(session(), this, *run) : 0;
  if (saved > 0) showFloatMsg(u"고객 %1명의 지로를 PDF로 저장하였습니다."_s.arg(saved), 2000, this);
}
