#pragma once
// The way of ticked lines to paper that statements and invoices go alike.
#include "documents/document_layout.h"
#include "documents/tick_column.h"
#include "master/registers/pickers.h"
#include "papers/document_run.h"
#include "papers/paper_printer.h"

/** The layout of FrmMsg's choice. */
DocumentLayout layoutOf(const PrintMethodChoice& choice);
/** Whether there is a company and something ticked; what is missing is told. kind: the box's title. */
bool hasDocuments(Session& session, const TickColumn& ticks, const QString& kind);
/** The operator's correction for a kind of document. */
pc::PaperShift documentShift(const Session& session, const QString& kind, DocumentLayout layout);

/** A run over documents, each put by the paper; name: what a document's own file is called. */
template <class Paper, class Document, class Name>
DocumentRun documentRun(const QString& kind, Paper paper, std::vector<Document> documents, Name name) {
  const auto on = std::make_shared<const Paper>(std::move(paper));
  const auto all = std::make_shared<const std::vector<Document>>(std::move(documents));
  return {.title = kind,
          .paper = on->form().paper,
          .placesOnSheet = on->form().copies,
          .documents = int(all->size()),
          .put = [on, all](pc::PrintJob& job, pc::PaperPlaces& places,
                           int document) { on->put(job, places, (*all)[size_t(document)]); },
          .name = [all, name](int document) { return name((*all)[size_t(document)]); }};
}
