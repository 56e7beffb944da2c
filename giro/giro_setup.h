#pragma once
// Which printer the slips go to, and how far the operator moves them on the paper: section "프린터설정".
#include <QString>

#include "pc/paper_form.h"

struct Session;

/** Corrections in the slips' own grid: rows of 1/8 inch, columns of 1/15 inch. */
struct GiroSetup {
  QString device;  ///< the printer's name; '' until the operator has chosen one
  double top = 0, left = 0;
  QString topText = {}, leftText = {};  ///< as the operator typed them

  pc::PaperShift shift() const { return {top, left}; }
};

GiroSetup readGiroSetup(const Session& session);

/** The rules of frmPrtChange; top and left as typed. False after telling that no printer was chosen. */
bool saveGiroSetup(Session& session, const QString& device, const QString& top, const QString& left);
