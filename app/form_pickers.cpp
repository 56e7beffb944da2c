#include "app/form_pickers.h"

#include <QApplication>

#include "app/frmSecurity.h"

namespace {

QWidget* windowInFront() {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  return QApplication::activeWindow();
}

}  // namespace

std::optional<ClientChoice> FormPickers::searchClient(const QString&, ClientSearchMode, bool) {
  return {};
}
std::optional<ItemChoice> FormPickers::searchSize(const QString&, TradeSide) {
  return {};
}
std::optional<VolumeChoice> FormPickers::searchVolume() {
  return {};
}
std::optional<QString> FormPickers::searchResponse() {
  return {};
}
std::optional<QString> FormPickers::searchRefill() {
  return {};
}
std::optional<BankChoice> FormPickers::searchBank() {
  return {};
}
std::optional<PostCodeChoice> FormPickers::searchPostCode(const QString&) {
  return {};
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
