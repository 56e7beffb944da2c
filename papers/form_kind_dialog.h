#pragma once
// The set-up windows of printed documents: the list of their kinds at the left, what is set for the chosen one beside it.
#include "master/registers/form_context.h"
#include "ui/forms/dialog.h"

class QListWidget;

class KindDialog : public Dialog {
 public:
  /** Puts the list on a kind of document. */
  void showPage(const QString& kind);

 protected:
  KindDialog(FormContext& context, const QString& name, const QString& caption, QWidget* parent);

  Session& session() const { return session_; }
  QString kind() const;
  QWidget* panel() const { return panel_; }  ///< where the boxes stand
  QListWidget* list() const { return list1_; }
  /** Shows what is set for the chosen kind: at every choice, and once by the derived window itself. */
  virtual void showKind() = 0;

 private:
  Session& session_;
  QListWidget* list1_;
  QWidget* panel_;
};
