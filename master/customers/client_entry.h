#pragma once
// One customer as the boxes of a register page show and take it.
#include <QString>

#include "master/registers/row_change.h"
#include "store/house_style.h"

/** How a customer lives; also the number of its page in the register. */

enum class PayWay { Visit = 1, Giro = 2, Transfer = 3 };

/** Boxes that a refused save sends the focus to. */
enum class ClientBox {
  None,
  Name,
  Tel,
  Tel1,
  Tel2,
  Pressure,
  VolumeUnit,
  GasInit,
  UtilInit,
  Birth,
  AppDate,
  New,
  List
};

/** Texts as typed; money may carry its thousands commas. A new entry has code 0. */
struct ClientEntry {
  qint64 code = 0;
  HouseStyle houseStyle = HouseStyle::Individual;
  QString name, uname;
  QString tel, tel1, tel2;
  QString postCode, address;
  QString birth, appDate;  ///< "yyyy-MM-dd" or ''
  QString memo;
  QString gasInit = "0", utilInit = "0";  ///< receivables, won
  PayWay payWay = PayWay::Visit;
  bool volume = false;  ///< billed by meter
  QString pressure;     ///< size of the regulator
  QString volumeUnit;   ///< won a unit
  QString bdName, dong, ho;
  QString serial, status, item;  ///< for tax papers, plain customers only

  bool operator==(const ClientEntry&) const = default;
};

/** The entry's boxes by column of Client, and back; what the fields do not name stays. */
RegisterFields clientFields(const ClientEntry& entry);
void takeClientFields(ClientEntry& entry, const RegisterFields& fields);
/** What the register calls a column. */
RegisterFields clientLabels();

/** The current row of a recordset over Client. */
ClientEntry readClient(const jet::Recordset& client);

/** What stands in a customer's name cell: a plain customer's name, a household's building, block and unit; the head
 *  row of a block has no unit. */
QString DisplayName(const jet::Recordset& client);
QString DisplayName(const ClientEntry& client);

/** A save's end: where the focus goes, and the code of a newly made customer. */
struct ClientSaved {
  bool done = false;
  ClientBox focus = ClientBox::None;
  qint64 code = 0;
};
