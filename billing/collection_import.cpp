#include "billing/collection_import.h"

#include "pc/cp949.h"
#include "store/data_access.h"
#include "store/jet/error_texts.h"
#include "store/long_work.h"
#include "store/vb.h"
#include "store/year_file.h"

namespace {

constexpr int lastMonth = 12;
constexpr int listColumn = 20;  ///< bytes

enum RunTimeError { fileNotFound = 53, fileAlreadyOpen = 55, diskFull = 61, fileAccess = 75 };

/** A printed number: the sign's place in front, a blank behind. */
QByteArray printed(double number) {
  return (number < 0 ? "" : " ") + vb::CStr(number).toLatin1() + ' ';
}

QByteArray padded(const QString& text) {
  return pc::toCp949(text).leftJustified(listColumn, ' ');
}

}  // namespace

struct CollectionImport::Run {
  QString year;
  int month = 0;
  QFile& list;
  jet::Database book = {};  ///< the year's file, opened with the first payment
  CollectionRecord last = {};
  Collected collected = {};
  bool stopped = false;
};

QString CollectionImport::thisYear() const {
  return QString::number(session_.pc.clock.today().year());
}

bool CollectionImport::isYear(const QString& typed) const {
  return vb::IsNumeric(typed);
}

QString CollectionImport::inputFile(const QString& year, const QString& month) const {
  return session_.pc.paths.programFolder() + "\\" + year + month + ".txt";
}

QString CollectionImport::listFile(const QString& year, const QString& month) const {
  return session_.pc.paths.programFolder() + "\\" + year + month + "Out.txt";
}

void CollectionImport::showList(const QString& year, const QString& month) {
  const QString list = listFile(year, month);
  if (!session_.pc.process.shell("notepad " + list))
    session_.prompts.MsgWarn("수납목록을 열 수 없습니다.\n파일명:" + list);
}

std::optional<CollectionImport::Collected> CollectionImport::run(
    const QString& year, const QString& month, const std::function<Teller(int count)>& beginWork) {
  const QString input = inputFile(year, month);
  if (!session_.pc.paths.exists(input))
    session_.prompts.MsgWarn("수납파일을 찾을 수 없습니다.\n파일명:" + input);
  std::optional<Collected> collected;
  try {
    collected = post(year, month, beginWork);
  } catch (const jet::Error&) {
    session_.prompts.MsgWarn(
        "해당년월 파일이 존재하지 않거나 잘못된 파일입니다.\n\n파일의 존재여부와 파일이름을 확인하시기 "
        "바랍니다.");
    return {};
  }
  if (collected && collected->sum == 0 && collected->count == 0)
    session_.prompts.MsgInfo("수금파일이 없거나 수금내역이 없습니다");
  return collected;
}

std::optional<CollectionImport::Collected> CollectionImport::post(
    const QString& year, const QString& month, const std::function<Teller(int count)>& beginWork) {
  if (left_) jet::fail(fileAlreadyOpen);
  const pc::Paths& paths = session_.pc.paths;
  auto files = std::make_unique<Files>();
  files->list.setFileName(paths.native(listFile(year, month)));
  files->input.setFileName(paths.native(inputFile(year, month)));
  if (!files->list.open(QIODevice::WriteOnly)) jet::fail(fileAccess);
  if (!files->input.open(QIODevice::ReadOnly)) jet::fail(fileNotFound);

  const QByteArray bytes = files->input.readAll();
  const CollectionLines lines = splitCollection(bytes);
  const int count = int(lines.pieces.size());
  Run run{.year = year, .month = month.toInt(), .list = files->list};
  const Teller tell = beginWork ? beginWork(count) : nullptr;
  ::run(session_.wsMain, {.count = count,
                          .step =
                              [&](int at) {
                                if (!run.stopped) run.stopped = !take(run, lines.pieces[size_t(at)]);
                              },
                          .tell =
                              [&](int done) {
                                if (tell) tell(done);
                                return !run.stopped;
                              }});
  if (!files->list.flush()) jet::fail(diskFull);
  if (run.stopped) return {};
  if (lines.blankLine) {
    left_ = std::move(files);
    return {};
  }
  return run.collected;
}

bool CollectionImport::take(Run& run, const CollectionPiece& piece) {
  if (piece.isPayment()) {
    ++run.collected.count;
    run.last = readCollectionRecord(piece.bytes);
    run.collected.sum += run.last.amount;
    if (!postRecord(run, run.last)) return false;
  }
  // Kept: a line without a payment repeats the customer before it, and a line of many pieces gets one line.
  return !piece.endsLine || writeLine(run);
}

bool CollectionImport::postRecord(Run& run, const CollectionRecord& record) {
  if (!run.book.isOpen()) {
    if (run.year == thisYear())
      run.book = session_.dbYear;
    else
      run.book = openYear(session_, run.year);
    if (!run.book.isOpen()) return false;
  }
  const QString amount = vb::CStr(record.amount), code = QString::number(record.clientCode);
  const QString monthDay = QString::fromLatin1(record.monthDay);
  run.book.Execute("Update Evaporation Set Pay = " + amount + " , TrustDay = '" +
                   plainText(monthDay.left(2)) + "-" + plainText(monthDay.mid(2)) +
                   "' , Total = UsePay + Trust + Delay + Manage - " + amount + " where ClientCode = " + code +
                   " AND Mon = " + QString::number(run.month));
  jet::Recordset row;
  if (!OpenSnapshot(session_.prompts, run.book, row,
                    "Select Total from Evaporation where Mon = " + QString::number(run.month) +
                        " AND ClientCode = " + code))
    return false;
  if (run.month < lastMonth && !row.atEnd())
    run.book.Execute("Update Evaporation Set Trust = " + row["Total"].toText() +
                     " Where Mon = " + QString::number(run.month + 1) + " AND ClientCode = " + code);
  return true;
}

bool CollectionImport::writeLine(const Run& run) {
  const CollectionRecord& last = run.last;
  jet::Recordset client;
  if (!OpenSnapshot(session_.prompts, session_.dbYear, client,
                    "Select Name, Tel from [" + plainPath(session_.BasicPath) +
                        "].Client where code = " + QString::number(last.clientCode)))
    return false;
  const bool known = !client.atEnd();
  const QByteArray line = padded(known ? client["Name"].toText() : QString()) +
                          padded(known ? client["Tel"].toText() : QString()) +
                          session_.pc.clock.dateText().toLatin1() + printed(last.amount) + "\r\n";
  if (run.list.write(line) != line.size()) jet::fail(diskFull);
  return true;
}
