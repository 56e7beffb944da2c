#include "master/customers/frmSearchClient.h"

#include <QLineEdit>

frmSearchClient::frmSearchClient(Session& session, const QString& text, ClientSearchMode mode,
                                 bool wholeNumber, RegisterNew registerNew, QWidget* parent)
    : frmSearchClient(std::make_unique<ClientSearch>(session), session, std::move(registerNew), parent) {
  text_ = text;
  mode_ = mode;
  wholeNumber_ = wholeNumber;
  findBox()->setText(text);
}

// The list is made before the dialog that shows it.
frmSearchClient::frmSearchClient(std::unique_ptr<ClientSearch> search, Session& session,
                                 RegisterNew registerNew, QWidget* parent)
    : PickerDialog("frmSearchClient", "고객 조회", session, search->list(), "SpClient", parent),
      search_(std::move(search)),
      registerNew_(std::move(registerNew)) {
  addFind("TxtFind", "고객명/상호/전화번호(&T)", [this](const QString& text) {
    if (settles(text, false)) return accept();
    showFound();
  });
  grid()->setFillColumn(ClientSearch::AddressCol);
  showHelp("엔터 : 선택   Esc : 닫기   전화번호 뒤 네 자리로도 찾을 수 있습니다");
  showLines(26);
}

/** True when the search ends here: one match, or a customer registered on the spot. Whoever only shares the end of a
 *  caller's number is listed and not chosen. */
bool frmSearchClient::settles(const QString& text, bool wholeNumber) {
  switch (search_->find(text, mode_, wholeNumber)) {
    case ClientSearch::Found::One:
      if (wholeNumber) break;
      chosen_ = search_->choice(1);
      return true;
    case ClientSearch::Found::None:
      if (search_->askToRegister()) chosen_ = registerNew_(text);
      return chosen_.has_value();
    case ClientSearch::Found::Several:
    case ClientSearch::Found::Failed:
      break;
  }
  return false;
}

std::optional<ClientChoice> frmSearchClient::choose() {
  bool settled = false;
  guard([&] { settled = settles(text_, wholeNumber_); });
  if (!settled) {
    if (const int row = pick()) chosen_ = search_->choice(row);
  }
  return chosen_;
}
