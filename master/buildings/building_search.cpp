#include "master/buildings/building_search.h"

#include "store/data_access.h"

namespace {

QString styleClause(HouseStyle style) {
  return style == HouseStyle::Apartment ? "Gubun = True  " : "Gubun = False ";
}

}  // namespace

BuildingSearch::BuildingSearch(Session& session, HouseStyle style) : session_(session), style_(style) {
  buildings_.setColumns(
      {{.header = style == HouseStyle::Apartment ? "아파트명" : "다가구명", .width = 26, .locked = true},
       {.header = "동수", .width = 6, .kind = CellKind::Integer, .align = CellAlign::Right, .locked = true},
       {.header = "주소", .width = 44, .locked = true}});
  blocks_.setColumns(
      {{.header = "동", .width = 10, .align = CellAlign::Center, .locked = true},
       {.header = "층수", .width = 6, .kind = CellKind::Integer, .align = CellAlign::Right, .locked = true},
       {.header = "우편번호", .width = 10, .align = CellAlign::Center, .locked = true},
       {.header = "주소", .width = 44, .locked = true}});
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
