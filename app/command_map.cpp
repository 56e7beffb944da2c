#include "app/command_map.h"

#include <algorithm>
#include <iterator>

namespace command_map {

using enum CommandKind;
using enum CommandEntry::Flag;

constexpr CommandEntry commandTable[] = {
    {u"", u"MnuBasic", u"기초관리(&B)", Menu},
    {u"MnuBasic", u"Mnu_RefillState", u"충전소 등록(&F)", Form, u"frmRefillState", Relink},
    {u"MnuBasic", u"MnuClient", u"신규고객 등록(&C)", Form, u"frmClient", Relink},
    {u"MnuBasic", u"MnuResponse", u"배달담당 등록(&R)", Form, u"frmResponse", Relink},
    {u"MnuBasic", u"MnuGas", u"판매가스 등록(&G)", Form, u"frmGasUtil", Relink},
    {u"MnuBasic", u"MnuInitStock", u"재고 초기화(&I)", InitStock, u"", Relink | NeedsStock | Ruled},
    {u"MnuBasic", u"MnuBack", u"데이터백업 및 전송(&B)", BackUp, u"", Ruled},
    {u"MnuBasic", u"mnuDataManagerDN", u"데이터 내려받기(&D)", BringBack},
    {u"MnuBasic", u"mnuDataManagerAS", u"데이터 A/S(&A)", BackUpSupport},
    {u"MnuBasic", u"mnuPath", u"작업경로 설정(&P)", Dialog, u"FrmPath", FormsAway},
    {u"MnuBasic", u"MnuExit", u"종료(&X)", Exit, u"", Ruled},

    {u"", u"MnuLPG", u"가스관리(&L)", Menu},
    {u"MnuLPG", u"MnuIncome", u"가스 구매등록(&B)", Form, u"frmBuy:gas", Relink},
    {u"MnuLPG", u"MnuOutcome", u"가스 판매등록(&S)", Form, u"frmSale:gas", Relink},
    {u"MnuLPG", u"mnu거래명세표", u"거래명세표(&D)", Form, u"FrmDealList", Relink | Ruled},
    {u"MnuLPG", u"mnu세금계산서", u"세금계산서(&T)", Form, u"FrmPrintSection:tax", Relink},
    {u"MnuLPG", u"MnuEvaporationForecast", u"예상 배달현황(&F)", Form, u"frmVolumeEstimate", Relink | Ruled},
    {u"MnuLPG", u"MnuRes_Can", u"담당용기 재고현황(&N)", Form, u"frmResCAN", Relink | NeedsStock},
    {u"MnuLPG", u"MnuLPGSale", u"고객별 판매 현황(&C)", Form, u"frmLPGSaleBrief:client", Relink},
    {u"MnuLPG", u"MnuPerClient", u"일별 판매 현황(&Y)", Form, u"frmLPGSaleBrief:day", Relink},
    {u"MnuLPG", u"MnuBetween", u"월별 판매 현황(&M)", Form, u"frmLPGSaleBrief:month", Relink},
    {u"MnuLPG", u"MnuRes", u"담당별 판매 현황(&R)", Form, u"frmResSaleBrief", Relink},
    {u"MnuLPG", u"MnuMiss", u"미수금 현황(&U)", Form, u"frmTrustBrief", Relink},
    {u"MnuLPG", u"MnuRemain", u"가스재고수불 현황(&K)", Form, u"frmHoldBrief", Relink | NeedsStock},
    {u"MnuLPG", u"MnuSaleBrief", u"전체 판매 현황(&A)", Form, u"frmSaleBrief", Relink},

    {u"", u"MnuEvaporation", u"체적관리(&V)", Menu},
    {u"MnuEvaporation", u"MnuEvaUtil", u"체적 단가 등록(&U)", Form, u"frmVolume", Relink},
    {u"MnuEvaporation", u"MnuIndivisualCheck", u"개별 검침 관리(&1)", Form, u"frmEva", Relink | Ruled,
     HouseStyle::Individual},
    {u"MnuEvaporation", u"MnuAPTCheck", u"APT 검침 관리(&2)", Form, u"frmEva", Relink, HouseStyle::Apartment},
    {u"MnuEvaporation", u"MnuManyCheck", u"다가구검침관리(&3)", Form, u"frmEva", Relink,
     HouseStyle::MultiHousehold},
    {u"MnuEvaporation", u"MnuIndivisualTotal", u"개별 집계 현황(&4)", Form, u"frmEvaTotal", Relink | Ruled,
     HouseStyle::Individual},
    {u"MnuEvaporation", u"MnuAPTTotal", u"APT 집계 현황(&5)", Form, u"frmEvaTotal", Relink,
     HouseStyle::Apartment},
    {u"MnuEvaporation", u"MnuManyTotal", u"다가구집계현황(&6)", Form, u"frmEvaTotal", Relink,
     HouseStyle::MultiHousehold},
    {u"MnuEvaporation", u"mnuAPTbaln", u"APT 미수 현황(&A)", Form, u"FrmAptBaln_rpt"},
    {u"MnuEvaporation", u"MnuBank", u"수납 은행 등록(&B)", Form, u"frmBank", Relink | Ruled},

    {u"", u"MnuCAN", u"용기관리(&C)", Menu},
    {u"MnuCAN", u"MnuName", u"상호별/기간별현황(&N)", Form, u"frmCANCompanyBrief", Relink},
    {u"MnuCAN", u"MnuUtilGas", u"용기별/기간별현황(&G)", Form, u"frmCANLPGBrief", Relink},
    {u"MnuCAN", u"MnuUtilRes", u"담당별/기간별현황(&R)", Form, u"frmCANResBrief", Relink},

    {u"", u"MnuUtil", u"시설관리(&U)", Menu},
    {u"MnuUtil", u"MnuUtilBuy", u"시설/자재구매등록(&B)", Form, u"frmBuy:material", Relink},
    {u"MnuUtil", u"MnuUtilSale", u"시설/자재판매등록(&S)", Form, u"frmSale:material", Relink},
    {u"MnuUtil", u"MnuUtilclient", u"고객별 판매현황(&C)", Form, u"frmUtilClientBrief", Relink | Ruled},
    {u"MnuUtil", u"MnuUtilMiss", u"판매 미수 현황(&U)", Form, u"frmUtilTrustBrief", Relink},
    {u"MnuUtil", u"MnuUtilResponse", u"판매담당별 현황(&R)", Form, u"frmResUtilBrief", Relink},
    {u"MnuUtil", u"MnuUtilInOut", u"시설재고 수불 현황(&K)", Form, u"frmUtilHoldBrief", Relink | NeedsStock},

    {u"", u"MnuContribution", u"보조관리(&A)", Menu},
    {u"MnuContribution", u"MnuUser", u"사용자 등록(&U)", Form, u"frmUser", Relink},
    {u"MnuContribution", u"MnuYearToYear", u"년도마감작업(&Y)", CloseYear, u"", Ruled | FormsAway},
    {u"MnuContribution", u"YearError", u"년도마감에러(&E)", YearError},
    {u"MnuContribution", u"MnuReIwol", u"체적검침 재이월(&W)", Recarry, u"", FormsAway},
    {u"MnuContribution", u"ManyCashInOut", u"현금 출납장(&C)", CashBook, u"", Ruled},
    {u"MnuContribution", u"MnuCashBrief", u"현금출납조회(&B)", CashBook},
    {u"MnuContribution", u"MnuInList", u"수입 내역조회(&I)", CashBook},
    {u"MnuContribution", u"MnuOutList", u"지출 내역조회(&O)", CashBook},
    {u"MnuContribution", u"MnuCarRes", u"차량 등록(&R)", Form, u"frmCarRes", Relink | Ruled},
    {u"MnuContribution", u"MnuCaRepair", u"정비부품등록(&P)", Form, u"frmCaRepairUnit", Relink},
    {u"MnuContribution", u"MnuCaR", u"차량정비등록(&V)", Form, u"frmCar", Relink},
    {u"MnuContribution", u"MnuSafeNote", u"안전관리대장(&N)", Form, u"frmPrtSafe", Relink},
    {u"MnuContribution", u"mnuDM", u"DM 발송(&D)", Form, u"frmDm", Relink},
    {u"MnuContribution", u"mnuSMS", u"문자 발송(&S)", Form, u"FrmSMS", Ruled},
    {u"MnuContribution", u"mnuSchedule", u"스케줄 관리(&L)", Schedule},
    {u"MnuContribution", u"mnuSuKum", u"전자수납처리(&K)", Form, u"FrmSukum"},
    {u"MnuContribution", u"mnuMoveIn", u"이전 자료 가져오기(&M)", MoveIn, u"", Ruled},
    {u"MnuContribution", u"mnu_changeYear", u"PC년도 변경(&T)", Dialog, u"frmChangeYear", FormsAway},

    {u"", u"MnuHelp", u"도움말(&H)", Menu},
    {u"MnuHelp", u"MnuAbout", u"프로그램 정보(&A)", Dialog, u"frmAbout"},
    {u"MnuHelp", u"mnu_SeeIDSetUp", u"발신번호 환경설정(&S)", Menu},
    {u"mnu_SeeIDSetUp", u"mnu_SeeIDEnabled", u"사용(&E)", SeeIdEnabled},
    {u"mnu_SeeIDSetUp", u"mnu_SeeIDPort", u"포트설정(&P)", Dialog, u"FrmSeeIDOptions"},
    {u"mnu_SeeIDSetUp", u"mnu_SeeIDTest", u"발신번호 테스트(&T)", SeeIdTest, u"", Ruled},
    {u"mnu_SeeIDSetUp", u"mnu_SeeIDFormatTelNo", u"전화번호 형식(&F)", Form, u"FrmSeeIDFormatTelNo"},
    {u"mnu_SeeIDSetUp", u"mnu_SeeIDStanbyList", u"대기목록(&L)", Form, u"FrmSeeIDStanbyList"},
    {u"MnuHelp", u"mnuHome", u"홈페이지(&H)", Home, u"", Ruled},
    {u"MnuHelp", u"mnu_Teminal", u"원격지원서비스(&R)", RemoteSupport},
    {u"MnuHelp", u"mnuGuide", u"사용 설명서(&G)\tF1", Guide, u"", Ruled},
    {u"MnuHelp", u"mnuFirstSteps", u"처음 시작 안내(&F)", Form, u"FrmFirstSteps"},
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
