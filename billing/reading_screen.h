#pragma once
// The open reading screen as the giro forms and the reports see it: slips show what stands on the screen, not what
// stands in the table.
#include <QString>

#include "store/rate_book.h"
#include "ui/model/spread_model.h"

/** Columns of SpEva; their order is what the giro forms print from. Amounts in won. */
namespace EvaCol {
enum : int {
  Name = 1,  ///< the customer; of a building "101동 203호"
  PrevUseGage,
  UseGage,
  UseMuch,
  UsePay,
  Trust,
  Delay,
  Manage,
  Total,
  Pay,
  Prnt,  ///< check box "1" or "0"
  TrustDay,
  Code,
  VolumeUnit,
  Address,
  Tel,
  ClientName,
  PayWay,      ///< "3" is automatic transfer
  PayDelayed,  ///< check box "1" or "0"
  BDName,
  // What stands out, beside the bill: not printed, not stored.
  Judgement,
  LastUse,   ///< of the month before, cubic metres
  UsualUse,  ///< what is expected
  Last = UsualUse
};
}

/** frmEva. A giro form finds it as the form in front when it is opened. */
class ReadingScreen {
 public:
  virtual ~ReadingScreen() = default;
  virtual const SpreadModel& readings() const = 0;
  virtual int activeReading() const = 0;  ///< row from 1; 0 when there is none
  virtual HouseStyle book() const = 0;
  virtual int month() const = 0;              ///< the list index: 0 the opening entry, 1 to 12
  virtual QString buildingEntry() const = 0;  ///< as it stands in CboBDName; '' in the individual book
};
