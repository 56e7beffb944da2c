#pragma once
// The modal search list all pickers share: a find box, a grid, Enter or a double click takes, Esc leaves.
#include <functional>

#include "store/session.h"
#include "ui/forms/dialog.h"
#include "ui/grid/spread.h"

class QLabel;
class QLineEdit;
class QVBoxLayout;

class PickerDialog : public Dialog {
 public:
  /** The model must outlive exec(). */
  PickerDialog(const QString& name, const QString& caption, Session& session, SpreadModel& rows,
               const char* gridName, QWidget* parent = nullptr);

  /** Shows the find box before the grid; find runs on Enter in it with its text and fills the model. */
  QLineEdit* addFind(const char* name, const QString& label, std::function<void(const QString& text)> find);
  /** Whether a line may be taken; without it any line of the data. */
  std::function<bool(int row)> mayTake;
  /** Further parts between the find box and the grid. */
  QVBoxLayout* head() const { return head_; }
  void showHelp(const QString& text);
  /** As wide as the columns and so many lines of text high, where no size is remembered. */
  void showLines(int lines);
  Spread* grid() const { return grid_; }
  QLineEdit* findBox() const { return find_; }

  /** Runs the dialog: the chosen line, or 0 when the operator left. */
  int pick();
  /** After a search: the focus goes to the list when it holds lines, else back to the find box. */
  void showFound();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void take(int row);

  Session& session_;
  QVBoxLayout* head_;
  QLineEdit* find_ = nullptr;
  std::function<void(const QString&)> search_;
  Spread* grid_;
  QLabel* help_;
  int chosen_ = 0;
};
