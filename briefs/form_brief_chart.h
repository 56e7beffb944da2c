#pragma once
// The picture beside a report's grid, in the program's colours; it can go on the report's paper too.
#include <QWidget>

#include "briefs/chart_data.h"

class QChart;
class QChartView;
class QCheckBox;
struct Session;

class BriefChartPane : public QWidget {
 public:
  /** form: under whose name the operator's choices are kept. */
  BriefChartPane(Session& session, const QString& form, QWidget* parent);

  /** Nothing is drawn for rows without a figure. */
  void setRows(const BriefChart& chart, const std::vector<BriefColumn>& columns,
               const std::vector<BriefCells>& rows);
  bool isWanted() const;  ///< as the operator left it; at first it is
  void setWanted(bool on);
  /** A PNG for the paper; empty when it is not ticked, not wanted or nothing is drawn. */
  QByteArray picture() const;
  QSize sizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void draw();

  Session& session_;
  const QString form_;
  BriefChart chart_;
  ChartData data_;
  QChartView* view_;
  QCheckBox* printed_;
};
