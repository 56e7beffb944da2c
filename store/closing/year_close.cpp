#include "store/closing/year_close.h"

#include <memory>

#include "store/closing/december_rows.h"
#include "store/closing/file_replacement.h"
#include "store/data_access.h"
#include "store/data_files.h"
#include "store/jet/error_texts.h"
#include "store/long_work.h"
#include "store/upgrades.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

namespace {

const QString linkName = u"TmpTbl"_s;

void removeLink(const jet::Database& year) {
  if (year.hasTable(linkName)) year.deleteTable(linkName);
}

class Closing {
 public:
  Closing(Session& session, const ClosingScreen& screen)
      : session_(session), screen_(screen), year_(session.WorkYear.toInt()) {}

  /** False when the operator had the files put back that were replaced. */
  bool run();
  /** Files that were replaced and are still kept. */
  QStringList kept() const;

 private:
  QString text(const QString& words) const { return QString::number(year_) + words; }
  void makeFiles();
  void addBalanceRow(const jet::Database& next);
  void copyKeys(const jet::Database& year, const jet::Database& next);
  void carryDecember(const jet::Database& year, const jet::Database& next);
  CarryCheck compare() const;

  Session& session_;
  const ClosingScreen& screen_;
  const int year_;
  /** The copy in the closing's folder. Kept: the book is wanted in the data folder; where that is another one the two do
   *  not fit, and the closing ends in its error. */
  std::unique_ptr<FileReplacement> copy_, book_;
};

bool Closing::run() {
  makeFiles();
  const QDateTime now = session_.pc.clock.now();
  for (const auto& each : {copy_.get(), book_.get()})
    if (each) each->takePlace(now);
  const CarryCheck check = compare();
  const bool putBack = !check.differing.empty() && screen_.differs(check, kept().join(u'\n'));
  for (const auto& each : {copy_.get(), book_.get()}) {
    if (each && putBack) each->putBack();
    if (each && check.differing.empty()) each->dropKept();
  }
  return !putBack;
}

QStringList Closing::kept() const {
  QStringList files;
  for (const auto& each : {copy_.get(), book_.get()})
    if (each && !each->kept().isEmpty()) files << each->kept();
  return files;
}

void Closing::makeFiles() {
  // One that another program's interrupted closing left would hold the next year's file open.
  removeLink(session_.wsMain.OpenDatabase(yearFile(session_, session_.WorkYear)));
  const QString place = closingFile(year_ + 1);
  const QString nextFile = yearFile(session_, year_ + 1);
  copy_ = std::make_unique<FileReplacement>(session_.pc.paths, place);
  copy_->copyFrom(closingFile(year_));
  if (nextFile.compare(place, Qt::CaseInsensitive) != 0) {
    book_ = std::make_unique<FileReplacement>(session_.pc.paths, nextFile);
    book_->copyFrom(nextFile);
  }
  const jet::Workspace& workspace = session_.wsMain;
  const jet::Database linked = workspace.OpenDatabase(copy_->made());
  const jet::Database next = book_ ? workspace.OpenDatabase(book_->made()) : linked;
  // A PC that comes in from here on and collects for December is found by the comparison.
  const jet::Database year = workspace.OpenDatabase(yearFile(session_, session_.WorkYear));
  addBalanceRow(next);
  copyKeys(year, next);
  carryDecember(year, next);
  for (const jet::Database& file : {linked, next})
    if (!file.isSound()) throw jet::errorOf(3043, file.path());
}

/** Kept: the test names no customer, so of all customers only the first gets a row, and only in a file without one. */
void Closing::addBalanceRow(const jet::Database& next) {
  const jet::Recordset first = next.OpenRecordset(u"select code from client"_s);
  if (first.atEnd()) return;
  if (!next.OpenRecordset(u"select saledate from sale where saledate = ''"_s).atEnd()) return;
  next.Execute(u"insert into sale(saledate, clientcode, trust) values('', "_s +
               plainNumber(first["code"].toText()) + u", 0)"_s);
}

/** Every customer and month of the year, empty of amounts. */
void Closing::copyKeys(const jet::Database& year, const jet::Database& next) {
  jet::TableDef link;
  link.name = linkName;
  link.connect = u";DATABASE="_s + copy_->made();
  link.sourceTableName = u"Evaporation"_s;
  try {
    session_.wsMain.Together({year, next}, [&] {
      next.Execute(u"Delete * From Evaporation"_s);
      year.createTable(link);
      year.Execute(u"Insert Into TmpTbl(ClientCode, Mon) Select ClientCode, Mon From Evaporation"_s);
      year.deleteTable(linkName);
    });
  } catch (const jet::Error&) {  // a statement that was refused leaves what ran before it
    try {
      removeLink(year);
    } catch (const jet::Error&) {  // the next closing does it
    }
    throw;
  }
}

void Closing::carryDecember(const jet::Database& year, const jet::Database& next) {
  DecemberRows rsMain(year);
  const int rows = rsMain.count();
  const QString words = text(u"년도의 자료를 마감중입니다... 잠시만 기다려주십시오"_s);
  screen_.progress(words, 0, rows);
  ::run(session_.wsMain, {.count = rows,
                          .step =
                              [&](int) {
                                next.Execute(u"Update Evaporation Set Trust = "_s + rsMain.number("Trust") +
                                             u", UseGage = "_s + rsMain.number("UseGage") + u", Total = "_s +
                                             rsMain.number("Total") + rsMain.whose(0));
                                next.Execute(u"Update Evaporation Set Trust = "_s + rsMain.number("Total") +
                                             u" "_s + rsMain.whose(1));
                                rsMain.next();
                              },
                          .tell =
                              [&](int done) {
                                screen_.progress(words, done, rows);
                                return true;
                              }});
}

CarryCheck Closing::compare() const {
  const jet::Workspace& workspace = session_.wsMain;
  return checkCarry(workspace.OpenDatabase(yearFile(session_, session_.WorkYear)),
                    workspace.OpenDatabase(yearFile(session_, year_ + 1)));
}

bool ask(Session& session) {
  const QString year = session.WorkYear, next = QString::number(session.WorkYear.toInt() + 1);
  return session.prompts.MsgAsk(year + u"년도의 자료를 마감해서 "_s + next +
                                    u"년도의 기초자료로 넘기시겠습니까?"_s + u"\n\n"_s +
                                    u"    주의 1. 마감작업후의 작업은 이월되지 않으므로 "_s + u'\n' +
                                    u"              작업이 있을시 년도마감을 다시 해 주십시오"_s + u'\n' +
                                    u"           2. "_s + next + u"년도의 자료는 모두 초기화됩니다!"_s,
                                yearEndTitle(), false);
}

void tellFailure(Session& session, const jet::Error& error, const QStringList& kept) {
  session.prompts.MsgWarn(
      u"마감작업을 하던중 에러가 발생했습니다!"_s + u'\n' + u"구입업체로 연락하시기 바랍니다."_s,
      u"에러발생"_s);
  session.prompts.MsgWarn(
      u"에러번호 : "_s + QString::number(error.number()) + u'\n' + u"에러내용 : "_s + error.description(),
      u"연락내용"_s);
  if (!kept.isEmpty())
    session.prompts.MsgInfo(u"바꾸기 전의 자료는 아래의 파일에 남아 있습니다.\n\n"_s + kept.join(u'\n'),
                            yearEndTitle());
}

}  // namespace

QString yearEndTitle() {
  return u"자료 관리자"_s;
}

void closeYear(Session& session, const ClosingScreen& screen) {
  const QString year = session.WorkYear;
  upgrades::relink(session);
  if (!screen.forecast(forecastClosing(session)) || !ask(session)) return;
  session.dbYear.Close();
  screen.progress(year + u"년도의 마감을 준비중입니다..."_s, 0, 0);
  const auto openAgain = [&] { session.dbYear = session.wsMain.OpenDatabase(yearFile(session, year)); };
  Closing closing(session, screen);
  try {
    const bool stays = closing.run();
    openAgain();
    session.prompts.MsgInfo(stays ? year + u"년도의 자료마감이 완료되었습니다. "_s + u'\n' +
                                        u"한해 동안 수고하셨습니다. 좋은 한해 되십시오."_s
                                  : u"마감하기 전의 자료로 되돌렸습니다."_s,
                            yearEndTitle());
  } catch (const jet::Error& error) {
    tellFailure(session, error, closing.kept());
    openAgain();
  }
}
