#include "app/form_pickers.h"

#include <QApplication>

#include "app/frmSecurity.h"
#include "master/buildings/frmAPTAddress.h"
#include "master/buildings/frmBDName.h"
#include "master/catalogue/frmSearchSize.h"
#include "master/catalogue/frmSearchVolume.h"
#include "master/customers/frmNewClient.h"
#include "master/customers/frmSearchClient.h"
#include "master/partners/frmPostCode.h"
#include "master/partners/frmSearchBank.h"
#include "master/partners/frmSearchRefill.h"
#include "master/partners/frmSearchResponse.h"
#include "master/registers/form_context.h"
#include "ui/forms/frmCalendar.h"

namespace {

QWidget* windowInFront() {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  return QApplication::activeWindow();
}

}  // namespace

std::optional<ClientChoice> FormPickers::searchClient(const QString& text, ClientSearchMode mode,
                                                      bool wholeNumber) {
  const auto registerNew = [this](const QString& searched) {
    return frmNewClient(session_, *this, searched, windowInFront()).enter();
  };
  return frmSearchClient(session_, text, mode, wholeNumber, registerNew, windowInFront()).choose();
}
std::optional<ItemChoice> FormPickers::searchSize(const QString& kind, TradeSide side) {
  return frmSearchSize(*context_, kind, side, windowInFront());
}
std::optional<VolumeChoice> FormPickers::searchVolume() {
  return frmSearchVolume(session_, windowInFront());
}
std::optional<QString> FormPickers::searchResponse() {
  return frmSearchResponse(session_, windowInFront());
}
std::optional<QString> FormPickers::searchRefill() {
  return frmSearchRefill(session_, windowInFront());
}
std::optional<BankChoice> FormPickers::searchBank() {
  return frmSearchBank(session_, windowInFront());
}
std::optional<PostCodeChoice> FormPickers::searchPostCode(const QString& text) {
  return frmPostCode(session_, text, windowInFront());
}
std::optional<BuildingChoice> FormPickers::searchBuilding(int houseStyle) {
  BuildingSearch search(session_, HouseStyle(houseStyle));
  if (!search.loadBuildings()) return {};
  const int building = frmBDName(session_, search, windowInFront()).pick();
  if (building == 0) return {};
  const QString name = search.buildings().text(building, 1);
  if (!search.loadBlocks(name)) return {};
  const bool oneBlock = search.blocks().MaxRows() == 1;
  const int block = oneBlock ? 1 : frmAPTAddress(session_, search, windowInFront()).pick();
  if (block == 0) return {};
  return search.choice(name, search.blocks().text(block, 1));
}
std::optional<QString> FormPickers::pickDate(const QString& initial) {
  return frmCalendar(session_.prompts, initial, session_.pc.clock.today(), windowInFront());
}

bool FormPickers::checkPassword() {
  frmSecurity box(session_, windowInFront());
  return box.exec() == QDialog::Accepted;
}
