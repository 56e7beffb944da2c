#pragma once
// The figures and texts of one slip, from a row of the reading screen.
#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "billing/building_rate.h"

class ReadingScreen;
struct Session;

/** What a layout can place. Amounts, readings and use have separators. */
enum class SlipText {
  IssueYear,   ///< of the month before the shown one
  IssueMonth,  ///< "MM"
  MonthTitle,  ///< "02월분"
  UsePeriod,
  AfterDueCharge,
  AfterDueAmount,
  Total,
  AmountToPay,  ///< the total, or that the bank collects it
  DueYear,
  DueMonth,
  DueDay,
  DueDate,  ///< in one text
  Reading,
  PrevReading,
  Use,
  Amount,
  Manage,
  Arrears,
  Late,         ///< as the slip shows it, not as it stands in the row
  Code,         ///< seven places
  Name,         ///< the grid's first column
  NameSir,      ///< the same with "님"
  Address,      ///< of a household in a building its building and room
  AddressLine,  ///< the receipt's of the OCR papers: the building as the screen's list names it
  ScanLine,
  Bank,
  Account,
  Holder,
  Bank2,
  Account2,
  Holder2,
  Bank3,
  Account3,
  Holder3,
  FeeLabel,
  Company,
  PhoneLabel,
  Phone,
  Count
};

/** The one text of a line of notes. */
enum class NoteText { Note };

/** A bank that takes the money. */
struct SlipBank {
  QString name, account, holder;
};

/** What the operator typed for the whole run. */
struct GiroInput {
  QString year, month, day;  ///< due date
  QString useFrom, useTo;
  QStringList notes = {};            ///< up to eight lines
  std::vector<SlipBank> banks = {};  ///< up to three
  bool monthsArrearsOnly =
      false;  ///< the paper has one line for arrears and none for the late charge on them
  bool companyPreprinted =
      false;  ///< blanks stand where the company, its telephone and the fee's label would
};

/** In what the papers' texts differ. */
struct SlipRules {
  bool buildingsRate = true;  ///< an apartment's building goes before the book's rate
  bool afterDueByMethod =
      false;                ///< the charge is on amount and fee where the company carries the bill without it
  bool roundsAnew = false;  ///< the company's rounding is read at each figure, not once a run
  bool padsFigures = true;  ///< figures stand in 13 places; else the paper puts them at the right itself
  bool labelsBank = false;  ///< "은행명 : ", "예금주 : "
  bool buildingByList = false;  ///< the address names the building as the screen's list does, not as the row
  const char16_t* periodBetween = u"-";
  const char16_t* dueDate = u"%1.%2.%3";  ///< year, month, day
};

using SlipTexts = std::array<QString, size_t(SlipText::Count)>;

/** Makes the texts of one run's slips. What is the same on all of them, the company's rounding and the buildings' rates
 *  too, is read once at the beginning: the slips of a run agree, whatever another PC changes meanwhile. */
class SlipWriter {
 public:
  SlipWriter(Session& session, const ReadingScreen& screen, const SlipRules& rules, const GiroInput& input);
  /** Neither the late line nor the after-due figures are stored. */
  SlipTexts texts(int row) const;
  QString customer(int row) const;  ///< as the slip names him

 private:
  void writeCommon(const GiroInput& input);
  void writeBanks(const std::vector<SlipBank>& banks);
  void writeCompany(bool preprinted);
  double rounded(double won) const;
  QString figure(double amount) const;

  Session& session_;
  const ReadingScreen& screen_;
  const SlipRules rules_;
  const bool arrearsOnly_;
  SlipTexts common_;  ///< what stands on every slip
  QString giroNumber_;
  std::optional<QString> buildingLabel_;  ///< nothing when a household's own building is printed
  LateRates rates_;
  std::optional<int> payState_;
};
