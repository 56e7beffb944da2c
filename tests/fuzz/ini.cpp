#include <QFile>
#include <QTemporaryDir>

#include "pc/ini_file.h"
#include "tests/fuzz/targets.h"

using namespace Qt::StringLiterals;

namespace fuzz {

void runIni(const QByteArray& input) {
  static const QTemporaryDir folder;
  const QString path = folder.filePath(u"x.ini"_s);
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return;
  file.write(input);
  file.close();

  // Half of the input is also what is stored: any text must come back as it was.
  const QString text = QString::fromUtf8(input.right(input.size() / 2)).remove(QChar(0xFEFF));
  // Cut in three without leaving half a character, which no file can hold.
  const auto whole = [](const QString& cut) { return QString::fromUtf8(cut.toUtf8()); };
  const qsizetype third = text.size() / 3;
  const QString section = whole(text.left(third)), key = whole(text.mid(third, third));
  pc::IniFile ini(path);
  const QStringList others = ini.keys(u"other"_s);
  QStringList values;
  for (const QString& other : others) values << ini.value(u"other"_s, other);
  if (!ini.setValue(section, key, text)) broken(input, u"the file is written"_s);
  pc::IniFile again(path);
  if (again.value(section, key, u"?"_s) != text) broken(input, u"a stored text comes back"_s);
  if (section.compare(u"other"_s, Qt::CaseInsensitive) == 0) return;
  if (again.keys(u"other"_s) != others) broken(input, u"the other keys stay"_s);
  for (qsizetype i = 0; i < others.size(); ++i)
    if (again.value(u"other"_s, others.at(i)) != ini.value(u"other"_s, others.at(i)))
      broken(input, u"the other values stay"_s);
}

}  // namespace fuzz
