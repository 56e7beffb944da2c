#include "samples/form_words.h"

#include <QAbstractBarSeries>
#include <QAbstractButton>
#include <QApplication>
#include <QBarCategoryAxis>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLegend>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTextEdit>
#include <QValueAxis>
#include <QXYSeries>

#include <algorithm>
#include <vector>

#include "ui/grid/spread.h"
#include "ui/model/spread_model.h"
#include "ui/paper/kept_pages.h"

using namespace Qt::StringLiterals;

namespace samples {

namespace {

QString oneLine(QString text) {
  return u'\'' + text.replace(u'\n', u'/') + u'\'';
}

QString columnText(const SpreadColumn& column) {
  static constexpr const char* kinds[] = {"text", "integer",   "number", "money",
                                          "date", "month-day", "list",   "tick"};
  static constexpr const char* sides[] = {"left", "centre", "right"};
  QString text = column.group.isEmpty() ? column.header : column.group + u'/' + column.header;
  text += u" (%1 %2 %3"_s.arg(QLatin1String(kinds[int(column.kind)]), QLatin1String(sides[int(column.align)]))
              .arg(column.width);
  if (column.maxLength) text += u" at most %1"_s.arg(column.maxLength);
  if (column.locked) text += u" locked"_s;
  if (!column.combo.isEmpty()) text += u" of "_s + column.combo.join(u',');
  return text + u')';
}

/** What the eye sees of a cell beside its text. */
QString lookOf(const SpreadModel& model, int row, int col) {
  QString look;
  for (const auto& [what, colour] :
       {std::pair("on", model.background(row, col)), std::pair("ink", model.ink(row, col))})
    if (colour >= 0) look += u" %1 %2"_s.arg(QLatin1String(what), QString::number(colour, 16));
  if (!model.sign(row, col).isEmpty()) look += u" sign "_s + model.sign(row, col);
  if (!model.offer(row, col).isEmpty()) look += u" offers "_s + model.offer(row, col);
  return look.isEmpty() ? look : u" ("_s + look.mid(1) + u')';
}

QStringList gridLines(const Spread& grid, bool whole) {
  constexpr int shownRows = 3;  // at either end
  const SpreadModel& model = grid.model();
  const auto row = [&](const QString& head, auto&& cell) {
    QStringList cells;
    for (int col = 1; col <= model.MaxCols(); ++col)
      if (!model.column(col).hidden) cells << cell(col);
    return u"  "_s + head + u": "_s + cells.join(u" | "_s);
  };
  QStringList lines{row(u"columns"_s, [&](int col) { return columnText(model.column(col)); })};
  for (int at = 1; at <= model.MaxRows(); ++at)
    if (whole || at <= shownRows || at > model.MaxRows() - shownRows) {
      QString head = QString::number(at);
      if (!whole && model.bold(at)) head += u" bold"_s;
      if (!whole && model.topLine(at) >= 0) head += u" line"_s;
      lines << row(head, [&](int col) {
        return model.text(at, col) +
               (model.locked(at, col) == model.column(col).locked ? u""_s : u" (lock)"_s) +
               (whole ? u""_s : lookOf(model, at, col));
      });
    }
  if (!whole) lines.front() += u" fills %1, still %2"_s.arg(grid.fillColumn()).arg(grid.frozenCols());
  return lines;
}

void addActions(const QList<QAction*>& actions, const QString& indent, QStringList& lines) {
  for (const QAction* action : actions) {
    if (!action->isVisible() || action->isSeparator()) continue;
    lines << indent + action->objectName() + u' ' + oneLine(action->text()) + u' ' +
                 action->shortcut().toString() + (action->isEnabled() ? u""_s : u" off"_s);
    if (const QMenu* menu = action->menu()) addActions(menu->actions(), indent + u"  "_s, lines);
  }
}

/** Heading, the words along the axes, each series with its figures. */
QStringList chartLines(const QChart& chart) {
  QStringList lines{oneLine(chart.title()) + (chart.legend()->isVisible() ? u" legend"_s : QString())};
  for (QAbstractAxis* axis : chart.axes()) {
    if (auto* names = qobject_cast<QBarCategoryAxis*>(axis))
      lines << u"  names: "_s + names->categories().join(u" | "_s);
    if (const auto* figures = qobject_cast<const QValueAxis*>(axis))
      lines << u"  figures: %1 to %2 in %3 marks, %4"_s.arg(figures->min(), 0, 'f', 0)
                   .arg(figures->max(), 0, 'f', 0)
                   .arg(figures->tickCount())
                   .arg(figures->titleText());
  }
  const auto series = [&](const QString& name, const QAbstractSeries* of, auto&& figure, qsizetype count) {
    const bool lying = of->type() == QAbstractSeries::SeriesTypeHorizontalBar;
    QString line = u"  %1%2:"_s.arg(name, lying ? u" lying"_s : QString());
    for (qsizetype at = 0; at < count; ++at) line += u" %1"_s.arg(double(figure(at)), 0, 'f', 2);
    lines << line;
  };
  for (const QAbstractSeries* each : chart.series()) {
    if (const auto* bars = qobject_cast<const QAbstractBarSeries*>(each))
      for (const QBarSet* set : bars->barSets())
        series(
            set->label(), each, [&](qsizetype at) { return set->at(int(at)); }, set->count());
    if (const auto* course = qobject_cast<const QXYSeries*>(each))
      series(
          course->name(), each, [&](qsizetype at) { return course->at(int(at)).y(); }, course->count());
  }
  return lines;
}

/** What one control says; empty for one that only holds others. */
QStringList saidBy(const QWidget& control, bool whole) {
  if (const auto* label = qobject_cast<const QLabel*>(&control))
    return label->text().isEmpty() ? QStringList() : QStringList{oneLine(label->text())};
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control))
    return {oneLine(button->text()) +
            (button->isCheckable() ? button->isChecked() ? u" [x]"_s : u" [ ]"_s : QString())};
  if (const auto* line = qobject_cast<const QLineEdit*>(&control))
    return {oneLine(line->text()) +
            (line->maxLength() < 32767 ? u" at most %1"_s.arg(line->maxLength()) : QString()) +
            (line->isReadOnly() ? u" reads"_s : QString()) +
            (line->placeholderText().isEmpty() ? QString() : u" hint "_s + oneLine(line->placeholderText()))};
  if (const auto* combo = qobject_cast<const QComboBox*>(&control)) {
    QStringList items;
    for (int at = 0; at < combo->count() && at < 20; ++at) items << combo->itemText(at);
    return {oneLine(combo->currentText()) + u" of "_s + items.join(u", "_s)};
  }
  if (const auto* group = qobject_cast<const QGroupBox*>(&control))
    return group->title().isEmpty() ? QStringList() : QStringList{oneLine(group->title())};
  if (const auto* tabs = qobject_cast<const QTabBar*>(&control)) {
    QStringList titles;
    for (int at = 0; at < tabs->count(); ++at) titles << tabs->tabText(at);
    return {u"%1 of "_s.arg(tabs->currentIndex()) + titles.join(u", "_s)};
  }
  if (const auto* bar = qobject_cast<const QMenuBar*>(&control)) {
    QStringList lines{u""_s};
    addActions(bar->actions(), u"  "_s, lines);
    return lines;
  }
  if (const auto* text = qobject_cast<const QPlainTextEdit*>(&control)) return {oneLine(text->toPlainText())};
  if (const auto* text = qobject_cast<const QTextEdit*>(&control))
    return {oneLine(text->toPlainText().left(200))};
  if (const auto* list = qobject_cast<const QListWidget*>(&control)) {
    QStringList items;
    for (int at = 0; at < list->count(); ++at) items << list->item(at)->text();
    return {items.join(u", "_s)};
  }
  if (const auto* picture = qobject_cast<const QChartView*>(&control); picture && whole)
    return chartLines(*picture->chart());
  if (const auto* grid = qobject_cast<const Spread*>(&control))
    return QStringList{u"%1 rows, at %2,%3"_s.arg(grid->model().MaxRows())
                           .arg(grid->activeRow())
                           .arg(grid->activeCol())} +
           gridLines(*grid, whole);
  return {};
}

/** Keeps the texts that a page puts on it; they are as wide as on paper. */
class WordsJob : public pc::PrintJob {
 public:
  explicit WordsJob(const pc::PaperSize& paper) : measure_(keepPages(std::make_shared<KeptPages>(), paper)) {}
  QStringList lines() {
    std::stable_sort(texts_.begin(), texts_.end(), [](const Text& a, const Text& b) {
      return std::pair(qRound(a.y * 100), qRound(a.x * 100)) <
             std::pair(qRound(b.y * 100), qRound(b.x * 100));
    });
    QStringList lines;
    QString place;  // of the line above: what stands at one height in one size is one line
    for (const Text& text : texts_) {
      const QString at = u"%1 %2pt"_s.arg(text.y, 0, 'f', 2).arg(text.points);
      if (at == place)
        lines.back() += u" | "_s;
      else
        lines << at + u": "_s;
      place = at;
      lines.back() += u"%1 %2"_s.arg(QString::number(text.x, 'f', 2), text.text);
    }
    return lines;
  }

  pc::PaperSize paper() const override { return measure_->paper(); }
  void setFont(const pc::PrintFont& font) override { measure_->setFont(font); }
  pc::PrintFont font() const override { return measure_->font(); }
  double textWidth(const QString& text) const override { return measure_->textWidth(text); }
  double lineHeight() const override { return measure_->lineHeight(); }
  void text(double x, double y, const QString& text) override {
    if (!text.trimmed().isEmpty()) texts_.push_back({x, y, double(font().points), text});
  }
  void setInk(const pc::PrintInk&) override {}
  void line(double, double, double, double, double, bool) override {}
  void fill(double, double, double, double, double) override {}
  void picture(double, double, double, double, const QByteArray&) override {}
  void newPage() override {}
  void end() override {}
  void abandon() override {}

 private:
  struct Text {
    double x, y, points;
    QString text;
  };
  const std::unique_ptr<pc::PrintJob> measure_;
  std::vector<Text> texts_;
};

/** How a control's text looks where that is not as everywhere. */
QString lookOf(const QWidget& control) {
  QString look;
  if (const auto* label = qobject_cast<const QLabel*>(&control)) {
    if (label->alignment() & Qt::AlignRight) look += u" right"_s;
    if (label->alignment() & Qt::AlignHCenter) look += u" centre"_s;
    if (label->wordWrap()) look += u" wraps"_s;
  }
  if (const auto* line = qobject_cast<const QLineEdit*>(&control))
    if (line->alignment() & (Qt::AlignRight | Qt::AlignHCenter)) look += u" to the side"_s;
  if (const auto* combo = qobject_cast<const QComboBox*>(&control); combo && combo->isEditable())
    look += u" typed, at most %1"_s.arg(combo->lineEdit()->maxLength());
  if (const QVariant role = control.property("role"); role.isValid()) look += u' ' + role.toString();
  if (control.font().pointSize() != QApplication::font().pointSize())
    look += u" %1pt"_s.arg(control.font().pointSize());
  if (control.font().bold()) look += u" bold"_s;
  return look.isEmpty() ? look : u" ("_s + look.mid(1) + u')';
}

QString allOf(const QWidget& window, bool whole) {
  QStringList lines{u"# "_s + window.objectName() + u' ' + oneLine(window.windowTitle())};
  for (const QWidget* control : window.findChildren<const QWidget*>()) {
    if (!control->isVisibleTo(&window)) continue;
    // What is inside a list, a spin box or a bar is said by the whole.
    const QWidget* const above = control->parentWidget();
    if (qobject_cast<const QComboBox*>(above) || qobject_cast<const QAbstractItemView*>(above)) continue;
    QStringList said = saidBy(*control, whole);
    if (!said.isEmpty() && !whole) said.front() += lookOf(*control);
    if (said.isEmpty()) continue;
    if (!control->isEnabled()) said.front() += u" off"_s;
    if (!control->toolTip().isEmpty()) said.front() += u" tip "_s + oneLine(control->toolTip());
    const QString kind = QString::fromLatin1(control->metaObject()->className());
    said.front().prepend(
        kind + u' ' + (control->objectName().startsWith("qt_") ? QString() : control->objectName()) + u' ');
    lines << said;
  }
  QStringList order;
  const QWidget* at = window.nextInFocusChain();
  for (; at && at != &window; at = at->nextInFocusChain())
    if ((at->focusPolicy() & Qt::TabFocus) && at->isVisibleTo(&window) && window.isAncestorOf(at) &&
        !at->objectName().startsWith("qt_") && !at->objectName().isEmpty())
      order << at->objectName();
  lines << u"Tab: "_s + order.join(u' ');
  lines << u"Hand: "_s + (window.focusWidget() ? window.focusWidget()->objectName() : QString());
  return lines.join(u'\n') + u"\n\n"_s;
}

}  // namespace

QString wordsOf(const pc::Pages& pages) {
  WordsJob job(pages.paper());
  if (pages.count()) pages.draw(job, 0);
  return u"%1 pages of %2 x %3\n"_s.arg(pages.count()).arg(pages.paper().width).arg(pages.paper().height) +
         job.lines().join(u'\n') + u"\n\n"_s;
}

QString wordsOf(const QWidget& window) {
  return allOf(window, false);
}
QString contentsOf(const QWidget& window) {
  return allOf(window, true);
}

}  // namespace samples
