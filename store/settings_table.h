#pragma once
// Every value of the settings store in one table: application, section, key, and what a missing one counts as. Nobody
// else writes these texts, so a key cannot be misspelt. Values are read with pc::Settings::read and put with write.
#include "pc/settings.h"

namespace setting {

using pc::Setting;

inline constexpr QStringView program = u"해온판매", surroundings = u"환경설정",
                             registration = u"Registration", config = u"Config", printing = u"프린터설정";

// --- the data folder, the start ---------------------------------------------------------------------------------
inline constexpr Setting DataFolder{program, surroundings, u"db경로"};  ///< empty: the installed one
inline constexpr Setting ReportFolder{program, surroundings,
                                      u"rpt경로"};  ///< written, and ignored at the start
inline constexpr Setting NoticeHidden{program, surroundings, u"NoMsg", u"0"};
inline constexpr Setting PostCodesRebuilt{program, registration, u"PostC"};  ///< "ok" once it was done
inline constexpr Setting BackupFolder{u"Backup", u"DB경로", u"경로"};        ///< told to the backup tool
/** The drive of the installed folder, as the setup wrote it. */
inline constexpr Setting ProgramDrive{u"온누리경영", u"Drive", u"Drive", u"C:"};
// What the data compressor is told to do.
inline constexpr Setting ArchiveFolder{u"Backup", u"설정", u"백업폴더"};
inline constexpr Setting ArchivesKept{u"Backup", u"설정", u"보관개수"};
inline constexpr Setting ArchiveServerFolder{u"Backup", u"설정", u"서버폴더"};
inline constexpr Setting ArchiveServerCommand{u"Backup", u"설정", u"서버명령"};
inline constexpr Setting BackupRemindedAtExit{u"Backup", u"설정", u"종료알림", u"1"};
/** Where a companion program lies when it is not in the program's folder. */
constexpr Setting toolFolderOf(QStringView application) {
  return {application, u"General", u"AppPath"};
}
inline constexpr Setting MapFolder{u"MainProg", u"경로설정", u"Map경로"};

// --- the company and its bills ----------------------------------------------------------------------------------
inline constexpr Setting CompanyName{program, registration, u"UserName"};
inline constexpr Setting ApprovalNumber{program, registration, u"Ocr",
                                        u"0000000"};  ///< seven digits, on the OCR slips
/** "1" the charge on the one month only, "0" cumulative; written at the first start. */
inline constexpr Setting LateChargeKind{program, registration, u"연체료계산"};
inline constexpr Setting AfterDueMethod{program, config, u"납기후금액계산법",
                                        u"0"};  ///< as Session::AfterDueMethod
inline constexpr Setting BlocksShown{program, config, u"체적검침동별보기", u"0"};
inline constexpr Setting OrderedByRoom{program, config, u"체적검침정렬방식", u"0"};
inline constexpr Setting CollectionsShown{program, config, u"수금액조회", u"0"};
inline constexpr Setting OpenArrearsAlone{program, config, u"APT미수만"};

// --- the telephone ----------------------------------------------------------------------------------------------
inline constexpr Setting SeeIdUse{program, registration, u"SeeIDUse"};  ///< "1" in use
inline constexpr Setting SeeIdPorts[] = {
    {program, surroundings, u"OpenSeeIDPort1", u"1"},
    {program, surroundings, u"OpenSeeIDPort2", u"2"}};  ///< "0" uses none
inline constexpr Setting WaitingX{program, surroundings, u"발신번호대기창x", u"-1"};
inline constexpr Setting WaitingY{program, surroundings, u"발신번호대기창y", u"-1"};

// --- the sender tools, which write their folder themselves -------------------------------------------------------
inline constexpr Setting SmsFolder{u"라온SMS", surroundings, u"AppPath"};
inline constexpr Setting RelayFolder{u"라온릴레이", surroundings, u"AppPath"};

// --- paper ------------------------------------------------------------------------------------------------------
inline constexpr Setting GiroPrinter{program, printing, u"DEVICENAME"};
inline constexpr Setting GiroTop{program, printing, u"TOP"}, GiroLeft{program, printing, u"LEFT"};
inline constexpr Setting OcrThisMonth{program, surroundings, u"OCRA4지로_당월기본", u"0"};
inline constexpr Setting OrgA4ThisMonth{program, surroundings, u"A4지로_당월기본", u"0"};
inline constexpr Setting OrgA4NewPaper{program, surroundings, u"A4최신용지타입", u"0"},
    OrgA4Preprinted{program, surroundings, u"A4지로용지타입", u"0"};
inline constexpr Setting OrgA4UseFrom{program, surroundings, u"A4지로_사용기간From"},
    OrgA4UseTo{program, surroundings, u"A4지로_사용기간To"};
/** The eight lines of notes on the OCR slips. */
inline constexpr Setting OcrNotes[] = {
    {program, surroundings, u"OCR지로_알림글1"}, {program, surroundings, u"OCR지로_알림글2"},
    {program, surroundings, u"OCR지로_알림글3"}, {program, surroundings, u"OCR지로_알림글4"},
    {program, surroundings, u"OCR지로_알림글5"}, {program, surroundings, u"OCR지로_알림글6"},
    {program, surroundings, u"OCR지로_알림글7"}, {program, surroundings, u"OCR지로_알림글8"}};
inline constexpr Setting ReportPrinter{program, printing, u"보고서"};  ///< the one chosen last
inline constexpr Setting PdfFile{program, printing, u"PDF파일"};       ///< file or folder; empty asks
inline constexpr Setting PdfFolder{program, printing, u"PDF폴더"};  ///< the one chosen last for several files
/** Of a kind of document; the text must outlive the setting. */
constexpr Setting printerOf(QStringView kind) {
  return {program, u"Drive", kind};
}
constexpr Setting topMarginOf(QStringView kind) {
  return {program, kind, u"TopMargin"};
}
constexpr Setting leftMarginOf(QStringView kind) {
  return {program, kind, u"LeftMargin"};
}

// --- report forms -----------------------------------------------------------------------------------------------
/** Of a form by its name, which must outlive the setting. */
constexpr Setting chartShownOf(QStringView form) {
  return {program, u"그래프보기", form, u"1"};
}
constexpr Setting chartPrintedOf(QStringView form) {
  return {program, u"그래프인쇄", form, u"0"};
}

// --- the main window's ground -----------------------------------------------------------------------------------
inline constexpr QStringView common = u"라온공통", ground = u"메인배경";
inline constexpr Setting GroundPicture{common, ground, u"로고파일경로"};
inline constexpr Setting GroundCentred{common, ground, u"로고배치형태", u"0"};    ///< "0" tiled
inline constexpr Setting GroundColour{common, ground, u"배경색상", u"15856113"};  ///< red in the lowest byte

// --- the map editor ---------------------------------------------------------------------------------------------
inline constexpr QStringView map = u"약도", mapPrint = u"인쇄";
inline constexpr Setting MapEdited{map, surroundings, u"MapEdit"}, MapFailed{map, surroundings, u"OccurErr"};
inline constexpr Setting MapCustomer{map, u"사용자", u"Code"}, MapFile{map, u"사용자", u"MapVal"};
inline constexpr Setting MapPrintName{map, mapPrint, u"Cust"}, MapPrintAddress{map, mapPrint, u"Addr"},
    MapPrintTel{map, mapPrint, u"Phone"}, MapPrintFile{map, mapPrint, u"MapPath"};

}  // namespace setting
