#pragma once
// The preview of a report: pages, size, and the ways out of it: printer, PDF, spreadsheet.
#include <memory>

#include "pc/report.h"
#include "ui/forms/form.h"

class PageView;

/** A window of its own; it goes when it is closed. */
class frmReport : public Form {
 public:
  /** title: the report's name, without its ending. */
  frmReport(Session& session, std::unique_ptr<pc::Report> report, const QString& title, QWidget* parent);
  ~frmReport() override;

  QSize sizeHint() const override;

 private:
  QWidget* toolRow();
  QPushButton* addTool(const char* name, const QString& caption, std::function<void()> work);
  void addKeys();
  void showPlace();
  void print();

  std::unique_ptr<pc::Report> report_;
  PageView* view_ = nullptr;
  QLabel* place_ = nullptr;
  QLabel* size_ = nullptr;
  QPushButton *first_ = nullptr, *previous_ = nullptr, *next_ = nullptr, *last_ = nullptr;
};
