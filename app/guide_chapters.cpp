#include "app/guide_chapters.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace guide_chapters {

struct Chapter {
  const char16_t* window;
  const char16_t* heading;
};

constexpr char16_t first[] = u"처음 시작", settings[] = u"사용자 등록과 환경설정",
                   folder[] = u"자료 폴더와 네트워크", client[] = u"고객", finding[] = u"고객 찾기",
                   building[] = u"아파트와 다가구 등록", items[] = u"가스·자재·체적단가",
                   partners[] = u"충전소·담당자·은행·우편번호", slips[] = u"지로", caller[] = u"발신번호",
                   reports[] = u"집계와 보고서", fleet[] = u"차량 정비", statements[] = u"거래명세표",
                   invoices[] = u"세금계산서", saleReports[] = u"판매 보고서";

constexpr Chapter chapters[] = {
    {u"frmSplash", first},
    {u"FrmInitMsg", first},
    {u"FrmFirstSteps", u"처음 시작 안내"},
    {u"frmMain", first},
    {u"frmAbout", first},
    {u"FrmGuide", u"설명서 보기 (F1)"},
    {u"frmUser", settings},
    {u"frmSecurity", settings},
    {u"FrmPath", folder},
    {u"FrmNetDrive", folder},
    {u"FrmFolderTrouble", u"자료 폴더를 찾지 못할 때"},
    {u"frmMsgBackUp", u"백업과 되돌리기"},
    {u"frmClient", client},
    {u"FrmPreView", client},
    {u"frmNewClient", finding},
    {u"frmSearchClient", finding},
    {u"frmCalendar", client},
    {u"frmHouseStyle", building},
    {u"frmBDName", building},
    {u"frmAPTAddress", building},
    {u"frmGasUtil", items},
    {u"frmVolume", items},
    {u"frmSearchSize", items},
    {u"frmSearchVolume", items},
    {u"frmRefillState", partners},
    {u"frmResponse", partners},
    {u"frmBank", partners},
    {u"frmPostCode", partners},
    {u"frmSearchRefill", partners},
    {u"frmSearchResponse", partners},
    {u"frmSearchBank", partners},
    {u"frmSale", u"판매 화면"},
    {u"frmTodaySale", u"금일판매내역 (F5)"},
    {u"frmBuy", u"구매 화면"},
    {u"frmHoldBrief", u"재고수불"},
    {u"frmUtilHoldBrief", u"재고수불"},
    {u"frmResCAN", u"담당자별 용기"},
    {u"frmVolumeEstimate", u"예상 배달"},
    {u"frmEva", u"검침"},
    {u"frmPrtJiro", slips},
    {u"frmPrtJiroOCR", slips},
    {u"frmPrtJiroOrg", slips},
    {u"frmPrtJiroOrgA4", slips},
    {u"frmPrtMicr", slips},
    {u"FrmPaperView", slips},
    {u"frmPrtChange", slips},
    {u"FrmSetPrinter", slips},
    {u"FrmMargin", slips},
    {u"FrmPrintSection", slips},
    {u"FrmSukum", u"전자수납"},
    {u"FrmDealList", statements},
    {u"FrmMsg", statements},
    {u"FrmTraderList", statements},
    {u"FrmPaperView", statements},
    {u"FrmTax", invoices},
    {u"FrmNewAcount", invoices},
    {u"FrmNewTrader", invoices},
    {u"FrmPost", invoices},
    {u"frmEvaTotal", reports},
    {u"frmTrustBrief", saleReports},
    {u"frmLPGSaleBrief", saleReports},
    {u"frmResSaleBrief", saleReports},
    {u"frmResUtilBrief", saleReports},
    {u"frmUtilTrustBrief", saleReports},
    {u"frmCANLPGBrief", saleReports},
    {u"frmCANCompanyBrief", saleReports},
    {u"frmCANResBrief", saleReports},
    {u"frmUtilClientBrief", saleReports},
    {u"frmSaleBrief", saleReports},
    {u"frmAClientSaleBrief", saleReports},
    {u"frmPrtSale", saleReports},
    {u"frmPrtBuy", saleReports},
    {u"FrmAptBaln_rpt", u"APT 미수 현황"},
    {u"FrmYearEnd", u"년도 마감"},
    {u"frmNextYear", u"년도 마감"},
    {u"frmChangeYear", u"PC년도 변경"},
    {u"frmReport", reports},
    {u"FrmSMS", u"문자 보내기"},
    {u"frmDm", u"DM 발송"},
    {u"frmPrtSafe", u"안전관리대장"},
    {u"frmCar", fleet},
    {u"frmCarRes", fleet},
    {u"frmCaRepairUnit", fleet},
    {u"FrmSeeIDOptions", caller},
    {u"FrmSeeIDStanbyList", caller},
};

/** The text is one of those that the line's first cell names. */
bool speaksOf(const QString& named, const QString& text) {
  qsizetype from = 0;
  for (const QString& piece : named.split(u'…')) {
    const QString words = piece.trimmed();
    if (words.isEmpty()) continue;
    const qsizetype at = text.indexOf(words, from);
    if (at < 0) return false;
    from = at + words.size();
  }
  return true;
}

}  // namespace guide_chapters

QString guideChapter(const QString& window) {
  using guide_chapters::chapters;
  const auto found = std::ranges::find_if(chapters, [&](const auto& each) { return window == each.window; });
  return found == std::end(chapters) ? QString() : QString::fromUtf16(found->heading);
}

QStringList guideWindows() {
  QStringList names;
  for (const auto& each : guide_chapters::chapters) names << QString::fromUtf16(each.window);
  return names;
}

QString guideBoxChapter() {
  return u"알림과 할 일"_s;
}

QString guideBoxWords(const QString& guide, const QString& boxText) {
  const qsizetype from = guide.indexOf(u"\n### "_s + guideBoxChapter());
  if (from < 0) return {};
  const QString text = boxText.simplified();
  for (const QString& line : guide.sliced(from).split(u'\n')) {
    if (!line.startsWith(u"| "_s)) continue;
    for (const QString& named : line.section(u'|', 1, 1).split(u" / "_s))
      if (const QString words = named.trimmed(); words != u"알림"_s && guide_chapters::speaksOf(words, text))
        return words.section(u'…', 0, 0).trimmed().isEmpty() ? words.section(u'…', 1, 1).trimmed()
                                                             : words.section(u'…', 0, 0).trimmed();
  }
  return {};
}

QString guideAnchor(const QString& heading) {
  QString anchor;
  for (const QChar letter : heading.toLower()) {
    if (letter == u' ')
      anchor += u'-';
    else if (letter.isLetterOrNumber() || letter == u'-' || letter == u'_')
      anchor += letter;
  }
  return anchor;
}
