#include "ui/style.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>

namespace {

QString chosenFamily() {
  const QStringList installed = QFontDatabase::families();
  for (const QString& wanted : {QStringLiteral("NanumGothic"), QStringLiteral("나눔고딕"),
                                QStringLiteral("Malgun Gothic"), QStringLiteral("Baekmuk Dotum")}) {
    if (installed.contains(wanted)) return wanted;
  }
  return QApplication::font().family();
}

QPalette officePalette() {
  QPalette palette;
  palette.setColor(QPalette::Window, look::desk);
  palette.setColor(QPalette::WindowText, look::ink);
  palette.setColor(QPalette::Base, look::paper);
  palette.setColor(QPalette::AlternateBase, look::stripe);
  palette.setColor(QPalette::Text, look::ink);
  palette.setColor(QPalette::Button, look::desk);
  palette.setColor(QPalette::ButtonText, look::ink);
  palette.setColor(QPalette::Highlight, look::accent);
  palette.setColor(QPalette::HighlightedText, look::paper);
  palette.setColor(QPalette::PlaceholderText, look::disabledInk);
  palette.setColor(QPalette::ToolTipBase, look::paper);
  palette.setColor(QPalette::ToolTipText, look::ink);
  palette.setColor(QPalette::Mid, look::line);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, look::disabledInk);
  palette.setColor(QPalette::Disabled, QPalette::Base, look::disabledPaper);
  palette.setColor(QPalette::Disabled, QPalette::Button, look::disabledPaper);
  return palette;
}

/** A grey entry of a menu can be gone to, so that the status line tells why it is grey. */
class MenuStyle : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_Menu_AllowActiveAndDisabled) return 1;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
};

// Only what Fusion and the palette do not already give: flat one-pixel frames, dense boxes, a clear focus.
const char* const sheet = R"(
QLineEdit, QPlainTextEdit {
  border: 1px solid #C9D0D8; border-radius: 2px; padding: 1px 4px; background: #FFFFFF;
  selection-background-color: #2B5F9E; selection-color: #FFFFFF; }
QLineEdit { min-height: 1.5em; }
QLineEdit:focus, QPlainTextEdit:focus { border: 1px solid #2B5F9E; }
QLineEdit:disabled, QPlainTextEdit:disabled { background: #EEF0F3; color: #9AA3AE; }
QLineEdit:read-only { background: #F7F9FB; }
QComboBox { min-height: 1.5em; }
QPushButton { border: 1px solid #B9C2CC; border-radius: 3px; background: #FFFFFF; padding: 3px 12px;
  min-height: 1.45em; min-width: 4.2em; }
QPushButton:hover { background: #F2F6FB; border-color: #2B5F9E; }
QPushButton:pressed { background: #DCE8F6; }
QPushButton:default, QPushButton:focus { border-color: #2B5F9E; }
QPushButton:disabled { background: #EEF0F3; color: #9AA3AE; border-color: #D5DAE0; }
QGroupBox { border: 1px solid #C9D0D8; border-radius: 3px; margin-top: 0.75em; padding: 0.45em 4px 2px 4px; }
QGroupBox[plain="true"] { margin-top: 0; padding: 0 4px; }
QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 3px; color: #2B5F9E; }
QTabWidget::pane { border: 1px solid #C9D0D8; top: -1px; }
QTabBar::tab { border: 1px solid #C9D0D8; border-bottom: none; background: #E8ECF1; padding: 4px 16px;
  margin-right: 2px; border-top-left-radius: 3px; border-top-right-radius: 3px; }
QTabBar::tab:selected { background: #FFFFFF; color: #2B5F9E; border-top: 2px solid #2B5F9E; }
#PnlHelp { background: #E8ECF1; border: 1px solid #C9D0D8; color: #2B5F9E; padding: 2px 8px; }
#pnlCaption { background: #FFFFFF; border: 1px solid #2B5F9E; color: #1F2733; padding: 10px 24px; }
#LblBottom { background: #E8ECF1; border: 1px solid #C9D0D8; border-left: none; color: #4A5565; padding: 2px 8px; }
QLabel[role="value"] { background: #FFFFFF; border: 1px solid #C9D0D8; padding: 1px 4px; min-height: 1.5em; }
QLabel[role="faint"] { color: #6B7583; }
#PnlTrust, #PnlLast { background: #FFFFFF; border: 1px solid #C9D0D8; }
QLabel[role="title"] { color: #2B5F9E; }
QLabel[role="status"] { background: #DCE8F6; color: #1F2733; padding: 0 4px; }
QMenuBar { background: #F3F4F6; border-bottom: 1px solid #C9D0D8; }
QMenuBar::item { padding: 4px 9px; background: transparent; }
QMenuBar::item:selected { background: #DCE8F6; }
QMenu { background: #FFFFFF; border: 1px solid #C9D0D8; }
QMenu::item { padding: 4px 24px 4px 24px; }
QMenu::item:selected { background: #DCE8F6; color: #1F2733; }
QMenu::item:disabled { color: #9AA3AE; }
QMenu::separator { height: 1px; background: #E1E5EA; margin: 3px 6px; }
QToolBar { background: #F3F4F6; border: none; border-bottom: 1px solid #C9D0D8; padding: 2px; spacing: 2px; }
QStatusBar { background: #E8ECF1; border-top: 1px solid #C9D0D8; }
QStatusBar::item { border: none; }
QToolTip { border: 1px solid #C9D0D8; padding: 2px; }
)";

}  // namespace

QFont look::textFont() {
  return textFont(10);
}

QFont look::textFont(int points, bool bold) {
  static const QString family = chosenFamily();
  QFont font(family, points);
  font.setFamilies({family, QStringLiteral("Baekmuk Dotum")});
  font.setBold(bold);
  return font;
}

void look::apply(QApplication& application) {
  QApplication::setStyle(new MenuStyle(QStyleFactory::create(QStringLiteral("Fusion"))));
  QApplication::setFont(textFont());
  QApplication::setPalette(officePalette());
  application.setStyleSheet(QString::fromUtf8(sheet));
}
