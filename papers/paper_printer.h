#pragma once
// Which printer a paper goes to and how far the operator moves it: the giro slips and labels in section "프린터설정", each
// kind of document in a section of its own.
#include <QString>
#include <QStringList>

#include "pc/paper_form.h"

struct Session;

/** Of the slips and labels; the correction counts in rows of 1/8 inch and columns of 1/15 inch. */
struct SlipPrinter {
  QString device;                       ///< the printer's name; '' until the operator has chosen one
  pc::PaperShift shift = {};            ///< down and to the right
  QString topText = {}, leftText = {};  ///< as the operator typed them
};
SlipPrinter slipPrinter(const Session& session);
/** The rules of frmPrtChange; top and left as typed. False after telling that no printer was chosen. */
bool saveSlipPrinter(Session& session, const QString& device, const QString& top, const QString& left);

/** "거래명세표", "세금계산서", ... in the order of the lists. */
const QStringList& documentKinds();

/** The printer chosen for a kind; '' when none was. */
QString documentPrinter(const Session& session, const QString& kind);
/** The same, else the PC's own; '' when there is none at all. */
QString documentPrinterOrDefault(const Session& session, const QString& kind);
void setDocumentPrinter(Session& session, const QString& kind, const QString& printer);

/** In the document's own print rows and columns, as typed. */
struct DocumentMargins {
  QString top, left;
  pc::PaperShift shift() const;
};
DocumentMargins documentMargins(const Session& session, const QString& kind);
void setDocumentMargins(Session& session, const QString& kind, const DocumentMargins& margins);
