#pragma once
// A box for a folder, with the button that looks for one.
#include <QLineEdit>

#include <functional>

class FolderBox : public QWidget {
 public:
  /** name: of the line that is typed into; the button is "btnFind" behind it. start: where the search begins, as this PC
   *  writes paths, for what is typed. */
  FolderBox(const char* name, std::function<QString(const QString& typed)> start, QWidget* parent = nullptr);

  QLineEdit* line() const { return line_; }
  QString text() const { return line_->text(); }
  void setText(const QString& folder) { line_->setText(folder); }

 private:
  QLineEdit* line_;
};
