#pragma once
// A window that shows pages: turning, size, keys. What else can be done with them stands behind, at the right.
#include <memory>

#include "pc/pages.h"
#include "ui/forms/form.h"

class PageView;
class QHBoxLayout;

/** A window of its own; it goes when it is closed. */
class PagesWindow : public Form {
 public:
  PagesWindow(const QString& name, const QString& title, Session& session,
              std::shared_ptr<const pc::Pages> pages, QWidget* parent);
  ~PagesWindow() override;

  QSize sizeHint() const override;
  const pc::Pages& pages() const { return *pages_; }

 protected:
  void addTool(const char* name, const QString& caption, std::function<void()> work);
  /** BtnPrt, F10 and Ctrl+P. */
  void addPrint(const std::function<void()>& print);

 private:
  QWidget* toolRow();
  QPushButton* tool(const char* name, const QString& caption, std::function<void()> work);
  void addKeys();
  void showPlace();

  const std::shared_ptr<const pc::Pages> pages_;
  PageView* view_ = nullptr;
  QHBoxLayout* tools_ = nullptr;
  QLabel* place_ = nullptr;
  QLabel* size_ = nullptr;
  QPushButton *first_ = nullptr, *previous_ = nullptr, *next_ = nullptr, *last_ = nullptr;
};
