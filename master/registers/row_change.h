#pragma once
// What becomes of a row that is changed or deleted on the screen while another PC has written or deleted it: nothing
// that either wrote is lost unless the operator says so.
#include <QHash>
#include <QStringList>

#include <functional>
#include <optional>

#include "store/session.h"

/** Texts of the boxes, or of one record, by column name. */
using RegisterFields = QHash<QString, QString>;

/** A change of one row. */
struct RowChange {
  RegisterFields read;   ///< the row as it was read when it was shown
  RegisterFields shown;  ///< the boxes as they stood then
  RegisterFields typed;  ///< the boxes as they stand; columns without a box are left out
  QStringList running =
      {};  ///< columns that postings move: never written, only moved by what the operator changed
  RegisterFields labels = {};  ///< what a column is called on the screen
};

/** The row to write: of every column what the operator typed, or what is stored where the box was left alone. */
struct MergedRow {
  RegisterFields row;
  QStringList others = {};  ///< written by another PC, left alone here
  QStringList both = {};    ///< written by another PC and changed here to something else
};
MergedRow mergeRow(const RowChange& change, const RegisterFields& stored);

/** By how much the operator moved a running figure; 0 when its box was left alone. */
double movedBy(const RowChange& change, const QString& column);
/** ", GasInit = GasInit + 500" for every running column whose box was changed, in the order of change.running; a
 *  figure that holds nothing yet starts at 0. */
QString movedFigures(const RowChange& change, const RegisterFields& stored);

enum class RowEnd {
  Done,
  Refused,  ///< the operator would rather not write over what another PC wrote
  Gone,     ///< another PC has deleted the row; told
  Changed,  ///< for a deletion: another PC has changed it, so the operator looks again; told
};
struct RowOutcome {
  RowEnd end = RowEnd::Done;
  QString column = {};  ///< Refused: the first column that both changed
};

/** How a row of Basic.mdb is found and read. */
struct RowSource {
  QString select;
  std::function<RegisterFields(const jet::Recordset& row)> read;
};

/** Reads the row anew and has it written in one group with that reading. Asks before a column that another PC
 *  has changed is written over, tells afterwards what it left as it was and which running figure had moved. Throws
 *  jet::Error. */
RowOutcome changeRow(
    const Session& session, const RowSource& source, const QString& title, const RowChange& change,
    const std::function<void(const RegisterFields& row, const RegisterFields& stored)>& write);

/** Runs work in one group with a reading that shows the row as it was read; told when it is not. Throws jet::Error. */
RowEnd deleteRow(const Session& session, const RowSource& source, const QString& title,
                 const RegisterFields& read, const std::function<void()>& work);

/** The current row of a recordset, column by column. */
RegisterFields fieldsOf(const jet::Recordset& row);

/** The first column whose text is longer than the table holds, told with its length; nothing when all fit. */
std::optional<QString> textTooLong(const Session& session, const QString& table, const RegisterFields& texts,
                                   const RegisterFields& labels, const QString& title);

/** No statement holds a text with an apostrophe; its own refusal tells so. */
bool hasApostrophe(const QString& text);

/** A typed number as a statement takes it: "1,250" is 1250, '' is 0. */
QString typedNumber(const QString& typed);
