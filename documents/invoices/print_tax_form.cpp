// The drawn form of an invoice. Places are inches from a copy's upper edge.
#include "documents/invoices/tax_layouts.h"

namespace tax_form {

using namespace layout;
using namespace tax_paper;

enum Fonts { small, title, fine };
constexpr pc::PaperFont fonts[] = {{u"돋움체", formPoints}, {u"돋움체", 15, true}, {u"돋움체", 6.5}};
constexpr Drawn form{top / documentRows};

constexpr auto words = joined(
    std::array{form.label(0.68, 0.10, u"(별지 제11호 서식)"),
               form.label(1.50, 0.49, u"세  금  계  산  서").in(title),
               pc::inches(3.94, form.edge + 0.53, TaxFormText::CopyLabel), form.label(6.48, 0.42, u"권"),
               form.label(7.21, 0.42, u"호"), form.label(5.30, 0.43, u"책 번 호").in(fine),
               form.label(5.30, 0.66, u"일련번호").in(fine)},
    form.stack(0.71, {1.02, 1.58, 2.14}, {u"공", u"급", u"자"}),
    form.stack(0.91, {0.94, 1.14, 1.34}, {u"등록", u"번호", u"상호"}),
    form.stack(0.88, {1.53, 1.71, 1.88}, {u"(법인명)", u"사업장", u"주  소"}),
    std::array{form.label(0.91, 2.14, u"업태")}, form.stack(2.63, {1.32, 1.51}, {u"성", u"명"}),
    form.stack(2.60, {2.05, 2.25}, {u"종", u"목"}),
    form.stack(3.93, {1.02, 1.24, 1.68, 1.90, 2.12}, {u"공", u"급", u"받", u"는", u"자"}),
    form.stack(4.15, {0.94, 1.14, 1.34}, {u"등록", u"번호", u"상호"}),
    form.stack(4.12, {1.53, 1.71, 1.88}, {u"(법인명)", u"사업장", u"주  소"}),
    std::array{form.label(4.15, 2.14, u"업태")}, form.stack(6.07, {1.32, 1.51}, {u"성", u"명"}),
    std::array{form.label(6.02, 2.05, u"종").in(fine), form.label(6.02, 2.25, u"목").in(fine)},
    form.beside(2.60, {0.86, 1.26, 1.56}, {u"년", u"월", u"일"}),
    std::array{form.label(firstCell, 2.62, u"공란수백십억천백십만천백십일십억천백십만천백십일")},
    form.beside(2.42, {0.95, 1.95, 3.38, 4.90},
                {u"작    성", u"공  급  가  액", u"세    액", u"비              고"}),
    form.beside(3.12, {0.78, 1.65, 3.60, 4.28, 4.98, 6.15, 7.02},
                {u"월  일", u"품    목   -   규    격", u"수   량", u"단   가", u"공 급  가 액", u"세    액",
                 u"비  고"}),
    std::array{form.label(1.05, 4.56, u"합  계   금  액")},
    form.beside(4.57, {2.51, 3.43, 4.33, 5.12}, {u"현     금", u"수     표", u"어     음", u"외상미수금"}),
    std::array{form.label(6.20, 4.72, u"이 금액을        함")});

constexpr double leftBox = 0.86, leftEnd = 3.90, rightBox = 4.09, days = 2.58, digitsEnd = 3.05,
                 itemsEnd = 4.50;
constexpr double cellsEnd = firstCell + (3 + supplyCells + taxCells) * cell;

/** Below a row of both parties' boxes. */
constexpr auto underParties(double y) {
  return std::array{form.across(y, leftBox, leftEnd), form.across(y, rightBox)};
}

/** Left of each cell; the amounts begin with a line through their headings. */
constexpr auto cellLines = each<size_t(1 + supplyCells + taxCells)>([](int digit) {
  const bool begins = digit == supplyCells || digit == supplyCells + taxCells;
  return form.upright(firstCell + (3 + digit) * cell, begins ? 2.38 : days, digitsEnd,
                      begins || digit == 0 ? 0.5 : 0.25);
});

constexpr auto lines = joined(
    std::array{form.frame(0.85, 5.0)}, form.uprights(0.36, 0.85, {5.25, 5.67, Drawn::right}),
    std::array{form.across(0.36, 5.25), form.across(0.60, 5.25)},
    // the two parties
    underParties(1.28), underParties(1.68), underParties(2.03),
    form.uprights(0.85, 2.38, {leftBox, rightBox}), std::array{form.upright(leftEnd, 0.85, 2.38, 1)},
    form.uprights(1.28, 1.68, {2.57, 6.03}), form.uprights(2.03, 2.38, {2.54, 5.97}),
    // the day and the digits
    std::array{form.thick(2.38), form.across(days, Drawn::left, cellsEnd),
               form.across(2.77, Drawn::left, cellsEnd, 0.25), form.upright(1.18, days, digitsEnd, 0.25),
               form.upright(1.47, days, digitsEnd, 0.25), form.upright(firstCell, 2.38, digitsEnd)},
    cellLines,
    // the items
    std::array{form.thick(digitsEnd), form.across(3.30)}, each<taxLinesOnSheet - 1>([](int item) {
      return form.across(3.60 + 0.30 * item, Drawn::left, Drawn::right, 0.25);
    }),
    std::array{form.thick(itemsEnd), form.upright(1.115, 3.30, itemsEnd, 0.25)},
    form.uprights(digitsEnd, itemsEnd, {1.30, 3.50, 4.15, 4.96, 6.08, 6.95}),
    // the total
    std::array{form.across(4.72, Drawn::left, 6.10)},
    form.uprights(itemsEnd, 5.0, {2.27, 3.20, 4.10, 5.02, 6.10}));

constexpr auto places = joined(words, lines);

}  // namespace tax_form

const pc::PaperForm taxForm = layout::paper(tax_form::places, tax_paper::copyRows, {}, {}, tax_form::fonts);
