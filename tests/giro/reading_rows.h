#pragma once
// A reading screen without a window, for the tests of slips.
#include "billing/reading_screen.h"

namespace tests {

struct ReadingRows : ReadingScreen {
  SpreadModel rows;
  HouseStyle shownBook = HouseStyle::Individual;
  int shownMonth = 3, active = 1;
  QString entry;

  ReadingRows() { rows.setColumns(std::vector<SpreadColumn>(EvaCol::Last)); }

  /** A household of the apartments: reading 130 after 100, 30 units for 45,000 won. */
  int add(const QString& name, const QString& code, const QString& total) {
    const int row = rows.MaxRows() + 1;
    rows.setMaxRows(row);
    const std::pair<int, const char*> texts[] = {
        {EvaCol::PrevUseGage, "100"},  {EvaCol::UseGage, "130"}, {EvaCol::UseMuch, "30"},
        {EvaCol::UsePay, "45000"},     {EvaCol::Trust, "12000"}, {EvaCol::Delay, "999"},
        {EvaCol::Manage, "1500"},      {EvaCol::Prnt, "0"},      {EvaCol::Address, "가람시 장터길 7"},
        {EvaCol::BDName, "행복아파트"}};
    for (const auto& [col, text] : texts) rows.setText(row, col, QString::fromUtf8(text));
    rows.setText(row, EvaCol::Name, name);
    rows.setText(row, EvaCol::Code, code);
    rows.setText(row, EvaCol::Total, total);
    return row;
  }

  const SpreadModel& readings() const override { return rows; }
  int activeReading() const override { return active; }
  HouseStyle book() const override { return shownBook; }
  int month() const override { return shownMonth; }
  QString buildingEntry() const override { return entry; }
};

}  // namespace tests
