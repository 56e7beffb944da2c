#include "documents/pickers/FrmMsg.h"

#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/forms/dialog.h"

using namespace Qt::StringLiterals;

std::optional<PrintMethodChoice> FrmMsg(Session& session, const PrintMethodQuestion& question,
                                        QWidget* parent) {
  Dialog dialog("FrmMsg", question.title, session.prompts, parent);
  dialog.addText(question.prompt, "lblPrompt");
  auto* const group = new QGroupBox("프린터 용지 설정", &dialog);
  auto* const rows = new QVBoxLayout(group);
  std::vector<QRadioButton*> papers;
  for (const char* caption : {"A4 반장 설정", "A4 전체 설정", "A4 반장 설정(B형)"}) {
    papers.push_back(new QRadioButton(caption, group));
    papers.back()->setObjectName(u"optPaper(%1)"_s.arg(papers.size() - 1));
    rows->addWidget(papers.back());
  }
  papers.front()->setChecked(true);
  // Tab comes to the chosen one, from which the arrows choose another.
  for (auto* each : papers)
    if (!each->isChecked()) each->setFocusPolicy(Qt::ClickFocus);
  dialog.body()->addWidget(group);
  std::optional<PrintMethodChoice> chosen;
  const auto choose = [&](bool dot) {
    const auto on = std::find_if(papers.begin(), papers.end(), [](auto* each) { return each->isChecked(); });
    chosen = PrintMethodChoice{dot, int(on - papers.begin())};
    dialog.accept();
  };
  dialog.addDefault("btnInkjet", question.inkjet, [&] { choose(false); })->setFocus();
  dialog.addButton("btnDot", question.dot, [&] { choose(true); });
  dialog.addLeave("btnCancel", "인쇄취소(&C)");
  dialog.exec();
  return chosen;
}
