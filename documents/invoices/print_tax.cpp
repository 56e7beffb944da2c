// The texts of an invoice: on the half sheets, on the drawn form, on the dot printer's paper. Rows are those of the drawn
// form's boxes, which the pre-printed papers share.
#include "documents/invoices/tax_layouts.h"

namespace print_tax {

using enum TaxText;
using pc::at, pc::PaperItem;
using Line = TaxLineText;

constexpr double top = 1.5;         // a copy's upper edge, in rows
constexpr double copyRows = 35.07;  // half of the sheet
constexpr double dotRows = 33;      // half of eleven inches
constexpr pc::PaperFont letters[] = {{u"굴림체", documentPoints}};

constexpr double serialRow = top + 3.9, numberRow = top + 6.3, nameRow = top + 8.2, addressRow = top + 10.8,
                 kindRow = top + 12.9, digitRow = top + 16.9, itemRow = top + 20.3, totalRow = top + 28.6;

constexpr PaperItem halfPlaces[] = {
    {serialRow, 86, Serial},
    {numberRow, 30, SupplierSerial},
    {numberRow, 67, BuyerSerial},
    at(nameRow, 25, SupplierName).cut(22),
    at(nameRow, 48, SupplierPerson).cut(10),
    at(nameRow, 72, BuyerName).cut(23),
    at(nameRow, 96, BuyerPerson).cut(16),
    at(addressRow, 25, SupplierAddress).cut(33),
    at(addressRow, 72, BuyerAddress).cut(40),
    at(kindRow, 25, SupplierStatus).cut(16),
    at(kindRow, 42, SupplierItem).cut(16),
    at(kindRow, 72, BuyerStatus).cut(17),
    at(kindRow, 90, BuyerItem).cut(21),
    {digitRow, 11, Year},
    {digitRow, 17, Month},
    {digitRow, 21, Day},
    {digitRow, 26, Blank},
    {digitRow, 30, SupplyCells},
    {digitRow, 53, TaxCells},
    {totalRow, 12, Total},
    {totalRow, 100, Word},
};

// With the two other options and on the dot printer.
constexpr PaperItem otherPlaces[] = {
    {serialRow, 82, Serial},
    {numberRow, 30, SupplierSerial},
    {numberRow, 67, BuyerSerial},
    at(nameRow, 19, SupplierName).cut(28),
    at(nameRow, 48, SupplierPerson).cut(10),
    at(nameRow, 72, BuyerName).cut(23),
    at(nameRow, 96, BuyerPerson).cut(16),
    at(addressRow, 19, SupplierAddress).cut(38),
    at(addressRow, 72, BuyerAddress).cut(40),
    at(kindRow, 19, SupplierStatus).cut(18),
    at(kindRow, 42, SupplierItem).cut(16),
    at(kindRow, 72, BuyerStatus).cut(17),
    at(kindRow, 90, BuyerItem).cut(21),
    {digitRow, 11, Year},
    {digitRow, 17, Month},
    {digitRow, 21, Day},
    {digitRow, 26, Blank},
    {digitRow, 30, SupplyCells},
    {digitRow, 53, TaxCells},
    {totalRow, 12, Total},
    {totalRow, 100, Word},
};

// The cells of the drawn form: as wide as a letter of its row of names, which begins at 1.79 inches.
constexpr double cell = 8.0 / 72, firstCell = 1.79, indent = (cell - documentPoints / 144) / 2;
constexpr double digitY = digitRow / documentRows;

constexpr PaperItem drawnPlaces[] = {
    {serialRow, 82, Serial},
    {numberRow, 30, SupplierSerial},
    {numberRow, 67, BuyerSerial},
    at(nameRow, 19, SupplierName).cut(16),
    at(nameRow, 48, SupplierPerson).cut(7),
    at(nameRow, 72, BuyerName).cut(15),
    at(nameRow, 96, BuyerPerson).cut(12),
    at(addressRow, 19, SupplierAddress).cut(36),
    at(addressRow, 72, BuyerAddress).cut(36),
    at(kindRow, 19, SupplierStatus).cut(16),
    at(kindRow, 42, SupplierItem).cut(13),
    at(kindRow, 72, BuyerStatus).cut(14),
    at(kindRow, 90, BuyerItem).cut(18),
    {digitRow, 11, Year},
    {digitRow, 17, Month},
    {digitRow, 22, Day},
    {totalRow, 12, Total},
};

constexpr PaperItem cellPlaces[] = {
    pc::inches(firstCell + cell, digitY, Blank),
    pc::inches(firstCell + 3 * cell + indent, digitY, SupplyDigits).cells(supplyCells, cell),
    pc::inches(firstCell + (3 + supplyCells) * cell + indent, digitY, TaxDigits).cells(taxCells, cell),
    {totalRow, 100, Word},
};

constexpr PaperItem line[] = {
    {itemRow, 12, Line::Month},
    {itemRow, 15, Line::Day},
    at(itemRow, 20, Line::Item).cut(29),
    at(itemRow, 52, Line::Quantity).padded(7),
    at(itemRow, 62, Line::Price).padded(9),
    at(itemRow, 73, Line::Supply).padded(14),
    at(itemRow, 88, Line::Tax).padded(12),
    {itemRow, 22, Line::Rest},
};

constexpr pc::PaperForm paper(std::span<const PaperItem> items, pc::PaperSize size, double toNextCopy) {
  return {.paper = size,
          .rowsPerInch = documentRows,
          .columnsPerInch = documentColumns,
          .fonts = letters,
          .items = items,
          .copies = 2,
          .copyRows = toNextCopy,
          .line = line,
          .lines = taxLinesOnSheet,
          .lineRows = 1.8};
}

constexpr pc::PaperForm digits(std::span<const PaperItem> items) {
  return {.paper = {},
          .rowsPerInch = documentRows,
          .columnsPerInch = documentColumns,
          .fonts = letters,
          .items = items,
          .copies = 2,
          .copyRows = copyRows};
}

}  // namespace print_tax

const pc::PaperForm printTaxHalf = print_tax::paper(print_tax::halfPlaces, {}, print_tax::copyRows),
                    printTaxHalfB = print_tax::paper(print_tax::otherPlaces, {}, print_tax::copyRows),
                    printTaxDrawn = print_tax::paper(print_tax::drawnPlaces, {}, print_tax::copyRows),
                    printTaxDot = print_tax::paper(print_tax::otherPlaces, {9.5, 11}, print_tax::dotRows),
                    printTaxCells = print_tax::digits(print_tax::cellPlaces);
