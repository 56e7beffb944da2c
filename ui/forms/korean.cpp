#include "ui/forms/korean.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

void speakKorean(QApplication& application) {
  const QLocale korean(QLocale::Korean, QLocale::SouthKorea);
  QLocale::setDefault(korean);
  auto* translator = new QTranslator(&application);
  if (translator->load(korean, u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(translator);
}
