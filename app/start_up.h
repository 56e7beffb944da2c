#pragma once
// From the entry to the open handles and back, in the order that the data files count on. No windows: the start
// window shows what screen() tells and hands in what is typed.
#include <QString>
#include <functional>

#include "app/folder_trouble.h"
#include "store/session.h"

/** What the start window shows after its load. */
struct StartScreen {
  QString identify;              ///< lblIdentify
  QString user;                  ///< txtUser
  QString password;              ///< txtPassword: "엔터치세요" when Enter alone signs in, else empty
  bool passwordVisible = false;  ///< no password character
  QString company;               ///< PnlCompany of the main window
};

enum class SignIn { Accepted, TryAgain, EndProgram };

class StartUp {
 public:
  explicit StartUp(Session& session) : session_(session) {}

  /** The entry: the steps before the start window, then showStartWindow, whose load event calls load(), then the
   *  steps after it. False when the data files cannot be used: whyNotStarted() says why, and once that is mended this may
   *  be called again. */
  bool SubMain(const std::function<void()>& showStartWindow);
  /** False from the first step that failed. */
  bool usable() const { return usable_; }
  /** The start window's load event. */
  void load();
  const StartScreen& screen() const { return screen_; }
  /** The start has come to its end; without it nobody can sign in. */
  bool ready() const { return usable_ && user_.isOpen(); }

  /** Enter in the password box; boxes are shown here. Throws jet::Error 91 when load() ended early. */
  SignIn enterPassword(const QString& typed);
  /** Closing the start window: asks; on yes the date format is set back and the files are closed. */
  bool askToLeave();

  /** Links all year files to Basic.mdb anew, as most commands do first. */
  void relink();
  /** The main window's unload, after its question: settings, date format, handles. */
  void shutDown();

 private:
  bool begin();
  void attempt(const std::function<void()>& steps);
  void loadSteps();
  void upgradePostCodes();
  void fillScreen();
  void closeFiles();

  Session& session_;
  StartScreen screen_;
  jet::Recordset user_;  ///< the company's row, as it stood at the start
  int failures_ = 0;
  bool usable_ = true;
};
