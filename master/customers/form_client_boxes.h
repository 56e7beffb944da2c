#pragma once
// The boxes of one customer on the screen: shows an entry, reads it back, and fills boxes by Enter and F12 from the
// other registers. Both the register and the short entry are made of these.
#include <QHash>
#include <QList>
#include <QWidget>

#include "master/customers/client_lookup.h"

class DateBox;
class Fields;
class Form;
class MoneyBox;
class QCheckBox;
class QLineEdit;
class QRadioButton;
class TelBox;

class ClientBoxes {
 public:
  /** Full: every column of a customer; Short: what a new customer is quickly entered with. */
  enum class Set { Full, Short };

  ClientBoxes(Form& form, Pickers& pickers, QWidget* panel, HouseStyle style, Set set);

  void show(const ClientEntry& entry);
  /** The boxes as they stand; code 0. */
  ClientEntry entry() const;

  QWidget* at(ClientBox box) const { return boxes_.value(box); }
  QWidget* first() const { return order_.front(); }
  /** In which Enter goes through them. */
  const QList<QWidget*>& order() const { return order_; }

  /** Enter in a box that looks something up first. True: the box keeps the focus or has moved it. */
  bool enter(QWidget* box);
  /** True when the box has a search behind F12. */
  bool f12(QWidget* box);
  /** The first box whose text no statement can hold takes the focus. */
  void focusApostrophe();

 private:
  void buildPlain(Fields& fields);
  void buildHousehold(Fields& fields);
  void buildShort(Fields& fields);
  void addTelephones(Fields& fields, bool all);
  void addPlace(Fields& fields);
  void addDatesAndMoney(Fields& fields);
  void addPayment(Fields& fields);
  void addMeter(Fields& fields, bool checkAlone = false);
  void addMemo(Fields& fields, int span);
  void help(QWidget* box, const QString& text);
  QLineEdit* line(Fields& fields, const char* name, const QString& label, int width, int maxLength,
                  int span = 1);
  bool fill(bool (ClientBoxes::*lookUp)(ClientEntry&), QWidget* next);
  bool postCode(ClientEntry& entry);
  bool regulator(ClientEntry& entry);
  bool building(ClientEntry& entry);
  bool date(DateBox* box);
  void meterSwitched(bool on);

  Form& form_;
  Pickers& pickers_;
  QWidget* panel_;
  HouseStyle style_;
  QList<QWidget*> order_;
  QHash<ClientBox, QWidget*> boxes_;

  QLineEdit *name_ = nullptr, *uname_ = nullptr, *post_ = nullptr, *address_ = nullptr, *memo_ = nullptr,
            *pressure_ = nullptr, *building_ = nullptr, *dong_ = nullptr, *ho_ = nullptr, *serial_ = nullptr,
            *status_ = nullptr, *item_ = nullptr;
  QList<TelBox*> tels_;
  DateBox *birth_ = nullptr, *appDate_ = nullptr;
  MoneyBox *gasInit_ = nullptr, *utilInit_ = nullptr, *unit_ = nullptr;
  QList<QRadioButton*> payWays_;
  QCheckBox* volume_ = nullptr;
};
