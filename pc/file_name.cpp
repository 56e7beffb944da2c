#include "pc/file_name.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace pc {

namespace {

constexpr int longest = 180;  // bytes of UTF-8; file systems take 255 with the ending

bool isDevice(const QString& name) {
  static const QRegularExpression device(u"^(CON|PRN|AUX|NUL|COM[0-9]|LPT[0-9])$"_s,
                                         QRegularExpression::CaseInsensitiveOption);
  return device.match(name.section(u'.', 0, 0).trimmed()).hasMatch();
}

void cutToLength(QString& name) {
  while (name.toUtf8().size() > longest) name.chop(name.back().isLowSurrogate() ? 2 : 1);
}

void cutEnd(QString& name) {
  while (!name.isEmpty() && (name.back() == u'.' || name.back().isSpace())) name.chop(1);
}

}  // namespace

QString fileNameOf(const QString& text, const QString& otherwise) {
  QString name = text;
  for (QChar& letter : name) {
    if (letter == u'\n' || letter == u'\t')
      letter = u' ';
    else if (u"\\/:*?\"<>|"_s.contains(letter) || letter < u' ' || letter == QChar(0x7F))
      letter = u'_';
  }
  name = name.simplified();
  cutToLength(name);
  cutEnd(name);
  if (name.startsWith(u'.') || isDevice(name)) name.prepend(u'_');
  return name.isEmpty() ? otherwise : name;
}

}  // namespace pc
