#include "master/customers/FrmPreView.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "ui/forms/FrmProgress.h"
#include "ui/paper/page_view.h"
#include "ui/paper/print_report.h"

namespace {

const QString mapTitle = "약도 출력";

}  // namespace

FrmPreView::FrmPreView(FormContext& context, QWidget* parent)
    : Form("FrmPreView", mapTitle, context.session, parent), page_(readCustomerMap(context.session)) {
  showMap();
  body()->addWidget(buttonRow(
      {addButton("BtnPrt", "인쇄", [this] { print(); }), addButton("BtnExit", "닫기", [this] { close(); })}));
  setBottomLine("F10:인쇄  Esc:닫기");
  onKey(Qt::Key_F10, [this] { print(); });
  onKey(Qt::Key_Escape, [this] { close(); });
}

void FrmPreView::showMap() {
  page_ = MapPage(readCustomerMap(session()));
  delete view_;
  auto* const view = new PageView(page_, this);
  view->setFit(PageView::Fit::Page);
  body()->insertWidget(0, view_ = view, 1);
  view_->setFocus();
}

void FrmPreView::showPage(const QString&) {
  showMap();
}

void FrmPreView::print() {
  if (!session().prompts.MsgAsk("약도 정보를 출력하시겠습니까?", mapTitle)) return;
  const auto choice = printChooser()(session(), page_.count(), this);
  if (!choice) return;
  try {
    const auto job = session().printers->open(choice->printer, mapTitle, page_.paper());
    FrmProgress bar("인쇄 중 입니다... 잠시만 기다려 주세요.", page_.count(), false, this);
    page_.draw(*job, 0);
    bar.step(page_.count());
    job->end();
  } catch (const pc::PrintError& error) {
    if (!error.text.isEmpty())
      session().prompts.MsgWarn("인쇄를 시작할 수 없습니다!\n" + error.text, mapTitle);
  }
}
