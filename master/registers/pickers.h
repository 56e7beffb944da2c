#pragma once
// The modal search forms, as a rule sees them: a question and the chosen row. Tests hand in a script.
#include <QString>

#include <optional>

#include "store/house_style.h"

enum class ClientSearchMode { General = 0, Volume = 1, All = 2 };

struct ClientChoice {
  qint64 code = 0;
  QString name;  ///< display name
};

/** An item of the catalogue. Prices in won a piece; stock in pieces. */
struct ItemChoice {
  QString name, size;
  double price = 0, stock = 0;
};

struct VolumeChoice {
  QString size;
  double unit = 0;  ///< won a unit
};

struct PostCodeChoice {
  QString zipCode, address, lots;
};

struct BuildingChoice {
  QString name, dong, postCode, address;
};

struct BankChoice {
  QString name, number, user;
};

/** What FrmTraderList ends with. */
struct TraderFound {
  bool any = true;                     ///< False: the text finds nobody
  std::optional<ClientChoice> trader;  ///< nothing also when the operator leaves
};

/** What FrmMsg asks before documents are printed: its title, its prompt and the captions of the two ways to print. */
struct PrintMethodQuestion {
  QString title, prompt, inkjet, dot;
};
/** paper: 0 "A4 반장 설정", 1 "A4 전체 설정", 2 "A4 반장 설정(B형)". */
struct PrintMethodChoice {
  bool dot = false;
  int paper = 0;
};

enum class TradeSide { Sale, Purchase };

/** Nothing when the operator leaves without choosing. */
class Pickers {
 public:
  virtual ~Pickers() = default;
  /** wholeNumber: a caller's number must end the stored one, and a single match is listed, not chosen: it may be a
   *  number of another area. */
  virtual std::optional<ClientChoice> searchClient(const QString& text, ClientSearchMode mode,
                                                   bool wholeNumber = false) = 0;
  /** kind: the search code "1" to "6". */
  virtual std::optional<ItemChoice> searchSize(const QString& kind, TradeSide side) = 0;
  virtual std::optional<VolumeChoice> searchVolume() = 0;
  virtual std::optional<QString> searchResponse() = 0;
  virtual std::optional<QString> searchRefill() = 0;
  virtual std::optional<BankChoice> searchBank() = 0;
  virtual std::optional<PostCodeChoice> searchPostCode(const QString& text) = 0;
  virtual std::optional<BuildingChoice> searchBuilding(HouseStyle style) = 0;
  /** "yyyy-MM-dd" */
  virtual std::optional<QString> pickDate(const QString& initial) = 0;
  // What the document forms ask; whoever has no such forms answers as an operator who leaves.
  /** FrmTraderList: chooses by itself where the text finds a single one. */
  virtual TraderFound searchTrader(const QString&) { return {}; }
  /** FrmNewTrader of the sale side or not; False when the operator leaves. */
  virtual bool registerTrader(bool) { return false; }
  /** FrmPost */
  virtual std::optional<PostCodeChoice> searchPost(const QString&) { return {}; }
  /** FrmMsg */
  virtual std::optional<PrintMethodChoice> askPrintMethod(const PrintMethodQuestion&) { return {}; }
  /** frmSecurity: True when the company's password was given. */
  virtual bool checkPassword() = 0;
};
