#pragma once
// The window that statements or invoices are issued from: what is pending and what was issued, the dates it asks for,
// its printer, and the ways of what is ticked to paper, screen and file.
#include "documents/document_papers.h"
#include "documents/form_date_boxes.h"
#include "master/registers/form_context.h"

class QCheckBox;
class QTabBar;

class DocumentForm : public Form {
 protected:
  /** kind: of documents, as their printer and margins are filed. */
  DocumentForm(const char* name, const QString& kind, FormContext& context, QWidget* parent);

  /** The sections and rows, the grid, the row below it. */
  void lay(std::initializer_list<QWidget*> above, QWidget* below);
  QCheckBox* addCheck(QWidget* panel, const char* name, const QString& caption);
  QPushButton* addPreviewButton();
  QPushButton* addPdfButton();
  void askMargin() { context_.commands.openForm("FrmMargin:" + kind_); }
  void askPrinter();
  /** Tells the printer in the title. */
  void showPrinter();
  bool isPendingTab() const;

  /** Whether there is something to print; what is missing is told. */
  virtual bool hasPapers() = 0;
  /** Asks how, then the papers of what is ticked; issuing: what is pending is issued first, else nothing is. Nothing
   *  when the operator leaves. */
  virtual std::optional<DocumentRun> papers(bool issuing) = 0;
  /** What a preview's print button runs. */
  virtual void print() = 0;

  /** Issues and prints, then lists anew. What fails behind the issuing stands among the issued ones, from where it is
   *  printed again; that is told. */
  void issue(const std::function<void()>& listAnew);

  FormContext& context_;
  QTabBar* const tabs_;
  Spread* grid_ = nullptr;
  std::unique_ptr<DateRangeBoxes> dates_;

 private:
  QString printer() const { return documentPrinterOrDefault(session(), kind_); }
  void preview();
  void savePdf();

  const QString kind_;
};
