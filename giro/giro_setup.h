#pragma once
// Which printer the slips go to, and how far the operator moves them on the paper: section "프린터설정".
#include <QString>

struct Session;

/** Corrections in the slips' own grid: rows of 1/8 inch, columns of 1/15 inch. */
struct GiroSetup {
  QString device;  ///< the printer's name; '' until the operator has chosen one
  double top = 0, left = 0;
  QString topText = {}, leftText = {};  ///< as the operator typed them

  /** Inches from the paper's edge. */
  double y(double row) const { return (row + top) / 8; }
  double x(double column) const { return (column + left) / 15; }
};

GiroSetup readGiroSetup(const Session& session);

/** The rules of frmPrtChange; top and left as typed. False after telling that no printer was chosen. */
bool saveGiroSetup(Session& session, const QString& device, const QString& top, const QString& left);
