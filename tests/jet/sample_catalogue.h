#pragma once
// Tables for the compiler's tests, after the shapes in use: a year file "y" with links into the file "b".
#include <map>

#include "store/jet/compile.h"

namespace tests {

class SampleCatalogue : public jet::Catalogue {
 public:
  SampleCatalogue() {
    using jet::Type;
    add("y", "Sale",
        {number("SaleID", true), text("SaleDate"), number("ClientCode"), text("Response"),
         text("SaleName", 20), text("SaleThing", 10), number("SaleUnit"), number("SaleNum"),
         number("SaleGubun"), yesNo("Gubun"), number("Income"), number("Trust"), number("DC"),
         number("DealList"), number("SaleList")});
    add("y", "Evaporation",
        {number("ClientCode"), number("Mon"), floating("UseGage"), number("UsePay"), number("Trust"),
         floating("Delay"), number("Manage"), number("Total"), number("Pay"), text("TrustDay"),
         yesNo("paydelayed")});
    add("b", "Client",
        {number("Code", true), text("Name"), text("Tel"), text("Tel1"), memo("Memo"), text("BDName"),
         text("Dong"), text("Ho"), number("GasInit"), yesNo("VolumeYesNo"), number("VolumeUnit"),
         text("Position")});
    add("b", "LPG",
        {number("Code", true), text("LPGName"), text("Size"), number("LPGStock"), number("CANEmpty")});
    add("b", "User",
        {text("Company"), text("User"), text("Tel"), number("PayState"), floating("Rate"), yesNo("Stock")});
    jet::Field strict = text("Key", 4);
    strict.allowZeroLength = false;
    add("y", "Strict", {strict, memo("Note")});
    jet::Field needed = text("A'b", 4), count = number("N"), yes = yesNo("Y"), given = number("G");
    needed.required = count.required = yes.required = given.required = true;
    given.defaultValue = jet::Value(0);
    add("y", "Needed", {number("ID", true), needed, count, yes, given});
  }

  std::optional<jet::TableInfo> table(const QString& name) override {
    const auto found = tables_.find(name.toUpper());
    if (found == tables_.end()) return {};
    return found->second;
  }
  std::optional<jet::TableInfo> tableIn(const QString& path, const QString& name) override {
    if (path != "C:\\RWGas\\Dbs\\Basic.mdb") throw jet::Error(3024, path);
    return table(name);
  }

  static jet::Field number(const char* name, bool autonumber = false) {
    jet::Field field;
    field.name = QString::fromUtf8(name);
    field.type = jet::Type::Long;
    field.autonumber = autonumber;
    return field;
  }
  static jet::Field typed(const char* name, jet::Type type, int size = 0) {
    jet::Field field = number(name);
    field.type = type;
    field.size = size;
    return field;
  }
  static jet::Field floating(const char* name) { return typed(name, jet::Type::Double); }
  static jet::Field yesNo(const char* name) { return typed(name, jet::Type::Boolean); }
  static jet::Field memo(const char* name) { return typed(name, jet::Type::Memo); }
  static jet::Field text(const char* name, int size = 0) { return typed(name, jet::Type::Text, size); }

 private:
  void add(const char* schema, const char* name, std::vector<jet::Field> fields) {
    tables_[QString::fromUtf8(name).toUpper()] = {QString::fromUtf8(schema), QString::fromUtf8(name),
                                                  std::move(fields)};
  }
  std::map<QString, jet::TableInfo> tables_;
};

}  // namespace tests
