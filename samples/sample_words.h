#pragma once
// The words the made-up retailer is put together from.
#include <array>

namespace samples {

inline constexpr std::array surnames{"김", "이", "박", "최", "정", "강", "조",
                                     "윤", "장", "임", "한", "오", "서", "신"};
inline constexpr std::array givenNames{"민수", "영희", "철호", "순자", "정훈", "미경", "상철",
                                       "옥순", "동현", "혜진", "병국", "말숙", "재호", "은주",
                                       "태식", "금자", "성민", "현숙", "종팔", "경아"};
inline constexpr std::array shopNames{"한빛", "옛날", "시골", "장터", "새마을", "삼거리", "느티나무",
                                      "큰손", "원조", "남도", "바다", "강변",   "역전",   "황토"};
inline constexpr std::array shopKinds{"식당", "분식", "반점", "갈비", "다방", "국밥", "제과", "세탁소"};

struct Village {
  const char *dong, *zipCode;
};
inline constexpr std::array<Village, 8> villages{{{"장터동", "712-010"},
                                                  {"솔밭동", "712-020"},
                                                  {"물레동", "712-030"},
                                                  {"은행동", "712-040"},
                                                  {"갈대면", "712-811"},
                                                  {"두루면", "712-821"},
                                                  {"바람면", "712-831"},
                                                  {"새터읍", "712-901"}}};
inline constexpr char province[] = "경북", city[] = "달빛시";

struct Gas {
  const char* name;
  int size, purchase, selling, canPurchase, canSelling;  // kg, won
};
inline constexpr std::array<Gas, 6> gases{{{"LPG", 20, 18000, 27000, 28000, 35000},
                                           {"LPG", 50, 43000, 66000, 52000, 65000},
                                           {"LPG", 10, 10000, 15000, 19000, 25000},
                                           {"LPG", 13, 12000, 18500, 22000, 28000},
                                           {"부탄", 20, 17000, 25500, 28000, 35000},
                                           {"LPG", 3, 4000, 6500, 9000, 12000}}};

struct Material {
  const char *name, *size, *unit;
  int purchase, selling;  // won
};
inline constexpr std::array<Material, 12> materials{{{"염화비닐호스", "9mm", "M", 600, 1500},
                                                     {"염화비닐호스", "12mm", "M", 800, 2000},
                                                     {"퓨즈콕", "3/8", "개", 4500, 9000},
                                                     {"중간밸브", "1/2", "개", 5200, 11000},
                                                     {"가스렌지", "2구", "대", 38000, 55000},
                                                     {"가스렌지", "3구", "대", 62000, 89000},
                                                     {"저압조정기", "4kg", "개", 7000, 14000},
                                                     {"저압조정기", "10kg", "개", 16000, 28000},
                                                     {"자동절체기", "50kg", "개", 45000, 70000},
                                                     {"가스경보기", "분리형", "대", 21000, 38000},
                                                     {"용기덮개", "20kg", "개", 3000, 7000},
                                                     {"호스밴드", "9mm", "개", 100, 500}}};

inline constexpr std::array staff{"홍길수", "나대로", "방지훈", "고은석", "차영태"};
inline constexpr std::array stations{"달빛충전소", "새벽가스충전소", "동부에너지"};

}  // namespace samples
