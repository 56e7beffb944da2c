#include "master/customers/client_lookup.h"

bool lookUpPostCode(const Session& session, Pickers& pickers, ClientEntry& boxes) {
  const auto place = pickers.searchPostCode(boxes.postCode);
  if (!place) {
    session.prompts.MsgWarn("등록된 우편번호나 읍/면/동 이름이 아닙니다!", "주소 관리자");
    return false;
  }
  boxes.postCode = place->zipCode;
  boxes.address = place->address;
  return true;
}

bool lookUpRegulator(Pickers& pickers, ClientEntry& boxes) {
  const auto regulator = pickers.searchVolume();
  if (!regulator) return false;
  boxes.pressure = regulator->size;
  boxes.volumeUnit = jet::Value(regulator->unit).toText();
  return true;
}

bool lookUpBuilding(Pickers& pickers, ClientEntry& boxes) {
  const auto block = pickers.searchBuilding(boxes.houseStyle);
  if (!block) return false;
  boxes.bdName = block->name;
  boxes.dong = block->dong;
  boxes.postCode = block->postCode;
  boxes.address = block->address;
  return true;
}
