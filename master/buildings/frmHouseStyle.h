#pragma once
// "아파트/다가구 등록": the blocks of both house styles, each registered with all its households.
#include <array>

#include "master/buildings/building_register.h"
#include "master/registers/form_context.h"
#include "master/registers/form_register.h"

class QCheckBox;

class frmHouseStyle : public RegisterForm {
 public:
  explicit frmHouseStyle(FormContext& context, QWidget* parent = nullptr);

 protected:
  void recordShown() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /** One style's page and the boxes that the form itself moves. */
  struct Page {
    RegisterPage* sheet = nullptr;
    QGroupBox* side = nullptr;  ///< around the units
    Spread* units = nullptr;
    QLineEdit *name = nullptr, *dong = nullptr, *post = nullptr, *address = nullptr, *pressure = nullptr;
    MoneyBox *floors = nullptr, *width = nullptr, *price = nullptr;
    QCheckBox *floor4 = nullptr, *unit4 = nullptr;
    QCheckBox* metered = nullptr;
  };

  void buildPage(BuildingRegister& buildings, Page& page, const char* gridName, const QString& title);
  QGroupBox* buildBoxes(Page& page);
  void showUnits();
  void lookUpBuilding();
  bool lookUpPressure();
  BuildingRegister& buildings() { return buildings_.at(shown()); }
  Page& boxes() { return pages_.at(shown()); }
  size_t shown() const { return page() == pages_[1].sheet ? 1 : 0; }

  FormContext& context_;
  std::array<BuildingRegister, 2> buildings_;
  std::array<Page, 2> pages_;
};
