#include "documents/statements/deal_paper.h"

#include <array>

namespace {

/** In the order of DocumentLayout. */
constexpr const pc::PaperForm* forms[] = {&printHalfA4, &printFullA4, &printHalfA4B, &printDot};

pc::PaperShift shiftOf(DocumentLayout layout, pc::PaperShift margin) {
  if (layout == DocumentLayout::HalfA4) margin.columns += 2;
  return margin;
}

}  // namespace

DealPaper::DealPaper(DealPaperChoice choice, DocumentParty supplier, pc::PaperShift margin)
    : DocumentPaper(*forms[size_t(choice.layout)], std::move(supplier), shiftOf(choice.layout, margin)),
      choice_(choice) {}

void DealPaper::put(pc::PrintJob& job, pc::PaperPlaces& places, const DealStatement& statement) const {
  static const std::array<QString, 2> labels{"  (공급자 보관용)", "(공급받는자 보관용)"};
  Sums sums;
  places.newSheet();
  for (const pc::PaperSheet& sheet : pc::sheetsOf(qsizetype(statement.lines.size()), form_.lines)) {
    std::vector<QStringList> lines;
    sums.page = 0;
    for (qsizetype at = sheet.first; at < sheet.first + sheet.count; ++at) {
      const DealLine& line = statement.lines[size_t(at)];
      std::optional<VatSplit> split;
      if (choice_.vat) {
        split = splitAmount(line.amount, *choice_.vat);
        sums.supply += split->supply;
        sums.tax += split->tax;
        sums.total += split->total;
        sums.page += split->total;
      }
      lines.push_back(lineTexts(line, split));
    }
    const std::vector<QString> shown = texts(statement, sheet, sums);
    for (int copy = 0; copy < form_.copies; ++copy) {
      const int place = places.next();
      if (choice_.layout == DocumentLayout::FullA4 && choice_.drawnForm)
        pc::drawPaper(job, statementForm, {margin_.rows, 0}, place, {&labels[size_t(copy)], 1});
      pc::drawPaper(job, form_, margin_, place, shown, lines);
    }
  }
}

std::vector<QString> DealPaper::texts(const DealStatement& statement, const pc::PaperSheet& sheet,
                                      const Sums& sums) const {
  std::vector<QString> made = partyTexts(int(DealText::Count), supplier_, statement.buyer);
  const auto set = [&](DealText what, const QString& text) { made[size_t(what)] = text; };
  const bool dot = choice_.layout == DocumentLayout::Dot;
  set(DealText::IssueDate, choice_.issued.toString(dot ? "yyyy-MM-dd" : "yyyy년 MM월 dd일"));
  set(DealText::IssueYear, choice_.issued.toString("yyyy"));
  set(DealText::IssueMonth, choice_.issued.toString("MM"));
  set(DealText::IssueDay, choice_.issued.toString("dd"));
  set(DealText::Supply, wonOrBlank(sums.supply));
  set(DealText::Tax, wonOrBlank(sums.tax));
  set(DealText::Before, wonOrBlank(statement.before));
  set(DealText::After, wonOrBlank(statement.before + sums.total));
  if (!sheet.last) set(DealText::MoreBehind, "- 뒷장있음(" + QString::number(sheet.number) + ")-");
  if (!dot || sheet.last) set(DealText::Total, wonOrBlank(sums.total));
  if (!sheet.last) set(DealText::PageTotal, wonOrBlank(sums.page));
  if (sheet.last) {
    set(DealText::BeforeLabelled, "전이월 : " + wonOrBlank(statement.before));
    set(DealText::AfterLabelled, "잔액 : " + wonOrBlank(statement.before + sums.total));
  }
  return made;
}

QStringList DealPaper::lineTexts(const DealLine& line, const std::optional<VatSplit>& split) const {
  auto made = QStringList(qsizetype(DealLineText::Count));
  const auto set = [&](DealLineText what, const QString& text) { made[qsizetype(what)] = text; };
  const QString item = line.item + " (" + line.norm + ")";
  const bool short_ = choice_.layout == DocumentLayout::FullA4 || choice_.layout == DocumentLayout::Dot;
  const QString date = short_ ? line.date.mid(5) : line.date;
  if (choice_.dated) {
    set(DealLineText::Date, date);
    set(DealLineText::Item, item);
  } else {
    set(DealLineText::ItemAlone, item);
  }
  set(DealLineText::DatedItem, choice_.dated ? date + ' ' + item : item);
  set(DealLineText::Quantity, wonOrBlank(line.quantity));
  set(DealLineText::Price, wonOrBlank(line.price));
  if (!split) return made;
  set(DealLineText::Supply, wonOrBlank(split->supply));
  set(DealLineText::Tax, wonOrBlank(split->tax));
  set(DealLineText::Amount, wonOrBlank(split->total));
  return made;
}
