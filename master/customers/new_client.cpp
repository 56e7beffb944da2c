#include "master/customers/new_client.h"

#include "master/customers/client_rows.h"
#include "master/customers/tel_format.h"
#include "master/registers/register_rules.h"
#include "store/data_access.h"
#include "store/jet/format_rules.h"

namespace {

QString newClientStatement(const ClientEntry& c, const QString& today) {
  const QString start =
      "Insert into Client(Name, Tel, PostCode, Address, "
      "Memo, HouseStyle, AppDate, PayWay, ";
  const QString common = "'" + plainText(c.name) + "', '" + plainText(c.tel) + "', '" +
                         plainText(c.postCode) + "', '" + plainText(c.address) + "', '" + plainText(c.memo) +
                         "', 0, '" + plainText(today) + "', 1, ";
  if (!c.volume) return start + "VolumeYesNo) Values(" + common + "False)";
  return start + "VolumeYesNo, VolumeUnit, Volume) Values(" + common + "True, " + typedNumber(c.volumeUnit) +
         ", '" + plainText(c.pressure) + "')";
}

}  // namespace

ClientEntry newClientFrom(const QString& searchText) {
  ClientEntry boxes;
  const QString text = searchText.trimmed();
  const bool number = !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) {
    return c.isDigit() || c == u'-' || c == u'.';
  });
  (number ? boxes.tel : boxes.name) = number ? FormatTel(text).text : text;
  return boxes;
}

ClientSaved saveNewClient(const Session& session, const ClientEntry& typed) {
  ClientEntry boxes = typed;
  boxes.tel = FormatTel(boxes.tel).text;
  const auto refuse = [&](const QString& text, const QString& title, ClientBox box) {
    session.prompts.MsgWarn(text, title);
    return ClientSaved{.focus = box};
  };
  if (boxes.name.isEmpty() && boxes.tel.isEmpty() && boxes.address.isEmpty()) {
    return refuse("성명/상호/전화번호/주소중 한 가지는 입력되어야 합니다!", "고객 관리자", ClientBox::Name);
  }
  if (boxes.volume && boxes.volumeUnit.isEmpty()) {
    return refuse("체적단가를 입력하십시오", "체적관리자", ClientBox::VolumeUnit);
  }
  if (boxes.volume && boxes.pressure.isEmpty()) {
    return refuse("압력조정기를 입력하십시오", "체적관리자", ClientBox::Pressure);
  }
  if (textTooLong(session, "Client", clientFields(boxes), clientLabels(), "고객 관리자")) return {};
  const QString today = jet::formatDate(session.pc.clock.now(), u"YYYY/MM/DD");
  return {.done = true, .code = addClient(session, newClientStatement(boxes, today), boxes.volume)};
}
