#include "master/buildings/building_search.h"

#include "store/data_access.h"
#include "ui/model/column.h"

namespace {

QString styleClause(HouseStyle style) {
  return style == HouseStyle::Apartment ? "Gubun = True  " : "Gubun = False ";
}

}  // namespace

BuildingSearch::BuildingSearch(Session& session, HouseStyle style) : session_(session), style_(style) {
  buildings_.setColumns(
      column::shown({column::text(style == HouseStyle::Apartment ? "아파트명" : "다가구명", 26),
                     column::integer("동수", 6), column::text("주소", 44)}));
  blocks_.setColumns(column::shown({column::centred("동", 10), column::integer("층수", 6),
                                    column::centred("우편번호", 10), column::text("주소", 44)}));
}

bool BuildingSearch::loadBuildings() {
  jet::Recordset apt;
  if (!OpenSnapshot(session_.prompts, session_.dbBasic, apt,
                    "Select * From APT Where " + styleClause(style_) + "Order By Name, Dong")) {
    return false;
  }
  std::vector<std::vector<QString>> rows;
  for (; !apt.atEnd(); apt.MoveNext()) {
    const QString name = apt["Name"].toText();
    if (rows.empty() || rows.back().front() != name) rows.push_back({name, "0", apt["Address"].toText()});
    rows.back()[1] = QString::number(rows.back()[1].toInt() + 1);
  }
  const bool any = !rows.empty();
  buildings_.setRows(std::move(rows));
  if (!any) session_.prompts.MsgInfo("등록된 건물이 없습니다!", "건물관리자");
  return any;
}

bool BuildingSearch::loadBlocks(const QString& name) {
  jet::Recordset apt;
  if (!OpenSnapshot(session_.prompts, session_.dbBasic, apt,
                    "Select * From APT Where " + styleClause(style_) + "And Name = '" + plainText(name) +
                        "' Order By Dong")) {
    return false;
  }
  std::vector<std::vector<QString>> rows;
  for (; !apt.atEnd(); apt.MoveNext()) {
    rows.push_back(
        {apt["Dong"].toText(), apt["Height"].toText(), apt["PostCode"].toText(), apt["Address"].toText()});
  }
  blocks_.setRows(std::move(rows));
  return true;
}

std::optional<BuildingChoice> BuildingSearch::choice(const QString& name, const QString& dong) const {
  jet::Recordset apt;
  if (!OpenSnapshot(
          session_.prompts, session_.dbBasic, apt,
          "Select * From APT Where Dong = '" + plainText(dong) + "' And Name = '" + plainText(name) + "'") ||
      apt.atEnd()) {
    return {};
  }
  return BuildingChoice{apt["Name"].toText(), apt["Dong"].toText(), apt["PostCode"].toText(),
                        apt["Address"].toText()};
}
