#include "app/frmNextYear.h"

#include <QLabel>
#include <QProgressBar>

using namespace Qt::StringLiterals;

frmNextYear::frmNextYear(const QString& caption, QWidget* parent) : FrmProgress(caption, 0, false, parent) {
  setObjectName(u"frmNextYear"_s);
  note()->setObjectName(u"SSPanel1"_s);
  bar()->setObjectName(u"BarPcnt"_s);
}

void frmNextYear::tell(const QString& text, int done, int total) {
  if (note()->text() != text || bar()->maximum() != total) begin(text, total);
  step(done);
}
