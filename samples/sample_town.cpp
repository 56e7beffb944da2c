#include "samples/sample_town.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

namespace samples {

QString text(const char* utf8) {
  return QString::fromUtf8(utf8);
}
QString quoted(const QString& value) {
  return u'\'' + value + u'\'';
}
QString quoted(const char* utf8) {
  return quoted(text(utf8));
}
QString number(qint64 value) {
  return QString::number(value);
}
QString yesNo(bool yes) {
  return yes ? u"True"_s : u"False"_s;
}

Town::Town(Session& of)
    : session(of),
      basic(of.dbBasic),
      post(of.wsMain.OpenDatabase(of.DbPath + "dbPost.mdb")),
      lastYear(of.wsMain.OpenDatabase(yearFile(of, of.WorkYear.toInt() - 1))),
      thisYear(of.dbYear) {}

QString Town::tail() {
  return QString::number(dice.roll(10000)).rightJustified(4, u'0');
}

QString Town::telephone() {
  QString last;
  do last = tail();
  while (tails_.contains(last));
  tails_ << last;
  return text("053-") + number(200 + dice.roll(700)) + u'-' + last;
}

QString Town::address(const Village& village) {
  return text(province) + u' ' + text(city) + u' ' + text(village.dong) + u' ' + number(1 + dice.roll(1200)) +
         u'-' + number(1 + dice.roll(30));
}

}  // namespace samples
