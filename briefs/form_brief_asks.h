#pragma once
// The questions above a report's grid: one box, or two for a period, a question.
#include <QWidget>

#include <functional>

#include "briefs/brief.h"
#include "master/registers/form_context.h"

class BriefRun;
class DateBox;
class Form;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QHBoxLayout;

class BriefAsks : public QWidget {
 public:
  BriefAsks(Form& form, FormContext& context, const BriefRun& run);

  /** A check was turned; other questions may be put then. */
  std::function<void()> turned;

  BriefAsk read(int page) const;
  /** A value for one box, as a page is opened with it: a day, a name, the place of an option, a customer's code. */
  void answer(const QString& box, const QString& value);
  /** All boxes as they were read. */
  void put(const BriefAsk& ask);
  /** Shows the questions of a page; those that begin anew are emptied when it is another one. */
  void turn(int page, bool anew);
  /** The keys of the boxes that are filled by search; after the order of Enter is set. */
  void watchPicks();
  /** In the order of Enter. */
  const QList<QWidget*>& boxes() const { return boxes_; }
  QWidget* box(const QString& name) const;
  QWidget* firstAsked() const;
  /** The box of a customer who is still to be searched. */
  QWidget* clientWanted() const;

 private:
  struct Put {
    const BriefQuestion* question;
    QWidget* panel;  ///< label and boxes
    QList<QWidget*> boxes;
    qint64 code = 0;
    QString chosen = {};
  };
  void build(const BriefQuestion& question, QHBoxLayout* row);
  QList<QWidget*> makeBoxes(const BriefQuestion& question, QWidget* panel);
  QWidget* dayBox(const QString& name, const QDate& day, bool monthDay, QWidget* panel);
  QWidget* monthBox(const QString& name, QWidget* panel);
  QWidget* optionGroup(const BriefQuestion& question, QWidget* panel);
  QWidget* checkBox(const BriefQuestion& question, QWidget* panel);
  QWidget* pickBox(const BriefQuestion& question, QWidget* panel);
  bool pickKey(QLineEdit* box, int key);
  void pick(QLineEdit* box);
  void takeClient(Put& put, qint64 code);
  bool eventFilter(QObject* watched, QEvent* event) override;

  Form& form_;
  FormContext& context_;
  const BriefRun& run_;
  std::vector<Put> puts_;
  QList<QWidget*> boxes_;
  int page_ = 0;
};
