#include <QFile>
#include <QTemporaryDir>

#include "pc/ini_file.h"
#include "tests/fuzz/targets.h"

namespace fuzz {

void runIni(const QByteArray& input) {
  static const QTemporaryDir folder;
  const QString path = folder.filePath("x.ini");
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
  const QStringList others = ini.keys("other");
  QStringList values;
  for (const QString& other : others) values << ini.value("other", other);
  if (!ini.setValue(section, key, text)) broken(input, "the file is written");
  pc::IniFile again(path);
  if (again.value(section, key, "?") != text) broken(input, "a stored text comes back");
  if (section.compare("other", Qt::CaseInsensitive) == 0) return;
  if (again.keys("other") != others) broken(input, "the other keys stay");
  for (qsizetype i = 0; i < others.size(); ++i)
    if (again.value("other", others.at(i)) != ini.value("other", others.at(i)))
      broken(input, "the other values stay");
}

}  // namespace fuzz
