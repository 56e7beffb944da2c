#pragma once
// What the tests of statements and invoices share: books of March, recording printers, what stands where.
#include "papers/paper_printer.h"
#include "store/year_file.h"
#include "tests/documents/places.h"
#include "tests/recorded_print.h"
#include "tests/support.h"

namespace tests {

using namespace Qt::StringLiterals;

/** Words of a drawn form, parted by "|", at one x and their ys or the other way round. */
struct Words {
  const char* words;
  std::vector<double> xs, ys;
};

struct Goods {
  QString name = "LPG";
  int kind = 1;
  qint64 discount = 0;
};

/** A retailer and his customers 1, of every field, and 2, of a name and a telephone. */
struct DocumentDesk : testing::Test {
  DocumentDesk() {
    pc.openBooks(QDate(2026, 3, 31));
    session.printers = &printers;
    upgrades::makeDealList(session);
    session.dbBasic.Execute(
        "Insert Into User(Company, User, BusCode, Address, BusStyle, BusKind) Values('해온가스', '홍길동', "
        "'123-45-67891', '서울 중구 1', '소매', '가스')");
    session.dbBasic.Execute(
        "Insert Into Client(Name, Uname, Serial, Address, Status, Item, Tel) Values('한라식당', '김하나', "
        "'220-81-62517', '서울 강남 2', '음식', '한식', '555-1234')");
    session.dbBasic.Execute("Insert Into Client(Name, Tel) Values('바다식당', '555-9999')");
  }
  /** A line in the file of its year. */
  void sale(const QString& date, int client, qint64 unit, qint64 number, const Goods& goods = {}) {
    const jet::Database file =
        date.startsWith(session.WorkYear) ? session.dbYear : openYear(session, date.left(4));
    file.Execute(
        u"Insert Into Sale(SaleDate, ClientCode, SaleName, SaleThing, SaleUnit, SaleNum, SaleGubun, DC) "
        "Values('%1', %2, '%3', '20', %4, %5, %6, %7)"_s.arg(date)
            .arg(client)
            .arg(goods.name)
            .arg(unit)
            .arg(number)
            .arg(goods.kind)
            .arg(goods.discount));
  }
  /** The first field of a query's first row; "-" without one. */
  QString first(const jet::Database& db, const QString& sql) {
    const auto rows = db.OpenRecordset(sql);
    return rows.atEnd() ? "-" : rows[0].toText();
  }
  QString inYear(const QString& sql) { return first(session.dbYear, sql); }
  QString inTax(const QString& sql) { return first(session.dbTax, sql); }
  template <typename Desk>
  QString cells(Desk& desk, int line, std::initializer_list<int> columns) {
    QStringList found;
    for (const int each : columns) found << desk.grid().text(line, each);
    return found.join('|');
  }
  const RecordedJob& print(const DocumentRun& run) {
    runDocuments(onPrinter(session, printers.defaultName()), run);
    return *printers.jobs.back();
  }
  /** The text at a row and column of a copy. */
  QString at(const RecordedJob& job, int page, double y, double x) {
    const auto* item = job.at(page, x * column, y * row);
    return item ? item->text : "-";
  }
  /** Texts at their rows and columns, counted from a place of the sheet; "-" nothing. A line a row of the paper:
   *  "5: 20=123-45-67891|63=2208162517". */
  void expectTexts(const RecordedJob& job, int page, double top, double left, const QString& table) {
    for (const QString& line : table.trimmed().split('\n'))
      for (const QString& each : line.section(':', 1).split('|')) {
        const double y = line.section(':', 0, 0).toDouble(), x = each.section('=', 0, 0).toDouble();
        EXPECT_EQ(at(job, page, top + y, left + x), each.section('=', 1)) << "row " << y << ", column " << x;
      }
  }
  /** The words at their inches below each copy's edge; besides them the form has a mark on each copy and no other. */
  void expectWords(const RecordedJob& job, const std::vector<double>& edges,
                   const std::vector<Words>& table) {
    int words = int(edges.size());
    for (const double edge : edges)
      for (const Words& each : table) {
        const QStringList list = QString(each.words).split('|');
        for (int place = 0; place < list.size(); ++place, ++words) {
          const double x = each.xs[size_t(place) % each.xs.size()],
                       y = each.ys[size_t(place) % each.ys.size()];
          const auto* item = job.at(1, x, edge + y);
          EXPECT_EQ(item ? item->text : "-", list[place]) << x << ", " << y;
        }
      }
    EXPECT_EQ(std::ranges::count_if(job.items,
                                    [](const auto& item) {
                                      return item.kind == PrintedItem::Text && item.font.family == "돋움체";
                                    }),
              words);
  }
  static bool hasLine(const RecordedJob& job, double x, double y, double x2, double y2, double points = 0) {
    return std::ranges::any_of(job.items, [&](const auto& item) {
      return item.kind == PrintedItem::Line && qAbs(item.x - x) < 0.001 && qAbs(item.y - y) < 0.001 &&
             qAbs(item.x2 - x2) < 0.001 && qAbs(item.y2 - y2) < 0.001 &&
             (points == 0 || item.weight == points);
    });
  }
  /** Lines across at these heights, or upright at these places, each from one end to the other; below an edge. */
  static void expectLines(const RecordedJob& job, double edge, bool upright,
                          std::initializer_list<double> places, double from, double to, double points = 0.5) {
    for (const double at : places)
      EXPECT_TRUE(upright ? hasLine(job, at, edge + from, at, edge + to, points)
                          : hasLine(job, from, edge + at, to, edge + at, points))
          << (upright ? "upright at " : "across at ") << at << " from " << from;
  }
  /** All lines of a box, below an edge. */
  static bool hasBox(const RecordedJob& job, double edge, double x, double y, double x2, double y2) {
    return hasLine(job, x, edge + y, x2, edge + y) && hasLine(job, x, edge + y2, x2, edge + y2) &&
           hasLine(job, x, edge + y, x, edge + y2) && hasLine(job, x2, edge + y, x2, edge + y2);
  }
  static bool isTextAlone(const RecordedJob& job) {
    return std::ranges::all_of(job.items, [](const auto& item) { return item.kind == PrintedItem::Text; });
  }

  TestPc pc;
  Session& session = pc.session;
  RecordedPrinters printers;
};

}  // namespace tests
