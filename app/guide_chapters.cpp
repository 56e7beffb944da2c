#include "app/guide_chapters.h"

using namespace Qt::StringLiterals;

namespace guide_chapters {

/** A heading of the guide and the windows that it is about, parted by blanks. */
struct Chapter {
  const char16_t* heading;
  const char16_t* windows;
};

constexpr Chapter chapters[] = {
    {u"처음 시작", u"frmSplash FrmInitMsg frmMain frmAbout"},
    {u"처음 시작 안내", u"FrmFirstSteps"},
    {u"설명서 보기 (F1)", u"FrmGuide"},
    {u"사용자 등록과 환경설정", u"frmUser frmSecurity"},
    {u"자료 폴더와 네트워크", u"FrmPath FrmNetDrive"},
    {u"자료 폴더를 찾지 못할 때", u"FrmFolderTrouble"},
    {u"백업과 되돌리기", u"frmMsgBackUp"},
    {u"고객", u"frmClient FrmPreView frmCalendar"},
    {u"고객 찾기", u"frmNewClient frmSearchClient"},
    {u"아파트와 다가구 등록", u"frmHouseStyle frmBDName frmAPTAddress"},
    {u"가스·자재·체적단가", u"frmGasUtil frmVolume frmSearchSize frmSearchVolume"},
    {u"충전소·담당자·은행·우편번호",
     u"frmRefillState frmResponse frmBank frmPostCode frmSearchRefill frmSearchResponse "
     u"frmSearchBank"},
    {u"판매 화면", u"frmSale"},
    {u"금일판매내역 (F5)", u"frmTodaySale"},
    {u"구매 화면", u"frmBuy"},
    {u"재고수불", u"frmHoldBrief frmUtilHoldBrief"},
    {u"담당자별 용기", u"frmResCAN"},
    {u"예상 배달", u"frmVolumeEstimate"},
    {u"검침", u"frmEva"},
    {u"지로",
     u"frmPrtJiro frmPrtJiroOCR frmPrtJiroOrg frmPrtJiroOrgA4 frmPrtMicr FrmPaperView frmPrtChange "
     u"FrmSetPrinter FrmMargin FrmPrintSection"},
    {u"전자수납", u"FrmSukum"},
    {u"거래명세표", u"FrmDealList FrmMsg FrmTraderList"},
    {u"세금계산서", u"FrmTax FrmNewAcount FrmNewTrader FrmPost"},
    {u"집계와 보고서", u"frmEvaTotal frmReport"},
    {u"판매 보고서",
     u"frmTrustBrief frmLPGSaleBrief frmResSaleBrief frmResUtilBrief frmUtilTrustBrief "
     u"frmCANLPGBrief frmCANCompanyBrief frmCANResBrief frmUtilClientBrief frmSaleBrief "
     u"frmAClientSaleBrief frmPrtSale frmPrtBuy"},
    {u"APT 미수 현황", u"FrmAptBaln_rpt"},
    {u"년도 마감", u"FrmYearEnd frmNextYear"},
    {u"PC년도 변경", u"frmChangeYear"},
    {u"문자 보내기", u"FrmSMS"},
    {u"DM 발송", u"frmDm"},
    {u"안전관리대장", u"frmPrtSafe"},
    {u"차량 정비", u"frmCar frmCarRes frmCaRepairUnit"},
    {u"발신번호", u"FrmSeeIDFormatTelNo FrmSeeIDOptions FrmSeeIDStanbyList"},
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
  for (const auto& chapter : guide_chapters::chapters)
    if (QString::fromUtf16(chapter.windows).split(u' ').contains(window))
      return QString::fromUtf16(chapter.heading);
  return {};
}

QStringList guideWindows() {
  QStringList names;
  for (const auto& chapter : guide_chapters::chapters)
    names << QString::fromUtf16(chapter.windows).split(u' ');
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
