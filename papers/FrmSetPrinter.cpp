#include "papers/FrmSetPrinter.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>

#include "papers/paper_printer.h"
#include "pc/print_job.h"
#include "ui/forms/fields.h"

using namespace Qt::StringLiterals;

FrmSetPrinter::FrmSetPrinter(FormContext& context, QWidget* parent)
    : KindDialog(context, u"FrmSetPrinter"_s, u"프린트 드라이버 설정"_s, parent) {
  const pc::Printers* printers = session().printers;
  auto* const standard = shownValue(
      "Spn기본프린터", printers && !printers->defaultName().isEmpty() ? printers->defaultName() : u"없음"_s);
  lblChosen_ = shownValue("LblChosen");
  Fields boxes(panel(), 1);
  boxes.add(u"기본프린터"_s, standard);
  boxes.add(u"현재 설정"_s, lblChosen_);
  cboPrinter_ = boxes.combo("CboPrinter", u"설치된 프린터"_s, printers ? printers->names() : QStringList());
  cboPrinter_->setMinimumWidth(24 * fontMetrics().horizontalAdvance(u'0'));
  addButton("Command1", u"프린터선택(&S)"_s, [this] { store(); });
  addLeave("BtnExit", u"닫기(&X)"_s);
  showKind();
  list()->setFocus();
}

void FrmSetPrinter::showKind() {
  const QString chosen = documentPrinter(session(), kind());
  lblChosen_->setText(chosen.isEmpty() ? u"없음 (기본프린터로 출력)"_s : chosen);
  const pc::Printers* printers = session().printers;
  // A printer that is gone is none of those in the box: nothing is chosen, not the one of another kind.
  int place = cboPrinter_->findText(chosen.isEmpty() && printers ? printers->defaultName() : chosen);
  if (place < 0 && chosen.isEmpty()) place = 0;
  cboPrinter_->setCurrentIndex(place);
}

void FrmSetPrinter::store() {
  if (cboPrinter_->currentIndex() < 0) {
    session().prompts.MsgWarn(u"프린터를 선택해 주십시오"_s, windowTitle());
    cboPrinter_->setFocus();
    return;
  }
  setDocumentPrinter(session(), kind(), cboPrinter_->currentText());
  showKind();
}
