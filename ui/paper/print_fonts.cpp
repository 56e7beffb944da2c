#include "ui/paper/print_fonts.h"

#include <QFontDatabase>

#include <algorithm>
#include <functional>
#include <iterator>

#include "pc/print_job.h"

using namespace Qt::StringLiterals;

namespace {

struct PrintFamily {
  const char16_t* asked;
  const char16_t* standIn;
  double scale;  ///< of the stand-in's size
};

// OCR B is 0.723 of its size wide where the reader's font is 0.6: at 12 points a tenth of an inch.
constexpr PrintFamily families[] = {
    {u"굴림체", u"NanumGothicCoding", 1}, {u"돋움체", u"NanumGothicCoding", 1},
    {u"굴림", u"Baekmuk Gulim", 1},       {u"돋움", u"Baekmuk Dotum", 1},
    {u"OCR-B-1", u"OCR B", 0.6 / 0.723},
};

}  // namespace

QFont printFont(const pc::PrintFont& font) {
  QString family = font.family;
  double points = font.points;
  const auto* known = std::ranges::find_if(
      families, [&](const PrintFamily& entry) { return font.family == QStringView(entry.asked); });
  if (known != std::end(families) && !QFontDatabase::hasFamily(family)) {
    family = QString::fromUtf16(known->standIn);
    points *= known->scale;
  }
  QFont made(family);
  made.setPointSizeF(points);
  made.setBold(font.bold);
  made.setKerning(false);
  made.setHintingPreference(QFont::PreferNoHinting);
  return made;
}

QStringList missingPrintFonts() {
  QStringList missing;
  for (const PrintFamily& entry : families) {
    const QString asked = QString::fromUtf16(entry.asked);
    if (!QFontDatabase::hasFamily(asked) && !QFontDatabase::hasFamily(QString::fromUtf16(entry.standIn)))
      missing << asked;
  }
  return missing;
}
