#pragma once
// The sale screen: three sheets of lines under the panel of the current row's customer. Every finished cell is posted.
#include <array>

#include "master/customers/map_handshake.h"
#include "master/registers/form_context.h"
#include "trade/sale_entry.h"
#include "ui/forms/form.h"

class DateBox;
class LastLines;
class QLabel;
class QPushButton;
class QTabWidget;
class QTimer;

class frmSale : public Form, public CallerTarget {
 public:
  explicit frmSale(FormContext& context, QWidget* parent = nullptr);

  /** "gas" or "material": the sheet that the menu's entry means. */
  void showPage(const QString& page);
  bool TakeCallerNumber(const QString& number) override;

  QSize sizeHint() const override;

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void buildPanel();
  QLabel* bigFigure(const char* name, const QString& caption, QWidget* panel);
  void buildSheet(SaleSheet sheet, const QString& caption);
  void buildKeys();

  Spread* grid() { return grids_[size_t(posting_.sheet())]; }
  bool gridKey(int row, int col, int key, Qt::KeyboardModifiers modifiers);
  bool canTakeCall();
  bool fetchCall(int row);
  void reveal();
  bool cellFinished(SaleSheet sheet, int row, int col, const QString& typed);
  bool mayLeave(int row, int toRow);
  void follow(const SaleStep& step, bool takeFocus = true);
  void fill(SaleSheet sheet);
  void toBottomRow();
  void sheetChosen(int index);
  void leaveDate();
  void showPanel();
  void removeRow(int row);
  void showToday();
  void showLedger();
  void print();
  void startMap();
  void lookAtMap();

  FormContext& context_;
  SalePosting posting_;
  SaleEntry entry_;
  MapHandshake map_;
  QTabWidget* tabs_ = nullptr;
  std::array<Spread*, 3> grids_{};
  DateBox* date_ = nullptr;
  bool dateOpen_ = false;  ///< from its focus until its day is taken, other windows in front included
  QLabel *address_ = nullptr, *tel_ = nullptr, *gasTrust_ = nullptr, *utilTrust_ = nullptr,
         *endDay_ = nullptr, *memo_ = nullptr, *mapState_ = nullptr;
  LastLines* lastLines_ = nullptr;
  QPushButton* mapButton_ = nullptr;
  QTimer* mapTimer_ = nullptr;
};
