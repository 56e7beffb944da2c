#pragma once
// What a form is handed in a test that is about something else: searches that end with what the test has put there, no
// other form, nobody calling.
#include <QStringList>

#include "master/registers/form_context.h"

namespace tests {

/** Every search ends with the answer that stands here; none is an operator who leaves. */
struct IdlePickers : Pickers {
  std::optional<ClientChoice> client;
  std::optional<ItemChoice> item;
  std::optional<VolumeChoice> regulator;
  std::optional<QString> person, station, day;
  std::optional<BankChoice> bank;
  std::optional<PostCodeChoice> place;
  std::optional<BuildingChoice> building;
  bool password = true;  ///< what frmSecurity ends with
  QStringList asked;  ///< texts that a customer or a place was looked for by, the house style of a building

  std::optional<ClientChoice> searchClient(const QString& text, ClientSearchMode, bool) override {
    asked << text;
    return client;
  }
  std::optional<ItemChoice> searchSize(const QString&, TradeSide) override { return item; }
  std::optional<VolumeChoice> searchVolume() override { return regulator; }
  std::optional<QString> searchResponse() override { return person; }
  std::optional<QString> searchRefill() override { return station; }
  std::optional<BankChoice> searchBank() override { return bank; }
  std::optional<PostCodeChoice> searchPostCode(const QString& text) override {
    asked << text;
    return place;
  }
  std::optional<BuildingChoice> searchBuilding(HouseStyle style) override {
    asked << QString::number(int(style));
    return building;
  }
  std::optional<QString> pickDate(const QString&) override { return day; }
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
