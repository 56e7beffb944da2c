#include "papers/FrmPrintSection.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "master/registers/form_context.h"

using namespace Qt::StringLiterals;

FrmPrintSection::FrmPrintSection(FormContext& context, QWidget* parent)
    : Dialog(u"FrmPrintSection"_s, u"상품 인쇄 구분"_s, context.session.prompts, parent), context_(context) {
  prompt_ = addText({}, "lblPrompt");
  prompt_->hide();
  const auto button = [&](const char* name, const QString& caption, Choice choice) {
    QPushButton* const made = addButton(name, caption, [this, choice] { choose(choice); });
    made->setMinimumWidth(30 * fontMetrics().horizontalAdvance(u'0'));
    body()->addWidget(made);
    return made;
  };
  first_ = button("btnPrint1", u"대분류 구분에 의한 인쇄(&1)"_s, ByCategory);
  second_ = button("btnPrint2", u"상품 리스트 인쇄(&2)"_s, ProductList);
  button("btnCancel", u"취소(&C)"_s, Cancelled);
}

void FrmPrintSection::showPage(const QString& page) {
  if (page != "tax"_L1) return;
  setWindowTitle(u"세금계산서 집계"_s);
  prompt_->setText(u"세금계산서 집계할 방법을 선택하세요!"_s);
  prompt_->show();
  first_->setText(u"전표집계"_s);
  second_->setText(u"새로입력"_s);
  opens_ = u"FrmTax:"_s;
}

void FrmPrintSection::choose(Choice choice) {
  done(choice);
  if (choice != Cancelled && !opens_.isEmpty())
    context_.commands.openForm(opens_ + (choice == ByCategory ? u"0"_s : u"1"_s));
}
