#include "ui/grid/excel_export.h"

#include <xlsxwriter.h>
#include <QDir>
#include <QFile>

#include <cmath>

#include "store/session.h"
#include "ui/model/spread_model.h"

using namespace Qt::StringLiterals;

namespace {

/** The file while it is written; closed, and so finished, exactly once. */
class Workbook {
 public:
  explicit Workbook(const QString& file) : book_(workbook_new(QFile::encodeName(file).constData())) {}
  ~Workbook() { close(); }
  Workbook(const Workbook&) = delete;
  Workbook& operator=(const Workbook&) = delete;

  lxw_workbook* get() const { return book_; }
  bool close() {
    if (!book_) return true;
    lxw_workbook* const book = book_;
    book_ = nullptr;
    return workbook_close(book) == LXW_NO_ERROR;
  }

 private:
  lxw_workbook* book_;
};

/** A sheet's name may hold at most 31 characters and none of []:*?/\ . */
QByteArray sheetName(QString title) {
  for (const QChar bad : u"[]:*?/\\'"_s) title.remove(bad);
  title = title.trimmed().left(31);
  return (title.isEmpty() ? u"자료"_s : title).toUtf8();
}

bool isAmountColumn(CellKind kind) {
  return kind == CellKind::Integer || kind == CellKind::Number || kind == CellKind::Money;
}

void writeCell(lxw_worksheet* sheet, lxw_row_t at, lxw_col_t place, const SpreadColumn& column,
               const QString& text, lxw_format* amounts) {
  if (text.isEmpty()) return;
  bool numeric = false;
  const double number = QString(text).remove(u',').toDouble(&numeric);
  // Only an amount's column becomes a number: codes, telephone and account numbers keep their leading zeros. A
  // fraction keeps its places; under a picture for both a whole amount would end in a point.
  const bool whole = number == std::floor(number);
  if (isAmountColumn(column.kind) && numeric)
    worksheet_write_number(sheet, at, place, number,
                           column.kind == CellKind::Money && whole ? amounts : nullptr);
  else
    worksheet_write_string(sheet, at, place, text.toUtf8().constData(), nullptr);
}

bool writeGrid(const QString& file, const SpreadModel& grid, const QString& title, bool keepHeaders) {
  Workbook book(file);
  if (!book.get()) return false;
  lxw_worksheet* const sheet = workbook_add_worksheet(book.get(), sheetName(title).constData());
  if (!sheet) return false;
  lxw_format* const head = workbook_add_format(book.get());
  format_set_bold(head);
  format_set_align(head, LXW_ALIGN_CENTER);
  lxw_format* const amounts = workbook_add_format(book.get());
  format_set_num_format(amounts, "#,##0");

  lxw_col_t place = 0;
  const lxw_row_t first = keepHeaders ? 1 : 0;
  const int rows = grid.DataRowCnt();
  for (int col = 1; col <= grid.MaxCols(); ++col) {
    const SpreadColumn& column = grid.column(col);
    if (column.hidden) continue;
    worksheet_set_column(sheet, place, place, column.width + 2, nullptr);
    if (keepHeaders) {
      const QString words = column.group.isEmpty() ? column.header : column.group + u' ' + column.header;
      worksheet_write_string(sheet, 0, place, words.toUtf8().constData(), head);
    }
    for (int row = 1; row <= rows; ++row)
      writeCell(sheet, first + lxw_row_t(row - 1), place, column, grid.text(row, col), amounts);
    ++place;
  }
  return book.close();
}

void writeLog(const QString& file, const QString& line) {
  QFile log(file);
  if (log.open(QIODevice::WriteOnly)) log.write(line.toUtf8());
}

}  // namespace

QString ExportToExcelFile(Session& session, const SpreadModel& grid, const QString& title, bool quiet,
                          bool keepHeaders) {
  if (grid.DataRowCnt() == 0) {
    session.prompts.MsgInfo(u"엑셀로 보낼 데이터가 없습니다.\n자료 검색후 엑셀로 보내세요."_s);
    return {};
  }
  if (!quiet && !session.prompts.MsgAsk(u"엑셀로 자료를 내보내기 하시겠습니까?"_s)) return {};

  const pc::Paths& paths = session.pc.paths;
  const QString folder = paths.programFolder() + u"\\ExpExcel"_s;
  const bool ready = QDir().mkpath(paths.native(folder));
  const QString name = folder + u"\\Exp"_s + session.pc.clock.now().toString(u"yyMMdd_HHmmss"_s);
  QString written = name + u".xlsx"_s;
  const bool done = ready && writeGrid(paths.native(written), grid, title, keepHeaders);
  writeLog(paths.native(name + u"LOG.TXT"_s),
           u"%1\t%2\t%3행\t%4\r\n"_s.arg(session.pc.clock.now().toString(u"yyyy-MM-dd HH:mm:ss"_s), title,
                                         QString::number(grid.DataRowCnt()), done ? u"성공"_s : u"실패"_s));
  if (!done) {
    session.prompts.MsgWarn(u"엑셀로 내보내기에 실패했습니다."_s);
    return {};
  }
  if (!session.pc.process.open(written))
    session.prompts.MsgInfo(
        u"엑셀 파일을 만들었으나 이 PC에는 여는 프로그램이 없습니다.\n파일은 아래에 있습니다.\n\n"_s +
        QDir::toNativeSeparators(paths.native(written)));
  return written;
}
