#pragma once
// "검침현황 조회": a book's readings or collections over a period, with what was open before and is open now.
#include "billing/eva_total.h"
#include "master/registers/form_context.h"
#include "ui/forms/form.h"

class DateBox;
class QCheckBox;
class QComboBox;
class QStackedWidget;
class QTabBar;

class frmEvaTotal : public Form {
 public:
  explicit frmEvaTotal(FormContext& context, QWidget* parent = nullptr);

  /** The book, "1" to "3" as the session's CheckKind. */
  void showPage(const QString& kind);

 private:
  QWidget* questionRow();
  QWidget* periodBox(QWidget* parent);
  QWidget* sumRow();
  MeterBook book() const;
  void turnToBook();
  void turnToPeriod();
  void refresh();
  void showSums();
  EvaTotalAsk ask() const;

  EvaTotal total_;
  Spread* grid_ = nullptr;
  QTabBar* tabs_ = nullptr;
  QWidget* buildingBoxes_ = nullptr;
  QComboBox *building_ = nullptr, *fromMonth_ = nullptr, *toMonth_ = nullptr;
  QLineEdit *dong_ = nullptr, *ho_ = nullptr;
  QStackedWidget* period_ = nullptr;
  DateBox *fromDay_ = nullptr, *toDay_ = nullptr;
  QCheckBox* byCollection_ = nullptr;
  QLabel *pnlPeriod_ = nullptr, *pnlPrev_ = nullptr, *pnlIncome_ = nullptr, *pnlRemain_ = nullptr;
};
