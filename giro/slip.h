#pragma once
// The figures and texts of one OCR slip, from a row of the reading screen.
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

#include "billing/building_rate.h"

class ReadingScreen;
struct Session;

enum class OcrPaper { Continuous, A4 };

/** What a layout can place. Amounts, readings and use stand right-aligned in 13 places with separators. */
enum class SlipText {
  IssueYear,   ///< of the month before the shown one
  IssueMonth,  ///< "MM"
  UsePeriod,
  AfterDueCharge,
  AfterDueAmount,
  Total,
  AmountToPay,  ///< the total, or that the bank collects it
  DueYear,
  DueMonth,
  DueDay,
  Reading,
  PrevReading,
  Use,
  Amount,
  Manage,
  Arrears,
  Late,  ///< as the slip shows it, not as it stands in the row
  Code,  ///< seven places
  Name,  ///< the grid's first column
  Address,
  AddressLine,  ///< the receipt's, with the building's label
  ScanLine,
  Count
};

/** The one text of a line of notes. */
enum class NoteText { Note };

/** What the operator typed for the whole run. */
struct GiroInput {
  QString year, month, day;  ///< due date
  QString useFrom, useTo;
  QStringList notes;  ///< up to eight lines
};

using SlipTexts = std::array<QString, size_t(SlipText::Count)>;

/** Makes the texts of one run's slips. What is the same on all of them, the company's rounding and the buildings' rates
 *  too, is read once at the beginning: the slips of a run agree, whatever another PC changes meanwhile. */
class SlipWriter {
 public:
  SlipWriter(Session& session, const ReadingScreen& screen, OcrPaper paper, const GiroInput& input);
  /** The rate of the late charge is the book's; on A4 an apartment's building goes before
   *  it, on continuous paper not (kept). Neither the late line nor the after-due figures are stored. */
  SlipTexts texts(int row) const;
  QString customer(int row) const;  ///< as the slip names him

 private:
  const ReadingScreen& screen_;
  SlipTexts common_;  ///< what stands on every slip
  QString giroNumber_;
  std::optional<QString> buildingLabel_;  ///< nothing when a household's own building is printed
  LateRates rates_;
  std::optional<int> payState_;
};
