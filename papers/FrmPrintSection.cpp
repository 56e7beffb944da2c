#include "papers/FrmPrintSection.h"

#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

FrmPrintSection::FrmPrintSection(FormContext&, QWidget* parent) : QDialog(parent) {
  setObjectName(u"FrmPrintSection"_s);
  setWindowTitle(u"상품 인쇄 구분"_s);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(24, 18, 24, 18);
  rows->setSpacing(8);
  const auto button = [&](const QString& name, const QString& caption, Choice choice) {
    auto* made = new QPushButton(caption);
    made->setObjectName(name);
    made->setMinimumWidth(30 * fontMetrics().horizontalAdvance(u'0'));
    connect(made, &QPushButton::clicked, this, [this, choice] { done(choice); });
    rows->addWidget(made);
  };
  button(u"btnPrint1"_s, u"대분류 구분에 의한 인쇄(&1)"_s, ByCategory);
  button(u"btnPrint2"_s, u"상품 리스트 인쇄(&2)"_s, ProductList);
  button(u"btnCancel"_s, u"취소(&C)"_s, Cancelled);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}
