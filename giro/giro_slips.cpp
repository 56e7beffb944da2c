#include "giro/giro_slips.h"

#include <memory>

#include "billing/reading_screen.h"
#include "papers/paper_printer.h"
#include "store/data_access.h"
#include "store/options.h"
#include "store/session.h"
#include "store/settings_table.h"

using namespace Qt::StringLiterals;

namespace {

const QString micrOption = u"MICR용지"_s;

std::pair<QString, QString> wholeMonth(const QDate& first) {
  const auto text = [](const QDate& day) { return day.toString(u"yyyy.MM.dd"_s); };
  return {text(first), text(first.addMonths(1).addDays(-1))};
}

/** What stands in the boxes is printed as it is, after a yes where it is no day. */
bool mayBeDue(Prompts& prompts, const GiroInput& input) {
  return isDay(input) ||
         prompts.MsgAsk(u"납부마감일이 올바른 날짜가 아닙니다.\n적힌 그대로 발행하시겠습니까?"_s,
                        u"지로 발행"_s, false);
}

}  // namespace

bool isDay(const GiroInput& due) {
  return QDate(due.year.toInt(), due.month.toInt(), due.day.toInt()).isValid();
}

const pc::Setting& GiroSlips::thisMonth() const {
  return paper_ == GiroPaper::JiroOrgA4 ? setting::OrgA4ThisMonth : setting::OcrThisMonth;
}

QDate GiroSlips::dueDate() const {
  return session_.pc.clock.today();
}

bool GiroSlips::startsWithThisMonth() const {
  return session_.pc.settings.read(thisMonth()) != "0"_L1;
}

void GiroSlips::setStartsWithThisMonth(bool on) {
  session_.pc.settings.write(thisMonth(), on);
}

QDate GiroSlips::shownMonth() const {
  const QDate today = session_.pc.clock.today();
  const ReadingScreen* screen = screen_();
  return QDate(today.year(), 1, 1).addMonths((screen ? screen->month() : today.month()) - 1);
}

int GiroSlips::firstUseMonth() const {
  return shownMonth().addMonths(startsWithThisMonth() ? 0 : -1).month();
}

std::pair<QString, QString> GiroSlips::usePeriod(int useMonth) const {
  const QDate shown = shownMonth();
  QDate first(shown.year(), useMonth, 1);
  if (first > shown) first = first.addYears(-1);
  return wholeMonth(first);
}

std::pair<QString, QString> GiroSlips::lastMonth() const {
  const QDate today = session_.pc.clock.today();
  return wholeMonth(QDate(today.year(), today.month(), 1).addMonths(-1));
}

std::optional<DocumentRun> GiroSlips::run(const GiroInput& input, GiroSelection selection) {
  const ReadingScreen* screen = screen_();
  const std::vector<int> rows = giroRows(session_, screen, selection);
  if (rows.empty() || !mayBeDue(session_.prompts, input)) return {};
  const GiroPaperKind& kind = giroPaper(paper_);
  const pc::PaperForm& form = kind.form();
  const auto writer = std::make_shared<SlipWriter>(session_, *screen, kind.rules, input);
  std::vector<QStringList> notes;
  for (const QString& note : input.notes) notes.push_back({note});
  const auto put = [=, &form, shift = slipPrinter(session_).shift](pc::PrintJob& job, pc::PaperPlaces& places,
                                                                   int document) {
    pc::drawPaper(job, form, shift, places.next(), writer->texts(rows[size_t(document)]), notes);
  };
  const QString day = input.year + u'-' + input.month + u'-' + input.day;
  return DocumentRun{.title = QString::fromUtf16(kind.title),
                     .paper = form.paper,
                     .placesOnSheet = form.copies,
                     .documents = int(rows.size()),
                     .put = put,
                     .name = [=](int document) {
                       return documentName(day, writer->customer(rows[size_t(document)]), u"지로"_s);
                     }};
}

int GiroSlips::print(const GiroInput& input, GiroSelection selection, const TellDocument& tell) {
  const QString device = giroPrinter(session_);
  if (device.isEmpty()) return 0;
  const auto made = run(input, selection);
  return made ? runDocuments(onPrinter(session_, device), *made, tell) : 0;
}

QStringList ocrNotes(const Session& session) {
  QStringList notes;
  for (const pc::Setting& line : setting::OcrNotes) notes << session.pc.settings.read(line);
  return notes;
}

void keepOcrNotes(Session& session, const QStringList& notes) {
  if (notes == ocrNotes(session)) return;
  for (size_t line = 0; line < std::size(setting::OcrNotes); ++line)
    session.pc.settings.write(setting::OcrNotes[line], notes.value(qsizetype(line)));
}

OrgA4Memory orgA4Memory(const Session& session) {
  const pc::Settings& settings = session.pc.settings;
  return {settings.read(setting::OrgA4NewPaper) != "0"_L1, settings.read(setting::OrgA4Preprinted) != "0"_L1,
          settings.read(setting::OrgA4UseFrom), settings.read(setting::OrgA4UseTo)};
}

void keepOrgA4Memory(Session& session, const OrgA4Memory& memory) {
  pc::Settings& settings = session.pc.settings;
  settings.write(setting::OrgA4NewPaper, memory.newPaper);
  settings.write(setting::OrgA4Preprinted, memory.preprinted);
  settings.write(setting::OrgA4UseFrom, memory.useFrom);
  settings.write(setting::OrgA4UseTo, memory.useTo);
}

GiroPaper jiroPaper(Session& session) {
  return GetOption(session, micrOption, u"0"_s) == "0"_L1 ? GiroPaper::Jiro : GiroPaper::JiroMicr;
}

void setJiroPaper(Session& session, GiroPaper paper) {
  SetOption(session, micrOption, paper == GiroPaper::JiroMicr ? u"1"_s : u"0"_s);
}

std::optional<SlipBank> onlyBank(Session& session) {
  jet::Recordset banks;
  if (!OpenSnapshot(session.prompts, session.dbBasic, banks, u"Select BName, BNumber, BUser From Bank"_s) ||
      banks.atEnd())
    return {};
  const SlipBank bank{banks[0].toText(), banks[1].toText(), banks[2].toText()};
  banks.MoveNext();
  return banks.atEnd() ? std::optional(bank) : std::nullopt;
}
