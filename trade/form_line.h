#pragma once
// What the screens of sale and purchase share: grids of lines under the panel of the current row's partner, the day of
// new lines, and the keys that work on a line. Every finished cell is posted.
#include "master/registers/form_context.h"
#include "trade/line_entry.h"
#include "ui/forms/form.h"

class DateBox;
class Fields;
class LastLines;
class QLabel;
class QPushButton;

class LineForm : public Form {
 public:
  QSize sizeHint() const override;

 protected:
  /** Book and entry are members of the derived form. */
  LineForm(const QString& name, const QString& caption, FormContext& context, LineBook& book,
           LineEntry& entry, QWidget* parent);

  /** A grid of lines under its keys and rules. */
  Spread* addLines(const char* name, SpreadModel& model);
  /** Above the grids: the day and what the screen shows of a partner, in so many columns; what is owed under its two
   *  captions; his last lines; the buttons. */
  void addHead(int columns, const std::function<void(Fields&)>& partner, const QString& gasOwed,
               const QString& utilOwed, const QList<QPushButton*>& buttons);
  /** A value's label that does not grow and shrink with its rows. */
  static void keepRoom(QLabel* label, const QString& widest);
  void showOwed(const QString& gas, const QString& util);

  /** The grid of the current sheet. */
  virtual Spread* grid() const = 0;
  /** The panel anew for the row of the cursor. */
  virtual void showPartner(int row) = 0;
  /** Esc: the sheet as it opens. */
  virtual void showAll() = 0;
  /** A day was typed: what the screen shows of it. */
  virtual void dayTaken() = 0;
  /** What else an empty partner cell is opened with; True when it took the key. */
  virtual bool openedEmpty(int) { return false; }
  /** Before the cursor goes where a step says. */
  virtual void sheetShown() {}

  void follow(const LineStep& step, bool takeFocus = true);
  void toBottomRow();
  void showPanel();
  void showDate();
  /** Whether a day is being typed, other windows in front included. */
  bool isDateOpen() const { return dateOpen_; }
  /** A day that is being typed is taken as it stands; the sheet is still to be read for it. False: there was none. */
  bool takeDate();

  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

  FormContext& context_;
  LastLines* lastLines_;

 private:
  void addDate(Fields& fields);
  QWidget* owedPanel(const QString& gasCaption, const QString& utilCaption);
  QLabel* bigFigure(const char* name, const QString& caption, QWidget* panel);
  bool gridKey(int row, int col, int key, Qt::KeyboardModifiers modifiers);
  bool cellFinished(Spread* of, int row, int col, const QString& typed);
  bool mayLeave(int row, int toRow);
  void removeRow(int row);
  void leaveDate();

  LineBook& book_;
  LineEntry& entry_;
  DateBox* date_ = nullptr;
  bool dateOpen_ = false;  ///< from its focus until its day is taken
  QLabel *gasOwed_ = nullptr, *utilOwed_ = nullptr;
};
