#pragma once
// The window of the waiting calls. It lives as long as the program: closing only hides it.
#include <QWidget>

#include "links/waiting_list.h"
#include "store/session.h"

class QListWidget;

class FrmSeeIDStanbyList : public QWidget {
 public:
  FrmSeeIDStanbyList(Session& session, WaitingList& waiting, QWidget* parent = nullptr);
  ~FrmSeeIDStanbyList() override;

  /** Shows it in front, out of the task bar when it was put there. */
  void bringToFront();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void showEntries();
  void deleteSelected();
  void askTestEntry();

  Session& session_;
  WaitingList& waiting_;
  QListWidget* List1_;
};
