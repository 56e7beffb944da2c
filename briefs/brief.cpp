#include "briefs/brief.h"

#include <QUrl>

#include "store/data_access.h"

using namespace Qt::StringLiterals;

const BriefAnswer& BriefAsk::operator[](const QString& name) const {
  static const BriefAnswer none;
  const auto found = answers.constFind(name);
  return found == answers.constEnd() ? none : *found;
}

QString briefAddress(const QString& form, const QString& page,
                     const QList<std::pair<QString, QString>>& answers) {
  QStringList parts;
  for (const auto& [name, value] : answers)
    parts << name + u'=' + QString::fromLatin1(QUrl::toPercentEncoding(value));
  return form + u':' + page + u'?' + parts.join(u'&');
}

BriefAddress readBriefAddress(const QString& page) {
  BriefAddress address{.page = page.section(u'?', 0, 0)};
  for (const QString& part : page.section(u'?', 1).split(u'&', Qt::SkipEmptyParts))
    address.answers.append(
        {part.section(u'=', 0, 0), QUrl::fromPercentEncoding(part.section(u'=', 1).toLatin1())});
  return address;
}

QString briefDays(const QString& field, const BriefAsk& ask, const QString& period) {
  return plainPath(field) + u" >= '"_s + plainText(ask.from(period)) + u"' And "_s + plainPath(field) +
         u" <= '"_s + plainText(ask.to(period)) + u"' "_s;
}
