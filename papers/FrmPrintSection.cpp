#include "papers/FrmPrintSection.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "master/registers/form_context.h"

using namespace Qt::StringLiterals;

FrmPrintSection::FrmPrintSection(FormContext& context, QWidget* parent)
    : Dialog(u"FrmPrintSection"_s, u"상품 인쇄 구분"_s, context.session.prompts, parent) {
  const auto button = [&](const char* name, const QString& caption, Choice choice) {
    QPushButton* const made = addButton(name, caption, [this, choice] { done(choice); });
    made->setMinimumWidth(30 * fontMetrics().horizontalAdvance(u'0'));
    body()->addWidget(made);
  };
  button("btnPrint1", u"대분류 구분에 의한 인쇄(&1)"_s, ByCategory);
  button("btnPrint2", u"상품 리스트 인쇄(&2)"_s, ProductList);
  button("btnCancel", u"취소(&C)"_s, Cancelled);
}
