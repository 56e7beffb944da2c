#pragma once
// The reading screen: one book of the meter for one month. Every finished cell is computed and saved at once; the giro
// forms print from its rows.
#include "billing/reading_commands.h"
#include "billing/reading_edit.h"
#include "billing/reading_panel.h"
#include "billing/reading_sheet.h"
#include "master/registers/form_context.h"
#include "ui/forms/form.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabBar;

class frmEva : public Form, public ReadingScreen {
 public:
  explicit frmEva(FormContext& context, QWidget* parent = nullptr);

  /** "1", "2" or "3": the book that the menu's entry means. */
  void showPage(const QString& page);
  QSize sizeHint() const override;

  const SpreadModel& readings() const override { return sheet_.grid; }
  int activeReading() const override { return grid_->activeRow(); }
  HouseStyle book() const override { return sheet_.book; }
  int month() const override { return sheet_.month; }
  QString buildingEntry() const override { return sheet_.buildingEntry(); }

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // frmEva_build.cpp
  void buildBooks();
  void buildChoice();
  void buildGrid();
  void buildButtons();
  QCheckBox* addSetting(const char* name, const QString& caption, const pc::Setting& setting,
                        std::function<void()> changed);

  // What is shown.
  void chooseBook(int index);
  void chooseMonth(int index);
  void chooseBuilding(int index);
  void fillChoices();
  void clearRows();
  void focusWork();
  void refresh();
  void reload(int row, int col);
  void showMarks();
  void goToMarked(int fromRow, int step);
  void showCustomer(int row);
  void showPanel(const ReadingPanel& panel);
  void showReadingDay();
  void leaveReadingDay();

  // The grid.
  bool cellFinished(int row, int col, const QString& typed);
  bool gridKey(int row, int col, int key, Qt::KeyboardModifiers modifiers);
  void moveOn(int row, int col);
  void showPopup(const QPoint& place);
  ReadingProgress progress(const QString& caption);

  static constexpr int firstColumn = EvaCol::UseGage;  ///< where a month's work is done
  FormContext& context_;
  ReadingSheet sheet_;
  ReadingPanel panel_;
  bool justEdited_ = false;  ///< this Enter has finished a cell, which decides where the cursor is
  QTabBar* tabs_ = nullptr;
  Spread* grid_ = nullptr;
  QComboBox *cboMon_ = nullptr, *cboBDName_ = nullptr;
  QLineEdit* txtDay_ = nullptr;
  QCheckBox *chkOrdSeq_ = nullptr, *chkDongShow_ = nullptr;
  QLabel *pnlMan_ = nullptr, *pnlUse_ = nullptr, *pnlMarks_ = nullptr;
  QPushButton* btnNextMark_ = nullptr;
  QPushButton* btnNoEva_ = nullptr;
};
