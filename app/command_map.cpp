#include "app/command_map.h"

#include <algorithm>
#include <iterator>

namespace command_map {

using enum CommandKind;
using enum CommandEntry::Flag;

constexpr CommandEntry commandTable[] = {
    {u"", u"MnuBasic", u"기초관리(&B)", Menu},
    {u"MnuBasic", u"Mnu_RefillState", u"충전소 등록", Form, u"frmRefillState", Relink},
    {u"MnuBasic", u"MnuClient", u"신규고객 등록", Form, u"frmClient", Relink},
    {u"MnuBasic", u"MnuResponse", u"배달담당 등록", Form, u"frmResponse", Relink},
    {u"MnuBasic", u"MnuGas", u"판매가스 등록", Form, u"frmGasUtil", Relink},
    {u"MnuBasic", u"MnuInitStock", u"재고 초기화", InitStock, u"", Relink | NeedsStock | Ruled},
    {u"MnuBasic", u"MnuBack", u"데이터백업 및 전송", Later, u"", Ruled},
    {u"MnuBasic", u"mnuDataManagerDN", u"데이터 내려받기", Later},
    {u"MnuBasic", u"mnuDataManagerAS", u"데이터 A/S", Later},
    {u"MnuBasic", u"mnuPath", u"작업경로 설정", Dialog, u"FrmPath"},
    {u"MnuBasic", u"MnuExit", u"종료", Exit, u"", Ruled},

    {u"", u"MnuLPG", u"가스관리(&G)", Menu},
    {u"MnuLPG", u"MnuIncome", u"가스 구매등록", Form, u"frmBuy:gas", Relink},
    {u"MnuLPG", u"MnuOutcome", u"가스 판매등록", Form, u"frmSale:gas", Relink},
    {u"MnuLPG", u"mnu거래명세표", u"거래명세표", Form, u"FrmDealList", Relink | Ruled},
    {u"MnuLPG", u"mnu세금계산서", u"세금계산서", Form, u"FrmTax", Relink},
    {u"MnuLPG", u"MnuEvaporationForecast", u"예상 배달현황", Form, u"frmVolumeEstimate", Relink | Ruled},
    {u"MnuLPG", u"MnuRes_Can", u"담당용기 재고현황", Form, u"frmResCAN", Relink | NeedsStock},
    {u"MnuLPG", u"MnuLPGSale", u"고객별 판매 현황", Form, u"frmLPGSaleBrief:client", Relink},
    {u"MnuLPG", u"MnuPerClient", u"일별 판매 현황", Form, u"frmLPGSaleBrief:day", Relink},
    {u"MnuLPG", u"MnuBetween", u"월별 판매 현황", Form, u"frmLPGSaleBrief:month", Relink},
    {u"MnuLPG", u"MnuRes", u"담당별 판매 현황", Form, u"frmResSaleBrief", Relink},
    {u"MnuLPG", u"MnuMiss", u"미수금 현황", Form, u"frmTrustBrief", Relink},
    {u"MnuLPG", u"MnuRemain", u"가스재고수불 현황", Form, u"frmHoldBrief", Relink | NeedsStock},
    {u"MnuLPG", u"MnuSaleBrief", u"전체 판매 현황", Form, u"frmSaleBrief", Relink},

    {u"", u"MnuEvaporation", u"체적관리(&V)", Menu},
    {u"MnuEvaporation", u"MnuEvaUtil", u"체적 단가 등록", Form, u"frmVolume", Relink},
    {u"MnuEvaporation", u"MnuIndivisualCheck", u"개별 검침 관리", Form, u"frmEva", Relink | Ruled, u"1"},
    {u"MnuEvaporation", u"MnuAPTCheck", u"APT 검침 관리", Form, u"frmEva", Relink, u"2"},
    {u"MnuEvaporation", u"MnuManyCheck", u"다가구검침관리", Form, u"frmEva", Relink, u"3"},
    {u"MnuEvaporation", u"MnuIndivisualTotal", u"개별 집계 현황", Form, u"frmEvaTotal", Relink | Ruled, u"1"},
    {u"MnuEvaporation", u"MnuAPTTotal", u"APT 집계 현황", Form, u"frmEvaTotal", Relink, u"2"},
    {u"MnuEvaporation", u"MnuManyTotal", u"다가구집계현황", Form, u"frmEvaTotal", Relink, u"3"},
    {u"MnuEvaporation", u"mnuAPTbaln", u"APT 미수 현황", Form, u"FrmAptBaln_rpt"},
    {u"MnuEvaporation", u"MnuBank", u"수납 은행 등록", Form, u"frmBank", Relink | Ruled},

    {u"", u"MnuCAN", u"용기관리(&C)", Menu},
    {u"MnuCAN", u"MnuName", u"상호별/기간별현황", Form, u"frmCANCompanyBrief", Relink},
    {u"MnuCAN", u"MnuUtilGas", u"용기별/기간별현황", Form, u"frmCANLPGBrief", Relink},
    {u"MnuCAN", u"MnuUtilRes", u"담당별/기간별현황", Form, u"frmCANResBrief", Relink},

    {u"", u"MnuUtil", u"시설관리(&U)", Menu},
    {u"MnuUtil", u"MnuUtilBuy", u"시설/자재구매등록", Form, u"frmBuy:material", Relink},
    {u"MnuUtil", u"MnuUtilSale", u"시설/자재판매등록", Form, u"frmSale:material", Relink},
    {u"MnuUtil", u"MnuUtilclient", u"고객별 판매현황", Form, u"frmUtilClientBrief", Relink | Ruled},
    {u"MnuUtil", u"MnuUtilMiss", u"판매 미수 현황", Form, u"frmUtilTrustBrief", Relink},
    {u"MnuUtil", u"MnuUtilResponse", u"판매담당별 현황", Form, u"frmResUtilBrief", Relink},
    {u"MnuUtil", u"MnuUtilInOut", u"시설재고 수불 현황", Form, u"frmUtilHoldBrief", Relink | NeedsStock},

    {u"", u"MnuContribution", u"보조관리(&A)", Menu},
    {u"MnuContribution", u"MnuUser", u"사용자 등록", Form, u"frmUser", Relink},
    {u"MnuContribution", u"MnuYearToYear", u"년도마감작업", Later, u"", Ruled},
    {u"MnuContribution", u"YearError", u"년도마감에러", YearError},
    {u"MnuContribution", u"MnuReIwol", u"체적검침 재이월", Later},
    {u"MnuContribution", u"ManyCashInOut", u"현금 출납장", Later, u"", Ruled},
    {u"MnuContribution", u"MnuCashBrief", u"현금출납조회", Later},
    {u"MnuContribution", u"MnuInList", u"수입 내역조회", Later},
    {u"MnuContribution", u"MnuOutList", u"지출 내역조회", Later},
    {u"MnuContribution", u"MnuCarRes", u"차량 등록", Form, u"frmCarRes", Relink | Ruled},
    {u"MnuContribution", u"MnuCaRepair", u"정비부품등록", Form, u"frmCaRepairUnit", Relink},
    {u"MnuContribution", u"MnuCaR", u"차량정비등록", Form, u"frmCar", Relink},
    {u"MnuContribution", u"MnuSafeNote", u"안전관리대장", Form, u"frmPrtSafe", Relink},
    {u"MnuContribution", u"mnuDM", u"DM 발송", Form, u"frmDm", Relink},
    {u"MnuContribution", u"mnuSMS", u"문자 발송", Form, u"FrmSMS", Ruled},
    {u"MnuContribution", u"mnuSchedule", u"스케줄 관리", Later},
    {u"MnuContribution", u"mnuSuKum", u"전자수납처리", Form, u"FrmSukum"},
    {u"MnuContribution", u"mnu_changeYear", u"PC년도 변경", Dialog, u"frmChangeYear"},

    {u"", u"MnuHelp", u"도움말(&H)", Menu},
    {u"MnuHelp", u"mnu_SeeIDSetUp", u"발신번호 환경설정", Menu},
    {u"mnu_SeeIDSetUp", u"mnu_SeeIDEnabled", u"사용", SeeIdEnabled},
    {u"mnu_SeeIDSetUp", u"mnu_SeeIDPort", u"포트설정", Dialog, u"FrmSeeIDOptions"},
    {u"mnu_SeeIDSetUp", u"mnu_SeeIDTest", u"발신번호 테스트", SeeIdTest, u"", Ruled},
    {u"mnu_SeeIDSetUp", u"mnu_SeeIDFormatTelNo", u"전화번호 형식", Later},
    {u"mnu_SeeIDSetUp", u"mnu_SeeIDStanbyList", u"대기목록", Form, u"FrmSeeIDStanbyList"},
    {u"MnuHelp", u"mnuHome", u"홈페이지", Home, u"", Ruled},
    {u"MnuHelp", u"mnu_Teminal", u"원격지원서비스", RemoteSupport},
    {u"MnuHelp", u"MnuAbout", u"프로그램 정보", Dialog, u"frmAbout", Ruled},
};

// The sixth opens no form of its own: it drops the menu of the meter book.
constexpr ToolButton toolTable[] = {
    {u"고객등록", u"MnuClient"},
    {u"구매등록", u"MnuIncome"},
    {u"판매등록", u"MnuOutcome"},
    {u"판매현황", u"MnuLPGSale"},
    {u"검침관리", u"MnuIndivisualCheck"},
    {u"체적관리", u"MnuEvaporation"},
    {u"집계현황", u"MnuIndivisualTotal"},
    {u"거래명세", u"mnu거래명세표"},
    {u"세금계산", u"mnu세금계산서"},
    {u"백업", u"MnuBack"},
    {u"종료", u"MnuExit"},
};
static_assert(std::size(toolTable) == 11);

}  // namespace command_map

std::span<const CommandEntry> commandMap() {
  return command_map::commandTable;
}

const CommandEntry* findCommand(const QString& name) {
  const auto entries = commandMap();
  const auto found =
      std::ranges::find_if(entries, [&](const auto& entry) { return name == entry.objectName(); });
  return found == entries.end() ? nullptr : &*found;
}

std::span<const ToolButton> toolButtons() {
  return command_map::toolTable;
}
