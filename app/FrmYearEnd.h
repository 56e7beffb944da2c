#pragma once
// A page of the year's end to read and decide on: a head, what to mind, the lines, two buttons.
#include "app/year_end_lines.h"
#include "ui/forms/dialog.h"

class Spread;

class FrmYearEnd : public Dialog {
 public:
  /** yes: caption of the button that accepts, '' for none. Where there is something to mind Enter leaves. */
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
