#include "documents/statements/deal_sheet.h"

std::vector<SpreadColumn> dealColumns() {
  const auto shown = [](const char* header, double width, CellKind kind = CellKind::Text,
                        CellAlign align = CellAlign::Left) {
    return SpreadColumn{.header = header, .width = width, .kind = kind, .align = align, .locked = true};
  };
  const auto hidden = [](const char* header) {
    return SpreadColumn{.header = header, .locked = true, .hidden = true};
  };
  std::vector<SpreadColumn> columns{
      shown("매출일자", 11, CellKind::Text, CellAlign::Center),
      shown("매출처", 24),
      shown("상품명", 22),
      shown("규격", 10),
      {.header = "수량", .width = 8, .kind = CellKind::Integer, .align = CellAlign::Right},
      shown("단가", 11, CellKind::Money, CellAlign::Right),
      shown("판매금액", 13, CellKind::Money, CellAlign::Right),
      {.header = "발행", .width = 6, .kind = CellKind::CheckBox, .align = CellAlign::Center},
  };
  for (const char* header : {"코드", "일자", "거래처코드", "거래처명", "주코드", "dc금액"})
    columns.push_back(hidden(header));
  return columns;
}
