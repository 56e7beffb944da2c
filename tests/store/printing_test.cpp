// What a failed comparison shows.
#include <optional>

#include "store/jet/database.h"

using namespace Qt::StringLiterals;
using testing::PrintToString;

namespace {

TEST(Printing, TextsDaysAndStoredValuesAreReadAsTheyAre) {
  EXPECT_EQ(PrintToString(u"한라\t식당\n"_s), "\"한라\\x0009식당\\n\"");
  EXPECT_EQ(PrintToString(u"가\u00a0나 \"다\""_s), "\"가\\x00a0나 \\\"다\\\"\"");
  EXPECT_EQ(PrintToString(QStringList{u"가"_s, u""_s}), "{ \"가\", \"\" }");
  EXPECT_EQ(PrintToString(std::optional(u"가"_s)), "(\"가\")");
  EXPECT_EQ(PrintToString(QChar(u'가')), "\"가\"");
  EXPECT_EQ(PrintToString(QByteArray("a\r\n")), "\"a\\r\\n\"");
  EXPECT_EQ(PrintToString(QDate(2026, 3, 2)) + PrintToString(QDate()), "2026-03-02no day");
  EXPECT_EQ(PrintToString(QDateTime(QDate(2026, 3, 2), QTime(9, 0))), "2026-03-02T09:00:00.000");
  EXPECT_EQ(PrintToString(QRect(1, 2, 30, 40)), "30x40 at 1,2");
  EXPECT_EQ(PrintToString(std::vector<jet::Value>{{}, "", "가", 3, 0.5}),
            "{ Null, \"\", \"가\", 3, 0.5 (double) }");
  EXPECT_EQ(PrintToString(jet::RecordsetType::Snapshot), "4");
}

}  // namespace
