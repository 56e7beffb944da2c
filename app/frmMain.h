#pragma once
// The parent window of the whole program: menu, tool bar, status line, company panel, and the forms as its children.
#include <QHash>
#include <QMainWindow>
#include <QPointer>
#include <functional>
#include <memory>

#include "app/command_map.h"
#include "master/registers/form_context.h"

class Caller;
class FrmSeeIDStanbyList;
class Ground;
class QAction;
class QLabel;
class QMenu;
class QTimer;
class SeeIdPort;
class WaitingList;

class frmMain : public QMainWindow, public Commands {
 public:
  frmMain(Session& session, Pickers& pickers, QWidget* parent = nullptr);
  ~frmMain() override;

  /** Runs a menu entry by its name, as the operator would; False when there is none or it is off. */
  bool run(const QString& command);
  bool openForm(const QString& name) override;
  bool hasForm(const QString& name) const override;
  void showStatus(const QString& text) override;
  QWidget* activeForm() const override;

  FormContext& context() { return context_; }
  Caller& caller() { return *caller_; }
  /** Company label and what the entries depend on, after the session has changed. */
  void refresh();
  /** What runs once the window stands: the devices are opened; a new shop is shown its first steps. */
  void start();
  /** Closes without asking. */
  void setSilentClose() { silentClose_ = true; }
  /** Links the year files anew; runs before the entries that ask for it. */
  std::function<void()> relink;
  /** Opens the operator's guide for what is in front. */
  std::function<void()> openGuide;
  /** Called once when the window is leaving for good. */
  std::function<void()> closed;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void buildMenus();
  void buildToolBar();
  void buildStatusLine();
  /** Entries on or off, ticks. Asks nothing of the store: a menu opens also where that does not answer. */
  void refreshEntries();
  /** Why an entry is off; '' when it is on. */
  QString whyOff(const CommandEntry& entry) const;
  void perform(const CommandEntry& entry);
  void showClock();
  /** The caller-identification windows, which hang on the window's own devices and list. */
  bool openCallerWindow(const QString& name);
  /** False when a child stays because it holds a cell that it cannot save. */
  bool closeForms();
  bool showOpen(const QString& base, const QString& page);
  bool hiddenCommand(Qt::KeyboardModifiers keys);
  void testCall();
  void askAndOpenAddress(const QString& question, const QString& address);
  bool guard(const std::function<void()>& work);
  bool mayLeave();

  Session& session_;
  std::unique_ptr<WaitingList> waiting_;
  std::unique_ptr<SeeIdPort> ports_[2];
  std::unique_ptr<Caller> caller_;
  std::unique_ptr<FrmSeeIDStanbyList> standby_;  ///< made at the first look; closing only hides it
  FormContext context_;
  Ground* ground_;
  QHash<QString, QAction*> actions_;
  QHash<QString, QMenu*> menus_;
  QLabel* pnlCompany_ = nullptr;
  QLabel *clock_ = nullptr, *status_ = nullptr;
  QTimer* timer1_ = nullptr;
  bool silentClose_ = false;
};
