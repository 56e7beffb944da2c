#include "master/registers/form_lookups.h"

#include <QKeyEvent>

#include "master/registers/pickers.h"
#include "ui/forms/keys.h"

namespace {

/** Takes plain keys, and Enter with whatever is held down, from one box before anybody else sees them. */
class BoxKeys : public QObject {
 public:
  BoxKeys(QWidget* box, std::function<bool(int key)> work) : QObject(box), work_(std::move(work)) {
    box->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      const auto* const pressed = static_cast<QKeyEvent*>(event);
      const bool plain = isEnterKey(pressed->key()) || !(pressed->modifiers() & ~Qt::KeypadModifier);
      if (plain && work_(pressed->key())) return true;
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  std::function<bool(int key)> work_;
};

}  // namespace

void attachPostCode(Form& form, Pickers& pickers, QLineEdit* code, QLineEdit* address) {
  new BoxKeys(code, [&form, &pickers, code, address](int key) {
    const bool enter = isEnterKey(key);
    const bool typed = code->isModified() && !code->text().trimmed().isEmpty();
    if (!(key == Qt::Key_F12 || (enter && typed))) return false;
    form.command([&] {
      const auto chosen = pickers.searchPostCode(code->text().trimmed());
      form.activateWindow();
      if (!chosen) {
        // The search was left: the text is no postcode.
        if (typed) code->clear();
        return Form::focus(code);
      }
      code->setText(chosen->zipCode);
      address->setText(chosen->address);
      address->setFocus();
      address->end(false);
    });
    return true;
  });
}

void attachSearch(Form& form, QLineEdit* box, QWidget* next, std::function<bool()> search) {
  box->setReadOnly(true);
  new BoxKeys(box, [&form, box, next, search = std::move(search)](int key) {
    if (key == Qt::Key_Delete || key == Qt::Key_Backspace) {
      box->clear();
      return true;
    }
    const bool enter = isEnterKey(key);
    if (!(key == Qt::Key_F12 || (enter && box->text().isEmpty()))) return false;
    form.command([&] {
      const bool chosen = search();
      form.activateWindow();
      Form::focus(chosen ? next : box);
    });
    return true;
  });
}

void attachDate(Form& form, Pickers& pickers, DateBox* box) {
  new BoxKeys(box, [&form, &pickers, box](int key) {
    if (key != Qt::Key_F12) return false;
    form.command([&] {
      if (const auto date = pickers.pickDate(box->dateText())) box->setDateText(*date);
      form.activateWindow();
      Form::focus(box);
    });
    return true;
  });
}
