#include "ui/forms/message_boxes.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QInputDialog>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>

#include "ui/forms/style.h"

using namespace Qt::StringLiterals;

namespace {

QWidget* owner() {
  return QApplication::activeModalWidget() ? QApplication::activeModalWidget() : QApplication::activeWindow();
}

/** The name of the innermost form around the focus; '' where there is none. */
QString formInFront() {
  QWidget* widget = QApplication::focusWidget() ? QApplication::focusWidget() : owner();
  while (widget && !widget->objectName().startsWith(u"frm", Qt::CaseInsensitive))
    widget = widget->parentWidget();
  return widget ? widget->objectName() : QString();
}

/** A quiet sign of the program's own colours in place of the style's old pictures. */
QPixmap sign(const QString& letter, const QColor& colour) {
  constexpr int side = 36;
  const qreal ratio = qApp->devicePixelRatio();
  QPixmap picture(QSize(side, side) * ratio);
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawEllipse(QRectF(1, 1, side - 2, side - 2));
  QFont font = look::textFont(15, true);
  font.setPixelSize(22);
  painter.setFont(font);
  painter.setPen(look::paper);
  painter.drawText(QRectF(0, 0, side, side), Qt::AlignCenter, letter);
  return picture;
}

void dress(QMessageBox& box, const QString& text) {
  box.setTextFormat(Qt::PlainText);
  // A label shows a bare carriage return, as it stands before a statement, as a blank.
  box.setText(QString(text).replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n'));
  switch (box.icon()) {
    case QMessageBox::Question:
      return box.setIconPixmap(sign(u"?"_s, look::accent));
    case QMessageBox::Warning:
      return box.setIconPixmap(sign(u"!"_s, look::warning));
    default:
      return box.setIconPixmap(sign(u"i"_s, look::accent));
  }
}

void tell(QMessageBox::Icon icon, const QString& text, const QString& title) {
  QMessageBox box(icon, title, {}, QMessageBox::NoButton, owner());
  dress(box, text);
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
  QMessageBox box(QMessageBox::Question, titleOf(title), {}, QMessageBox::NoButton, owner());
  dress(box, text);
  auto* const yes = box.addButton(u"예(&Y)"_s, QMessageBox::YesRole);
  auto* const no = box.addButton(u"아니오(&N)"_s, QMessageBox::NoRole);
  box.setDefaultButton(yesFirst ? yes : no);
  box.setEscapeButton(no);
  box.exec();
  return box.clickedButton() == yes;
}

Prompts::Answer MessageBoxes::MsgYesNoCancel(const QString& text, const QString& title) {
  QMessageBox box(QMessageBox::Question, titleOf(title), {}, QMessageBox::NoButton, owner());
  dress(box, text);
  auto* const yes = box.addButton(u"예(&Y)"_s, QMessageBox::YesRole);
  auto* const no = box.addButton(u"아니오(&N)"_s, QMessageBox::NoRole);
  auto* const cancel = box.addButton(u"취소(&C)"_s, QMessageBox::RejectRole);
  box.setDefaultButton(cancel);
  box.setEscapeButton(cancel);
  box.exec();
  return box.clickedButton() == yes ? Answer::Yes : box.clickedButton() == no ? Answer::No : Answer::Cancel;
}

void MessageBoxes::ErrorBox(const QString& text, int number, const QString& description) {
  tell(QMessageBox::Warning,
       text + u"\n오류번호 : "_s + QString::number(number) + u"\n오류내용 : "_s + description, u"오류"_s);
}

void MessageBoxes::noted(const jet::Error& error) {
  if (note_) note_(formInFront(), error);
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
