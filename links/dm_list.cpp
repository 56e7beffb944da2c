#include "links/dm_list.h"

#include "papers/paper_printer.h"
#include "pc/text_width.h"
#include "store/data_access.h"
#include "ui/model/column.h"

using namespace Qt::StringLiterals;

namespace {

const QString dmManager = u"DM 발송"_s;
constexpr int labelWidth = 46, envelopeWidth = 50;  ///< half-width characters of a line

QString dmStatement(DmKind kind) {
  QString everyone = u"Select * From Client"_s;
  if (kind == DmKind::All) return everyone;
  return everyone + u" Where VolumeYesNo = "_s + (kind == DmKind::Volume ? u"TRUE"_s : u"FALSE"_s);
}

/** The text in pieces of no more than width, broken at blanks where there are any. */
QStringList wrapped(const QString& text, int width) {
  QStringList pieces;
  QString line;
  for (QString word : text.split(u' ', Qt::SkipEmptyParts)) {
    if (!line.isEmpty() && widthOf(line + u' ' + word) <= width) {
      line += u' ' + word;
      continue;
    }
    if (!line.isEmpty()) pieces << line;
    for (; widthOf(word) > width; word = word.mid(pieces.last().size()))
      pieces << CutByWidth(word, width).trimmed();
    line = word;
  }
  if (!line.isEmpty()) pieces << line;
  return pieces;
}

enum class DmText { Line };

constexpr pc::PaperForm addressForm(double width, double height, std::span<const pc::PaperFont> fonts,
                                    std::span<const pc::PaperItem> line, int lines, double lineRows) {
  return {.paper = {width, height},
          .rowsPerInch = 8,
          .columnsPerInch = 15,
          .fonts = fonts,
          .items = {},
          .line = line,
          .lines = lines,
          .lineRows = lineRows};
}

// An A4 sheet of sixteen labels, two across: 99.1 by 33.9 mm each, 101.6 mm from label to label across, none between
// those below each other; the sheet begins 12.9 mm from above and 4.7 mm from the left. Seven lines have room.
constexpr pc::PaperFont labelFonts[] = {{u"굴림체", 10}};
constexpr pc::PaperItem labelLine[] = {pc::at(4.7, 6.5, DmText::Line)};
constexpr pc::PaperForm labelForm = [] {
  pc::PaperForm form = addressForm(8.27, 11.69, labelFonts, labelLine, 7, 1.35);
  form.copies = 16;
  form.copyRows = 10.68;
  form.across = 2;
  form.copyColumns = 60;
  return form;
}();

// An envelope of 220 by 105 mm, lying: the receiver stands in the lower right part.
constexpr pc::PaperFont envelopeFonts[] = {{u"굴림체", 11}};
constexpr pc::PaperItem envelopeLine[] = {pc::at(15, 62, DmText::Line)};
constexpr pc::PaperForm envelopeForm = addressForm(8.66, 4.13, envelopeFonts, envelopeLine, 8, 2);

}  // namespace

const pc::PaperForm& dmForm(DmPaper paper) {
  return paper == DmPaper::Label ? labelForm : envelopeForm;
}

QString buildingLine(const QString& building, const QString& dong, const QString& ho) {
  if (building.isEmpty()) return {};
  QString line = building;
  if (!dong.isEmpty()) line += u' ' + dong + u"동"_s;
  if (!ho.isEmpty()) line += u' ' + ho + u"호"_s;
  return line;
}

std::vector<QStringList> addressLines(const QString& postCode, const QString& address,
                                      const QString& building, const QString& name, int width) {
  std::vector<QStringList> lines;
  for (const QString& text : QStringList{postCode} + wrapped(address, width) + QStringList{building, name})
    if (!text.isEmpty()) lines.push_back({text});
  return lines;
}

DmList::DmList(Session& session) : session_(session) {
  list_.setColumns({column::tick(u"선택"_s), column::locked(column::text(u"고객명"_s, 24)),
                    column::locked(column::centred(u"우편번호"_s, 10)),
                    column::locked(column::text(u"건물명"_s, 26)),
                    column::locked(column::text(u"주소"_s, 40))});
}

bool DmList::load(DmKind kind) {
  list_.clear();
  jet::Recordset clients;
  if (!OpenSnapshot(session_.prompts, session_.dbBasic, clients, dmStatement(kind))) return false;
  std::vector<std::vector<QString>> rows;
  for (; !clients.atEnd(); clients.MoveNext()) {
    const auto text = [&](const QString& field) { return clients[field].toText().trimmed(); };
    rows.push_back({u"0"_s, text(u"Name"_s), text(u"PostCode"_s),
                    buildingLine(text(u"BDName"_s), text(u"Dong"_s), text(u"Ho"_s)), text(u"Address"_s)});
  }
  list_.setRows(std::move(rows));
  return true;
}

QString DmList::printer() const {
  QString device = slipPrinter(session_).device;
  if (device.isEmpty())
    session_.prompts.MsgWarn(
        u"출력할 프린터가 설정되어 있지 않습니다.\n[프린터 설정]에서 프린터를 선택해 주십시오."_s, dmManager);
  return device;
}

std::optional<DocumentRun> DmList::run(DmPaper paper) const {
  const bool label = paper == DmPaper::Label;
  std::vector<std::vector<QStringList>> papers;
  QStringList names;
  for (int row = 1; row <= list_.MaxRows(); ++row) {
    if (!isTicked(row)) continue;
    papers.push_back(addressLines(list_.text(row, DmCol::PostCode), list_.text(row, DmCol::Address),
                                  list_.text(row, DmCol::Building), list_.text(row, DmCol::Name),
                                  label ? labelWidth : envelopeWidth));
    names << list_.text(row, DmCol::Name);
  }
  if (papers.empty()) {
    session_.prompts.MsgInfo(u"출력할 고객을 선택하십시오!"_s, dmManager);
    return {};
  }
  const pc::PaperForm& form = dmForm(paper);
  const int count = int(papers.size());
  const QString kind = label ? u"DM 라벨"_s : u"DM 봉투"_s;
  return DocumentRun{.title = kind,
                     .paper = form.paper,
                     .placesOnSheet = form.copies,
                     .documents = count,
                     .put =
                         [&form, papers = std::move(papers), shift = slipPrinter(session_).shift](
                             pc::PrintJob& job, pc::PaperPlaces& places, int document) {
                           pc::drawPaper(job, form, shift, places.next(), {}, papers[size_t(document)]);
                         },
                     .name = [names, kind, day = session_.pc.clock.dateText()](
                                 int document) { return documentName(day, names.at(document), kind); }};
}
