#pragma once
// Any report form: the questions on top, its pages, their grids, the panels and the buttons. What it shows and prints is
// told by a Brief.
#include "briefs/brief_run.h"
#include "master/registers/form_context.h"
#include "ui/forms/form.h"

class BriefAsks;
class BriefChartPane;
class QSplitter;
class QStackedWidget;
class QTabBar;

class BriefForm : public Form {
 public:
  BriefForm(FormContext& context, Brief brief, QWidget* parent = nullptr);

  /** "month", or a page with its answers as briefAddress writes it: then its rows are shown at once. */
  void showPage(const QString& page);

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void build();
  QWidget* questionRow();
  QWidget* gridAndChart();
  QWidget* footRow();
  void addPage(int page);
  void addKeys();
  int page() const;
  bool isLedger() const;
  Spread* grid() const;
  /** What the operator or a line asked for; keepsTrail: Esc still leads back. */
  void turnTo(int page, bool keepsTrail);
  void refresh();
  bool load();
  void print();
  void openBehind(int row);
  void back();
  void showPanels();
  void shareWidth();
  void showChart();
  void turnChart();

  FormContext& context_;
  BriefRun run_;
  BriefAsks* asks_ = nullptr;
  QTabBar* tabs_ = nullptr;
  QStackedWidget* grids_ = nullptr;
  QSplitter* split_ = nullptr;  ///< null without a picture
  QWidget* panels_ = nullptr;
  BriefChartPane* chart_ = nullptr;  ///< null where no page has one
  QList<QLabel*> figures_;
  /** A page that a line led away from, and the line. */
  struct Step {
    int page;
    BriefAsk ask;
    int row, col;
  };
  std::vector<Step> trail_;
  bool begun_ = false;         ///< it has been shown
  bool sharedByHand_ = false;  ///< the operator drew the border between grid and picture
};
