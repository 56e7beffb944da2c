#pragma once
// The operator's guide inside the program: chapters at the left, the text with its pictures, a line to search it.
#include "ui/forms/dialog.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QTextBrowser;

class FrmGuide : public Dialog {
 public:
  explicit FrmGuide(Prompts& prompts, QWidget* parent = nullptr);

  /** The guide as it is written, built into the program. */
  static QString source();
  /** To a heading of the guide; an unknown one leaves the place. */
  void showChapter(const QString& heading);
  /** The first place of these words from the current one on; the others are marked too. */
  void look(const QString& words);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void buildHead();
  void fillChapters();
  void dressTables();
  void goTo(int position);
  void markFound(const QString& words);
  void step(bool backward);

  QTextBrowser* text_;
  QListWidget* chapters_;
  QLineEdit* find_ = nullptr;
  QLabel* count_ = nullptr;
};
