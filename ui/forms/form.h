#pragma once
// What every form shares: one guard around its handlers, keys that first close the open cell, Enter from box to box,
// keys that turn its pages, the help line, and its memory of place and grids.
#include <QList>
#include <QMap>
#include <QWidget>

#include <functional>

#include "store/session.h"
#include "ui/forms/enter_order.h"
#include "ui/grid/spread.h"

class QGroupBox;
class QLabel;
class QPushButton;
class QTabBar;
class QVBoxLayout;

/** A child window named after itself. Its rules are members of the derived class and go before the controls do. */
class Form : public QWidget {
  Q_OBJECT

 public:
  Form(const QString& name, const QString& caption, Session& session, QWidget* parent = nullptr);

  Session& session() const { return session_; }

  // --- handlers ---------------------------------------------------------------------------------------------
  /** Runs a handler; an error of the store ends in a box and gives False. Nothing passes into the event loop. */
  bool guard(const std::function<void()>& work);
  /** The same with the box that names the procedure: "Error 3061 (...) in procedure X of Form Y". */
  bool trap(const QString& procedure, const std::function<void()>& work);
  /** Accepts every open cell. False: one was refused, or a box stands over the form; the command that asked must not
   *  run. */
  bool commitEditors();
  /** What a button or key runs: the open cells first, then the work under the guard. */
  bool command(const std::function<void()>& work);
  /** A key of the whole form, from whatever control does not use it itself. */
  void onKey(int key, std::function<void()> work);
  /** The same for a key with modifiers. */
  void onKey(Qt::KeyboardModifiers modifiers, int key, std::function<void()> work);

  /** What runs once the operator has gone from a box to another part of the program: not for a message over it, a
   *  menu, or the form's end. */
  void whenLeft(QWidget* box, std::function<void()> work);

  // --- the help line ----------------------------------------------------------------------------------------
  /** What PnlHelp shows while the control has the focus. */
  void setHelp(QWidget* control, const QString& text);
  void showHelp(const QString& text);
  /** The line of keys at the right of the help. */
  void setBottomLine(const QString& text);

  // --- the focus --------------------------------------------------------------------------------------------
  /** Enter in one of these goes to the next; the last one's Enter runs atEnd. */
  void enterOrder(const QList<QWidget*>& controls, std::function<void()> atEnd = {});
  static void focus(QWidget* control) { EnterOrder::focus(control); }
  /** To the grid in sight, where the hand works; nothing when it is empty or there is none. */
  void focusGrid();

  // --- building ---------------------------------------------------------------------------------------------
  /** Where the derived form puts its parts, above the help line. */
  QVBoxLayout* body() const { return body_; }
  /** A grid under the guard, with its memory and context menu. */
  Spread* addSpread(const char* name, SpreadModel& model, QWidget* parent = nullptr);
  /** A button that stands under the hand after its work gives the focus back to the grid. */
  QPushButton* addButton(const char* name, const QString& caption, std::function<void()> work);
  QGroupBox* addGroup(const QString& title);  ///< not yet in a layout
  /** What the parts ask for, but wide enough for every column of the grids and high enough for a page of lines. */
  QSize sizeHint() const override;
  /** Buttons in a row at the right; a null one is a gap. */
  QWidget* buttonRow(const QList<QPushButton*>& buttons);

  /** Forgets place, size and the grids' measures: all stand as they are designed. */
  void forgetMemory();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  /** Called before the form closes; False keeps it open. */
  virtual bool mayClose() { return true; }

 private:
  bool enterFrom(QWidget* control);
  void watchPages(QTabBar* pages);
  void turnPage(int step);

  Session& session_;
  QVBoxLayout* body_;
  QLabel* help_;
  QLabel* bottom_;
  QMap<int, std::function<void()>> keys_;
  QHash<QObject*, QString> helps_;
  QHash<QObject*, std::function<void()>> leaves_;
  EnterOrder order_;
  std::function<void()> atEnd_;
  QTabBar* pages_ = nullptr;
  QRect design_;  ///< place and size before the memory
  bool shown_ = false;
};

/** The busy pointer for the length of a block. */
class BusyPointer {
 public:
  BusyPointer();
  ~BusyPointer();
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;
};
