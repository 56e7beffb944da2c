#pragma once
// The customer search that every screen opens.
#include <functional>

#include "master/customers/client_search.h"
#include "ui/forms/picker_dialog.h"

class frmSearchClient : public PickerDialog {
 public:
  /** Opens the short entry for a customer that was not found; the new customer, or nothing. */
  using RegisterNew = std::function<std::optional<ClientChoice>(const QString& searchText)>;

  frmSearchClient(Session& session, const QString& text, ClientSearchMode mode, bool wholeNumber,
                  RegisterNew registerNew, QWidget* parent = nullptr);

  /** Searches for the given text; a single match comes back without the list being shown. Nothing when the operator
   *  leaves. */
  std::optional<ClientChoice> choose();

 private:
  frmSearchClient(std::unique_ptr<ClientSearch> search, Session& session, RegisterNew registerNew,
                  QWidget* parent);
  bool settles(const QString& text, bool wholeNumber);

  std::unique_ptr<ClientSearch> search_;
  RegisterNew registerNew_;
  QString text_;
  ClientSearchMode mode_ = ClientSearchMode::All;
  bool wholeNumber_ = false;
  std::optional<ClientChoice> chosen_;
};
