#pragma once
// What the slips' tables are written with. Rows of 1/8 inch, columns of 1/15 inch.
#include "giro/giro_paper.h"

namespace slip_layout {

using enum SlipText;
using pc::at, pc::PaperRow;

inline constexpr pc::PaperFont gulimChe[] = {{u"굴림체"}};
constexpr double lowerSlip = 28;  // rows from one slip of a sheet to the next

constexpr pc::PaperForm onePage(const pc::PaperSize& paper, std::span<const PaperRow> rows,
                                std::span<const pc::PaperFont> fonts = gulimChe) {
  return {.paper = paper, .rowsPerInch = 8, .columnsPerInch = 15, .fonts = fonts, .rows = rows};
}

/** An A4 sheet lying on its side, two slips. */
constexpr pc::PaperForm twoOnA4(std::span<const PaperRow> rows,
                                std::span<const pc::PaperFont> fonts = gulimChe) {
  pc::PaperForm form = onePage({11.69, 8.27}, rows, fonts);
  form.copies = 2;
  form.copyRows = lowerSlip;
  return form;
}

}  // namespace slip_layout
