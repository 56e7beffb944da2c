#include "app/form_help_key.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>

#include "app/FrmGuide.h"
#include "app/guide_chapters.h"

using namespace Qt::StringLiterals;

HelpKey::~HelpKey() {
  delete guide_;
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  if (key->key() != Qt::Key_F1 || key->modifiers() & ~Qt::KeypadModifier) return false;
  if (!key->isAutoRepeat()) open();
  return true;
}

void HelpKey::open() {
  while (QWidget* const popup = QApplication::activePopupWidget()) popup->close();
  QWidget* const modal = QApplication::activeModalWidget();
  if (dynamic_cast<FrmGuide*>(modal)) return;
  if (const auto* box = qobject_cast<QMessageBox*>(modal)) {
    const QString words = guideBoxWords(FrmGuide::source(), box->text());
    if (!words.isEmpty()) return show(guideBoxChapter(), words, modal);
  }
  show(chapterOf(modal ? modal : QApplication::activeWindow()), {}, modal);
}

/** Its own chapter, else that of the form behind it. */
QString HelpKey::chapterOf(QWidget* window) const {
  const bool frame = window && window->objectName() == u"frmMain"_s;
  QString chapter = window && !frame ? guideChapter(window->objectName()) : QString();
  if (!chapter.isEmpty()) return chapter;
  if (const QWidget* const form = formInFront_()) chapter = guideChapter(form->objectName());
  return chapter.isEmpty() ? guideChapter(u"frmMain"_s) : chapter;
}

void HelpKey::show(const QString& chapter, const QString& words, QWidget* over) {
  const auto turn = [&](FrmGuide& guide) {
    guide.showChapter(chapter);
    if (!words.isEmpty()) guide.look(words);
  };
  if (over) {  // a window that keeps all others from the keyboard: the guide stands on it until it is closed
    FrmGuide guide(prompts_, over);
    guide.setModal(true);
    guide.show();
    turn(guide);
    guide.exec();
    return;
  }
  if (!guide_) guide_ = new FrmGuide(prompts_);
  guide_->showNormal();
  turn(*guide_);
  guide_->raise();
  guide_->activateWindow();
}
