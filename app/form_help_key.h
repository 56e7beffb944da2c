#pragma once
// F1 from anywhere: the guide opens where it speaks of the window in front.
#include <QObject>
#include <QPointer>

#include <functional>

class FrmGuide;
class Prompts;
class QWidget;

/** Put on the application as an event filter. */
class HelpKey : public QObject {
 public:
  /** formInFront: the form that stands in front in the main window, or null; asked when a box or the frame is in front. */
  HelpKey(Prompts& prompts, std::function<QWidget*()> formInFront)
      : prompts_(prompts), formInFront_(std::move(formInFront)) {}
  ~HelpKey() override;

  /** For what is in front. */
  void open();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QString chapterOf(QWidget* window) const;
  void show(const QString& chapter, const QString& words, QWidget* over);

  Prompts& prompts_;
  std::function<QWidget*()> formInFront_;
  QPointer<FrmGuide> guide_;  ///< the one beside the main window
};
