#pragma once
// What every test shares: a PC of its own, scripted boxes that must all be asked, scripted pickers.
#include <QTemporaryDir>
#include <deque>

#include "pc/pc.h"
#include "store/data_files.h"
#include "store/session.h"
#include "store/upgrades.h"
#include "store/year_file.h"
#include "tests/files.h"
#include "ui/model/prompts.h"

namespace tests {

/** A box the test expects: part of its text or title, and the answer (yes/no/typed text). */
struct Expected {
  QString part;
  bool yes = true;
  std::optional<QString> typed = {};
};

/** Fails on a box nobody expected and, at its end, on an expected one that never came. */
class ScriptedPrompts : public Prompts {
 public:
  ~ScriptedPrompts() override {
    for (const auto& left : script_) ADD_FAILURE() << "box never asked: " << left.part.toStdString();
  }
  void expect(const QString& part, bool yes = true) { script_.push_back({part, yes, {}}); }
  void expectInput(const QString& part, std::optional<QString> typed) {
    script_.push_back({part, true, typed});
  }
  QStringList seen;  ///< "title|text" of every box so far

  void MsgInfo(const QString& text, const QString& title) override { next(text, title); }
  void MsgWarn(const QString& text, const QString& title) override { next(text, title); }
  bool MsgAsk(const QString& text, const QString& title, bool yesFirst) override {
    for (const char16_t* loss : {u"삭제하시겠습니까", u"지우시겠습니까", u"버리시겠습니까", u"복구 불가능"})
      EXPECT_FALSE(yesFirst && text.contains(loss)) << "stands on yes: " << text.toStdString();
    return next(text, title).yes;
  }
  /** expect() answers yes or no, expectInput() with a text cancels. */
  Answer MsgYesNoCancel(const QString& text, const QString& title) override {
    const Expected answer = next(text, title);
    return answer.typed ? Answer::Cancel : answer.yes ? Answer::Yes : Answer::No;
  }
  void ErrorBox(const QString& text, int number, const QString& description) override {
    next(text + u' ' + QString::number(number) + u' ' + description, "오류");
  }
  std::optional<QString> InputBox(const QString& prompt, const QString& title, const QString&) override {
    return next(prompt, title).typed;
  }

 private:
  Expected next(const QString& text, const QString& title) {
    seen << title + u'|' + text;
    if (script_.empty() || !(text.contains(script_.front().part) || title.contains(script_.front().part))) {
      ADD_FAILURE() << "unexpected box: " << seen.last().toStdString();
      return {{}, false, {}};
    }
    Expected now = script_.front();
    script_.pop_front();
    return now;
  }
  std::deque<Expected> script_;
};

/** A file of the data folder, opened by itself. */
inline jet::Database openData(const Session& session, const QString& name) {
  return openWorkspace(session, session.DbPath).OpenDatabase(session.DbPath + name);
}

/** The data folder of a new PC, made once a test program and copied from then on. */
inline QString emptyDataFolder() {
  static QTemporaryDir folder;
  static const bool made = [] {
    pc::Pc pc(folder.path());
    ScriptedPrompts prompts;
    Session session(pc, prompts);
    session.DbPath = installedDataFolder();
    return prepareDataFolder(session);
  }();
  EXPECT_TRUE(made);
  return pc::Paths(folder.path()).native(installedDataFolder());
}

/** A PC below a folder that goes with the test. */
struct TestPc {
  QTemporaryDir folder;
  pc::Pc pc{folder.path()};
  ScriptedPrompts prompts;
  Session session{pc, prompts};

  /** Empty data files in "C:\\RWGas\\Dbs\\", opened as at the end of a start; today, when given, is the clock's day. */
  void openBooks(const QDate& today = {}) {
    if (today.isValid()) pc.clock.set(today.startOfDay().addSecs(9 * 3600));
    session.AppTitle = "해온판매";
    session.DbPath = installedDataFolder();
    session.WorkYear = QString::number(pc.clock.today().year());
    ASSERT_TRUE(pc.paths.makeFolder(session.DbPath));
    const QString master = emptyDataFolder();
    for (const QString& name : QDir(master).entryList(QDir::Files)) {
      QFile::copy(master + u'/' + name, pc.paths.native(session.DbPath) + u'/' + name);
    }
    makeYearFile(session, session.WorkYear);
    session.wsMain = openWorkspace(session, session.DbPath);
    session.dbBasic = session.wsMain.OpenDatabase(session.DbPath + "Basic.mdb");
    ASSERT_TRUE(upgrades::relink(session));
    session.dbYear = session.wsMain.OpenDatabase(yearFile(session, session.WorkYear));
    session.dbTax = session.wsMain.OpenDatabase(session.DbPath + "dbTax.mdb");
    session.dbCommon = session.dbBasic;
  }
  void closeBooks() {
    for (jet::Database* open : {&session.dbBasic, &session.dbYear, &session.dbTax, &session.dbCommon})
      open->Close();
    session.wsMain.Close();
  }
};

}  // namespace tests
