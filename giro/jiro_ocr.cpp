#include "giro/jiro_ocr.h"

#include "billing/reading_screen.h"
#include "giro/ocr_layout.h"
#include "papers/paper_printer.h"
#include "store/session.h"
#include "store/settings_table.h"

using namespace Qt::StringLiterals;

int JiroOcr::noteWidth() const {
  return ocrNoteWidth(paper_);
}

QDate JiroOcr::dueDate() const {
  return session_.pc.clock.today();
}

bool JiroOcr::startsWithThisMonth() const {
  return session_.pc.settings.read(setting::OcrThisMonth) != "0"_L1;
}

void JiroOcr::setStartsWithThisMonth(bool on) {
  session_.pc.settings.write(setting::OcrThisMonth, on);
}

QDate JiroOcr::shownMonth() const {
  const QDate today = session_.pc.clock.today();
  const ReadingScreen* screen = screen_();
  return QDate(today.year(), 1, 1).addMonths((screen ? screen->month() : today.month()) - 1);
}

int JiroOcr::firstUseMonth() const {
  return shownMonth().addMonths(startsWithThisMonth() ? 0 : -1).month();
}

std::pair<QString, QString> JiroOcr::usePeriod(int useMonth) const {
  const QDate shown = shownMonth();
  QDate first(shown.year(), useMonth, 1);
  if (first > shown) first = first.addYears(-1);
  const auto text = [](const QDate& day) { return day.toString(u"yyyy.MM.dd"_s); };
  return {text(first), text(first.addMonths(1).addDays(-1))};
}

std::optional<DocumentRun> JiroOcr::run(const GiroInput& input, GiroSelection selection) {
  const ReadingScreen* screen = screen_();
  const std::vector<int> rows = giroRows(session_, screen, selection);
  if (rows.empty()) return {};
  const pc::PaperForm& form = ocrForm(paper_);
  const auto writer = std::make_shared<SlipWriter>(session_, *screen, paper_, input);
  std::vector<QStringList> notes;
  for (const QString& note : input.notes) notes.push_back({note});
  const QString day = input.year + u'-' + input.month + u'-' + input.day;
  return DocumentRun{.title = paper_ == OcrPaper::A4 ? u"OCR-A4 지로"_s : u"OCR 지로"_s,
                     .paper = form.paper,
                     .placesOnSheet = form.copies,
                     .documents = int(rows.size()),
                     .put =
                         [=, &form, shift = slipPrinter(session_).shift](
                             pc::PrintJob& job, pc::PaperPlaces& places, int document) {
                           pc::drawPaper(job, form, shift, places.next(),
                                         writer->texts(rows[size_t(document)]), notes);
                         },
                     .name =
                         [=](int document) {
                           return documentName(day, writer->customer(rows[size_t(document)]), u"지로"_s);
                         }};
}

int JiroOcr::print(const GiroInput& input, GiroSelection selection, const TellDocument& tell) {
  const QString device = giroPrinter(session_);
  if (device.isEmpty()) return 0;
  const auto made = run(input, selection);
  return made ? runDocuments(onPrinter(session_, device), *made, tell) : 0;
}
