#pragma once
// The set-up windows that keep something for each kind of document: the kinds at the left, its boxes at the right.
#include "papers/paper_printer.h"
#include "ui/forms/dialog.h"

struct FormContext;
class QListWidget;

class DocumentKindDialog : public Dialog {
 public:
  /** Puts the list on a kind of document. */
  void showPage(const QString& kind);

 protected:
  DocumentKindDialog(const QString& name, const QString& caption, FormContext& context, QWidget* parent);
  /** The chosen kind is shown now and whenever another is chosen; for the end of the derived constructor. */
  void start();
  virtual void showKind() = 0;

  Session& session() const { return session_; }
  QWidget* panel() const { return panel_; }  ///< for the boxes of a kind
  QListWidget* list() const { return list_; }
  QString kind() const;

 private:
  Session& session_;
  QListWidget* list_;
  QWidget* panel_;
};
