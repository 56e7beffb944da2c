#include "master/buildings/building_register.h"

#include <QHash>

#include <map>

#include "store/data_access.h"

using namespace Qt::StringLiterals;

namespace {

const QString buildingTitle = u"건물관리자"_s;
constexpr int householdsColumn = 6;

bool ticked(const RegisterFields& fields, const QString& name) {
  return fields[name].toInt() != 0;
}

/** Of a metered block alone. */
RegisterColumn ofMetered(const QString& field, const SpreadColumn& look) {
  return computes(look, [field](const RegisterFields& record) {
    return ticked(record, u"Evaporation"_s) ? record[field] : QString();
  });
}

RegisterList buildingList(HouseStyle style) {
  const bool apartment = style == HouseStyle::Apartment;
  return {
      apartment ? u"Select * From APT Where Gubun = True  "_s : u"Select * From APT Where Gubun = False "_s,
      {field::text(u"Name"_s, apartment ? u"아파트명"_s : u"다가구명"_s, 20),
       field::centred(u"Dong"_s, u"동"_s, 7),
       computes(column::centred(u"세대구조"_s, 9),
                [](const RegisterFields& record) {
                  return ticked(record, u"Structure"_s) ? u"계단식"_s : u"복도식"_s;
                }),
       field::integer(u"Height"_s, u"층수"_s, 5), field::integer(u"Width"_s, u"층당세대"_s, 9),
       field::money({}, u"세대수"_s, 7),  // dressList counts them
       ofMetered(u"Pressure"_s, column::centred(u"압력조정기"_s, 11)),
       ofMetered(u"Eva"_s, column::money(u"체적단가"_s, 9)), field::number(u"delaypay"_s, u"연체료율"_s, 9),
       field::centred(u"PostCode"_s, u"우편번호"_s, 9), field::text(u"Address"_s, u"주소"_s, 36)}};
}

}  // namespace

BuildingRegister::BuildingRegister(Session& session, HouseStyle style)
    : RegisterRules(session, {u"APT"_s}, buildingTitle, buildingList(style)), style_(style) {
  ::showUnits(units_, {}, true);
}

/** The households that stand: a block left half made by a power cut shows here. */
void BuildingRegister::dressList() {
  jet::Recordset counts;
  if (!OpenSnapshot(session_.prompts, session_.dbBasic, counts,
                    u"Select BDName, Dong, Count(Ho) As C From Client Where HouseStyle = "_s +
                        QString::number(int(style_)) + u" Group By BDName, Dong"_s))
    return;
  QHash<QString, QString> households;
  for (; !counts.atEnd(); counts.MoveNext())
    households[counts[u"BDName"_s].toText() + u'\n' + counts[u"Dong"_s].toText()] = counts[u"C"_s].toText();
  for (int row = 1; row <= list_.MaxRows(); ++row)
    list_.setText(row, householdsColumn,
                  households.value(list_.text(row, 1) + u'\n' + list_.text(row, 2), u"0"_s));
}

RegisterFields BuildingRegister::blank() const {
  return {{u"Structure"_s, u"-1"_s}, {u"Chk4"_s, u"-1"_s}, {u"Chk4Ho"_s, u"-1"_s}};
}

// --- the units ----------------------------------------------------------------------------------------------

void BuildingRegister::showUnits(const RegisterFields& boxes) {
  if (!isNew()) return showHouseholds();
  const BuildingPlan plan{.floors = boxes[u"Height"_s].toInt(),
                          .width = boxes[u"Width"_s].toInt(),
                          .staircase = ticked(boxes, u"Structure"_s),
                          .floor4 = ticked(boxes, u"Chk4"_s),
                          .unit4 = ticked(boxes, u"Chk4Ho"_s)};
  if (plan_ == plan) return;
  plan_ = plan;
  std::vector<QStringList> floors;
  const bool sensible =
      plan.width > 0 && plan.width <= BuildingPlan::Most && plan.floors <= BuildingPlan::Most;
  for (const std::vector<int>& floor : unitNumbers(sensible ? plan : BuildingPlan())) {
    QStringList& texts = floors.emplace_back();
    for (const int number : floor) texts << QString::number(number);
  }
  ::showUnits(units_, floors, false);
}

void BuildingRegister::showHouseholds() {
  plan_.reset();
  std::map<int, QStringList> floors;
  jet::Recordset households;
  if (selectedRow() &&
      OpenSnapshot(session_.prompts, session_.dbBasic, households,
                   u"Select Ho From Client Where BDName = '"_s + plainText(record()[u"Name"_s]) +
                       u"' And Dong = '"_s + plainText(record()[u"Dong"_s]) +
                       u"' And Ho Is Not Null Order By Val(Ho), Ho"_s)) {
    for (; !households.atEnd(); households.MoveNext()) {
      const QString unit = households[0].toText();
      floors[unit.toInt() / 100] << unit;
    }
  }
  std::vector<QStringList> fromBelow;
  fromBelow.reserve(floors.size());
  for (auto& [floor, units] : floors) fromBelow.push_back(units);
  ::showUnits(units_, fromBelow, true);
}

// --- save and delete ----------------------------------------------------------------------------------------

RegisterRules::Outcome BuildingRegister::checkRequired(const RegisterFields& boxes) {
  const auto missing = [&](const QString& column) { return typedNumber(boxes[column]).toDouble() <= 0; };
  const auto tooMany = [&](const QString& column) { return boxes[column].toInt() > BuildingPlan::Most; };
  if (boxes[u"Name"_s].isEmpty()) return refuse(u"건물명은 필수입력사항입니다!"_s, buildingTitle, u"Name"_s);
  if (boxes[u"Dong"_s].isEmpty()) return refuse(u"동명은 필수입력사항입니다!"_s, buildingTitle, u"Dong"_s);
  if (missing(u"Height"_s)) return refuse(u"층수는 필수입력사항입니다!"_s, buildingTitle, u"Height"_s);
  if (missing(u"Width"_s)) return refuse(u"층당 세대수는 필수입력사항입니다!"_s, buildingTitle, u"Width"_s);
  if (tooMany(u"Height"_s) || tooMany(u"Width"_s))
    return refuse(u"층수와 층당 세대수는 99까지 입력할 수 있습니다!"_s, buildingTitle,
                  tooMany(u"Height"_s) ? u"Height"_s : u"Width"_s);
  if (boxes[u"PostCode"_s].isEmpty())
    return refuse(u"우편번호는 필수입력사항입니다!"_s, buildingTitle, u"PostCode"_s);
  if (boxes[u"Address"_s].isEmpty())
    return refuse(u"주소는 필수입력사항입니다!"_s, buildingTitle, u"Address"_s);
  if (!ticked(boxes, u"Evaporation"_s)) return {true};
  if (boxes[u"Pressure"_s].isEmpty())
    return refuse(u"압력조정기 입력은 필수사항입니다!"_s, buildingTitle, u"Pressure"_s);
  if (missing(u"Eva"_s)) return refuse(u"체적단가 입력은 필수사항입니다!"_s, buildingTitle, u"Eva"_s);
  return {true};
}

RegisterRules::Outcome BuildingRegister::checkTwin(const Building& building) {
  const Found twin = lookFor(u"Select * From APT Where Name = '"_s + plainText(building.name) +
                             u"' And Dong = '"_s + plainText(building.dong) + u"'"_s);
  if (twin == Found::Failed) return {};
  if (twin == Found::Something)
    return refuse(building.name + u' ' + building.dong + u"동은 이미 등록되어 있습니다!"_s, buildingTitle,
                  u"Dong"_s);
  return {true};
}

Building BuildingRegister::building(const RegisterFields& boxes) const {
  const bool metered = ticked(boxes, u"Evaporation"_s);
  return {.houseStyle = style_,
          .name = boxes[u"Name"_s],
          .dong = boxes[u"Dong"_s],
          .postCode = boxes[u"PostCode"_s],
          .address = boxes[u"Address"_s],
          .staircase = ticked(boxes, u"Structure"_s),
          .floors = boxes[u"Height"_s].toInt(),
          .width = boxes[u"Width"_s].toInt(),
          .metered = metered,
          .pressure = metered ? boxes[u"Pressure"_s] : QString(),
          .unitPrice = metered ? boxes[u"Eva"_s] : QString(),
          .lateRate = boxes[u"delaypay"_s]};
}

RegisterRules::Outcome BuildingRegister::insert(const RegisterFields& boxes) {
  if (Outcome required = checkRequired(boxes); !required.done) return required;
  const Building made = building(boxes);
  if (Outcome single = checkTwin(made); !single.done) return single;
  showUnits(boxes);
  const QStringList units = unitsAsShown(units_, made.staircase);
  {
    // The teller's window goes before the box comes.
    const auto tell = beginWork ? beginWork(int(units.size())) : nullptr;
    makeBuilding(session_, made, units, tell);
  }
  session_.prompts.MsgInfo(u"건물등록을 마쳤습니다"_s, buildingTitle);
  return {true};
}

RegisterRules::Outcome BuildingRegister::change(const RegisterFields& boxes) {
  if (Outcome required = checkRequired(boxes); !required.done) return required;
  Building changed = building(boxes);
  changed.name = record()[u"Name"_s];
  const QString oldDong = record()[u"Dong"_s];
  if (changed.dong != oldDong)
    if (Outcome single = checkTwin(changed); !single.done) return single;
  session_.prompts.MsgWarn(u"선택하신 건물의 모든 가구에 대한 내용이 수정됩니다."_s, buildingTitle);
  return changeChosen(boxes, buildingTitle,
                      [&](const RowChange&, const RegisterFields& row, const RegisterFields& stored) {
                        Building merged = building(row);
                        merged.name = stored[u"Name"_s];
                        changeBuilding(session_, merged, record()[u"Code"_s], stored[u"Dong"_s],
                                       ticked(stored, u"Evaporation"_s));
                      });
}

RegisterRules::Outcome BuildingRegister::erase() {
  if (!selectedRow()) return {};
  if (!session_.prompts.MsgAsk(record()[u"Name"_s] + u' ' + record()[u"Dong"_s] +
                                   u"동\n선택된 건물의 자료와 고객현황을 모두 지우시겠습니까?"_s,
                               buildingTitle, false) ||
      !session_.prompts.MsgAsk(u"삭제는 선택된 건물에 대한 모든 메뉴에서의 자료를 삭제합니다!\n"
                               u"삭제하시겠습니까?"_s,
                               buildingTitle, false))
    return {};
  return eraseAsShown(buildingTitle, [&] {
    removeBuilding(session_, record()[u"Code"_s], record()[u"Name"_s], record()[u"Dong"_s]);
  });
}

RegisterRules::Outcome BuildingRegister::saveWithoutRow(const RegisterFields& boxes) {
  if (boxes[u"Name"_s].isEmpty()) return refuse(u"수정할 건물/동을 선택하십시오!"_s, buildingTitle);
  return refuse(u"신규등록은 신규버튼을 누른 후 입력하십시오"_s, buildingTitle);
}
