#include "billing/household_questions.h"

#include "store/data_access.h"
#include "store/house_style.h"
#include "store/session.h"

using namespace Qt::StringLiterals;

namespace {

BriefQuestion askPart(const QString& name, const QString& label, std::vector<int> pages, bool anew) {
  return {
      .kind = AskKind::Text,
      .name = name,
      .label = label,
      .help = label + (label == u"동" ? u"을"_s : u"를"_s) + u" 입력하면 그 "_s + label + u"만 조회합니다"_s,
      .pages = std::move(pages),
      .anew = anew};
}

}  // namespace

QStringList buildingsOf(const Session& session, int book) {
  if (HouseStyle(book) == HouseStyle::Individual) return {};
  QStringList entries{u"전체"_s};
  jet::Recordset rs;
  if (!OpenSnapshot(session.prompts, session.dbYear, rs,
                    u"Select Distinct BDName From Client Where VolumeYesNo = True And HouseStyle = "_s +
                        QString::number(book)))
    return entries;
  for (; !rs.atEnd(); rs.MoveNext())
    if (const QString name = rs[u"BDName"_s].toText(); !name.isEmpty()) entries << name;
  return entries;
}

QString chosenBuilding(const BriefAsk& ask, const QString& question) {
  return ask.place(question) > 0 ? ask.text(question) : QString();
}

BriefQuestion askDong(std::vector<int> pages, bool anew) {
  return askPart(u"txtDong"_s, u"동"_s, std::move(pages), anew);
}

BriefQuestion askHo(std::vector<int> pages, bool anew) {
  return askPart(u"txtHo"_s, u"호"_s, std::move(pages), anew);
}
