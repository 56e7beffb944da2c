// The texts of an invoice: on the half sheets, on the drawn form, on the dot printer's paper. Rows are those of the drawn
// form's boxes, which the pre-printed papers share.
#include "documents/invoices/tax_layouts.h"

namespace print_tax {

using namespace layout;
using namespace tax_paper;
using enum TaxText;
using Line = TaxLineText;

constexpr double digitRow = top + 16.9, itemRow = top + 20.3, totalRow = top + 28.6;
constexpr double dotRows = 33;  // half of eleven inches

/** Where the papers differ: the column of the serial, of the supplier's rows and of the day, and what has room. */
struct Head {
  double serial, supplier, day;
  int name, person, buyer, buyerPerson, address, buyerAddress, status, item, buyerStatus, buyerItem;
};

constexpr auto head(const Head& on) {
  return joined(
      numbers(top + 6.3, 30, 67),
      names(top + 8.2, {{on.supplier, on.name}, {48, on.person}, {72, on.buyer}, {96, on.buyerPerson}}),
      addresses(top + 10.8, {{on.supplier, on.address}, {72, on.buyerAddress}}),
      kinds(top + 12.9, {{on.supplier, on.status}, {42, on.item}, {72, on.buyerStatus}, {90, on.buyerItem}}),
      std::array{at(top + 3.9, on.serial, Serial), at(digitRow, 11, Year), at(digitRow, 17, Month),
                 at(digitRow, on.day, Day), at(totalRow, 12, Total)});
}

constexpr std::array digits{at(digitRow, 26, Blank), at(digitRow, 30, SupplyCells),
                            at(digitRow, 53, TaxCells), at(totalRow, 100, Word)};

constexpr auto half = joined(head({86, 25, 21, 22, 10, 23, 16, 33, 40, 16, 16, 17, 21}), digits);
// With the two other options and on the dot printer.
constexpr auto other = joined(head({82, 19, 21, 28, 10, 23, 16, 38, 40, 18, 16, 17, 21}), digits);
constexpr auto drawn = head({82, 19, 22, 16, 7, 15, 12, 36, 36, 16, 13, 14, 18});

constexpr double indent = (cell - documentPoints / 144) / 2, digitY = digitRow / documentRows;
constexpr std::array cells{
    pc::inches(firstCell + cell, digitY, Blank),
    pc::inches(firstCell + 3 * cell + indent, digitY, SupplyDigits).cells(supplyCells, cell),
    pc::inches(firstCell + (3 + supplyCells) * cell + indent, digitY, TaxDigits).cells(taxCells, cell),
    at(totalRow, 100, Word)};

constexpr std::array line{at(itemRow, 12, Line::Month),
                          at(itemRow, 15, Line::Day),
                          at(itemRow, 20, Line::Item).squeezed(29),
                          at(itemRow, 22, Line::Rest),
                          at(itemRow, 52, Line::Quantity).padded(7),
                          at(itemRow, 62, Line::Price).padded(9),
                          at(itemRow, 73, Line::Supply).padded(14),
                          at(itemRow, 88, Line::Tax).padded(12)};
constexpr Lines lines{line, taxLinesOnSheet, 1.8};

}  // namespace print_tax

const pc::PaperForm printTaxHalf = layout::paper(print_tax::half, tax_paper::copyRows, print_tax::lines),
                    printTaxHalfB = layout::paper(print_tax::other, tax_paper::copyRows, print_tax::lines),
                    printTaxDrawn = layout::paper(print_tax::drawn, tax_paper::copyRows, print_tax::lines),
                    printTaxDot =
                        layout::paper(print_tax::other, print_tax::dotRows, print_tax::lines, {9.5, 11}),
                    printTaxCells = layout::paper(print_tax::cells, tax_paper::copyRows);
