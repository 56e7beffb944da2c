#pragma once
// The four papers of a statement.
#include "documents/document_layout.h"

/** The texts of a statement's sheet behind its parties. */
enum class DealText {
  IssueDate = int(PartyText::Count),  ///< in one piece, as the paper wants it
  IssueYear,
  IssueMonth,
  IssueDay,
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
