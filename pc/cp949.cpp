#include "pc/cp949.h"

#include <QStringConverter>

namespace pc {

namespace {

// The codecs called EUC-KR and CP949 lack the syllables beyond the 2,350 of the old standard.
constexpr const char* codecName = "windows-949";

}  // namespace

QByteArray toCp949(const QString& text) {
  QByteArray out;
  QStringEncoder encoder(codecName);
  for (qsizetype at = 0; at < text.size();) {
    const qsizetype length = text[at].isHighSurrogate() && at + 1 < text.size() ? 2 : 1;
    const QStringView character = QStringView(text).sliced(at, length);
    at += length;
    if (character[0].unicode() < 0x80) {
      out += char(character[0].unicode());
      continue;
    }
    QByteArray bytes = encoder.encode(character);
    // What the code page lacks comes back as the codec's own filler: one byte, which no Hangul is.
    out += bytes.size() == 2 ? bytes : QByteArray("?");
  }
  return out;
}

QString fromCp949(const QByteArray& bytes) {
  QString out;
  QStringDecoder decoder(codecName);
  for (qsizetype at = 0; at < bytes.size();) {
    const uchar lead = uchar(bytes[at]);
    if (lead < 0x80) {
      out += QChar(lead);
      ++at;
      continue;
    }
    const QString character =
        at + 1 < bytes.size() ? QString(decoder.decode(bytes.sliced(at, 2))) : QString();
    decoder.resetState();
    const bool whole = character.size() == 1 && character[0] != QChar::ReplacementCharacter;
    out += whole ? character[0] : QChar(QChar::ReplacementCharacter);
    at += whole ? 2 : 1;
  }
  return out;
}

}  // namespace pc
