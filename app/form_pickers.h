#pragma once
// The modal search forms behind the Pickers that the rules ask.
#include "master/registers/pickers.h"

class QWidget;
struct FormContext;
struct Session;

class FormPickers : public Pickers {
 public:
  explicit FormPickers(Session& session) : session_(session) {}
  /** The way to the forms; given once the main window stands. */
  void setContext(FormContext& context) { context_ = &context; }

  std::optional<ClientChoice> searchClient(const QString& text, ClientSearchMode mode,
                                           bool wholeNumber) override;
  std::optional<ItemChoice> searchSize(const QString& kind, TradeSide side) override;
  std::optional<VolumeChoice> searchVolume() override;
  std::optional<QString> searchResponse() override;
  std::optional<QString> searchRefill() override;
  std::optional<BankChoice> searchBank() override;
  std::optional<PostCodeChoice> searchPostCode(const QString& text) override;
  std::optional<BuildingChoice> searchBuilding(HouseStyle style) override;
  std::optional<QString> pickDate(const QString& initial) override;
  TraderFound searchTrader(const QString& text) override;
  bool registerTrader(bool customer) override;
  std::optional<PostCodeChoice> searchPost(const QString& text) override;
  std::optional<PrintMethodChoice> askPrintMethod(const PrintMethodQuestion& question) override;
  bool checkPassword() override;

 private:
  Session& session_;
  FormContext* context_ = nullptr;
};
