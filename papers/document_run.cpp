#include "papers/document_run.h"

#include "store/session.h"

using namespace Qt::StringLiterals;

OpenJob onPrinter(const Session& session, const QString& printer) {
  if (!session.printers || !session.printers->names().contains(printer))
    throw pc::PrintError{u"설정된 프린터를 찾을 수 없습니다: "_s + printer};
  return [&session, printer](const QString& title, const pc::PaperSize& paper) {
    return session.printers->open(printer, title, paper);
  };
}

int runDocuments(const OpenJob& open, const DocumentRun& run, const TellDocument& tell) {
  if (run.documents <= 0) return 0;
  const auto job = open(run.title, run.paper);
  pc::PaperPlaces places(*job, run.placesOnSheet);
  int done = 0;
  while (done < run.documents) {
    run.put(*job, places, done);
    ++done;
    if (tell && !tell(done, run.documents)) break;
  }
  job->end();
  return done;
}

int runDocumentsApart(const OpenJob& open, const DocumentRun& run, const TellDocument& tell) {
  int done = 0;
  while (done < run.documents) {
    const auto job = open(run.name(done), run.paper);
    pc::PaperPlaces places(*job, run.placesOnSheet);
    run.put(*job, places, done);
    job->end();
    ++done;
    if (tell && !tell(done, run.documents)) break;
  }
  return done;
}

QString documentName(const QString& day, const QString& customer, const QString& kind) {
  return (day + u' ' + customer.simplified() + u' ' + kind).simplified();
}
