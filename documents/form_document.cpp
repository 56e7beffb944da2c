#include "documents/form_document.h"

#include <QCheckBox>
#include <QTabBar>
#include <QVBoxLayout>

#include "documents/form_parts.h"
#include "papers/form_document_run.h"

DocumentForm::DocumentForm(const char* name, const QString& kind, FormContext& context, QWidget* parent)
    : Form(name, kind + " 발행", context.session, parent),
      context_(context),
      tabs_(sectionTabs(this)),
      kind_(kind) {}

void DocumentForm::lay(std::initializer_list<QWidget*> above, QWidget* below) {
  body()->addLayout(stackedRows(above));
  body()->addWidget(grid_, 1);
  body()->addWidget(below);
}

QCheckBox* DocumentForm::addCheck(QWidget* panel, const char* name, const QString& caption) {
  auto* const made = new QCheckBox(caption, panel);
  made->setObjectName(name);
  panel->layout()->addWidget(made);
  return made;
}

QPushButton* DocumentForm::addPreviewButton() {
  return addButton("btnPreview", "미리보기(&W)", [this] { preview(); });
}

QPushButton* DocumentForm::addPdfButton() {
  return addButton("btnPdf", "PDF저장(&D)", [this] { savePdf(); });
}

void DocumentForm::askPrinter() {
  context_.commands.openForm("FrmSetPrinter:" + kind_);
  showPrinter();
}

void DocumentForm::showPrinter() {
  setWindowTitle(kind_ + " 발행 - 현재 설정된 프린터 : " + printer());
}

bool DocumentForm::isPendingTab() const {
  return tabs_->currentIndex() == 0;
}

void DocumentForm::issue(const std::function<void()>& listAnew) {
  if (!hasPapers()) return;
  onPrinter(session(), printer());  // throws before anything is issued
  const auto run = papers(true);
  if (!run) return;
  QString failure;
  int done = 0;
  try {
    done = printRun(session(), this, *run, printer());
  } catch (const pc::PrintError& error) {
    failure = error.text + "\n\n";
  }
  listAnew();
  if (done < run->documents)
    session().prompts.MsgWarn(
        failure + kind_ + "를 모두 인쇄하지 못했습니다.\n발행한 내역에서 다시 인쇄하세요.", kind_);
}

void DocumentForm::preview() {
  if (!hasPapers()) return;
  if (const auto run = papers(false))
    previewRun(session(), this, *run, [this] { guard([this] { print(); }); });
}

void DocumentForm::savePdf() {
  if (!hasPapers()) return;
  if (const auto run = papers(false)) saveRun(session(), this, *run);
}
