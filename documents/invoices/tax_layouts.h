#pragma once
// The papers of a tax invoice. All of them carry both copies.
#include "documents/document_layout.h"

/** The texts of an invoice behind its parties. */
enum class TaxText {
  Serial = int(PartyText::Count),  ///< "####-###"
  Year,                            ///< of issue
  Month,
  Day,
  Blank,         ///< cells of the supply without a digit
  SupplyDigits,  ///< a digit a cell
  TaxDigits,
  SupplyCells,  ///< the same in one text, two columns a cell
  TaxCells,
  Total,  ///< behind stars
  Word,   ///< 영수 or 청구
  Count
};

enum class TaxLineText {
  Month,
  Day,
  Item,
  Quantity,
  Price,
  Supply,
  Tax,
  Rest,  ///< "=== 이하 여백 ===" behind the last item
  Count
};

inline constexpr int taxLinesOnSheet = 4;
/** Cells of the drawn row "공란수백십억천백십만천백십일십억천백십만천백십일". */
inline constexpr int supplyCells = 11, taxCells = 10;

/** The pre-printed half sheet; the papers whose header rows begin elsewhere, on the drawn form without the digits. */
extern const pc::PaperForm printTaxHalf, printTaxHalfB, printTaxDrawn, printTaxDot;
/** The digits in the drawn form's cells and the word in its sentence, which no margin moves sideways. */
extern const pc::PaperForm printTaxCells;
/** The drawn form with its one text. */
extern const pc::PaperForm taxForm;
enum class TaxFormText { CopyLabel };

// --- what the drawn form and its texts agree on -----------------------------------------------------------------

namespace tax_paper {
inline constexpr double top = 1.5;         // a copy's upper edge, in rows
inline constexpr double copyRows = 35.07;  // half of the sheet
/** A cell of the digits is as wide as a letter of the row of their names, which begins at this inch. */
inline constexpr double formPoints = 8, cell = formPoints / 72, firstCell = 1.79;
}  // namespace tax_paper
