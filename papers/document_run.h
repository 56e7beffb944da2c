#pragma once
// One run over papers for customers: what is ticked, one behind the other, on a printer, on the screen or into files by
// the same calls. A rule makes the run, whoever asked chooses where it goes.
#include <functional>
#include <memory>

#include "pc/paper_form.h"
#include "pc/print_job.h"

struct Session;

struct DocumentRun {
  QString title;  ///< of the job
  pc::PaperSize paper;
  int placesOnSheet = 1;  ///< papers or copies that share a sheet
  int documents = 0;
  /** Puts one document (from 0): takes its places of the sheets, as many as it needs. */
  std::function<void(pc::PrintJob& job, pc::PaperPlaces& places, int document)> put;
  /** A document's own name, by date and customer, for a file of its own. */
  std::function<QString(int document)> name;
};

/** Told after every document; False stops the run, what was put so far goes out. */
using TellDocument = std::function<bool(int done, int of)>;

/** Makes the job of a run, of a document of it when each goes alone. */
using OpenJob =
    std::function<std::unique_ptr<pc::PrintJob>(const QString& title, const pc::PaperSize& paper)>;
/** Throws PrintError when there is no such printer. Other jobs of the PC keep their printer: a job names its own. */
OpenJob onPrinter(const Session& session, const QString& printer);

/** Documents that went out, all in one job. Throws PrintError when the printer refuses: nothing of the run goes out
 *  then. A run of no documents opens no job. */
int runDocuments(const OpenJob& open, const DocumentRun& run, const TellDocument& tell = {});
/** The same, each document a job of its own under its own name. On a refusal the documents before it stand. */
int runDocumentsApart(const OpenJob& open, const DocumentRun& run, const TellDocument& tell = {});

/** "2026-03-31 달빛식당 지로": what a document's file is called. */
QString documentName(const QString& day, const QString& customer, const QString& kind);
