// PrintFullA4: blank A4, the form drawn under the texts, a copy on each half of the sheet. The form's places are inches
// from a copy's upper edge; the texts' rows are fitted into its boxes.
#include "documents/statements/deal_layouts.h"

namespace full_a4 {

using enum DealText;
using pc::at, pc::PaperItem;
using Line = DealLineText;

constexpr double top = 1;        // the upper copy's edge, in rows
constexpr double copyRows = 35;  // to the lower one
constexpr double first = top + 16.92;
constexpr pc::PaperFont letters[] = {{u"굴림체", documentPoints}};

constexpr PaperItem places[] = {
    {top + 2.9, 18, IssueYear},
    {top + 2.9, 27, IssueMonth},
    {top + 2.9, 33, IssueDay},
    {top + 5.1, 23, SupplierSerial},
    {top + 5.1, 69, BuyerSerial},
    at(top + 7, 19, SupplierName).cut(17),
    at(top + 7, 42, SupplierPerson).cut(13),
    at(top + 7, 65, BuyerName).cut(23),
    at(top + 7, 92, BuyerPerson).cut(16),
    at(top + 9.2, 19, SupplierAddress).cut(36),
    at(top + 9.2, 65, BuyerAddress).cut(43),
    at(top + 11.3, 19, SupplierStatus).cut(16),
    at(top + 11.3, 41, SupplierItem).cut(14),
    at(top + 11.3, 65, BuyerStatus).cut(20),
    at(top + 11.3, 89, BuyerItem).cut(19),
    at(top + 13.6, 26, After).padded(18),
    at(top + 13.6, 55, Total).padded(18),
    at(top + 13.6, 80, Before).padded(18),
    {top + 31.3, 65, MoreBehind},
};

constexpr PaperItem line[] = {
    {first, 13, Line::Date},
    at(first, 24, Line::Item).cut(24),
    at(first, 13, Line::ItemAlone).cut(37),
    at(first, 59, Line::Quantity).padded(11),
    at(first, 74, Line::Price).padded(11),
    at(first, 87, Line::Amount).padded(12),
};

// --- the drawn form -------------------------------------------------------------------------------------------

constexpr double edge = top / documentRows;

constexpr PaperItem label(double x, double y, QStringView text) {
  return pc::inches(x, edge + y, text);
}
constexpr PaperItem across(double y, double from = 0.68, double to = 7.5, double points = 0.5) {
  return pc::rule(from, edge + y, to, edge + y, points);
}
constexpr PaperItem upright(double x, double from, double to, double points = 0.5) {
  return pc::rule(x, edge + from, x, edge + to, points);
}
constexpr double itemLine(int number) {
  return 2.80 + number / documentRows;
}

enum Fonts { small, title };
constexpr pc::PaperFont formFonts[] = {{u"돋움체", 8}, {u"돋움체", 15, true}};

constexpr PaperItem formPlaces[] = {
    label(0.68, 0.51, u"날 짜 :"),
    label(1.65, 0.51, u"년"),
    label(2.16, 0.51, u"월"),
    label(2.66, 0.51, u"일"),
    label(3.23, 0.20, u"거 래 명 세 표").in(title),
    pc::inches(3.37, edge + 0.51, StatementFormText::CopyLabel),
    label(5.92, 0.54, u"검수자"),
    label(0.75, 0.90, u"공"),
    label(0.75, 1.38, u"급"),
    label(0.75, 1.81, u"자"),
    label(1.05, 1.11, u"상"),
    label(1.05, 1.28, u"호"),
    label(2.66, 1.11, u"성"),
    label(2.66, 1.28, u"명"),
    label(1.05, 1.46, u"주"),
    label(1.05, 1.62, u"소"),
    label(1.05, 1.82, u"업"),
    label(1.05, 1.97, u"태"),
    label(2.57, 1.82, u"종"),
    label(2.57, 1.97, u"목"),
    label(3.98, 0.90, u"공"),
    label(3.98, 1.15, u"급"),
    label(3.98, 1.40, u"받"),
    label(3.98, 1.65, u"는"),
    label(3.98, 1.90, u"자"),
    label(4.27, 1.11, u"상"),
    label(4.27, 1.28, u"호"),
    label(6.16, 1.11, u"성"),
    label(6.16, 1.28, u"명"),
    label(4.27, 1.46, u"주"),
    label(4.27, 1.62, u"소"),
    label(4.27, 1.82, u"업"),
    label(4.27, 1.97, u"태"),
    label(5.97, 1.82, u"종"),
    label(5.97, 1.97, u"목"),
    label(1.23, 2.26, u"총미수금:"),
    label(3.51, 2.26, u"합    계:"),
    label(5.51, 2.26, u"전미수금:"),
    label(0.85, 2.61, u"C O D E"),
    label(1.78, 2.61, u" 품              목"),
    label(3.53, 2.61, u"단 위"),
    label(4.06, 2.61, u" 수    량"),
    label(5.06, 2.61, u" 단    가"),
    label(6.06, 2.61, u" 금    액"),
    label(7.02, 2.59, u"비 고"),
    // main box, the two parties, the balance, the items' header
    pc::box(0.68, edge + 0.78, 7.5, edge + 5.2, 1),
    across(1.06, 0.98, 3.90),
    across(1.06, 4.20, 7.5),
    across(1.42, 0.98, 3.90),
    across(1.42, 4.20, 7.5),
    across(1.78, 0.98, 3.90),
    across(1.78, 4.20, 7.5),
    across(2.12, 0.68, 7.5, 1),
    across(2.56, 0.68, 7.5, 1),
    across(2.80, 0.68, 7.5, 1),
    upright(0.98, 0.78, 2.12),
    upright(2.60, 1.06, 1.42),
    upright(2.51, 1.78, 2.12),
    upright(3.90, 0.78, 2.12, 1),
    upright(4.20, 0.78, 2.12),
    upright(6.10, 1.06, 1.42),
    upright(5.91, 1.78, 2.12),
    upright(3.40, 2.12, 2.56),
    upright(5.40, 2.12, 2.56),
    // columns and lines of the items
    upright(1.50, 2.56, 5.2),
    upright(3.45, 2.56, 5.2),
    upright(3.95, 2.56, 5.2),
    upright(4.90, 2.56, 5.2),
    upright(5.95, 2.56, 5.2),
    upright(6.88, 2.56, 5.2),
    across(itemLine(1), 0.68, 7.5, 0.25),
    across(itemLine(2), 0.68, 7.5, 0.25),
    across(itemLine(3), 0.68, 7.5, 0.25),
    across(itemLine(4), 0.68, 7.5, 0.25),
    across(itemLine(5), 0.68, 7.5, 0.25),
    across(itemLine(6), 0.68, 7.5, 0.25),
    across(itemLine(7), 0.68, 7.5, 0.25),
    across(itemLine(8), 0.68, 7.5, 0.25),
    across(itemLine(9), 0.68, 7.5, 0.25),
    across(itemLine(10), 0.68, 7.5, 0.25),
    across(itemLine(11), 0.68, 7.5, 0.25),
    across(itemLine(12), 0.68, 7.5, 0.25),
    across(itemLine(13), 0.68, 7.5, 0.25),
};

}  // namespace full_a4

const pc::PaperForm printFullA4{.paper = {},
                                .rowsPerInch = documentRows,
                                .columnsPerInch = documentColumns,
                                .fonts = full_a4::letters,
                                .items = full_a4::places,
                                .copies = 2,
                                .copyRows = full_a4::copyRows,
                                .line = full_a4::line,
                                .lines = dealLinesOnSheet};

const pc::PaperForm statementForm{.paper = {},
                                  .rowsPerInch = documentRows,
                                  .columnsPerInch = documentColumns,
                                  .fonts = full_a4::formFonts,
                                  .items = full_a4::formPlaces,
                                  .copies = 2,
                                  .copyRows = full_a4::copyRows};
