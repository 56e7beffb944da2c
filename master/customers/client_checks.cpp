#include "master/customers/client_checks.h"

#include <QDate>

#include "store/data_access.h"
#include "store/jet/text_rules.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double largestMoney = 999999999;
constexpr auto clientTitle = "고객 관리자";

enum class Lookup { Failed, Free, Taken };

Lookup lookUpClient(const Session& session, const QString& sql, jet::Recordset& hit) {
  if (!OpenSnapshot(session.prompts, session.dbBasic, hit, sql)) return Lookup::Failed;
  return hit.RecordCount() == 0 ? Lookup::Free : Lookup::Taken;
}

bool isDateOrEmpty(const QString& text) {
  return text.isEmpty() || QDate::fromString(text, u"yyyy-MM-dd"_s).isValid();
}

bool isMoney(const QString& text) {
  const double won = text.isEmpty() ? 0 : jet::numberOf(text).value_or(largestMoney + 1);
  return won >= -largestMoney && won <= largestMoney;
}

QString telStatement(const ClientEntry& boxes, const QString& tel) {
  const QString others = " or Tel1 = '" + plainText(tel) + "' or Tel2 = '" + plainText(tel) + "'";
  return boxes.houseStyle == HouseStyle::Individual
             ? "select * From Client Where Tel = '" + plainText(tel) + "'" + others
             : "Select * From Client Where Tel = '" + plainText(tel) + "'" + others;
}

/** True when the save must stop: the number is somebody's, or the question failed. */
bool telIsTaken(const Session& session, const ClientEntry& boxes, const QString& tel) {
  jet::Recordset hit;
  const Lookup answer = lookUpClient(session, telStatement(boxes, tel), hit);
  if (answer == Lookup::Taken) {
    const QString whose = "전화번호 : " + tel + "   이  름 : " + DisplayName(hit);
    session.prompts.MsgWarn(
        whose + (boxes.houseStyle == HouseStyle::Individual ? "\n이미 등록되어 있습니다!"
                                                            : " 은 이미 등록되어 있습니다!"),
        "주소 관리자");
  }
  return answer != Lookup::Free;
}

/** The statement that finds a namesake or the same household; '' when there is nothing to compare by. */
QString namesakeStatement(const ClientEntry& boxes) {
  if (boxes.houseStyle == HouseStyle::Individual) {
    return boxes.name.isEmpty() ? QString()
                                : "Select * From Client Where Name = '" + plainText(boxes.name) + "'";
  }
  if (boxes.bdName.isEmpty()) return {};
  return "Select * From client Where BDName = '" + plainText(boxes.bdName) + "' And Dong = '" +
         plainText(boxes.dong) + "' And Ho = '" + plainText(boxes.ho) + "'";
}

}  // namespace

std::optional<ClientBox> missingOrWrong(const Session& session, const ClientEntry& boxes) {
  const auto object = [&](const QString& text, const QString& title, ClientBox box) {
    session.prompts.MsgWarn(text, title);
    return box;
  };
  if (boxes.name.isEmpty() && boxes.tel.isEmpty() && boxes.address.isEmpty()) {
    return object("고객성명/전화번호/주소 중 한가지는 입력되어야 합니다!", clientTitle, ClientBox::Name);
  }
  if (boxes.volume && boxes.pressure.isEmpty()) {
    return object("압력조정기계수를 입력하십시오", "체적관리자", ClientBox::Pressure);
  }
  if (boxes.volume && boxes.volumeUnit.isEmpty()) {
    return object("체적단가를 입력하십시오", "체적관리자", ClientBox::VolumeUnit);
  }
  for (const auto& [text, box] :
       {std::pair{boxes.appDate, ClientBox::AppDate}, {boxes.birth, ClientBox::Birth}}) {
    if (!isDateOrEmpty(text)) {
      return object("날짜 입력이 올바르지 않습니다!\n입력예) " + session.pc.clock.dateText(), "날짜입력 에러",
                    box);
    }
  }
  for (const auto& [text, box] :
       {std::pair{boxes.gasInit, ClientBox::GasInit}, {boxes.utilInit, ClientBox::UtilInit}}) {
    if (!isMoney(text)) {
      return object("미수금은 -999,999,999원부터 999,999,999원까지 입력할 수 있습니다!", clientTitle, box);
    }
  }
  return {};
}

std::optional<ClientBox> takenAlready(const Session& session, const ClientEntry& boxes) {
  for (const auto& [tel, box] :
       {std::pair{boxes.tel, ClientBox::Tel}, {boxes.tel1, ClientBox::Tel1}, {boxes.tel2, ClientBox::Tel2}}) {
    if (!tel.isEmpty() && telIsTaken(session, boxes, tel)) return box;
  }
  const QString sql = namesakeStatement(boxes);
  if (sql.isEmpty()) return {};
  jet::Recordset hit;
  const Lookup answer = lookUpClient(session, sql, hit);
  if (answer == Lookup::Free) return {};
  if (answer == Lookup::Taken && session.prompts.MsgAsk("    이  름 : " + DisplayName(hit) +
                                                            "\n이미 등록되어 있습니다!\n"
                                                            "이름을 중복(동명이인)하시겠습니까?",
                                                        "자료중복")) {
    return {};
  }
  return ClientBox::Tel;
}
