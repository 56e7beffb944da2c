#include "billing/reading_sheet.h"

#include "store/date_text.h"
#include "store/session.h"
#include "store/vb.h"
#include "ui/model/column.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int lockedCell = 0xEEF2F6;  // pale sky: not for typing

SpreadColumn closed(SpreadColumn column) {
  return column::coloured(lockedCell, column::locked(std::move(column)));
}

SpreadColumn shown(const char* header, double width) {
  return closed(column::money(header, width));
}

SpreadColumn typed(const char* header, double width) {
  return column::limited(12, column::money(header, width));
}

SpreadColumn carried(const char* header) {
  return column::locked(column::hidden(header));
}

std::vector<SpreadColumn> readingColumns() {
  return {closed(column::text("상호/성명", 20)),
          shown("전월검침", 10),
          typed("당월검침", 10),
          shown("사용량", 9),
          shown("사용금액", 11),
          shown("미수금", 11),
          typed("연체료", 9),
          typed("안전관리비", 10),
          shown("발행금액", 11),
          typed("당월수금", 11),
          column::tick("발행", 5),
          column::limited(10, column::centred("수금일", 7)),
          carried("고객코드"),
          carried("체적단가"),
          carried("주소"),
          carried("전화"),
          carried("성명"),
          carried("결제"),
          column::tick("납기후", 7),
          carried("건물명"),
          closed(column::text("판정", 11)),
          shown("전월사용", 9),
          shown("예상사용", 9)};
}

}  // namespace

ReadingSheet::ReadingSheet(Session& of) : session(of) {
  grid.setColumns(readingColumns());
  readingDay = today();
}

QString ReadingSheet::monthText() const {
  if (month < 0) return {};
  return isOpening() ? u"기초"_s : twoDigits(month);
}

QString ReadingSheet::buildingEntry() const {
  return buildings.value(building);
}

int ReadingSheet::calendarMonth() const {
  return session.pc.clock.today().month();
}

QString ReadingSheet::today() const {
  return session.pc.clock.today().toString(u"MM/dd"_s);
}

double ReadingSheet::number(int row, int col) const {
  return vb::Val(grid.text(row, col));
}

void ReadingSheet::setNumber(int row, int col, double value) {
  grid.setText(row, col, vb::CStr(value));
}

QString bookCaption(HouseStyle book) {
  switch (book) {
    case HouseStyle::Apartment:
      return u"체적아파트"_s;
    case HouseStyle::MultiHousehold:
      return u"체적다가구"_s;
    case HouseStyle::Individual:
      break;
  }
  return u"체적일반"_s;
}

QString readingHelp(int col) {
  switch (col) {
    case EvaCol::Name:
      return u"거래처명은 수정할 수 없습니다"_s;
    case EvaCol::PrevUseGage:
      return u"전월 검침량은 수정할 수 없습니다"_s;
    case EvaCol::UseGage:
      // Kept: nothing refuses the reading of another month.
      return u"현재달 이외의 검침량은 수정할 수 없습니다, 검침원 입력:F5"_s;
    case EvaCol::UseMuch:
      return u"당월의 가스사용량은 나타내며 수정할 수 없습니다"_s;
    case EvaCol::UsePay:
      return u"당월의 가스사용금액을 나타내며 수정할 수 없습니다"_s;
    case EvaCol::Trust:
      return u"전월의 발행금액을 나타내며 수정할 수 없습니다"_s;
    case EvaCol::Manage:
      return u"현재 설정된 안전관리비입니다"_s;
    case EvaCol::Total:
      return u"발행금액 = 당월금액 + 미수금 + 연체료 + 안전관리비 - 당월수금"_s;
    case EvaCol::Pay:
      return u"당월의 수금액을 조회/입력합니다,  수금원 입력:F5"_s;
    case EvaCol::Prnt:
      return u"지로용지 발행여부를 나타냅니다"_s;
    case EvaCol::TrustDay:
      return u"수금일자를 입력/수정합니다"_s;
    case EvaCol::PayDelayed:
      return u"납기후에 수금한 경우 체크해 주세요.(단, 수금액에 연체료 미포함시만 해당)"_s;
    default:
      return {};
  }
}
