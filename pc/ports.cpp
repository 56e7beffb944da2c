#include "pc/ports.h"

#include <QSettings>

using namespace Qt::StringLiterals;

namespace pc {

QString serialDevice(const Paths& paths, const QString& port) {
  QString named = qEnvironmentVariable(("HAEON_" + port).toLatin1().constData());
  if (!named.isEmpty()) return named;
  QString mapped = QSettings(paths.root() + u"/ports.ini"_s, QSettings::IniFormat).value(port).toString();
  if (!mapped.isEmpty()) return mapped;
#ifdef Q_OS_WIN
  return port;
#else
  return u"/dev/ttyS%1"_s.arg(port.mid(3).toInt() - 1);
#endif
}

}  // namespace pc
