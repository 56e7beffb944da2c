#include "app/year_end_lines.h"

#include "store/vb.h"
#include "ui/model/column.h"

using namespace Qt::StringLiterals;

namespace {

QString won(double amount) {
  return vb::Format(amount, u"#,##0"_s);
}

QString reading(double cubicMetres) {
  return vb::CStr(cubicMetres);
}

QString lost(const ClosingForecast& forecast) {
  const QString next = QString::number(forecast.year + 1) + u"년 파일"_s;
  if (!forecast.nextStands) return {};
  if (!forecast.nextIsRead) return next + u"이 이미 있으나 읽을 수 없습니다. 마감하면 새 파일로 바뀝니다."_s;
  if (!forecast.losesWork()) return {};
  QStringList parts;
  if (forecast.sales) parts << u"판매 %1건"_s.arg(forecast.sales);
  if (forecast.purchases) parts << u"구매 %1건"_s.arg(forecast.purchases);
  if (forecast.readings)
    parts << u"검침·수금 %1건 (수금 %2원)"_s.arg(QString::number(forecast.readings), won(forecast.collected));
  QString text =
      next + u"에 이미 작업한 자료가 있습니다. 마감하면 모두 없어집니다!\n"_s + parts.join(u", "_s);
  if (forecast.sales + forecast.purchases)
    text += u"\n고객·거래처의 미수와 재고는 그 거래가 반영된 그대로 남습니다."_s;
  return text;
}

}  // namespace

void fillForecast(YearEndPage& page, const ClosingForecast& forecast) {
  const QString year = QString::number(forecast.year), next = QString::number(forecast.year + 1);
  page.head =
      year +
      u"년 체적대장 고객 %1명 중 12월 자료가 있는 %2명의 지침과 미수를 "_s.arg(forecast.customers)
          .arg(forecast.lines.size()) +
      next + u"년으로 넘깁니다.\n"_s + next +
      u"년 1월에 넘어갈 미수: %1명, %2원"_s.arg(QString::number(forecast.owing), won(forecast.arrears));
  QStringList warnings;
  if (forecast.folderMoved)
    warnings
        << u"자료 폴더가 옮겨져 있습니다. 마감은 "_s + forecast.folder +
               u" 의 파일로만 합니다.\n이 PC에서는 해가 바뀐 뒤 [년도마감에러]와 [체적검침 재이월]로 이월하십시오."_s;
  if (const QString text = lost(forecast); !text.isEmpty()) warnings << text;
  if (!forecast.kept.isEmpty())
    warnings << u"전에 끝나지 않은 마감이 남겨 둔 파일이 있습니다. 필요 없으면 지우십시오.\n"_s +
                    forecast.kept.join(u'\n');
  page.warning = warnings.join(u"\n\n"_s);

  page.lines.setColumns(
      column::shown({column::integer(u"고객코드"_s, 9), column::text(u"고객명"_s, 20),
                     column::number(u"12월 지침"_s, 11), column::money(u"12월 이월미수"_s, 14),
                     column::money(u"1월로 넘어갈 미수"_s, 17), column::text(u"비고"_s, 24)}));
  std::vector<std::vector<QString>> rows;
  for (const ForecastLine& line : forecast.lines)
    rows.push_back({QString::number(line.code), line.name, reading(line.reading), won(line.trust),
                    won(line.total),
                    !line.hasJanuary ? u"1월 행이 없어 넘어가지 않음"_s
                    : line.total < 0 ? u"더 낸 금액"_s
                                     : QString()});
  page.lines.setRows(std::move(rows));
}

void fillDifferences(YearEndPage& page, const CarryCheck& check, int year, const QString& kept) {
  const QString next = QString::number(year + 1);
  page.head =
      u"%1년 12월 발행금액과 %2년 1월 미수금을 고객마다 대조하였습니다.\n"_s.arg(QString::number(year),
                                                                                 next) +
      u"12월 자료가 있는 고객 %1명 중 다른 고객: %2명"_s.arg(check.customers).arg(check.differing.size());
  page.warning = u"1월에 행이 없는 고객의 미수는 넘어가지 않았습니다."_s;
  if (!kept.isEmpty())
    page.warning +=
        u"\n바꾸기 전의 자료는 아래의 파일에 있습니다. [되돌리기]를 하면 마감하기 전으로 돌아갑니다.\n"_s +
        kept;
  page.lines.setColumns(column::shown({column::integer(u"고객코드"_s, 9), column::text(u"고객명"_s, 20),
                                       column::money(u"12월 발행금액"_s, 16),
                                       column::money(u"1월 미수금"_s, 16), column::text(u"비고"_s, 24)}));
  std::vector<std::vector<QString>> rows;
  const auto shown = [](const std::optional<double>& amount) { return amount ? won(*amount) : QString(); };
  for (const CarriedBill& bill : check.differing)
    rows.push_back({QString::number(bill.code), bill.name, shown(bill.december), shown(bill.january),
                    !bill.january    ? u"1월 행이 없음"_s
                    : !bill.december ? u"12월 행이 없음"_s
                                     : QString()});
  page.lines.setRows(std::move(rows));
}
