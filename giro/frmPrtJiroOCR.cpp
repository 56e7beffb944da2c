#include "giro/frmPrtJiroOCR.h"

#include <QGroupBox>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmPrtJiroOCR::frmPrtJiroOCR(FormContext& context, QWidget* parent)
    : GiroForm(context, u"frmPrtJiroOCR"_s, {}, GiroPaper::OcrContinuous, Period::ByMonth, parent) {
  auto* const group = new QGroupBox(u"알림 글 (여덟 줄까지)"_s);
  notes_.setColumns({{.header = u"알림 글"_s, .width = 46}});
  const QStringList before = ocrNotes(session());
  notes_.setMaxRows(int(before.size()));
  for (int row = 1; row <= notes_.MaxRows(); ++row) notes_.setText(row, 1, before[row - 1]);
  txtAnnounce_ = new Spread(notes_);
  txtAnnounce_->setObjectName(u"TxtAnnounce"_s);
  txtAnnounce_->guard = [this](const std::function<void()>& work) { return guard(work); };
  txtAnnounce_->setMinimumWidth(txtAnnounce_->fullWidth());
  txtAnnounce_->setFillColumn(1);
  (new QVBoxLayout(group))->addWidget(txtAnnounce_);
  addBeside(group);
  showPage(u"continuous"_s);
  begin();
}

void frmPrtJiroOCR::showPage(const QString& page) {
  const bool a4 = page == "a4"_L1;
  const GiroPaper paper = a4 ? GiroPaper::OcrA4 : GiroPaper::OcrContinuous;
  slips().setPaper(paper);
  setWindowTitle(a4 ? u"OCR-A4"_s : u"OCR"_s);
  // A line of Hangul, two half-width characters each, has room on the paper.
  notes_.setColumns({{.header = u"알림 글"_s, .width = 46, .maxLength = noteWidth(paper) / 2}});
}

QStringList frmPrtJiroOCR::notes() const {
  QStringList lines;
  for (int row = 1; row <= notes_.MaxRows(); ++row) lines << notes_.text(row, 1);
  return lines;
}

bool frmPrtJiroOCR::addInput(GiroInput& input) {
  if (!txtAnnounce_->commitEdit()) return false;
  input.notes = notes();
  keepOcrNotes(session(), input.notes);
  return true;
}

void frmPrtJiroOCR::done(int result) {
  guard([this] { keepOcrNotes(session(), notes()); });
  GiroForm::done(result);
}
