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

BriefQuestion askPerson(std::vector<int> pages) {
  return {.kind = AskKind::Person,
          .name = "TxtResponse",
          .label = "담당자",
          .help = "F12로 담당자를 선택하세요.  지움 : DELETE",
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

BriefColumn itemColumn(const QString& staged, double width) {
  return {.header = "품명 / 용량", .width = width, .staged = staged, .cell = [](const jet::Recordset& rs) {
            const QString name = rs["SaleName"].toText(), size = rs["SaleThing"].toText();
            return size.isEmpty() || size == "0" ? name : name + " / " + size;
          }};
}

BriefColumn amountColumn(const QString& staged) {
  BriefColumn column = wonColumn("판매금액", {}, staged);
  column.cell = [](const jet::Recordset& rs) {
    return QString::number(rs["Income"].toLong() + rs["Trust"].toLong());
  };
  return column;
}

std::vector<BriefColumn> saleFigures() {
  return {piecesColumn("수량", "SaleNum", "Lng01"), amountColumn("Lng02"), wonColumn("D/C", "DC", "Lng03"),
          wonColumn("입금액", "Income", "Lng04"), wonColumn("미수금", "Trust", "Lng05")};
}

QString periodFormula(const BriefAsk& ask) {
  const auto day = [](const QString& date) {
    return QString::number(date.mid(5, 2).toInt()) + "월 " + QString::number(date.mid(8).toInt()) + "일";
  };
  return "조회기간= '" + day(ask.from(briefPeriod)) + " - " + day(ask.to(briefPeriod)) + "'";
}

QString linesOfClient(qint64 code, const QString& from, const QString& to) {
  QList<std::pair<QString, QString>> answers{{"TxtClient", QString::number(code)}};
  if (!from.isEmpty()) answers << std::pair{"TxtDayFrom", from} << std::pair{"TxtDayTo", to};
  return briefAddress("frmAClientSaleBrief", "lines", answers);
}

QString clientBehind(const BriefAsk& ask, const BriefCells& cells) {
  const qint64 code = cells.back().toLongLong();
  return code > 0 ? linesOfClient(code, ask.from(briefPeriod), ask.to(briefPeriod)) : QString();
}
