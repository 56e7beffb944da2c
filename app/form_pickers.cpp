#include "app/form_pickers.h"

#include <QApplication>

#include "app/frmSecurity.h"
#include "master/form_context.h"
#include "master/frmPostCode.h"
#include "master/frmSearchBank.h"
#include "master/frmSearchRefill.h"
#include "master/frmSearchResponse.h"
#include "master/frmSearchSize.h"
#include "master/frmSearchVolume.h"

namespace {

QWidget* windowInFront() {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  return QApplication::activeWindow();
}

}  // namespace

std::optional<ClientChoice> FormPickers::searchClient(const QString&, ClientSearchMode, bool) {
  return {};
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
std::optional<BuildingChoice> FormPickers::searchBuilding(int) {
  return {};
}
std::optional<QString> FormPickers::pickDate(const QString&) {
  return {};
}

bool FormPickers::checkPassword() {
  frmSecurity box(session_, windowInFront());
  return box.exec() == QDialog::Accepted;
}
