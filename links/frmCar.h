#pragma once
// "차량 정비 등록": the vehicles' repair log, entered at the bottom or looked through by days and vehicle.
#include "links/fleet_log.h"
#include "master/registers/form_context.h"
#include "ui/forms/form.h"

class DateBox;
class QRadioButton;

class frmCar : public Form {
 public:
  explicit frmCar(FormContext& context, QWidget* parent = nullptr);

 protected:
  bool mayClose() override;

 private:
  QWidget* buildHead();
  void showState();
  void showHint();
  void toNewLine();
  void ask();
  void enterAll();
  bool cellFinished(int row, int col, const QString& typed);
  bool key(int row, int col, int key);
  void pickFor(int row, int col);
  void enterPressed(int row, int col);
  bool mayLeave(int row, int toRow);
  void storeLine(int row);

  FormContext& context_;
  FleetLog log_;
  QRadioButton *entering_, *asking_;
  DateBox *from_, *to_;
  QLineEdit* carNo_;
  QLabel* pnl_;
  Spread* grid_;
};
