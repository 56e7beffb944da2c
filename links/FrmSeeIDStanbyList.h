#pragma once
// The window of the waiting calls. It lives as long as the program: leaving only hides it.
#include "links/waiting_list.h"
#include "store/session.h"
#include "ui/forms/dialog.h"

class QListWidget;

class FrmSeeIDStanbyList : public Dialog {
 public:
  FrmSeeIDStanbyList(Session& session, WaitingList& waiting, QWidget* parent = nullptr);
  ~FrmSeeIDStanbyList() override;

  /** Shows it in front, out of the task bar when it was put there. */
  void bringToFront();
  void done(int result) override;

 private:
  /** A call that comes or goes leaves what the operator has chosen chosen. */
  void showEntries();
  void deleteSelected();
  void askTestEntry();

  pc::Settings& settings_;
  WaitingList& waiting_;
  QListWidget* List1_;
};
