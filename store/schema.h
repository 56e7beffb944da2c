#pragma once
// The tables of every data file, in one place: what an empty file is made from and what the statements count on.
#include <vector>

#include "store/jet/database.h"

namespace schema {

/** One kind of data file. Ledger stands for the companion ledger's files, which this program reads but never makes. */
enum class File { Basic, Year, Tax, Detail, Post, Print, AptBaln, InOutCash, Cashbook, Ledger };

/** The file's own tables in the order they are made; links are not among them. */
const std::vector<jet::TableDef>& tablesOf(File file);
/** One of them; the name must be there, case does not matter. */
const jet::TableDef& table(File file, const QString& name);
/** The tables of Basic.mdb that every year file links to, in the order in which the links are made. */
const QStringList& linkedTables();

}  // namespace schema
