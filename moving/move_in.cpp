#include "moving/move_in.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include "backup/data_folder_alone.h"
#include "backup/make_backup.h"
#include "moving/table_fit.h"
#include "store/data_access.h"
#include "store/data_files.h"
#include "store/folder_swap.h"
#include "store/jet/error_texts.h"
#include "store/session.h"
#include "store/settings_table.h"

using namespace Qt::StringLiterals;

namespace moving {

namespace {

const QString basicName = u"Basic.mdb"_s, emptyYear = u"2002Foundation.mdb"_s;

bool isSame(const QString& one, const QString& other) {
  return one.compare(other, Qt::CaseInsensitive) == 0;
}

/** The folder's data files, Basic.mdb first: the years are compared with its customers. */
QStringList filesOf(const QString& nativeFolder) {
  QStringList names = QDir(nativeFolder).entryList({u"*.mdb"_s}, QDir::Files, QDir::Name | QDir::IgnoreCase);
  std::stable_partition(names.begin(), names.end(),
                        [](const QString& name) { return isSame(name, basicName); });
  return names;
}

/** One run: what has been read so far. */
class Run {
 public:
  /** target: the folder whose successor is made, as written. */
  Run(Session& session, const QString& from, const QString& target, const backup::Tell& tell)
      : session_(session),
        from_(from),
        target_(target),
        isLedger_(target == ledgerFolder(session)),
        tell_(tell),
        into_(session.pc.paths.native(preparedFolder(target))) {}

  void bringFiles() {
    const QStringList names = filesOf(from_);
    const QList<Stamp> before = stampsOf(names);
    qint64 total = 0, done = 0;
    for (const QString& name : names) total += QFileInfo(from_ + u'/' + name).size();
    for (const QString& name : names) {
      backup::tellOrStop(tell_, u"읽는 중: "_s + name, done, total);
      bringFile(name);
      done += QFileInfo(from_ + u'/' + name).size();
    }
    if (stampsOf(names) != before)
      throw jet::Error(3197,
                       u"읽는 동안 이전 자료의 파일이 바뀌었습니다. 이전 프로그램을 끝내고 다시 하십시오."_s);
  }
  /** What a data folder needs besides. */
  void makeMissing() {
    if (isLedger_) return;
    const QString folder = preparedFolder(target_) + u'\\';
    for (const auto& [name, kind] : {std::pair{emptyYear, schema::File::Year},
                                     {u"Print.mdb"_s, schema::File::Print},
                                     {u"dbTax.mdb"_s, schema::File::Tax},
                                     {u"dbPost.mdb"_s, schema::File::Post}})
      makeDataFile(session_, folder + name, kind);
  }
  void checkFiles() {
    const backup::Soundness sound =
        backup::checkDataFiles(into_, QDir(into_).entryList({u"*.mdb"_s}, QDir::Files), tell_);
    if (!sound.damaged.isEmpty()) throw jet::errorOf(3049, sound.damaged.join(u", "_s));
  }
  MoveReport report;

 private:
  using Stamp = std::pair<qint64, QDateTime>;
  QList<Stamp> stampsOf(const QStringList& names) const {
    QList<Stamp> stamps;
    for (const QString& name : names) {
      const QFileInfo file(from_ + u'/' + name);
      stamps.push_back({file.size(), file.lastModified()});
    }
    return stamps;
  }
  void bringFile(const QString& name) {
    const auto kind = kindOfFile(name);
    if (!kind) {
      report.unknown << name + u": 이 프로그램이 쓰지 않는 파일"_s;
      return;
    }
    if ((*kind == schema::File::Ledger) != isLedger_) {
      report.unknown << name + u": 다른 폴더에 두는 파일. 그 폴더를 따로 가져오십시오."_s;
      return;
    }
    if (!isOldFormat(from_ + u'/' + name)) {
      report.warnings << name + u": 이전 형식의 파일이 아니어서 가져오지 않음"_s;
      return;
    }
    const JetFile old(from_ + u'/' + name);
    const std::vector<OldTable> tables = old.tables();
    if (isSame(name, emptyYear)) {
      for (const OldTable& table : tables)
        if (table.rows > 0)
          report.warnings
              << u"%1: 새해의 견본이라 표 %2의 %3줄은 가져오지 않음"_s.arg(name, table.name).arg(table.rows);
      return;
    }
    const jet::Workspace workspace{jet::Workspace::Options{}};
    const jet::Database file = workspace.CreateDatabase(into_ + u'/' + name);
    QSet<QString> known;
    for (const jet::TableDef& ours : schema::tablesOf(*kind)) {
      const auto found =
          std::ranges::find_if(tables, [&](const OldTable& table) { return isSame(table.name, ours.name); });
      if (found == tables.end()) {
        if (isLedger_) continue;  // each of its files holds a few of the tables
        file.createTable(ours);
        report.tables.push_back({name, ours.name, 0, {u"이전 파일에 없는 표, 빈 표로 만듦"_s}});
        continue;
      }
      known << found->name;
      QStringList broken;
      bringTable(name, file, ours, *found, old.rows(*found, broken));
      for (const QString& value : broken)
        report.warnings << u"%1의 표 %2, 글자가 깨진 값 "_s.arg(name, ours.name) + value;
    }
    for (const OldTable& table : tables)
      if (!known.contains(table.name))
        report.unknown << u"%1의 표 %2 (%3줄)"_s.arg(name, table.name).arg(table.rows);
  }

  void bringTable(const QString& name, const jet::Database& file, const jet::TableDef& ours,
                  const OldTable& old, const std::vector<OldRow>& rows) {
    const FittedTable fitted = fit(ours, old, rows);
    store(file, fitted);
    report.tables.push_back({name, ours.name, qint64(rows.size()), fitted.notes});
    for (const QString& column : fitted.unknownColumns)
      report.unknown << u"%1의 표 %2의 칸 %3"_s.arg(name, ours.name, column);
    for (const QString& row : fitted.renumbered)
      report.warnings << u"%1의 표 %2, 겹치거나 빈 자동번호를 바꿈: "_s.arg(name, ours.name) + row;
    if (isSame(name, basicName) && ours.name == u"Client") {
      customers_ = codesOf(fitted, u"Code"_s);
      if (!fitted.renumbered.isEmpty())
        report.warnings
            << u"번호가 바뀐 고객의 판매와 검침은 그 번호를 먼저 쓴 고객에 붙어 있습니다. 누구의 것인지 확인하십시오."_s;
    }
    if (ours.name == u"Sale") tellOrphans(name, fitted);
  }
  static QList<qint64> codesOf(const FittedTable& fitted, const QString& field) {
    QList<qint64> codes;
    for (size_t at = 0; at < fitted.table.fields.size(); ++at)
      if (fitted.table.fields[at].name == field)
        for (const auto& row : fitted.rows)
          if (!row[at].isNull()) codes << row[at].toLong();
    return codes;
  }
  /** The start deletes lines of customers who are not there, as it always has. */
  void tellOrphans(const QString& name, const FittedTable& sales) {
    const QSet<qint64> known(customers_.begin(), customers_.end());
    const auto isLost = [&](qint64 code) { return !known.contains(code); };
    const auto lost = std::ranges::count_if(codesOf(sales, u"ClientCode"_s), isLost);
    if (lost > 0)
      report.warnings << u"%1: 고객이 없는 판매 %2줄이 있습니다. 해온판매는 시작할 때 그런 줄을 지웁니다."_s
                             .arg(name)
                             .arg(lost);
  }

  Session& session_;
  const QString from_, target_;
  const bool isLedger_;
  const backup::Tell& tell_;
  const QString into_;
  QList<qint64> customers_;
};

void writeReport(Session& session, MoveReport& report) {
  report.file = session.pc.paths.programFolder() + u"\\가져오기-"_s +
                session.pc.clock.now().toString(u"yyyyMMdd-HHmmss"_s) + u".txt"_s;
  QFile file(session.pc.paths.native(session.pc.paths.programFolder()) +
             report.file.mid(report.file.lastIndexOf(u'\\')).replace(u'\\', u'/'));
  if (!file.open(QIODevice::WriteOnly) || file.write(report.text().toUtf8()) < 0) report.file.clear();
}

}  // namespace

qint64 MoveReport::rows() const {
  qint64 sum = 0;
  for (const MovedTable& table : tables) sum += table.rows;
  return sum;
}

QString MoveReport::text() const {
  QStringList lines{
      u"가져온 자료: 표 %1개, %2줄. 줄 수와 합계를 이전 파일과 견주어 모두 맞음."_s.arg(tables.size())
          .arg(rows())};
  if (!keptFolder.isEmpty()) lines << u"전에 있던 자료 폴더: "_s + keptFolder;
  if (!warnings.isEmpty()) lines << QString() << u"[살펴볼 것]"_s << warnings;
  if (!unknown.isEmpty()) lines << QString() << u"[가져오지 않은 것]"_s << unknown;
  QString file;
  for (const MovedTable& table : tables) {
    if (table.file != file) lines << QString() << u"[%1]"_s.arg(table.file);
    file = table.file;
    lines << u"%1  %2줄"_s.arg(table.name).arg(table.rows);
    for (const QString& note : table.notes) lines << u"    "_s + note;
  }
  return lines.join(u'\n') + u'\n';
}

std::optional<schema::File> kindOfFile(const QString& name) {
  static const QRegularExpression year(u"^\\d{4}Foundation\\.mdb$"_s,
                                       QRegularExpression::CaseInsensitiveOption),
      ledgerMonth(u"^db\\d{6}\\.mdb$"_s, QRegularExpression::CaseInsensitiveOption);
  static const QStringList ledger{
      u"dbPerTrader.mdb"_s, u"dbCharge.mdb"_s,    u"dbNonKum.mdb"_s,   u"dbProduct.mdb"_s,  u"dbMoney.mdb"_s,
      u"LedgerList.mdb"_s,  u"PeriodInOut.mdb"_s, u"PerMonthly.mdb"_s, u"dbAnalysis.mdb"_s, u"dbDaily.mdb"_s,
      u"dbInOut.mdb"_s,     u"dbTradeAll.mdb"_s,  u"dbResult.mdb"_s,   u"dbReTrade.mdb"_s,  u"dbList.mdb"_s};
  if (year.match(name).hasMatch()) return schema::File::Year;
  if (ledgerMonth.match(name).hasMatch() || ledger.contains(name, Qt::CaseInsensitive))
    return schema::File::Ledger;
  using schema::File;
  for (const auto& [known, kind] : {std::pair{basicName, File::Basic},
                                    {u"dbTax.mdb"_s, File::Tax},
                                    {u"dbDetail.mdb"_s, File::Detail},
                                    {u"dbPost.mdb"_s, File::Post},
                                    {u"Print.mdb"_s, File::Print},
                                    {u"dbAPTbaln.mdb"_s, File::AptBaln},
                                    {u"InOutCash.mdb"_s, File::InOutCash},
                                    {u"OLDdbCashbook.mdb"_s, File::InOutCash},
                                    {u"dbCashbook.mdb"_s, File::Cashbook}})
    if (isSame(name, known)) return kind;
  return std::nullopt;
}

bool holdsOldBooks(const QString& nativeFolder) {
  const QStringList names = filesOf(nativeFolder);
  return !names.isEmpty() && isSame(names.first(), basicName) &&
         isOldFormat(nativeFolder + u'/' + names.first());
}

bool holdsWork(Session& session) {
  const QString basic = session.DbPath + basicName;
  if (!isThere(session.pc.paths, basic)) return false;
  try {
    const jet::Workspace workspace = openWorkspace(session, session.DbPath);
    return workspace.OpenDatabase(basic).OpenRecordset(u"Select Count(*) From Client"_s)[0].toLong() > 0;
  } catch (const jet::Error&) {
    return true;  // whatever it is, it is somebody's
  }
}

QString ledgerFolder(const Session& session) {
  const QString drive = session.pc.settings.read(setting::ProgramDrive);
  return drive.left(1) + u":\\온누리경영\\Dbs\\"_s;
}

QString placeOf(const Session& session, const QString& nativeFolder) {
  if (holdsOldBooks(nativeFolder)) return session.DbPath;
  const auto isLedger = [&](const QString& name) {
    return kindOfFile(name) == schema::File::Ledger && isOldFormat(nativeFolder + u'/' + name);
  };
  return std::ranges::any_of(filesOf(nativeFolder), isLedger) ? ledgerFolder(session) : QString();
}

MoveReport moveIn(Session& session, const QString& nativeFolder, const backup::Tell& tell) {
  if (!QFileInfo(nativeFolder).isDir()) throw jet::errorOf(3044, nativeFolder);
  // Before our own marks of who is in come to lie there.
  const QStringList marks =
      QDir(nativeFolder).entryList({u"*.ldb"_s}, QDir::Files, QDir::Name | QDir::IgnoreCase);
  // One that cannot be looked into would pass for a file of another format, and be left out.
  for (const QString& name : filesOf(nativeFolder))
    if (!QFile(nativeFolder + u'/' + name).open(QIODevice::ReadOnly)) throw jet::errorOf(3051, name);
  const QString target = placeOf(session, nativeFolder);
  if (target.isEmpty())
    throw jet::Error(3024, nativeFolder + u"\n이 폴더에는 이전 형식의 Basic.mdb 가 없습니다."_s);
  const pc::Paths& paths = session.pc.paths;
  auto held = std::make_unique<backup::DataFolderAlone>(paths, target);
  if (const QStringList busy = held->take(); !busy.isEmpty()) throw jet::errorOf(3045, busy.join(u", "_s));
  beginPreparing(paths, target, session.pc.clock.now());
  try {
    Run run(session, QDir::cleanPath(nativeFolder), target, tell);
    for (const QString& mark : marks)
      run.report.warnings
          << mark + u": 이전 프로그램이 켜져 있을 때 생기는 파일. 켜져 있었다면 끝내고 다시 가져오십시오."_s;
    run.bringFiles();
    run.makeMissing();
    run.checkFiles();
    run.report.keptFolder = swapIn(paths, target, session.pc.clock.now());
    held.reset();
    backup::clearMarks(paths, run.report.keptFolder);
    writeReport(session, run.report);
    return run.report;
  } catch (...) {
    dropPrepared(paths, target);
    throw;
  }
}

}  // namespace moving
