#include "store/rate_book.h"

#include "store/data_access.h"
#include "store/session.h"
#include "store/settings_table.h"

using namespace Qt::StringLiterals;

namespace {

/** Kept: these columns are read in single precision, and its error goes on into the charge. */
double singlePrecision(const jet::Value& rate) {
  return double(float(rate.toDouble()));
}

}  // namespace

bool readRateBook(Session& session) {
  session.rates = {};
  jet::Recordset user;
  if (!OpenSnapshot(session.prompts, session.dbBasic, user, u"Select * From User"_s) || user.atEnd())
    return false;
  session.rates.books = {{{singlePrecision(user["Rate"]), user["Security"].toDouble()},
                          {user["APTRate"].toDouble(), user["APTSecurity"].toDouble()},
                          {singlePrecision(user["ManyRate"]), user["ManySecurity"].toDouble()}}};
  return true;
}

void setAfterDueMethod(Session& session, int method) {
  session.AfterDueMethod = method;
  session.pc.settings.write(setting::AfterDueMethod, QString::number(method));
}
