#pragma once
// What the main window does by itself, without its window: the stock reset, the two repairs of the meter book, the
// texts of title and status line.
#include <QDateTime>
#include <QString>

#include "master/registers/pickers.h"
#include "store/session.h"

/** The maker's pages, opened after a question. */
QString makerAddress();

/** "LP가스 판매관리 - 해온판매!  Ver." + version + the maker's address */
QString mainWindowTitle();
/** The date in the long form of a Korean PC, "2026년 11월 24일 화요일" */
QString longDate(const QDate& date);
/** "오후 6:40:12" */
QString clockTime(const QTime& time);

/** Asks for the password and twice for a yes, then sets the stock columns of LPG to 0. Throws jet::Error. */
void initStock(Session& session, Pickers& pickers);

/** Writes book rows for months 0 to 12 of every customer billed by meter. Throws jet::Error, also on rows that are
 *  there already. */
void rebuildBookRows(Session& session);

/** The hidden clearing: asks, takes the access code and a first customer code, deletes the book rows from that code
 *  on and writes them anew. Lower codes stay. `busy` runs the work under the busy pointer. Throws jet::Error. */
void clearBook(Session& session, const std::function<void(const std::function<void()>&)>& busy);

/** True when the operator wants to leave. */
bool askToLeave(Session& session);
