#include "trade/briefs/brief_parts.h"

#include "master/customers/client_entry.h"

BriefQuestion askPeriod(std::vector<int> pages) {
  return {.kind = AskKind::Period,
          .name = briefPeriod,
          .label = "조회기간",
          .help = "조회할 기간을 입력합니다   F12:달력",
          .pages = std::move(pages)};
}

BriefQuestion askName(std::vector<int> pages) {
  return {.kind = AskKind::Text,
          .name = "TxtName",
          .label = "고객명",
          .help = "고객명의 일부를 입력하면 그 고객만 조회합니다",
          .pages = std::move(pages)};
}

BriefQuestion askSheet(std::vector<int> pages) {
  return {.kind = AskKind::Options,
          .name = "OptGubun",
          .help = "조회할 고객의 구분을 선택합니다",
          .entries =
              [](const Session&, int) {
                return QStringList{"전체", "일반", "체적"};
              },
          .pages = std::move(pages)};
}

QString sheetCondition(const BriefAsk& ask) {
  static const QString conditions[] = {{}, "Sale.Gubun = False And ", "Sale.Gubun = True And "};
  return conditions[ask.place("OptGubun")];
}

QString sheetName(const BriefAsk& ask) {
  static const QString names[] = {"전체", "일반", "체적"};
  return names[ask.place("OptGubun")];
}

BriefColumn clientColumn(const QString& staged, bool key) {
  return {
      .header = "고객명", .width = 24, .staged = staged, .key = key, .cell = [](const jet::Recordset& rs) {
        return DisplayName(rs);
      }};
}

BriefColumn wonColumn(const QString& header, const QString& field, const QString& staged) {
  return {.header = header, .field = field, .look = BriefLook::Money, .staged = staged, .sum = true};
}

BriefColumn piecesColumn(const QString& header, const QString& field, const QString& staged) {
  return {
      .header = header, .field = field, .width = 9, .look = BriefLook::Pieces, .staged = staged, .sum = true};
}

BriefColumn textColumn(const QString& header, const QString& field, const QString& staged, double width) {
  return {.header = header, .field = field, .width = width, .staged = staged};
}

BriefColumn hiddenColumn(const QString& field) {
  return {.header = field, .field = field, .key = false, .hidden = true};
}

std::vector<BriefColumn> saleFigures() {
  return {piecesColumn("수량", "SaleNum", "Lng01"), wonColumn("판매금액", "Amount", "Lng02"),
          wonColumn("D/C", "DC", "Lng03"), wonColumn("입금액", "Income", "Lng04"),
          wonColumn("미수금", "Trust", "Lng05")};
}

QString periodFormula(const BriefAsk& ask) {
  const auto day = [](const QString& date) {
    return QString::number(date.mid(5, 2).toInt()) + "월 " + QString::number(date.mid(8).toInt()) + "일";
  };
  return "조회기간= '" + day(ask.from(briefPeriod)) + " - " + day(ask.to(briefPeriod)) + "'";
}

QString linesOfClient(qint64 code, const QString& from, const QString& to) {
  return briefAddress("frmAClientSaleBrief", "lines",
                      {{"TxtClient", QString::number(code)}, {"TxtDayFrom", from}, {"TxtDayTo", to}});
}
