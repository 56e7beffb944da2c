// PrintFullA4: blank A4, the form drawn under the texts, a copy on each half of the sheet. The form's places are inches
// from a copy's upper edge; the texts' rows are fitted into its boxes.
#include "documents/statements/deal_layouts.h"

namespace full_a4 {

using namespace layout;
using enum DealText;
using Line = DealLineText;

constexpr double top = 1;        // the upper copy's edge, in rows
constexpr double copyRows = 35;  // to the lower one
constexpr double day = top + 2.9, owed = top + 13.6, first = top + 16.92;

constexpr auto places = joined(
    std::array{at(day, 18, IssueYear), at(day, 27, IssueMonth), at(day, 33, IssueDay)},
    numbers(top + 5.1, 23, 69), names(top + 7, {{19, 17}, {42, 13}, {65, 23}, {92, 16}}),
    addresses(top + 9.2, {{19, 36}, {65, 43}}), kinds(top + 11.3, {{19, 16}, {41, 14}, {65, 20}, {89, 19}}),
    std::array{at(owed, 26, After).padded(18), at(owed, 55, Total).padded(18),
               at(owed, 80, Before).padded(18), at(top + 31.3, 65, MoreBehind)});

constexpr std::array line{at(first, 13, Line::Date),
                          at(first, 24, Line::Item).squeezed(24),
                          at(first, 13, Line::ItemAlone).squeezed(37),
                          at(first, 59, Line::Quantity).padded(11),
                          at(first, 74, Line::Price).padded(11),
                          at(first, 87, Line::Amount).padded(12)};

// --- the drawn form -------------------------------------------------------------------------------------------

enum Fonts { small, title };
constexpr pc::PaperFont formFonts[] = {{u"돋움체", 8}, {u"돋움체", 15, true}};
constexpr Drawn form{top / documentRows};

constexpr auto words = joined(
    std::array{form.label(0.68, 0.51, u"날 짜 :")},
    form.beside(0.51, {1.65, 2.16, 2.66}, {u"년", u"월", u"일"}),
    std::array{form.label(3.23, 0.20, u"거 래 명 세 표").in(title),
               pc::inches(3.37, form.edge + 0.51, StatementFormText::CopyLabel),
               form.label(5.92, 0.54, u"검수자")},
    form.stack(0.75, {0.90, 1.38, 1.81}, {u"공", u"급", u"자"}),
    form.stack(1.05, {1.11, 1.28}, {u"상", u"호"}), form.stack(2.66, {1.11, 1.28}, {u"성", u"명"}),
    form.stack(1.05, {1.46, 1.62}, {u"주", u"소"}), form.stack(1.05, {1.82, 1.97}, {u"업", u"태"}),
    form.stack(2.57, {1.82, 1.97}, {u"종", u"목"}),
    form.stack(3.98, {0.90, 1.15, 1.40, 1.65, 1.90}, {u"공", u"급", u"받", u"는", u"자"}),
    form.stack(4.27, {1.11, 1.28}, {u"상", u"호"}), form.stack(6.16, {1.11, 1.28}, {u"성", u"명"}),
    form.stack(4.27, {1.46, 1.62}, {u"주", u"소"}), form.stack(4.27, {1.82, 1.97}, {u"업", u"태"}),
    form.stack(5.97, {1.82, 1.97}, {u"종", u"목"}),
    form.beside(2.26, {1.23, 3.51, 5.51}, {u"총미수금:", u"합    계:", u"전미수금:"}),
    form.beside(2.61, {0.85, 1.78, 3.53, 4.06, 5.06, 6.06},
                {u"C O D E", u" 품              목", u"단 위", u" 수    량", u" 단    가", u" 금    액"}),
    std::array{form.label(7.02, 2.59, u"비 고")});

constexpr double leftBox = 0.98, leftEnd = 3.90, rightBox = 4.20;

/** Below a row of both parties' boxes. */
constexpr auto underParties(double y) {
  return std::array{form.across(y, leftBox, leftEnd), form.across(y, rightBox)};
}

constexpr auto lines = joined(
    std::array{form.frame(0.78, 5.2)}, underParties(1.06), underParties(1.42), underParties(1.78),
    std::array{form.thick(2.12), form.thick(2.56), form.thick(2.80), form.upright(leftEnd, 0.78, 2.12, 1)},
    form.uprights(0.78, 2.12, {leftBox, rightBox}), form.uprights(1.06, 1.42, {2.60, 6.10}),
    form.uprights(1.78, 2.12, {2.51, 5.91}), form.uprights(2.12, 2.56, {3.40, 5.40}),
    form.uprights(2.56, 5.2, {1.50, 3.45, 3.95, 4.90, 5.95, 6.88}), each<dealLinesOnSheet - 1>([](int item) {
      return form.across(2.80 + (item + 1) / documentRows, Drawn::left, Drawn::right, 0.25);
    }));

constexpr auto formPlaces = joined(words, lines);

}  // namespace full_a4

const pc::PaperForm printFullA4 =
    layout::paper(full_a4::places, full_a4::copyRows, {full_a4::line, dealLinesOnSheet});
const pc::PaperForm statementForm =
    layout::paper(full_a4::formPlaces, full_a4::copyRows, {}, {}, full_a4::formFonts);
