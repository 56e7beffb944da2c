// The tables and rows of a data file of the older format, for the program that brings them in. A program of its own: a
// torn file may bring the library down, and with it only this.
#include <glib.h>
// behind glib.h, which is not made to be included from within its extern "C"
#include <mdbtools.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "pc/program_line.h"

namespace {

constexpr pc::ProgramLine programLine{
    "haeon-jet-rows", "FILE [TABLE]",
    "Tells what a data file of the older format (Jet 3 and Jet 4) holds; writes nothing.\n"
    "  FILE alone   its tables: T, rows and name; then C, type and name for every column\n"
    "  TABLE        its rows: every field as its length, a colon and so many bytes of UTF-8; a Null is "
    "\"-:\",\n"
    "               an object, which is not told, \"1:*\"\n"
    "MDB_JET3_CHARSET names the code page of a Jet 3 file."};

constexpr size_t longestField = 1 << 18;  // bytes

int fail(const char* what, const char* of) {
  std::fprintf(stderr, "Error: %s: %s\n", what, of);
  return 1;
}

void printTables(MdbHandle* file) {
  for (guint at = 0; at < file->num_catalog; ++at) {
    auto* entry = static_cast<MdbCatalogEntry*>(g_ptr_array_index(file->catalog, at));
    if (!mdb_is_user_table(entry)) continue;
    MdbTableDef* table = mdb_read_table(entry);
    if (!table || !mdb_read_columns(table)) {
      fail("cannot read the definition", entry->object_name);
      std::exit(1);
    }
    std::printf("T\t%u\t%s\n", table->num_rows, entry->object_name);
    for (guint i = 0; i < table->num_cols; ++i) {
      auto* column = static_cast<MdbColumn*>(g_ptr_array_index(table->columns, i));
      std::printf("C\t%d\t%s\n", column->col_type, column->name);
    }
    mdb_free_tabledef(table);
  }
}

/** Which columns of the row just fetched are Null: the library hands out '' for both. */
std::vector<bool> nullsOf(MdbTableDef* table) {
  std::vector<bool> nulls(table->num_cols, true);
  int start = 0;
  size_t size = 0;
  if (mdb_find_row(table->entry->mdb, int(table->cur_row) - 1, &start, &size)) return nulls;
  constexpr int placeBits = 0x1fff;
  std::vector<MdbField> fields(table->num_cols);
  const int count = mdb_crack_row(table, start & placeBits, size, fields.data());
  for (int i = 0; i < count; ++i) nulls[size_t(fields[size_t(i)].colnum)] = fields[size_t(i)].is_null;
  return nulls;
}

int printRows(MdbTableDef* table) {
  if (!mdb_read_columns(table)) return fail("cannot read the definition", table->name);
  const guint count = table->num_cols;
  std::vector<std::string> texts(count, std::string(longestField, '\0'));
  std::vector<int> lengths(count, 0);
  for (guint i = 0; i < count; ++i) mdb_bind_column(table, int(i) + 1, texts[i].data(), &lengths[i]);
  mdb_rewind_table(table);
  while (mdb_fetch_row(table)) {
    const std::vector<bool> nulls = nullsOf(table);
    for (guint i = 0; i < count; ++i) {
      const auto* column = static_cast<MdbColumn*>(g_ptr_array_index(table->columns, i));
      const bool isYesNo = column->col_type == MDB_BOOL;  // never Null; the mark of Null is its value
      const char* text = lengths[i] || isYesNo ? texts[i].c_str() : "";
      if (nulls[i] && !isYesNo)
        std::fputs("-:", stdout);
      else if (column->col_type == MDB_OLE || column->col_type == MDB_BINARY)
        std::fputs("1:*", stdout);
      else
        std::printf("%zu:%s", std::strlen(text), text);
    }
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (pc::saidOfItself(programLine, argc, argv)) return 0;
  if (argc != 2 && argc != 3) return pc::wrongUse(programLine);
  MdbHandle* file = mdb_open(argv[1], MDB_NOFLAGS);
  if (!file) return fail("cannot open", argv[1]);
  mdb_set_bind_size(file, longestField);
  mdb_set_date_fmt(file, "%Y-%m-%d %H:%M:%S");
  mdb_set_shortdate_fmt(file, "%Y-%m-%d %H:%M:%S");
  if (!mdb_read_catalog(file, MDB_TABLE)) return fail("cannot read the catalogue", argv[1]);
  int status = 0;
  if (argc == 2) {
    printTables(file);
  } else {
    MdbTableDef* table = mdb_read_table_by_name(file, argv[2], MDB_TABLE);
    status = table ? printRows(table) : fail("no such table", argv[2]);
    if (table) mdb_free_tabledef(table);
  }
  mdb_close(file);
  return status;
}
