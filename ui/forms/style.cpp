#include "ui/forms/style.h"

#include <QApplication>
#include <QCheckBox>
#include <QFontDatabase>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QRadioButton>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace {

QString chosenFamily() {
  const QStringList installed = QFontDatabase::families();
  for (const QString& wanted : {u"NanumGothic"_s, u"나눔고딕"_s, u"Malgun Gothic"_s, u"Baekmuk Dotum"_s}) {
    if (installed.contains(wanted)) return wanted;
  }
  return QApplication::font().family();
}

QPalette officePalette() {
  QPalette palette;
  using enum QPalette::ColorRole;
  const std::pair<QPalette::ColorRole, QColor> colours[] = {{Window, look::desk},
                                                            {WindowText, look::ink},
                                                            {Base, look::paper},
                                                            {AlternateBase, look::stripe},
                                                            {Text, look::ink},
                                                            {Button, look::desk},
                                                            {ButtonText, look::ink},
                                                            {Highlight, look::accent},
                                                            {HighlightedText, look::paper},
                                                            {PlaceholderText, look::disabledInk},
                                                            {Mid, look::line},
                                                            {ToolTipBase, look::paper},
                                                            {ToolTipText, look::ink}};
  for (const auto& [role, colour] : colours) palette.setColor(role, colour);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, look::disabledInk);
  palette.setColor(QPalette::Disabled, QPalette::Base, look::disabledPaper);
  palette.setColor(QPalette::Disabled, QPalette::Button, look::disabledPaper);
  return palette;
}

/** What a style sheet cannot say. A grey entry of a menu can be gone to, so that the status line tells why it is grey.
 *  And the focus is framed always: the toolkit shows it faintly, and only after a Tab. */
class OfficeStyle : public QProxyStyle {
 public:
  OfficeStyle() : QProxyStyle(u"Fusion"_s) {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_Menu_AllowActiveAndDisabled) return 1;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    // Buttons, tabs and lists have their frame from the sheet.
    const bool tick = qobject_cast<const QCheckBox*>(widget) || qobject_cast<const QRadioButton*>(widget);
    if (element != PE_FrameFocusRect)
      QProxyStyle::drawPrimitive(element, option, painter, widget);
    else if (tick)
      frame(*painter, option->rect.adjusted(-1, 0, 1, 0));
  }
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox && option->state & State_HasFocus) frame(*painter, option->rect);
  }

 private:
  static void frame(QPainter& painter, const QRect& around) {
    painter.save();
    painter.setPen(QPen(look::accent, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(around.adjusted(1, 1, -1, -1));
    painter.restore();
  }
};

// Only what Fusion and the palette do not already give: flat one-pixel frames, dense boxes, a clear focus.
const char* const sheet = R"(
QLineEdit, QPlainTextEdit {
  border: 1px solid #C9D0D8; border-radius: 2px; padding: 1px 4px; background: #FFFFFF;
  selection-background-color: #2B5F9E; selection-color: #FFFFFF; }
QLineEdit { min-height: 1.5em; }
QLineEdit:focus, QPlainTextEdit:focus { border: 2px solid #2B5F9E; padding: 0 3px; }
QListView { border: 1px solid #C9D0D8; padding: 1px; background: #FFFFFF; }
QListView:focus { border: 2px solid #2B5F9E; padding: 0; }
QLineEdit:disabled, QPlainTextEdit:disabled { background: #EEF0F3; color: #9AA3AE; }
QLineEdit:read-only { background: #F7F9FB; }
QComboBox { min-height: 1.5em; }
QPushButton { border: 1px solid #B9C2CC; border-radius: 3px; background: #FFFFFF; padding: 3px 12px;
  min-height: 1.45em; min-width: 4.2em; }
QPushButton:hover { background: #F2F6FB; border-color: #2B5F9E; }
QPushButton:pressed { background: #DCE8F6; }
QPushButton:default { border-color: #2B5F9E; }
QPushButton:focus { border: 2px solid #2B5F9E; padding: 2px 11px; background: #EAF2FB; }
QPushButton:disabled { background: #EEF0F3; color: #9AA3AE; border-color: #D5DAE0; }
QGroupBox { border: 1px solid #C9D0D8; border-radius: 3px; margin-top: 0.75em; padding: 0.45em 4px 2px 4px; }
QGroupBox[plain="true"] { margin-top: 0; padding: 0 4px; }
QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 3px; color: #2B5F9E; }
QTabWidget::pane { border: 1px solid #C9D0D8; top: -1px; }
QTabBar::tab { border: 1px solid #C9D0D8; border-bottom: none; background: #E8ECF1; padding: 4px 16px;
  margin-right: 2px; border-top-left-radius: 3px; border-top-right-radius: 3px; }
QTabBar::tab:selected { background: #FFFFFF; color: #2B5F9E; border-top: 2px solid #2B5F9E; }
QTabBar::tab:selected:focus { background: #DCE8F6; border: 2px solid #2B5F9E; }
#PnlHelp { background: #E8ECF1; border: 1px solid #C9D0D8; color: #2B5F9E; padding: 2px 8px; }
#frmFloatMsg #pnlCaption { background: #FFFFFF; border: 1px solid #2B5F9E; color: #1F2733; padding: 10px 24px; }
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
  font.setFamilies({family, u"Baekmuk Dotum"_s});
  font.setBold(bold);
  return font;
}

void look::apply(QApplication& application) {
  QApplication::setStyle(new OfficeStyle);
  QApplication::setFont(textFont());
  QApplication::setPalette(officePalette());
  application.setStyleSheet(QString::fromUtf8(sheet));
}
