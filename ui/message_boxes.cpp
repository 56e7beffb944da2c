#include "ui/message_boxes.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

QWidget* owner() {
  return QApplication::activeModalWidget() ? QApplication::activeModalWidget() : QApplication::activeWindow();
}

void tell(QMessageBox::Icon icon, const QString& text, const QString& title) {
  QMessageBox box(icon, title, text, QMessageBox::NoButton, owner());
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(box.addButton(u"확인"_s, QMessageBox::AcceptRole));
  box.exec();
}

}  // namespace

void MessageBoxes::MsgInfo(const QString& text, const QString& title) {
  tell(QMessageBox::Information, text, titleOf(title));
}

void MessageBoxes::MsgWarn(const QString& text, const QString& title) {
  tell(QMessageBox::Warning, text, titleOf(title));
}

bool MessageBoxes::MsgAsk(const QString& text, const QString& title, bool yesFirst) {
  QMessageBox box(QMessageBox::Question, titleOf(title), text, QMessageBox::NoButton, owner());
  box.setTextFormat(Qt::PlainText);
  auto* const yes = box.addButton(u"예(&Y)"_s, QMessageBox::YesRole);
  auto* const no = box.addButton(u"아니오(&N)"_s, QMessageBox::NoRole);
  box.setDefaultButton(yesFirst ? yes : no);
  box.setEscapeButton(no);
  // The bare letters answer too, as they do in the PC's own boxes.
  yes->setShortcut(Qt::Key_Y);
  no->setShortcut(Qt::Key_N);
  box.exec();
  return box.clickedButton() == yes;
}

void MessageBoxes::ErrorBox(const QString& text, int number, const QString& description) {
  tell(QMessageBox::Warning,
       text + u"\n오류번호 : "_s + QString::number(number) + u"\n오류내용 : "_s + description, u"오류"_s);
}

std::optional<QString> MessageBoxes::InputBox(const QString& prompt, const QString& title,
                                              const QString& initial) {
  QInputDialog box(owner());
  box.setWindowTitle(titleOf(title));
  box.setLabelText(prompt);
  box.setTextValue(initial);
  box.setOkButtonText(u"확인"_s);
  box.setCancelButtonText(u"취소"_s);
  if (box.exec() != QDialog::Accepted) return {};
  return box.textValue();
}
