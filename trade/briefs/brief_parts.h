#pragma once
// What the descriptions of the trade side share: columns, questions, pieces of statements.
#include "briefs/brief.h"

/** The period's question and the boxes' name. */
inline const QString briefPeriod = "TxtDay";
BriefQuestion askPeriod(std::vector<int> pages = {});
BriefQuestion askName(std::vector<int> pages = {});

/** "TxtResponse" */
BriefQuestion askPerson(std::vector<int> pages = {});

/** General, volume, all: "OptGubun". */
BriefQuestion askSheet(std::vector<int> pages = {});
/** "Sale.Gubun = False And ", "Sale.Gubun = True And " or nothing. */
QString sheetCondition(const BriefAsk& ask);
/** "(일반)", "(체적)" or "(전체)". */
QString sheetName(const BriefAsk& ask);

/** The display name of the row's customer, from Name, HouseStyle, BDName, Dong, Ho. */
BriefColumn clientColumn(const QString& staged, bool key = false);
BriefColumn wonColumn(const QString& header, const QString& field, const QString& staged);
BriefColumn piecesColumn(const QString& header, const QString& field, const QString& staged);
BriefColumn textColumn(const QString& header, const QString& field, const QString& staged, double width);
/** A column nobody sees, for what is opened behind the row. */
BriefColumn hiddenColumn(const QString& field);

/** "LPG / 20" from SaleName and SaleThing; a collection's name alone. */
BriefColumn itemColumn(const QString& staged, double width = 22);
/** What was agreed on: paid and left on credit, from Income and Trust. */
BriefColumn amountColumn(const QString& staged);

/** The figures of a customer's or person's sales: 수량, 판매금액, D/C, 입금액, 미수금, staged as Lng01 to Lng05, of the
 *  fields SaleNum, Income, DC, Trust. */
std::vector<BriefColumn> saleFigures();

/** "조회기간= '3월 1일 - 3월 31일'" */
QString periodFormula(const BriefAsk& ask);

/** The lines behind a row whose last, hidden column is the customer's code; '' where there is none. */
QString clientBehind(const BriefAsk& ask, const BriefCells& cells);
/** A customer's lines from a summary: those of a period, or of the year up to today where there is none. */
QString linesOfClient(qint64 code, const QString& from, const QString& to);
