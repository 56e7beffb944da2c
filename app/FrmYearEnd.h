#pragma once
// A page of the year's end to read and decide on: a head, what to mind, the lines, two buttons.
#include <QDialog>

#include "app/year_end_lines.h"

class Spread;

class FrmYearEnd : public QDialog {
 public:
  /** yes: caption of the button that accepts, '' for none. Where there is something to mind the focus stands on no. */
  FrmYearEnd(const QString& caption, Session& session, YearEndPage& page, const QString& yes,
             const QString& no, QWidget* parent = nullptr);

 protected:
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void print();

  Session& session_;
  YearEndPage& page_;
  Spread* lines_;
};
