#pragma once
// The short road of a new shop: five steps, each opens the form that does it and is ticked once the books hold one.
#include <functional>

#include "app/first_steps.h"
#include "master/registers/form_context.h"
#include "ui/forms/form.h"

class QGridLayout;
class QLabel;
class QPushButton;

class FrmFirstSteps : public Form {
 public:
  explicit FrmFirstSteps(FormContext& context, QWidget* parent = nullptr);
  QSize sizeHint() const override;

  /** Which file of the PC holds the postcodes; '' when the operator leaves. A test puts its own in its place. */
  std::function<QString()> askFile;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Row {
    QLabel *sign, *count;
    QPushButton* open;
  };
  void addStep(QGridLayout& grid, const FirstStep& step);
  void perform(int at);
  void fetchPostCodes();
  /** Ticks and counts as the books stand, the focus on the first step that is open. */
  void refresh();

  FormContext& context_;
  FirstSteps rules_;
  QList<Row> rows_;
};
