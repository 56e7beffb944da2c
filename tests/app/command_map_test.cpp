#include "app/command_map.h"

#include <QMap>
#include <QSet>
#include <QStringList>

namespace {

QStringList entriesOf(const QString& menu) {
  QStringList names;
  for (const auto& entry : commandMap())
    if (entry.menuName() == menu) names << entry.objectName();
  return names;
}

TEST(CommandMap, EveryEntryHangsInAMenuThatStandsBeforeItAndNoNameComesTwice) {
  QSet<QString> names, menus{QString()}, letters;
  for (const auto& entry : commandMap()) {
    const std::string name = entry.objectName().toStdString();
    EXPECT_TRUE(menus.contains(entry.menuName())) << name;
    EXPECT_FALSE(names.contains(entry.objectName())) << name;
    names << entry.objectName();
    if (entry.kind == CommandKind::Menu) menus << entry.objectName();
    const QString letter = entry.menuName() + entry.text().section(u'&', 1);
    EXPECT_FALSE(letters.contains(letter)) << name << " shares its Alt letter";
    letters << letter;
    const bool opens = entry.kind == CommandKind::Form || entry.kind == CommandKind::Dialog;
    EXPECT_EQ(opens, !entry.formName().isEmpty()) << name;
  }
  EXPECT_EQ(entriesOf({}), (QStringList{"MnuBasic", "MnuLPG", "MnuEvaporation", "MnuCAN", "MnuUtil",
                                        "MnuContribution", "MnuHelp"}));
  EXPECT_EQ(entriesOf("MnuLPG").size(), 13);
  EXPECT_EQ(entriesOf("MnuHelp"), (QStringList{"MnuAbout", "mnu_SeeIDSetUp", "mnuHome", "mnu_Teminal",
                                               "mnuGuide", "mnuFirstSteps"}));
}

TEST(CommandMap, StockEntriesAndMeterBooksAreMarked) {
  QStringList stock;
  QMap<QString, QString> books;
  for (const auto& entry : commandMap()) {
    if (entry.flags & CommandEntry::NeedsStock) stock << entry.objectName();
    if (!entry.kindOfBook().isEmpty()) books[entry.objectName()] = entry.kindOfBook();
  }
  EXPECT_EQ(stock, (QStringList{"MnuInitStock", "MnuRes_Can", "MnuRemain", "MnuUtilInOut"}));
  EXPECT_EQ(books.size(), 6);
  EXPECT_EQ(books["MnuAPTCheck"], "2");
  EXPECT_EQ(books["MnuManyTotal"], "3");
}

TEST(CommandMap, EachToolButtonStandsForAnEntry) {
  for (const auto& button : toolButtons()) {
    const QString command = QString::fromUtf16(button.command);
    EXPECT_TRUE(findCommand(command)) << command.toStdString();
  }
  EXPECT_FALSE(findCommand("mnuClient")) << "names are compared as they stand";
}

}  // namespace
