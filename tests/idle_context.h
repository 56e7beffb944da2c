#pragma once
// What a form is handed in a test that is about something else: searches that end without a choice, no other form,
// nobody calling.
#include <QStringList>

#include "master/registers/form_context.h"

namespace tests {

struct IdlePickers : Pickers {
  bool password = true;  ///< what frmSecurity ends with

  std::optional<ClientChoice> searchClient(const QString&, ClientSearchMode, bool) override { return {}; }
  std::optional<ItemChoice> searchSize(const QString&, TradeSide) override { return {}; }
  std::optional<VolumeChoice> searchVolume() override { return {}; }
  std::optional<QString> searchResponse() override { return {}; }
  std::optional<QString> searchRefill() override { return {}; }
  std::optional<BankChoice> searchBank() override { return {}; }
  std::optional<PostCodeChoice> searchPostCode(const QString&) override { return {}; }
  std::optional<BuildingChoice> searchBuilding(HouseStyle) override { return {}; }
  std::optional<QString> pickDate(const QString&) override { return {}; }
  bool checkPassword() override { return password; }
};

struct IdleCommands : Commands {
  QStringList asked;  ///< names of the forms that were to be opened
  bool openForm(const QString& name) override {
    asked << name;
    return false;
  }
  QWidget* activeForm() const override { return nullptr; }
};

struct IdleCalls : WaitingCalls {
  QString OldestStanbyNumber() const override { return {}; }
  QString TakeStanbyNumber() override { return {}; }
};

/** All of them around one session. */
struct IdleContext {
  explicit IdleContext(Session& session) : context{session, pickers, commands, calls} {}
  IdlePickers pickers;
  IdleCommands commands;
  IdleCalls calls;
  FormContext context;
};

}  // namespace tests
