#pragma once
// Pickers that a test overrides where it needs one: every other search is left without a choice.
#include "master/pickers.h"

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
  std::optional<BuildingChoice> searchBuilding(int) override { return {}; }
  std::optional<QString> pickDate(const QString&) override { return {}; }
  bool checkPassword() override { return password; }
};

}  // namespace tests
