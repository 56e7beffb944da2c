#include "store/jet/known_functions.h"

namespace jet {

using namespace Qt::StringLiterals;

const KnownFunction* knownFunction(QStringView capitals) {
  static constexpr KnownFunction all[] = {
      {"ABS"_L1, "abs"_L1, 1, 1, Holds::Floating},
      {"CCUR"_L1, "jet_ccur"_L1, 1, 1, Holds::Floating},
      {"CDBL"_L1, "jet_cdbl"_L1, 1, 1, Holds::Floating},
      {"CINT"_L1, "jet_cint"_L1, 1, 1, Holds::Whole},
      {"CLNG"_L1, "jet_clng"_L1, 1, 1, Holds::Whole},
      {"CSTR"_L1, "jet_cstr"_L1, 1, 1, Holds::Text},
      {"FIX"_L1, "jet_fix"_L1, 1, 1, Holds::Floating},
      {"FORMAT"_L1, "jet_format"_L1, 1, 2, Holds::Text},
      {"INSTR"_L1, "jet_instr"_L1, 2, 3, Holds::Whole},
      {"INT"_L1, "jet_int"_L1, 1, 1, Holds::Floating},
      {"ISNUMERIC"_L1, "jet_isnumeric"_L1, 1, 1, Holds::YesNo},
      {"LCASE"_L1, "jet_lcase"_L1, 1, 1, Holds::Text},
      {"LEFT"_L1, "jet_left"_L1, 2, 2, Holds::Text},
      {"LEN"_L1, "jet_len"_L1, 1, 1, Holds::Whole},
      {"LTRIM"_L1, "jet_ltrim"_L1, 1, 1, Holds::Text},
      {"MID"_L1, "jet_mid"_L1, 2, 3, Holds::Text},
      {"RIGHT"_L1, "jet_right"_L1, 2, 2, Holds::Text},
      {"ROUND"_L1, "jet_round"_L1, 1, 2, Holds::Floating},
      {"RTRIM"_L1, "jet_rtrim"_L1, 1, 1, Holds::Text},
      {"TRIM"_L1, "jet_trim"_L1, 1, 1, Holds::Text},
      {"UCASE"_L1, "jet_ucase"_L1, 1, 1, Holds::Text},
      {"VAL"_L1, "jet_val"_L1, 1, 1, Holds::Floating},
  };
  for (const auto& each : all)
    if (capitals == each.name) return &each;
  return nullptr;
}

}  // namespace jet
