// The drawn form of an invoice. Places are inches from a copy's upper edge.
#include "documents/invoices/tax_layouts.h"

namespace tax_form {

using pc::PaperItem;

constexpr double edge = 1.5 / documentRows;

enum Fonts { small, title, fine };
constexpr pc::PaperFont fonts[] = {{u"돋움체", 8}, {u"돋움체", 15, true}, {u"돋움체", 6.5}};

constexpr PaperItem label(double x, double y, QStringView text) {
  return pc::inches(x, edge + y, text);
}
constexpr PaperItem across(double y, double from = 0.68, double to = 7.5, double points = 0.5) {
  return pc::rule(from, edge + y, to, edge + y, points);
}
constexpr PaperItem upright(double x, double from, double to, double points = 0.5) {
  return pc::rule(x, edge + from, x, edge + to, points);
}
/** The line left of a cell of the digits. */
constexpr PaperItem cellLine(int cell, double points = 0.25) {
  return upright(1.79 + cell * 8.0 / 72, 2.58, 3.05, points);
}

constexpr PaperItem places[] = {
    label(0.68, 0.10, u"(별지 제11호 서식)"),
    label(1.50, 0.49, u"세  금  계  산  서").in(title),
    pc::inches(3.94, edge + 0.53, TaxFormText::CopyLabel),
    label(6.48, 0.42, u"권"),
    label(7.21, 0.42, u"호"),
    label(5.30, 0.43, u"책 번 호"),
    label(5.30, 0.66, u"일련번호").in(fine),
    label(0.71, 1.02, u"공"),
    label(0.71, 1.58, u"급"),
    label(0.71, 2.14, u"자"),
    label(0.91, 0.94, u"등록"),
    label(0.91, 1.14, u"번호"),
    label(0.91, 1.34, u"상호"),
    label(0.88, 1.53, u"(법인명)"),
    label(0.88, 1.71, u"사업장"),
    label(0.88, 1.88, u"주  소"),
    label(0.91, 2.14, u"업태"),
    label(2.63, 1.32, u"성"),
    label(2.63, 1.51, u"명"),
    label(2.60, 2.05, u"종"),
    label(2.60, 2.25, u"목"),
    label(3.93, 1.02, u"공"),
    label(3.93, 1.24, u"급"),
    label(3.93, 1.68, u"받"),
    label(3.93, 1.90, u"는"),
    label(3.93, 2.12, u"자"),
    label(4.15, 0.94, u"등록"),
    label(4.15, 1.14, u"번호"),
    label(4.15, 1.34, u"상호"),
    label(4.12, 1.53, u"(법인명)"),
    label(4.12, 1.71, u"사업장"),
    label(4.12, 1.88, u"주  소"),
    label(4.15, 2.14, u"업태"),
    label(6.07, 1.32, u"성"),
    label(6.07, 1.51, u"명"),
    label(6.02, 2.05, u"종").in(fine),
    label(6.02, 2.25, u"목").in(fine),
    label(0.86, 2.60, u"년"),
    label(1.26, 2.60, u"월"),
    label(1.56, 2.60, u"일"),
    label(0.95, 2.42, u"작    성"),
    label(1.79, 2.62, u"공란수백십억천백십만천백십일십억천백십만천백십일"),
    label(1.95, 2.42, u"공  급  가  액"),
    label(3.38, 2.42, u"세    액"),
    label(4.90, 2.42, u"비              고"),
    label(0.78, 3.12, u"월  일"),
    label(1.65, 3.12, u"품    목   -   규    격"),
    label(3.60, 3.12, u"수   량"),
    label(4.28, 3.12, u"단   가"),
    label(4.98, 3.12, u"공 급  가 액"),
    label(6.15, 3.12, u"세    액"),
    label(7.02, 3.12, u"비  고"),
    label(1.05, 4.56, u"합  계   금  액"),
    label(2.51, 4.57, u"현     금"),
    label(3.43, 4.57, u"수     표"),
    label(4.33, 4.57, u"어     음"),
    label(5.12, 4.57, u"외상미수금"),
    label(6.20, 4.72, u"이 금액을        함"),
    // the head's boxes
    pc::box(0.68, edge + 0.85, 7.5, edge + 5.0, 1),
    upright(5.25, 0.36, 0.85),
    upright(5.67, 0.36, 0.85),
    upright(7.5, 0.36, 0.85),
    across(0.36, 5.25, 7.5),
    across(0.60, 5.25, 7.5),
    // the two parties
    across(1.28, 0.86, 3.90),
    across(1.28, 4.09, 7.5),
    across(1.68, 0.86, 3.90),
    across(1.68, 4.09, 7.5),
    across(2.03, 0.86, 3.90),
    across(2.03, 4.09, 7.5),
    upright(0.86, 0.85, 2.38),
    upright(3.90, 0.85, 2.38, 1),
    upright(4.09, 0.85, 2.38),
    upright(2.57, 1.28, 1.68),
    upright(2.54, 2.03, 2.38),
    upright(6.03, 1.28, 1.68),
    upright(5.97, 2.03, 2.38),
    // the day and the digits
    across(2.38, 0.68, 7.5, 1),
    across(2.58, 0.68, 4.457),
    across(2.77, 0.68, 4.457, 0.25),
    upright(1.18, 2.58, 3.05, 0.25),
    upright(1.47, 2.58, 3.05, 0.25),
    upright(1.79, 2.38, 3.05),
    cellLine(3, 0.5),
    cellLine(4),
    cellLine(5),
    cellLine(6),
    cellLine(7),
    cellLine(8),
    cellLine(9),
    cellLine(10),
    cellLine(11),
    cellLine(12),
    cellLine(13),
    upright(1.79 + 14 * 8.0 / 72, 2.38, 3.05),
    cellLine(15),
    cellLine(16),
    cellLine(17),
    cellLine(18),
    cellLine(19),
    cellLine(20),
    cellLine(21),
    cellLine(22),
    cellLine(23),
    upright(1.79 + 24 * 8.0 / 72, 2.38, 3.05),
    // the items
    across(3.05, 0.68, 7.5, 1),
    across(3.30),
    across(3.60, 0.68, 7.5, 0.25),
    across(3.90, 0.68, 7.5, 0.25),
    across(4.20, 0.68, 7.5, 0.25),
    across(4.50, 0.68, 7.5, 1),
    upright(1.115, 3.30, 4.50, 0.25),
    upright(1.30, 3.05, 4.50),
    upright(3.50, 3.05, 4.50),
    upright(4.15, 3.05, 4.50),
    upright(4.96, 3.05, 4.50),
    upright(6.08, 3.05, 4.50),
    upright(6.95, 3.05, 4.50),
    // the total
    across(4.72, 0.68, 6.10),
    upright(2.27, 4.50, 5.0),
    upright(3.20, 4.50, 5.0),
    upright(4.10, 4.50, 5.0),
    upright(5.02, 4.50, 5.0),
    upright(6.10, 4.50, 5.0),
};

}  // namespace tax_form

const pc::PaperForm taxForm{.paper = {},
                            .rowsPerInch = documentRows,
                            .columnsPerInch = documentColumns,
                            .fonts = tax_form::fonts,
                            .items = tax_form::places,
                            .copies = 2,
                            .copyRows = 35.07};
