#pragma once
// The Spread grid on the screen: shows a SpreadModel, moves the current cell, edits it. What a finished cell or a key
// means is told by the form through the hooks; the grid itself writes nothing but an unhooked cell.
//
// One line box lives on the current cell and keeps the keyboard while the cell rests and while it is edited. So the
// focus does not change when an edit begins, and a syllable being composed by an input method is never torn.
#include <QAbstractScrollArea>
#include <QPointer>

#include <functional>
#include <vector>

#include "ui/model/spread_model.h"

class QLineEdit;
class QListWidget;

/** Rows and columns count from 1; 0 where there is none. The model must outlive every event, not the widget. */
class Spread : public QAbstractScrollArea {
  // Found among a window's children by its own type; without it every scroll area would be taken for one.
  Q_OBJECT

 public:
  explicit Spread(SpreadModel& model, QWidget* parent = nullptr);
  ~Spread() override;

  // --- what the form hooks on -------------------------------------------------------------------------------
  /** The operator finished a cell with another text. The rule compares, persists and publishes into the model, then
   *  True. False: refused, the editor stays open with the typed text; when the rule puts the old text back it calls
   *  cancelEdit() before it returns False, and the focus stays. Money and numbers come without separators.
   *  setActiveCell inside is where the cursor goes next. Without the hook the text goes into the model. */
  std::function<bool(int row, int col, const QString& oldText, const QString& newText)> cellFinished;
  /** The current cell changed, or the grid took the focus. */
  std::function<void(int row, int col)> cellEntered;
  std::function<void(int row)> rowEntered;
  /** The keyboard went to another control of the program, not to a box or a menu. */
  std::function<void()> left;
  /** Before the operator (not the program) leaves a cell for another; False stays. */
  std::function<bool(int row, int col, int toRow, int toCol)> cellLeaving;
  /** Before an edit opens; False keeps the cell at rest. */
  std::function<bool(int row, int col)> editStarting;
  /** Every key but the plain typing, first of all. While a cell is being edited (isEditing(), editingText()) only
   *  Enter and the function keys come. True: the form has done it. Of keys with Shift, Ctrl or Alt only Enter comes:
   *  the others belong to Form::onKey. A key of the keypad comes as any other. */
  std::function<bool(int row, int col, int key, Qt::KeyboardModifiers modifiers)> keyPressed;
  /** Enter, after the edit was accepted and when the rule has not moved the cursor itself. Without the hook the
   *  cursor goes to the next open cell. */
  std::function<void(int row, int col)> enterPressed;
  std::function<void(int row, int col)> clicked;
  /** A double click on a cell; without the hook it opens the cell with its text. */
  std::function<void(int row, int col)> doubleClicked;
  std::function<void(int col)> headerClicked;
  /** Space on a cell that rests, in lists whose rows are ticked; without it the cell takes the key. */
  std::function<void(int fromRow, int toRow)> spacePressed;
  /** The mouse was drawn over more than one row and let go. */
  std::function<void(int fromRow, int toRow)> blockMarked;
  /** The operator drew a column wider or narrower. */
  std::function<void(int col)> columnResized;
  /** The right button at a place of the screen. */
  std::function<void(const QPoint& globalPos)> menuAsked;
  /** Runs a hook so that an error ends in a box; set by Form. False: it failed. */
  std::function<bool(const std::function<void()>& work)> guard;

  // --- the current cell -------------------------------------------------------------------------------------
  SpreadModel& model() { return model_; }
  const SpreadModel& model() const { return model_; }
  int activeRow() const { return activeRow_; }
  int activeCol() const { return activeCol_; }
  /** Accepts the open editor first; False when that is refused or there is no such cell. */
  bool setActiveCell(int row, int col);
  /** The next cell to the right that is neither hidden nor locked, over to the following rows. */
  bool moveToNextOpenCell();
  /** First and last row of the marked block; the current row twice where none is marked. */
  std::pair<int, int> markedRows() const;
  void showRow(int row);

  // --- editing ----------------------------------------------------------------------------------------------
  bool isEditing() const { return editRow_ > 0; }
  QString editingText() const;
  /** Opens the current cell with its text; False when it is locked. */
  bool beginEdit();
  /** Offers the typed text to the rule. True: nothing is open any more; False: refused, whoever asked must stop. */
  bool commitEdit();
  /** Closes the editor; the cell keeps the text it had. */
  void cancelEdit();
  /** Before the page or window is left whatever the rule says: the open text is taken, a refused one given up. */
  void leaveEdit();

  // --- measures ---------------------------------------------------------------------------------------------
  /** In half-width characters, as SpreadColumn::width. */
  double colWidth(int col) const;
  void setColWidth(int col, double width);
  void resetMeasures();
  int fontSize() const;  ///< points
  void setFontSize(int points);
  int rowHeight() const { return rowPoints_; }  ///< points; 0 follows the font
  /** Never less than the font needs. */
  void setRowHeight(int points);
  /** The column that takes the spare width; 0 for none. */
  void setFillColumn(int col);
  int fillColumn() const { return fillColumn_; }
  /** So many columns at the left, one at first, stand still while the others are scrolled: the names stay in view.
   *  Where they would take more than half of the width they are scrolled too. */
  void setFrozenCols(int count);
  int frozenCols() const { return frozenCols_; }
  /** Width in pixels at which every column shows, none of them stretched. */
  int fullWidth() const;
  int rowsOnPage() const;
  void setRedraw(bool on) { setUpdatesEnabled(on); }
  QRect cellRect(int row, int col) const;  ///< in the viewport
  QSize sizeHint() const override;

  /** Puts the marked block, or the current cell, on the clipboard, tabs between cells. */
  void copy() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  // spread.cpp
  void told(SpreadModel::What what, int row, int col);
  void measure();
  void measureRows();
  void placeLine();
  bool run(const std::function<void()>& work) const;
  bool moveTo(int row, int col, bool extend = false);
  void enterCell();
  int neighbour(int col, int step) const;
  int stillColumns() const;
  int columnAt(int x) const;
  int rowAt(int y) const;
  int topRow() const;
  // spread_keys.cpp
  bool lineKey(QKeyEvent* event);
  bool restingKey(QKeyEvent* event);
  bool movingKey(QKeyEvent* event);
  void enter();
  void tab(int step);
  void paste();
  void leaveEditLater();
  // spread_edit.cpp
  bool openEditor(bool keepText);
  void closeEditor();
  bool canEdit() const;
  static QString takenBy(CellKind kind, const QString& text);
  bool saysNothing(const QString& typed) const;
  bool finish(int row, int col, const QString& newText);
  QString typedText() const;
  void flushComposition();
  bool lineInput(QInputMethodEvent* event);
  void openList(const QString& typed);
  void closeList();
  void takeFromList(bool byEnter);
  bool listEvent(QEvent* event);
  void toggleCheck();
  // spread_paint.cpp
  void paintColumns(QPainter& painter, const QRect& dirty, int first, int last);
  void paintHeader(QPainter& painter, const QRect& part, int first, int last);
  void paintRow(QPainter& painter, int row, const QRect& part, int first, int last);
  void paintCell(QPainter& painter, int row, int col, const QRect& rect);
  // spread_mouse.cpp
  int resizeHandleAt(const QPoint& pos) const;

  SpreadModel& model_;
  QLineEdit* line_;
  QListWidget* list_ = nullptr;

  int activeRow_ = 0, activeCol_ = 0;
  int anchorRow_ = 0, anchorCol_ = 0;  ///< the other corner of the marked block
  bool entered_ = false;               ///< the hooks know of the current cell
  int editRow_ = 0, editCol_ = 0;
  bool committing_ = false;
  bool opening_ = false;
  bool clearable_ = false;  ///< an empty text is meant
  QString preedit_;

  std::vector<double> widths_;  ///< the operator's own; 0 takes the column's
  std::vector<int> edges_;      ///< left edges in pixels, one more than columns
  int needed_ = 0;              ///< pixels of all columns as they are wide
  int rowPoints_ = 0;
  int rowPixels_ = 20, headerRow_ = 20, headerHeight_ = 20;
  int fillColumn_ = 0, frozenCols_ = 1;
  int knownRows_ = 0;

  int resizing_ = 0, resizeStart_ = 0, resizeFrom_ = 0;
  bool marking_ = false;
};
