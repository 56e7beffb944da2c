#include "tests/fuzz/targets.h"

#include <QDir>
#include <QFile>
#include <cstdio>
#include <cstdlib>

namespace fuzz {

const QList<Target>& targets() {
  static const QList<Target> all{
      {"statement", runStatement, statementSeeds,
       QByteArray("Select | From | Where | And | Or | Not |Client|Sale|Like '*|''|'|\"|[|]|#2026-01-02#|"
                  "Is Null| In (|)|(|,|;|Sum(|Count(*)| Group By | Order By | Having |Top 1 |Distinct |"
                  " Union | Left Join | On |Iif(|Null|True| & |^|\\| Mod |9223372036854775807|1E308|.5|"
                  " Between |Insert Into |Values(|Update | Set |Delete * From |Create Table |Alter Table |"
                  "Drop |Format(|Mid(|-|*| As |!|{|\n")
           .split('|')},
      {"ini",
       runIni,
       [] { return corpusOf("ini"); },
       {"[", "]", "=", "\n", "\r\n", ";", "\\", "\\n", "\xef\xbb\xbf", "\xea\xb0\x80", "\0", "  "}},
      {"collection",
       runCollection,
       [] { return corpusOf("collection"); },
       {"22", "\r\n", "\n", "\r", "    ", "0325", "12300", "E9", "-", ".", "&H", "\xc8\xab",
        "99999999999999999999"}},
      {"device",
       runDevice,
       [] { return corpusOf("device"); },
       {"NMBR", "=", "NMBR=", "\r", "\n", "RING", "0531234567", "DATE=0312", "-", "(02)", " ", "\x02",
        "\xff"}},
  };
  return all;
}

QByteArrayList corpusOf(const char* name) {
  QByteArrayList seeds;
  const QDir folder(QString(HAEON_TEST_DATA "/fuzz/corpus/") + QLatin1StringView(name));
  for (const QString& file : folder.entryList(QDir::Files, QDir::Name)) {
    QFile seed(folder.filePath(file));
    if (seed.open(QIODevice::ReadOnly)) seeds << seed.readAll();
  }
  return seeds;
}

void broken(const QByteArray& input, const QString& promise) {
  std::fprintf(stderr, "broken: %s\ninput (hex): %s\ninput: %s\n", qPrintable(promise),
               input.toHex().constData(), input.constData());
  std::abort();
}

}  // namespace fuzz
