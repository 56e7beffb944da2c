#include "briefs/form_brief_chart.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QBuffer>
#include <QChart>
#include <QChartView>
#include <QCheckBox>
#include <QGraphicsLayout>
#include <QHorizontalBarSeries>
#include <QLineSeries>
#include <QLocale>
#include <QPainter>
#include <QRegularExpression>
#include <QVBoxLayout>
#include <QValueAxis>

#include <algorithm>

#include "store/session.h"
#include "store/settings_table.h"
#include "ui/forms/style.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize paperSize{1120, 380};  ///< of the picture on paper, in pixels of the screen
constexpr int paperScale = 3;
constexpr int labelGap = 8;         ///< pixels between two labels of an axis
constexpr double nameShare = 0.36;  ///< of the width, for names beside lying bars
constexpr double plotShare = 0.82;  ///< of the width, above labels side by side

QColor seriesColour(size_t at) {
  const QColor colours[] = {look::accent, look::warning, look::faintInk};
  return colours[at % std::size(colours)];
}

/** Months and days by their number. */
QString shortLabel(const QString& label) {
  static const QRegularExpression month(u"^0?(\\d+)월$"_s), day(u"^\\d\\d-0?(\\d+)$"_s);
  for (const QRegularExpression* const each : {&month, &day})
    if (const auto number = each->match(label); number.hasMatch()) return number.captured(1);
  return label;
}

/** Customers are told by name: their bars lie, the greatest on top. */
bool isRanking(const BriefChart& chart) {
  return chart.most > 0;
}

QFont axisFont() {
  return look::textFont(8);
}

double labelWidth(const QString& label) {
  return QFontMetricsF(axisFont()).horizontalAdvance(label) + labelGap;
}

void style(QAbstractAxis* axis) {
  axis->setLabelsFont(axisFont());
  axis->setLabelsColor(look::ink);
  axis->setGridLineColor(look::gridLine);
  axis->setLinePenColor(look::line);
}

QAbstractSeries* bars(const BriefChart& chart, const ChartData& data) {
  QAbstractBarSeries* series =
      isRanking(chart) ? static_cast<QAbstractBarSeries*>(new QHorizontalBarSeries) : new QBarSeries;
  series->setBarWidth(std::min(0.7, 0.2 * double(data.labels.size())));  // one bar is no wall
  for (size_t each = 0; each < data.series.size(); ++each) {
    auto* const set = new QBarSet(data.names[qsizetype(each)]);
    set->setColor(seriesColour(each));
    set->setBorderColor(seriesColour(each));
    std::vector<double> values = data.series[each];
    if (isRanking(chart)) std::ranges::reverse(values);
    for (const double value : values) *set << value;
    series->append(set);
  }
  return series;
}

void addLines(QChart& made, const ChartData& data) {
  for (size_t each = 0; each < data.series.size(); ++each) {
    auto* const line = new QLineSeries;
    line->setName(data.names[qsizetype(each)]);
    line->setPen(QPen(seriesColour(each), 2));
    line->setPointsVisible(true);
    for (size_t at = 0; at < data.series[each].size(); ++at) line->append(double(at), data.series[each][at]);
    made.addSeries(line);
  }
}

QValueAxis* figureAxis(const BriefChart& chart, const ChartData& data, int width) {
  double least = 0, greatest = 0;
  for (const std::vector<double>& values : data.series)
    for (const double value : values) {
      least = std::min(least, value);
      greatest = std::max(greatest, value);
    }
  constexpr int standing = 6;  // marks one above the other
  const QString longest = QLocale(QLocale::Korean).toString(qint64(std::max(greatest, -least)));
  const int lying = int((1 - nameShare) * width / (labelWidth(longest) + labelGap));
  const ChartScale scale =
      chartScale(least, greatest, isRanking(chart) ? std::min(lying, standing) : standing);
  auto* const figures = new QValueAxis;
  figures->setRange(scale.least, scale.greatest);
  figures->setTickCount(scale.marks);
  figures->setLabelFormat(u"%.0f"_s);
  figures->setTitleText(u"단위 : "_s + data.unit);
  figures->setTitleFont(axisFont());
  figures->setTitleBrush(look::faintInk);
  return figures;
}

QBarCategoryAxis* labelAxis(const BriefChart& chart, const ChartData& data, int width) {
  QStringList texts;
  for (const QString& label : data.labels) texts << shortLabel(label);
  const double room = isRanking(chart) ? nameShare * width : plotShare * width / double(texts.size());
  texts = chartLabels(texts, room, labelWidth);
  if (isRanking(chart)) std::ranges::reverse(texts);
  auto* const labels = new QBarCategoryAxis;
  labels->append(texts);
  labels->setTruncateLabels(false);
  return labels;
}

void addAxes(QChart& made, const BriefChart& chart, const ChartData& data, int width) {
  QValueAxis* const figures = figureAxis(chart, data, width);
  QBarCategoryAxis* const labels = labelAxis(chart, data, width);
  style(figures);
  style(labels);
  labels->setGridLineVisible(false);
  made.addAxis(labels, isRanking(chart) ? Qt::AlignLeft : Qt::AlignBottom);
  made.addAxis(figures, isRanking(chart) ? Qt::AlignBottom : Qt::AlignLeft);
  for (QAbstractSeries* const series : made.series()) {
    series->attachAxis(labels);
    series->attachAxis(figures);
  }
}

/** As wide as that many pixels: what an axis has room for depends on it. */
std::unique_ptr<QChart> makeChart(const BriefChart& chart, const ChartData& data, int width) {
  auto made = std::make_unique<QChart>();
  made->setLocale(QLocale(QLocale::Korean));
  made->setLocalizeNumbers(true);
  made->setBackgroundRoundness(0);
  made->setBackgroundBrush(look::paper);
  made->setMargins({6, 2, 6, 2});
  made->layout()->setContentsMargins(0, 0, 0, 0);
  made->setTitle(chart.title);
  made->setTitleFont(look::textFont(10, true));
  made->setTitleBrush(look::ink);
  made->legend()->setAlignment(Qt::AlignBottom);
  made->legend()->setFont(look::textFont(8));
  made->legend()->setVisible(data.series.size() > 1);
  if (data.labels.isEmpty()) return made;
  if (chart.kind == BriefChart::Kind::Line)
    addLines(*made, data);
  else
    made->addSeries(bars(chart, data));
  addAxes(*made, chart, data, width);
  return made;
}

}  // namespace

BriefChartPane::BriefChartPane(Session& session, const QString& form, QWidget* parent)
    : QWidget(parent), session_(session), form_(form) {
  setObjectName(u"ChartPane"_s);
  auto* const whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->setSpacing(3);
  view_ = new QChartView(this);
  view_->setObjectName(u"ChartView"_s);
  view_->setRenderHint(QPainter::Antialiasing);
  view_->setFrameShape(QFrame::StyledPanel);
  view_->setFocusPolicy(Qt::NoFocus);
  view_->setBackgroundBrush(look::paper);
  view_->setMinimumSize(260, 160);
  whole->addWidget(view_, 1);
  printed_ = new QCheckBox(u"보고서에 함께 인쇄"_s, this);
  printed_->setObjectName(u"ChkChart"_s);
  printed_->setChecked(session.pc.settings.read(setting::chartPrintedOf(form_)) == "1"_L1);
  connect(printed_, &QCheckBox::toggled, this,
          [this](bool on) { session_.pc.settings.write(setting::chartPrintedOf(form_), on); });
  whole->addWidget(printed_);
}

QSize BriefChartPane::sizeHint() const {
  return {420, 320};
}

bool BriefChartPane::isWanted() const {
  return session_.pc.settings.read(setting::chartShownOf(form_)) == "1"_L1;
}

void BriefChartPane::setWanted(bool on) {
  session_.pc.settings.write(setting::chartShownOf(form_), on);
}

void BriefChartPane::setRows(const BriefChart& chart, const std::vector<BriefColumn>& columns,
                             const std::vector<BriefCells>& rows) {
  chart_ = chart;
  data_ = chartData(chart, columns, rows);
  draw();
}

void BriefChartPane::draw() {
  const std::unique_ptr<QChart> before(view_->chart());
  view_->setChart(makeChart(chart_, data_, view_->width()).release());
}

void BriefChartPane::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (!data_.labels.isEmpty()) draw();
}

QByteArray BriefChartPane::picture() const {
  if (!printed_->isChecked() || !isWanted() || data_.labels.isEmpty()) return {};
  QChartView paper;
  const std::unique_ptr<QChart> empty(paper.chart());
  paper.setChart(makeChart(chart_, data_, paperSize.width()).release());
  paper.setFrameShape(QFrame::NoFrame);
  paper.setRenderHint(QPainter::Antialiasing);
  paper.resize(paperSize);
  paper.setAttribute(Qt::WA_DontShowOnScreen);
  paper.show();  // laid out as a shown one is
  QImage image(paperSize * paperScale, QImage::Format_RGB32);
  image.fill(Qt::white);
  image.setDevicePixelRatio(paperScale);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  paper.render(&painter, QRectF(QPointF(), QSizeF(paperSize)), QRect(QPoint(), paperSize));
  painter.end();
  QByteArray png;
  QBuffer file(&png);
  file.open(QIODevice::WriteOnly);
  image.save(&file, "PNG");
  return png;
}
