#pragma once
// What the papers of statements and invoices have in common: their grid, the choices of the print dialog, the two
// parties, and the pieces that a layout's table is put together from.
#include <array>
#include <tuple>

#include "pc/paper_form.h"

/** The grid: six rows to the inch, a column as wide as a half-width character of the letters. */
inline constexpr double documentPoints = 9.75, documentRows = 6, documentColumns = 144 / documentPoints;
inline constexpr pc::PaperFont documentLetters[] = {{u"굴림체", documentPoints}};

/** Columns that the texts of a drawn form stand to the right where the operator has set no margin: there they clear the
 *  form's words. */
inline constexpr double drawnFormColumns = 2;

/** A paper of the print dialog's: three for the ink-jet printer, one for the dot printer. */
enum class DocumentLayout { HalfA4, FullA4, HalfA4B, Dot };

/** The first texts of every paper: who it is from and to. A document's own texts count from Count on. */
enum class PartyText {
  SupplierSerial,
  SupplierName,
  SupplierPerson,
  SupplierAddress,
  SupplierStatus,
  SupplierItem,
  BuyerSerial,
  BuyerName,
  BuyerPerson,
  BuyerAddress,
  BuyerStatus,
  BuyerItem,
  Count
};

namespace layout {

using pc::at, pc::PaperItem;

/** Several parts of a table as one. */
template <size_t... Sizes>
constexpr auto joined(const std::array<PaperItem, Sizes>&... parts) {
  return std::apply([](const auto&... each) { return std::array{each...}; }, std::tuple_cat(parts...));
}
/** What make gives for 0 to Count - 1. */
template <size_t Count, class Make>
constexpr auto each(Make make) {
  return [&]<size_t... Place>(std::index_sequence<Place...>) {
    return std::array{make(int(Place))...};
  }
  (std::make_index_sequence<Count>());
}

/** A text's column and the half-width characters that have room there. */
struct Room {
  double column;
  int width;
};
template <size_t Count>
constexpr auto rowOf(double row, const Room (&rooms)[Count], const PartyText (&texts)[Count]) {
  return each<Count>(
      [&](int place) { return at(row, rooms[place].column, texts[place]).squeezed(rooms[place].width); });
}

/** The business numbers' row: columns of the supplier's and the buyer's. */
constexpr auto numbers(double row, double supplier, double buyer) {
  return std::array{at(row, supplier, PartyText::SupplierSerial), at(row, buyer, PartyText::BuyerSerial)};
}
/** Each side's company and person. */
constexpr auto names(double row, const Room (&rooms)[4]) {
  using enum PartyText;
  return rowOf(row, rooms, {SupplierName, SupplierPerson, BuyerName, BuyerPerson});
}
constexpr auto addresses(double row, const Room (&rooms)[2]) {
  return rowOf(row, rooms, {PartyText::SupplierAddress, PartyText::BuyerAddress});
}
/** Each side's status and item. */
constexpr auto kinds(double row, const Room (&rooms)[4]) {
  using enum PartyText;
  return rowOf(row, rooms, {SupplierStatus, SupplierItem, BuyerStatus, BuyerItem});
}

/** The entries of a drawn form, in inches from a copy's upper edge; the form goes from one side to the other. */
struct Drawn {
  double edge;  ///< from the sheet's to the upper copy's

  static constexpr double left = 0.68, right = 7.5;

  constexpr PaperItem label(double x, double y, QStringView text) const {
    return pc::inches(x, edge + y, text);
  }
  /** Words one below the other. */
  template <size_t Count>
  constexpr auto stack(double x, const double (&ys)[Count], const QStringView (&words)[Count]) const {
    return each<Count>([&](int place) { return label(x, ys[place], words[place]); });
  }
  /** Words side by side. */
  template <size_t Count>
  constexpr auto beside(double y, const double (&xs)[Count], const QStringView (&words)[Count]) const {
    return each<Count>([&](int place) { return label(xs[place], y, words[place]); });
  }
  constexpr PaperItem across(double y, double from = left, double to = right, double points = 0.5) const {
    return pc::rule(from, edge + y, to, edge + y, points);
  }
  constexpr PaperItem thick(double y) const { return across(y, left, right, 1); }
  constexpr PaperItem upright(double x, double from, double to, double points = 0.5) const {
    return pc::rule(x, edge + from, x, edge + to, points);
  }
  /** Uprights of one length. */
  template <size_t Count>
  constexpr auto uprights(double from, double to, const double (&xs)[Count]) const {
    return each<Count>([&](int place) { return upright(xs[place], from, to); });
  }
  constexpr PaperItem frame(double top, double bottom) const {
    return pc::box(left, edge + top, right, edge + bottom, 1);
  }
};

/** The lines of a document's list. */
struct Lines {
  std::span<const PaperItem> items;
  int onSheet;
  double rows = 1;  ///< from line to line
};

/** Two copies on a sheet, the lower one copyRows below the upper. */
constexpr pc::PaperForm paper(std::span<const PaperItem> items, double copyRows, Lines lines = {},
                              pc::PaperSize size = {},
                              std::span<const pc::PaperFont> fonts = documentLetters) {
  return {.paper = size,
          .rowsPerInch = documentRows,
          .columnsPerInch = documentColumns,
          .fonts = fonts,
          .items = items,
          .copies = 2,
          .copyRows = copyRows,
          .line = lines.items,
          .lines = lines.onSheet,
          .lineRows = lines.rows};
}

}  // namespace layout
