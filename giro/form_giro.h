#pragma once
// The window of every giro form: due date, period of use, whom to print, and the roads to paper, screen and PDF. A form
// adds what its own paper needs.
#include <optional>
#include <vector>

#include "giro/giro_slips.h"
#include "master/registers/form_context.h"
#include "ui/forms/dialog.h"

class BankPanel;
class DueDateBoxes;
class PeriodBoxes;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class SelectionGroup;

class GiroForm : public Dialog {
 protected:
  /** ByMonth: cmbUseMon fills TxtUse1 and TxtUse2. LastMonth: use_start and use_end begin with the month before today's. */
  enum class Period { ByMonth, LastMonth };

  GiroForm(FormContext& context, const QString& name, const QString& caption, GiroPaper paper, Period period,
           QWidget* parent);

  Session& session() const { return context_.session; }
  GiroSlips& slips() { return slips_; }
  PeriodBoxes& period() { return *period_; }
  /** A part at the right, one below the other. */
  void addBeside(QWidget* part) { beside_ << part; }
  /** Below the period of use. */
  QCheckBox* addCheck(const char* name, const QString& caption, bool on);
  void addNote(const QString& text);
  /** A further bank of the slip, the first with the registered one where there is no choice. */
  void addBank();
  /** Which base the charge after the due date has, for the two papers that go by the company's method. */
  void addAfterDue();
  /** The places of the parts and the buttons, behind all parts. Enter's way: the boxes from the due date on, then those at the right, then the print button. The focus begins at
   *  the due date. */
  void begin();

  /** What the form adds to the run beside days and banks; False when an open cell is refused. */
  virtual bool addInput(GiroInput&) { return true; }

 private:
  QWidget* buildDates(Period period);
  void placeParts();
  void buildUseMonth(QGridLayout& grid);
  void buildFoot();
  void startUseMonth();
  void fillUsePeriod();
  void showPrinter();
  void openSetUp(const QString& form);
  /** The run of what stands in the boxes; nothing after telling why there is none. */
  std::optional<DocumentRun> makeRun();
  void print();
  void preview();
  void save();

  FormContext& context_;
  GiroSlips slips_;
  QGridLayout* parts_;
  QWidget* dates_;
  DueDateBoxes* due_;
  PeriodBoxes* period_;
  QComboBox* cmbUseMon_ = nullptr;
  QCheckBox* chkThisMon_ = nullptr;
  SelectionGroup* selection_;
  QVBoxLayout* checks_;
  QList<QWidget*> beside_;
  std::vector<BankPanel*> banks_;
  QLabel* lblPrinter_;
  QPushButton* print_;
};
