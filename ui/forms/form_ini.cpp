#include "ui/forms/form_ini.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QMdiSubWindow>
#include <QScreen>
#include <QWidget>

#include <cmath>
#include <optional>

#include "pc/ini_file.h"
#include "ui/grid/spread.h"

using namespace Qt::StringLiterals;

namespace {

const QString formSection = u"FormPosition"_s;
constexpr int profileBuffer = 10;
constexpr int defaultFontSize = 10;
constexpr double mostPixels = 100'000;

/** A stored value when it is a number, and one that a screen can hold. */
std::optional<double> storedNumber(const pc::IniFile& file, const QString& section, const QString& key) {
  bool numeric = false;
  const double number = file.value(section, key).left(profileBuffer).trimmed().toDouble(&numeric);
  return numeric && std::abs(number) <= mostPixels ? std::optional(number) : std::nullopt;
}

/** What carries a form's place: the frame around it in the main window, or the form itself. */
QWidget& carrier(QWidget& form) {
  auto* const frame = qobject_cast<QMdiSubWindow*>(form.parentWidget());
  return frame ? *frame : form;
}
const QWidget& carrier(const QWidget& form) {
  return carrier(const_cast<QWidget&>(form));
}

/** Where a window may stand: the main window's child area, or the screen that its place lies on. */
QRect roomOf(const QWidget& window, const QPoint& place) {
  if (!window.isWindow()) return window.parentWidget()->rect();
  const QScreen* const there = QGuiApplication::screenAt(place + QPoint(40, 10));
  return (there ? there : window.screen())->availableGeometry();
}

void resizeWithin(const QRect& room, QWidget& window, const QSize& size) {
  if (const QSize fits = size.boundedTo(room.size()); fits != window.size()) window.resize(fits);
}
/** A place on a screen that is gone, or outside of a main window that has become smaller, is out of reach. */
void moveWithin(const QRect& room, QWidget& window, const QPoint& place) {
  window.move(qBound(room.left(), place.x(), qMax(room.left(), room.right() + 1 - window.width())),
              qBound(room.top(), place.y(), qMax(room.top(), room.bottom() + 1 - window.height())));
}

enum WindowStateValue { Normal = 0, Minimized = 1, Maximized = 2 };

}  // namespace

QString FormIni::written(const QWidget& form) const {
  return paths_.programFolder() + u"\\FormIni\\"_s + form.objectName() + u".ini"_s;
}

void FormIni::LoadFormIni(QWidget& form, bool resize) const {
  if (!paths_.exists(written(form))) return;
  const pc::IniFile file(paths_.native(written(form)));
  QWidget& window = carrier(form);
  const auto number = [&](const QString& key) { return storedNumber(file, formSection, key); };
  const auto left = number(u"Left"_s), top = number(u"Top"_s);
  const auto width = number(u"Width"_s), height = number(u"Height"_s);
  QSize size = window.size();
  if (resize && width && height && *width > 0 && *height > 0) size = {int(*width), int(*height)};
  const bool placed = left && top;
  const QPoint place = placed ? QPoint(int(*left), int(*top)) : window.pos();
  const QRect room = roomOf(window, place);
  resizeWithin(room, window, size);
  if (placed) moveWithin(room, window, place);
  const auto state = number(u"WindowState"_s);
  if (state && int(*state) == Maximized) window.setWindowState(Qt::WindowMaximized);
}

void FormIni::SaveFormIni(const QWidget& form) const {
  if (!form.isVisible()) return;
  QDir().mkpath(paths_.native(paths_.programFolder() + u"\\FormIni"_s));
  pc::IniFile file(paths_.native(written(form)));
  const QWidget& window = carrier(form);
  const int state = window.isMaximized() ? Maximized : window.isMinimized() ? Minimized : Normal;
  file.setValue(formSection, u"WindowState"_s, QString::number(state));
  if (state != Normal) return;
  file.setValue(formSection, u"Left"_s, QString::number(window.x()));
  file.setValue(formSection, u"Top"_s, QString::number(window.y()));
  file.setValue(formSection, u"Width"_s, QString::number(window.width()));
  file.setValue(formSection, u"Height"_s, QString::number(window.height()));
}

void FormIni::LoadSpreadIni(Spread& grid, const QWidget& form) const {
  if (!paths_.exists(written(form))) return;
  const pc::IniFile file(paths_.native(written(form)));
  const QString widths = grid.objectName() + u"_ColsWidth"_s, general = grid.objectName() + u"_General"_s;
  for (int col = 1; col <= grid.model().MaxCols(); ++col) {
    const auto width = storedNumber(file, widths, QString::number(col));
    if (width && *width > 0) grid.setColWidth(col, *width);
  }
  const int size = int(storedNumber(file, general, u"FontSize"_s).value_or(0));
  grid.setFontSize(size > 0 ? size : defaultFontSize);
  grid.setRowHeight(int(storedNumber(file, general, u"RowHeight"_s).value_or(0)));
}

void FormIni::SaveSpreadIni(const QWidget& form, const Spread& grid, int col) const {
  if (!form.isVisible()) return;
  QDir().mkpath(paths_.native(paths_.programFolder() + u"\\FormIni"_s));
  pc::IniFile(paths_.native(written(form)))
      .setValue(grid.objectName() + u"_ColsWidth"_s, QString::number(col),
                QString::number(grid.colWidth(col), 'f', 2));
}

void FormIni::SaveSpreadGeneral(const QWidget& form, const Spread& grid) const {
  if (!form.isVisible()) return;
  QDir().mkpath(paths_.native(paths_.programFolder() + u"\\FormIni"_s));
  pc::IniFile file(paths_.native(written(form)));
  const QString general = grid.objectName() + u"_General"_s;
  file.setValue(general, u"FontSize"_s, QString::number(grid.fontSize()));
  file.setValue(general, u"RowHeight"_s, QString::number(grid.rowHeight()));
}

QRect FormIni::placeOf(const QWidget& form) {
  const QWidget& window = carrier(form);
  return {window.pos(), window.size()};
}

void FormIni::Reset(QWidget& form, const QRect& design) const {
  if (paths_.exists(written(form))) QFile::remove(paths_.native(written(form)));
  QWidget& window = carrier(form);
  if (window.isMaximized()) window.showNormal();
  const QRect room = roomOf(window, design.topLeft());
  resizeWithin(room, window, design.size());
  moveWithin(room, window, design.topLeft());
}
