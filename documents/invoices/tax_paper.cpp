#include "documents/invoices/tax_paper.h"

#include <array>

#include "store/text_width.h"
#include "store/vb.h"

namespace {

const pc::PaperForm& formOf(const TaxPaperChoice& choice) {
  // In the order of DocumentLayout. The whole sheet without its form is printed on the other half sheets.
  static constexpr const pc::PaperForm* forms[] = {&printTaxHalf, &printTaxDrawn, &printTaxHalfB,
                                                   &printTaxDot};
  const bool bare = choice.layout == DocumentLayout::FullA4 && !choice.drawnForm;
  return bare ? printTaxHalfB : *forms[size_t(choice.layout)];
}

/** Two columns a cell, the empty ones in front. */
QString spread(qint64 amount, int cells) {
  QString text = QString(2 * qMax(0, blankCells(amount, cells)), ' ');
  for (const QChar digit : QString::number(amount)) text += QString(digit) + ' ';
  return text;
}

}  // namespace

int blankCells(qint64 amount, int cells) {
  return cells - int(QString::number(amount).size());
}

bool fitsCells(const VatSplit& sums) {
  return blankCells(sums.supply, supplyCells) >= 0 && blankCells(sums.tax, taxCells) >= 0;
}

QString businessNumberText(const QString& serial) {
  const QString digits = QString(serial).remove('-').trimmed();
  const bool plain = digits.size() == 10 &&
                     std::all_of(digits.begin(), digits.end(), [](QChar each) { return each.isDigit(); });
  return plain ? digits.left(3) + '-' + digits.mid(3, 2) + '-' + digits.mid(5) : serial;
}

TaxPaper::TaxPaper(TaxPaperChoice choice, DocumentParty supplier, pc::PaperShift margin)
    : DocumentPaper(formOf(choice), std::move(supplier), margin), choice_(choice) {}

void TaxPaper::put(pc::PrintJob& job, pc::PaperPlaces& places, const TaxInvoice& invoice) const {
  static const std::array<QString, 2> labels{"(공급자 보관용)", "(공급받는자 보관용)"};
  static constexpr std::array<pc::PrintInk, 2> inks{pc::PrintInk{0, 0, 200}, pc::PrintInk{200, 0, 0}};
  const bool drawn = choice_.layout == DocumentLayout::FullA4 && choice_.drawnForm;
  const std::vector<QString> shown = texts(invoice);
  places.newSheet();
  for (const pc::PaperSheet& sheet : pc::sheetsOf(qsizetype(invoice.lines.size()), form_.lines)) {
    std::vector<QStringList> lines;
    for (qsizetype at = sheet.first; at < sheet.first + sheet.count; ++at)
      lines.push_back(lineTexts(invoice.lines[size_t(at)]));
    if (sheet.last && sheet.count < form_.lines) {
      lines.emplace_back(qsizetype(TaxLineText::Count));
      lines.back()[qsizetype(TaxLineText::Rest)] = "=== 이하 여백 ===";
    }
    for (int copy = 0; copy < form_.copies; ++copy) {
      const int place = places.next();
      if (drawn) {
        job.setInk(inks[size_t(copy)]);
        pc::drawPaper(job, taxForm, {margin_.rows, 0}, place, {&labels[size_t(copy)], 1});
        job.setInk({});
        pc::drawPaper(job, printTaxCells, {margin_.rows, 0}, place, shown);
        const double half = job.paper().height / 2;
        if (copy == 1) job.line(0, half, job.paper().width, half, 0.5, true);
      }
      pc::drawPaper(job, form_, margin_, place, shown, lines);
    }
  }
}

std::vector<QString> TaxPaper::texts(const TaxInvoice& invoice) const {
  DocumentParty supplier = supplier_;
  supplier.serial = businessNumberText(supplier.serial);
  std::vector<QString> made = partyTexts(int(TaxText::Count), supplier, invoice.buyer);
  const auto set = [&](TaxText what, const QString& text) { made[size_t(what)] = text; };
  set(TaxText::Serial, tax_serial::shown(invoice.serial));
  set(TaxText::Year, invoice.issueDate.left(4));
  set(TaxText::Month, invoice.issueDate.mid(5, 2));
  set(TaxText::Day, invoice.issueDate.mid(8, 2));
  set(TaxText::Blank, QString::number(blankCells(invoice.sums.supply, supplyCells)));
  set(TaxText::SupplyDigits, QString::number(invoice.sums.supply));
  set(TaxText::SupplyCells, spread(invoice.sums.supply, supplyCells));
  if (!choice_.withoutTax) {
    set(TaxText::TaxDigits, QString::number(invoice.sums.tax));
    set(TaxText::TaxCells, spread(invoice.sums.tax, taxCells));
  }
  const QString total = vb::Format(double(invoice.sums.total), "##,###,###,###");
  set(TaxText::Total, QString(qMax(1, 15 - int(total.size())), '*') + total);
  set(TaxText::Word, choice_.receipt ? "영수" : "청구");
  return made;
}

QStringList TaxPaper::lineTexts(const TaxLine& line) const {
  auto made = QStringList(qsizetype(TaxLineText::Count));
  const auto set = [&](TaxLineText what, const QString& text) { made[qsizetype(what)] = text; };
  set(TaxLineText::Month, line.DealDate.mid(5, 2));
  set(TaxLineText::Day, line.DealDate.mid(8, 2));
  set(TaxLineText::Item, line.PNorm.isEmpty() ? line.PName : line.PName + " (" + line.PNorm + ")");
  if (line.Item <= 1) {
    if (line.Quantity != 0) set(TaxLineText::Quantity, moneyText(line.Quantity));
    if (line.UnitCost != 0) set(TaxLineText::Price, moneyText(line.UnitCost));
  }
  set(TaxLineText::Supply, wonOrBlank(line.TradeKum));
  if (!choice_.withoutTax) set(TaxLineText::Tax, wonOrBlank(line.VatKum));
  return made;
}
