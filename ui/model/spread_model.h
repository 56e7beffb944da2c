#pragma once
// The Spread grid's cells without a window: texts, column kinds, locks, combo lists, colours. Rules work on this.
// Rows and columns count from 1, as the screens' tables do.
#include <QHash>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

enum class CellKind { Text, Integer, Number, Money, Date, MonthDay, Combo, CheckBox };
enum class CellAlign { Left, Center, Right };

/** How one column looks and edits. */
struct SpreadColumn {
  QString header = {};
  QString group = {};  ///< header group above neighbouring columns of the same group; empty: none
  double width = 10;   ///< in half-width characters of the grid's font, as ColWidth
  CellKind kind = CellKind::Text;
  CellAlign align = CellAlign::Left;
  bool locked = false;
  bool hidden = false;
  int maxLength = 0;       ///< characters; 0: no limit
  QStringList combo = {};  ///< the labels of a Combo column, by position
  int background = -1;     ///< 0xRRGGBB of its cells; -1 takes the grid's own
};

class SpreadModel {
 public:
  /** What an observer (the view) is told; row 0 means every row, column 0 every column. Dropped: see dropEdit. */
  enum class What { Cells, RowsInserted, RowsRemoved, Columns, Reset, Dropped };
  using Observer = std::function<void(What what, int row, int col)>;

  void setColumns(std::vector<SpreadColumn> columns);
  const SpreadColumn& column(int col) const { return columns_.at(col - 1); }
  void setColumnHeader(int col, const QString& header);
  void setColumnHidden(int col, bool hidden);
  /** Of all cells that have no lock of their own; background as SpreadColumn's. */
  void setColumnLocked(int col, bool locked, int background);
  void setCombo(int col, const QStringList& labels);
  int MaxCols() const { return int(columns_.size()); }

  int MaxRows() const { return int(rows_.size()); }
  void setMaxRows(int rows);
  void insertRow(int row);
  void deleteRow(int row);
  void clear() { setMaxRows(0); }
  /** The last row that holds any text; 0 when there is none. */
  int DataRowCnt() const;
  /** Replaces all rows at once; a short row is filled with ''. */
  void setRows(std::vector<std::vector<QString>> rows);

  /** '' outside the grid. */
  const QString& text(int row, int col) const;
  void setText(int row, int col, const QString& text);

  /** A text that the cell offers: shown in place of its own, faint and slanting, until '' takes it away; never part of
   *  the cell's text. New rows offer nothing. */
  void setOffer(int row, int col, const QString& text);
  QString offer(int row, int col) const;

  /** A Combo cell's text as position in its list; -1 when it is none of them. */
  int comboPosition(int row, int col) const;
  void setComboPosition(int row, int col, int position);

  /** The column's lock unless the cell has its own. */
  bool locked(int row, int col) const;
  void setLocked(int row, int col, bool locked);
  /** 0xRRGGBB of the cell, else of its row, else of its column; -1 takes the grid's own. col 0 speaks of the whole
   *  row. */
  int background(int row, int col) const;
  void setBackground(int row, int col, int rgb);
  /** 0xRRGGBB of the cell's text; -1 takes the grid's own. */
  int ink(int row, int col) const;
  void setInk(int row, int col, int rgb);
  /** A letter at the left edge of an amount's cell that says what the colour says. */
  QString sign(int row, int col) const;
  void setSign(int row, int col, const QString& sign);
  bool bold(int row) const;
  void setBold(int row, bool bold);
  /** 0xRRGGBB of a line along the row's upper edge that parts it from the rows above; -1: none. */
  int topLine(int row) const;
  void setTopLine(int row, int rgb);

  /** Numbers of a column's texts added up exactly, "1,234" read as 1234; in won or pieces. */
  qint64 sum(int col, int fromRow, int toRow) const;

  /** Gives a cell a formula of the one kind in use, "SUM(R1C5:R10C5)": the cell shows the sum and follows changes of
   *  the summed cells; inserted and deleted rows move it along. False for any other text. */
  bool setFormula(int row, int col, const QString& formula);
  /** '' for a cell without one. */
  QString formula(int row, int col) const;

  /** Whatever is just being typed into a cell is given up: its row is about to go, or the rows are left. */
  void dropEdit() const { tell(What::Dropped, 0, 0); }

  /** One observer; the view. */
  void setObserver(Observer observer) { observer_ = std::move(observer); }

 private:
  void tell(What what, int row, int col) const {
    if (observer_) observer_(what, row, col);
  }
  static quint64 key(int row, int col) { return quint64(row) << 16 | quint64(col); }

  struct Row {
    std::vector<QString> cells;
    qint64 id = 0;  ///< extras hang on the row, not on its place
    bool bold = false;
    int background = -1;
    int topLine = -1;
  };
  struct Formula {
    qint64 id;  ///< of the row that shows the sum
    int col;
    int sumCol, from, to;
  };
  void follow(int row, int col);
  void forgetRows();
  void moveFormulas(int row, int step);
  int rowOf(qint64 id) const;

  std::vector<SpreadColumn> columns_;
  std::vector<Row> rows_;
  std::vector<Formula> formulas_;
  QHash<quint64, bool> locks_;
  QHash<quint64, int> colours_, inks_;
  QHash<quint64, QString> signs_;
  QHash<quint64, QString> offers_;
  qint64 nextId_ = 1;
  Observer observer_;
};

enum class SubTotal { Part, Whole };

/** Puts a row at a place with "[소 계]" or "[합 계]" in labelCol and, in each of the columns, the sum from the first
 *  row to the one above: a later row of the kind counts an earlier one in, as the formula says. */
void InsertSubTotal(SpreadModel& grid, int row, SubTotal kind, int labelCol, const std::vector<int>& columns);
