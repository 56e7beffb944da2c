// Slips to a PDF file: the rows' figures, layout and print job beside the same texts drawn straight on the file.
#include <memory>

#include "bench/books.h"
#include "bench/pairs.h"
#include "bench/plain_drawing.h"
#include "giro/giro_slips.h"
#include "store/rate_book.h"
#include "store/settings_table.h"
#include "tests/giro/reading_rows.h"
#include "tests/recorded_print.h"
#include "ui/paper/printers.h"

using namespace Qt::StringLiterals;

namespace {

GiroInput slipInput() {
  return {"2026", "03", "31", "2026.02.01", "2026.02.28", {"가스를 아껴 씁시다."}};
}

void slipPair(int size, bench::Side& ours, bench::Side& plain) {
  auto books = std::make_shared<bench::Books>();
  Session& session = books->session;
  bench::require(readRateBook(session), "rates");
  auto screen = std::make_shared<tests::ReadingRows>();
  screen->shownBook = HouseStyle::Apartment;
  for (int row = 1; row <= size; ++row)
    screen->add(u"101동 %1호"_s.arg(row), QString::number(row), QString::number(50000 + row * 10));
  auto slipsOf = std::make_shared<GiroSlips>(session, [screen] { return screen.get(); });
  slipsOf->setPaper(GiroPaper::OcrA4);

  auto recorder = std::make_shared<tests::RecordedPrinters>();
  session.printers = recorder.get();
  session.pc.settings.write(setting::GiroPrinter, pdfPrinterName());
  bench::require(slipsOf->print(slipInput(), GiroSelection::All) == size, "slips");

  auto printers = std::make_shared<PcPrinters>(session.pc);
  session.printers = printers.get();
  qputenv("HAEON_PDF", books->folder.filePath("ours.pdf").toUtf8());
  ours.run = [books, screen, slipsOf, printers, size] {
    bench::require(slipsOf->print(slipInput(), GiroSelection::All) == size, "slips");
  };
  plain.run = [books, recorder] {
    bench::drawPlainly(*recorder->jobs.back(), books->folder.filePath("plain.pdf"), QPageLayout::Landscape);
  };
}

const int slips = bench::addPair({"giro slips to a PDF file", 1.2, {100, 1000, 10000}, slipPair});

}  // namespace
