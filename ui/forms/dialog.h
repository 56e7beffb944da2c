#pragma once
// What every dialog shares: parts above a row of buttons, one guard around its handlers, Enter and Esc, its place.
#include <QDialog>
#include <QList>

#include <functional>

#include "ui/forms/enter_order.h"
#include "ui/model/prompts.h"

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;
namespace pc {
class Paths;
}

/** A window named after itself that keeps the keyboard until it is left. As large as its parts ask for, unless it
 *  allowResize()s. */
class Dialog : public QDialog {
 public:
  Dialog(const QString& name, const QString& caption, Prompts& prompts, QWidget* parent = nullptr);

  Prompts& prompts() const { return prompts_; }

  // --- handlers ---------------------------------------------------------------------------------------------
  /** Runs a handler; an error ends in a box and gives False. Nothing passes into the event loop. */
  bool guard(const std::function<void()>& work);
  /** A control's signal runs work under the guard. */
  template <class Sender, class Signal>
  void on(Sender* sender, Signal signal, std::function<void()> work) {
    connect(sender, signal, this, [this, work = std::move(work)] { guard(work); });
  }

  // --- the focus --------------------------------------------------------------------------------------------
  /** Enter in one of these goes to the next; behind the last it presses the default button, if there is one. */
  void enterOrder(const QList<QWidget*>& controls);

  // --- building ---------------------------------------------------------------------------------------------
  /** Where the parts stand, above the buttons. */
  QVBoxLayout* body() const { return body_; }
  /** A part for Fields. */
  QWidget* addPanel();
  /** A line of text; what it holds is never read as markup. */
  QLabel* addText(const QString& text, const char* name = "");
  /** A figure or name that is only shown. */
  static QLabel* shownValue(const char* name, const QString& text = {});
  /** At the right of the bottom row, one after another, unless it is put into another layout. Without work it does
   *  nothing by itself. */
  QPushButton* addButton(const char* name, const QString& caption, std::function<void()> work);
  /** The button that Enter presses from every control that does not use Enter itself. */
  QPushButton* addDefault(const char* name, const QString& caption, std::function<void()> work);
  /** The button that leaves as Esc does. */
  QPushButton* addLeave(const char* name, const QString& caption);
  /** The bottom row, for parts before its buttons. */
  QHBoxLayout* foot() const { return foot_; }
  /** The operator may change the size; it begins with this one, or what the parts ask for. */
  void allowResize(const QSize& design = {});
  /** Place and size last from one run to the next. */
  void rememberPlace(const pc::Paths& paths) { paths_ = &paths; }

  /** Esc, the leaving button and the window's cross. */
  void reject() override;
  void done(int result) override;

 protected:
  /** Asked before the dialog is left without having done its work; False keeps it. */
  virtual bool mayLeave() { return true; }
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  Prompts& prompts_;
  const pc::Paths* paths_ = nullptr;
  QVBoxLayout* body_;
  QHBoxLayout* foot_;
  QPushButton* default_ = nullptr;
  EnterOrder order_;
};
