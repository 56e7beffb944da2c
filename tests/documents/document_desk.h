#pragma once
// What the tests of statements and invoices share: books of March, recording printers, what stands where.
#include "papers/paper_printer.h"
#include "tests/documents/places.h"
#include "tests/recorded_print.h"
#include "tests/support.h"

namespace tests {

struct DocumentDesk : testing::Test {
  DocumentDesk() {
    pc.openBooks(QDate(2026, 3, 31));
    session.printers = &printers;
  }
  /** The first field of a query's first row; "-" without one. */
  QString first(const jet::Database& db, const QString& sql) {
    const auto rows = db.OpenRecordset(sql);
    return rows.atEnd() ? "-" : rows[0].toText();
  }
  template <typename Desk>
  QString cells(Desk& desk, int line, std::initializer_list<int> columns) {
    QStringList found;
    for (const int each : columns) found << desk.grid().text(line, each);
    return found.join('|');
  }
  const RecordedJob& print(const DocumentRun& run) {
    runDocuments(onPrinter(session, printers.defaultName()), run);
    return *printers.jobs.back();
  }
  /** The text at a row and column of a copy. */
  QString at(const RecordedJob& job, int page, double y, double x) {
    const auto* item = job.at(page, x * column, y * row);
    return item ? item->text : "-";
  }

  TestPc pc;
  Session& session = pc.session;
  RecordedPrinters printers;
};

}  // namespace tests
