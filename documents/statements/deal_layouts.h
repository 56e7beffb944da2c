#pragma once
// What stands where on the four papers of a statement, in rows of 1/6 inch and columns of one half-width character.
#include "pc/paper_form.h"

/** The statement forms' grid: six rows to the inch, a column as wide as a half-width character of the letters. */
inline constexpr double documentPoints = 9.75, documentRows = 6, documentColumns = 144 / documentPoints;

/** Columns that the texts of a drawn form stand to the right where the operator has set no margin: there they clear the
 *  form's words. */
inline constexpr double drawnFormColumns = 2;

enum class DealLayout { HalfA4, FullA4, HalfA4B, Dot };

/** The texts of a statement's sheet. */
enum class DealText {
  IssueDate,  ///< in one piece, as the paper wants it
  IssueYear,
  IssueMonth,
  IssueDay,
  SupplierSerial,
  SupplierName,
  SupplierPerson,
  SupplierAddress,
  SupplierStatus,
  SupplierItem,
  BuyerSerial,
  BuyerName,
  BuyerPerson,
  BuyerAddress,
  BuyerStatus,
  BuyerItem,
  Supply,  ///< sums of the sheets so far, in won
  Tax,
  Total,
  PageTotal,  ///< of this sheet, on one that is not the last
  Before,     ///< owed before the statement
  After,      ///< and with it
  BeforeLabelled,
  AfterLabelled,
  MoreBehind,  ///< on a sheet that is not the last
  Count
};

/** The texts of one of its lines. */
enum class DealLineText {
  Date,       ///< '' when the range is one day
  Item,       ///< beside a date
  ItemAlone,  ///< without one
  DatedItem,  ///< both in one piece
  Quantity,
  Price,
  Supply,
  Tax,
  Amount,  ///< supply and tax
  Count
};

/** Lines that have room on a copy, on every paper. */
inline constexpr int dealLinesOnSheet = 14;

/** Each layout's table, in a file of its own. */
extern const pc::PaperForm printHalfA4, printFullA4, printHalfA4B, printDot;
/** The form that is drawn under FullA4's texts, with its one text. */
extern const pc::PaperForm statementForm;
enum class StatementFormText { CopyLabel };
