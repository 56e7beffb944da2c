#include "billing/apt_baln.h"

#include "billing/apt_gather.h"
#include "billing/household_questions.h"
#include "store/data_access.h"
#include "store/data_files.h"
#include "store/house_style.h"
#include "store/session.h"
#include "store/settings_table.h"
#include "store/vb.h"

using namespace Qt::StringLiterals;

namespace {

const QString apartment = u"CboBDName"_s;  ///< the question

bool holds(const BriefCells& cells, const QString& part) {
  return std::ranges::any_of(cells,
                             [&](const QString& text) { return text.contains(part, Qt::CaseInsensitive); });
}

bool readList(Session& session, const BriefAsk& ask, const jet::Database& scratch, BriefRows& into) {
  jet::Recordset rs;
  if (!OpenSnapshot(
          session.prompts, scratch, rs,
          u"SELECT bdname, dong, ho, dealdate, PreMuch, use, UseMuch, fee, manage, delay, total, baln, bigo"_s +
              u" FROM AptBaln"_s +
              u" ORDER BY bdname, dong, IIF(ISNUMERIC(ho),  CLNG(ho), 0), ccode, dealdate"_s))
    return false;
  const QString filter = ask.text(u"txtFilter"_s).trimmed();
  const bool onlyOpen = ask.on(u"chkOnlyOpen"_s);
  double sum = 0;
  for (; !rs.atEnd(); rs.MoveNext()) {
    BriefCells cells;
    for (int at = 0; at < AptCol::Last; ++at) cells.push_back(rs[at].toText());
    const double open = rs[AptCol::Open - 1].toDouble();
    if ((onlyOpen && open == 0) || (!filter.isEmpty() && !holds(cells, filter))) continue;
    sum += open;
    into.rows.push_back(std::move(cells));
  }
  into.figures = {jet::Value(sum).toText()};
  return true;
}

void readAptBaln(Session& session, const BriefAsk& ask, const BriefTeller&, BriefRows& into) {
  into.read = false;
  try {
    if (!isThere(session.pc.paths, aptBalnFile())) {
      session.pc.paths.makeFolder(installedDataFolder());
      makeDataFile(session, aptBalnFile(), schema::File::AptBaln);
    }
    const jet::Database scratch = session.wsMain.OpenDatabase(aptBalnFile());
    into.read = gatherAptBaln(session,
                              {.month = ask.text(u"CboMon"_s).toInt(),
                               .openings = ask.on(u"chkBaseAdd"_s),
                               .lastYear = ask.on(u"chkLastYear"_s),
                               .building = chosenBuilding(ask, apartment),
                               .dong = ask.text(u"txtDong"_s),
                               .ho = ask.text(u"txtHo"_s)},
                              scratch, into.note) &&
                readList(session, ask, scratch, into);
  } catch (const jet::Error& error) {
    session.prompts.ErrorBox(u"데이터를 집계하는 중 오류가 발생했습니다."_s, error.number(),
                             error.description());
  }
}

QStringList heading(const BriefAsk& ask, const BriefRows& rows) {
  const QString building = chosenBuilding(ask, apartment);
  return {u"아파트= '( 아파트명: "_s + (building.isEmpty() ? u"전체"_s : building) + u" )    '"_s,
          u"기준월= '"_s + ask.text(u"CboMon"_s) + u"월'"_s,
          u"미수= '"_s + vb::Format(rows.figures.value(0).toDouble(), u"#,##0"_s) + u'\''};
}

std::vector<BriefQuestion> questions() {
  return {{AskKind::Month, u"CboMon"_s, u"기준월"_s, u"이 달까지의 청구와 미수를 조회합니다"_s},
          {AskKind::Choice, apartment, u"아파트명"_s, u"조회할 아파트를 선택합니다"_s,
           [](const Session& session, int) { return buildingsOf(session, int(HouseStyle::Apartment)); }},
          askDong(),
          askHo(),
          {AskKind::Text, u"txtFilter"_s, u"찾기"_s, u"이 글자가 들어 있는 줄만 보여 줍니다"_s},
          {AskKind::Check, u"chkBaseAdd"_s, u"기초포함"_s, u"기초에 입력한 미수도 한 줄로 보여 줍니다"_s},
          {AskKind::Check, u"chkLastYear"_s, u"작년포함"_s,
           u"작년 12월부터 거슬러 올라가 작년의 청구도 보여 줍니다"_s},
          {.kind = AskKind::Check,
           .name = u"chkOnlyOpen"_s,
           .label = u"미수만"_s,
           .help = u"다 받은 달은 빼고 보여 줍니다"_s,
           .remembered = &setting::OpenArrearsAlone}};
}

std::vector<BriefColumn> columns() {
  using enum BriefLook;
  return {{.header = u"아파트명"_s, .width = 16, .staged = u"Str01"_s},
          {.header = u"동"_s, .width = 7, .look = Centre, .staged = u"Str02"_s},
          {.header = u"호"_s, .width = 7, .look = Centre, .staged = u"Str03"_s},
          {.header = u"청구월"_s, .width = 9, .look = Centre, .staged = u"Str04"_s},
          {.header = u"전월지침"_s, .width = 9, .look = Number, .staged = u"Dbl01"_s},
          {.header = u"당월지침"_s, .width = 9, .look = Number, .staged = u"Dbl02"_s},
          {.header = u"사용량"_s, .width = 8, .look = Number, .staged = u"Dbl03"_s, .sum = true},
          {.header = u"사용금액"_s, .width = 11, .look = Money, .staged = u"Lng01"_s, .sum = true},
          {.header = u"안전관리비"_s, .width = 10, .look = Money, .staged = u"Lng02"_s, .sum = true},
          {.header = u"연체료"_s, .width = 10, .look = Money, .staged = u"Lng03"_s, .sum = true},
          {.header = u"청구액"_s, .width = 12, .look = Money, .staged = u"Lng04"_s, .sum = true},
          {.header = u"미수잔액"_s, .width = 12, .look = Money, .staged = u"Lng05"_s, .sum = true},
          {.header = u"비고"_s, .width = 18, .staged = u"Str05"_s}};
}

}  // namespace

QString aptBalnFile() {
  return installedDataFolder() + u"dbAPTbaln.mdb"_s;
}

Brief aptBalnBrief() {
  return {.form = u"FrmAptBaln_rpt"_s,
          .caption = u"아파트 미수현황"_s,
          .searchButton = u"btnSearch"_s,
          .excelButton = u"btnExcel"_s,
          .sheet = u"Sheet1"_s,
          .questions = questions(),
          .pages = {{.key = u"list"_s,
                     .grid = u"spList"_s,
                     .columns = columns(),
                     .fill = AptCol::Note,
                     .complete = readAptBaln,
                     .emptyText = [](const BriefAsk&) { return u"조회할 아파트의 검침자료가 없습니다!"_s; },
                     .emptyTitle = u"검침 관리자"_s,
                     .report = u"아파트미수현황.rpt"_s,
                     .formulas = heading,
                     .panels = {{u"PnlRes"_s, u"미수 합계"_s, 16}}}}};
}
