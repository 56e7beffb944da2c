#include "pc/ports.h"

#include <QSettings>

namespace pc {

QString serialDevice(const Paths& paths, const QString& port) {
  const QString named = qEnvironmentVariable(("HAEON_" + port).toLatin1().constData());
  if (!named.isEmpty()) return named;
  const QString mapped =
      QSettings(paths.root() + QStringLiteral("/ports.ini"), QSettings::IniFormat).value(port).toString();
  if (!mapped.isEmpty()) return mapped;
#ifdef Q_OS_WIN
  return port;
#else
  return QStringLiteral("/dev/ttyS%1").arg(port.mid(3).toInt() - 1);
#endif
}

}  // namespace pc
