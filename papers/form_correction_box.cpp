#include "papers/form_correction_box.h"

#include <QLineEdit>
#include <QRegularExpressionValidator>

using namespace Qt::StringLiterals;

QLineEdit* correctionBox(const QString& name, const QString& text) {
  auto* made = new QLineEdit(text);
  made->setObjectName(name);
  made->setAlignment(Qt::AlignRight);
  made->setFixedWidth(8 * made->fontMetrics().horizontalAdvance(u'0') + 16);
  made->setValidator(
      new QRegularExpressionValidator(QRegularExpression(u"-?\\d{0,3}(\\.\\d{0,2})?"_s), made));
  return made;
}
