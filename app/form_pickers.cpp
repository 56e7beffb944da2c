#include "app/form_pickers.h"

#include <QApplication>

#include "app/frmSecurity.h"
#include "documents/pickers/FrmMsg.h"
#include "documents/pickers/FrmNewTrader.h"
#include "documents/pickers/FrmPost.h"
#include "documents/pickers/FrmTraderList.h"
#include "master/buildings/form_building_search.h"
#include "master/catalogue/frmSearchSize.h"
#include "master/customers/frmNewClient.h"
#include "master/customers/frmSearchClient.h"
#include "master/partners/frmPostCode.h"
#include "master/registers/form_context.h"
#include "master/registers/form_register_search.h"
#include "ui/forms/frmCalendar.h"

namespace {

QWidget* windowInFront() {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  return QApplication::activeWindow();
}

std::optional<QString> nameFrom(const RegisterSearch& search, Session& session) {
  const auto line = chooseFrom(search, session, windowInFront());
  return line ? std::optional(line->at(0)) : std::nullopt;
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
  const auto line = chooseFrom(RegisterSearch::volumes(), session_, windowInFront());
  if (!line) return {};
  return VolumeChoice{line->at(0), jet::Value(line->at(2)).toDouble()};
}
std::optional<QString> FormPickers::searchResponse() {
  return nameFrom(RegisterSearch::responses(), session_);
}
std::optional<QString> FormPickers::searchRefill() {
  return nameFrom(RegisterSearch::refills(), session_);
}
std::optional<BankChoice> FormPickers::searchBank() {
  const auto line = chooseFrom(RegisterSearch::banks(), session_, windowInFront());
  if (!line) return {};
  return BankChoice{line->at(0), line->at(1), line->at(2)};
}
std::optional<PostCodeChoice> FormPickers::searchPostCode(const QString& text) {
  return frmPostCode(session_, text, windowInFront());
}
std::optional<BuildingChoice> FormPickers::searchBuilding(HouseStyle style) {
  return chooseBuilding(session_, style, windowInFront());
}
std::optional<QString> FormPickers::pickDate(const QString& initial) {
  return frmCalendar(session_.prompts, initial, session_.pc.clock.today(), windowInFront());
}
TraderFound FormPickers::searchTrader(const QString& text) {
  return FrmTraderList(session_, *this, text, windowInFront());
}
bool FormPickers::registerTrader(bool customer) {
  return FrmNewTrader(session_, *this, customer, windowInFront()).enter();
}
std::optional<PostCodeChoice> FormPickers::searchPost(const QString& text) {
  return FrmPost(session_, text, windowInFront());
}
std::optional<PrintMethodChoice> FormPickers::askPrintMethod(const PrintMethodQuestion& question) {
  return FrmMsg(session_, question, windowInFront());
}

bool FormPickers::checkPassword() {
  frmSecurity box(session_, windowInFront());
  return box.exec() == QDialog::Accepted;
}
