#pragma once
// Printer and margins of each kind of document, as FrmSetPrinter and FrmMargin keep them.
#include <QString>
#include <QStringList>

struct Session;

/** "거래명세표", "세금계산서", ... in the order of the lists. */
const QStringList& documentKinds();

/** The printer chosen for a kind; '' when none was. */
QString documentPrinter(const Session& session, const QString& kind);
void setDocumentPrinter(Session& session, const QString& kind, const QString& printer);

/** In the document's own print rows and columns, as typed. */
struct DocumentMargins {
  QString top, left;
};
DocumentMargins documentMargins(const Session& session, const QString& kind);
void setDocumentMargins(Session& session, const QString& kind, const DocumentMargins& margins);
