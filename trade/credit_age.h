#pragma once
// How old a customer's credit is: money received pays the oldest lines first, so the newest lines make up what is owed.
#include <QDate>
#include <QHash>

#include <array>
#include <vector>

struct Session;

/** Won owed since up to 30 days, up to 60, up to 90, and longer. */
using CreditAges = std::array<qint64, 4>;

/** A day's credit lines of one customer. */
struct CreditDay {
  QDate day;
  qint64 trust = 0;  ///< won left on credit that day
};

/** days: in the order of time. What they do not cover is older than all of them. A balance that is not above 0 has no
 *  age. A day to come counts as today. */
CreditAges ageCredit(qint64 balance, const std::vector<CreditDay>& days, const QDate& today);

enum class CreditKind { Gas, Material };

/** What is owed follows from the lines of every later year too: the clock may have been put back into an older one. */
constexpr int creditsLastYear = 9999;

/** Every customer's credit days since 90 days before the clock's day, by code: older ones count alike. False after a
 *  failure has been told. */
bool readCreditDays(Session& session, CreditKind kind, QHash<qint64, std::vector<CreditDay>>& days);
