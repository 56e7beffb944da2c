#pragma once
// A form around a ticked list: Space and clicks tick, a box ticks all, the counts follow.
#include "links/ticked_list.h"
#include "ui/forms/form.h"

class QCheckBox;

class TickedForm : public Form {
 protected:
  using Form::Form;

  /** Into the body, before the list is filled. help: the line while the hand is in it. */
  Spread* addTickedGrid(const char* name, TickedList& rules, int fillColumn, const QString& help);
  /** "전체 선택" as the form writes it; into a layout of the form's own. */
  QCheckBox* addTickAll(const QString& caption, QWidget* parent);
  QPushButton* addExit(const char* name);

  /** Reads the list anew under the guard; the hand stands on its first line then. */
  void fill(const std::function<void()>& read);
  virtual void showCounts() = 0;

 private:
  TickedList* ticks_ = nullptr;
  Spread* grid_ = nullptr;
  QCheckBox* chkAll_ = nullptr;
};
