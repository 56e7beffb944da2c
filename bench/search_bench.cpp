// What the operator waits for while the customer is on the line, and a month's report over a year's lines.
#include <memory>

#include "bench/books.h"
#include "bench/pairs.h"
#include "master/customers/client_search.h"

namespace {

const int byFourDigits =
    bench::addPair({"finding customers by four digits",
                    1.3,
                    {1000, 10000, 100000},
                    [](int size, bench::Side& ours, bench::Side& plain) {
                      auto books = std::make_shared<bench::Books>();
                      books->addClients(size);
                      auto beside = std::make_shared<bench::Plain>(*books);
                      auto search = std::make_shared<ClientSearch>(books->session);
                      auto found = std::make_shared<int>(0);
                      ours.run = [books, search, found] {
                        search->find("4567", ClientSearchMode::All, false);
                        *found = search->list().MaxRows();
                      };
                      sqlite3_stmt* like = beside->prepare(
                          "SELECT * FROM Client WHERE (Tel LIKE '%' || ?1 || '%' OR Tel1 LIKE '%' || ?1 || "
                          "'%' OR Tel2 LIKE '%' || ?1 || "
                          "'%' OR Name LIKE '%' || ?1 || '%')");
                      plain.run = [beside, like, found] {
                        sqlite3_bind_text(like, 1, "4567", 4, SQLITE_STATIC);
                        int rows = 0;
                        qint64 sum = 0;
                        for (; sqlite3_step(like) == SQLITE_ROW; ++rows)
                          for (int column = 0; column < sqlite3_column_count(like); ++column)
                            sum += sqlite3_column_bytes(like, column);
                        sqlite3_reset(like);
                        bench::require(*found == 0 || rows == *found, "other customers");
                      };
                    },
                    9});

const int monthView =
    bench::addPair({"month view of the sale report: a year's lines by day and kind",
                    1.3,
                    {10000, 100000, 1000000},
                    [](int size, bench::Side& ours, bench::Side& plain) {
                      auto books = std::make_shared<bench::Books>();
                      books->addClients(1000);
                      books->addSales(books->session.dbYear, size, 1000);
                      auto beside = std::make_shared<bench::Plain>(*books);
                      auto kilograms = std::make_shared<double>(0);
                      ours.run = [books, kilograms] {
                        jet::Recordset days = books->session.dbYear.OpenRecordset(
                            "SELECT Sale.SaleDate, Sum(Sale.SaleNum) AS SaleNum, Sum(val(Sale.SaleThing) * "
                            "Sale.SaleNum) as SaleKG, "
                            "Sum(Sale.SaleUnit) AS SaleUnit, Sum(Sale.Income) AS Income, Sum(Sale.DC) AS DC, "
                            "Sum(Sale.Trust) AS Trust, "
                            "Sale.SaleGubun From Sale Where Sale.Gubun = False And not (Sale.SaleGubun = 7 "
                            "or Sale.SaleGubun = 8 or "
                            "Sale.SaleGubun = 4) and Sale.SaleDate like '2026*' GROUP BY Sale.SaleDate, "
                            "Sale.SaleGubun ORDER BY "
                            "Sale.SaleDate");
                        *kilograms = 0;
                        for (; !days.atEnd(); days.MoveNext()) *kilograms += days["SaleKG"].toDouble();
                      };
                      sqlite3_stmt* grouped = beside->prepare(
                          "SELECT SaleDate, SUM(SaleNum), SUM(CAST(SaleThing AS REAL) * SaleNum), "
                          "SUM(SaleUnit), SUM(Income), SUM(DC), "
                          "SUM(Trust), SaleGubun FROM y.Sale WHERE Gubun = 0 AND NOT (SaleGubun = 7 OR "
                          "SaleGubun = 8 OR SaleGubun = 4) "
                          "AND SaleDate LIKE '2026%' GROUP BY SaleDate, SaleGubun ORDER BY SaleDate");
                      plain.run = [beside, grouped, kilograms] {
                        double sum = 0;
                        while (sqlite3_step(grouped) == SQLITE_ROW) sum += sqlite3_column_double(grouped, 2);
                        sqlite3_reset(grouped);
                        bench::require(*kilograms == 0 || sum == *kilograms, "another sum");
                      };
                    },
                    3});

}  // namespace
