#pragma once
// The words in which the tables are written down: a line of schema.cpp reads as the table does.
#include <vector>

#include "store/jet/database.h"

namespace schema {

namespace shape {

jet::Field autoNumber(const char* name);
/** Won, kilograms, pieces, codes; 0 when an insert leaves it out. */
jet::Field whole(const char* name);
/** Rates, meter readings and what may hold a fraction; 0 when left out. */
jet::Field real(const char* name);
/** False when left out. */
jet::Field yesNo(const char* name);
/** Null when left out; '' allowed. */
jet::Field text(const char* name, int size);
/** "yyyy-MM-dd" or shorter; ten characters. */
jet::Field date(const char* name);
jet::Field withoutDefault(jet::Field field);
jet::Field notEmpty(jet::Field field);

jet::Index primary(const char* name, const QStringList& fields);
jet::Index index(const char* name, const QStringList& fields);

jet::TableDef make(const char* name, std::vector<jet::Field> fields, std::vector<jet::Index> indexes = {});

}  // namespace shape

/** The companion ledger's tables; types as their statements use them. */
std::vector<jet::TableDef> ledgerTables();

}  // namespace schema
