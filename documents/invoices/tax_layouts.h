#pragma once
// What stands where on the papers of a tax invoice, in the statements' grid. All of them carry both copies.
#include "documents/statements/deal_layouts.h"

enum class TaxLayout { HalfA4, FullA4, HalfA4B, Dot };

enum class TaxText {
  Serial,  ///< "####-###"
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
  Year,  ///< of issue
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
