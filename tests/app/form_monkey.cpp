// Hands that press any key with any modifier, in whatever state the program is in: resting cells, open editors and
// combos, searches, boxes, menus. Nothing may end the program, stop it, or make the store stumble.
//   HAEON_STORM=long              thousands of keys a form, another seed every time
//   HAEON_MONKEY=SEED             this seed, every key told on the error stream
//   HAEON_MONKEY_FORM=frmSale     this form alone
#include <QAbstractButton>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QRandomGenerator>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <thread>

#include "app/command_map.h"
#include "app/form_pickers.h"
#include "app/form_table.h"
#include "app/frmMain.h"
#include "app/start_up.h"
#include "samples/sample_books.h"
#include "tests/support.h"
#include "tests/ui/grab.h"
#include "ui/forms/message_boxes.h"
#include "ui/grid/spread.h"
#include "ui/paper/print_report.h"
#include "ui/paper/printers.h"
#include "ui/paper/report_viewer.h"

using namespace Qt::StringLiterals;

namespace {

/** The boxes on the screen; an error of the store or of a handler is kept, for no key may lead to one. */
class WatchedBoxes : public MessageBoxes {
 public:
  using MessageBoxes::MessageBoxes;
  QStringList errors;
  void ErrorBox(const QString& text, int number, const QString& description) override {
    // A year without a file is a choice of the operator's.
    if (number != 3024 || !description.contains("Foundation.mdb"))
      errors << QString::number(number) + u' ' + description;
    MessageBoxes::ErrorBox(text, number, description);
  }
  void MsgWarn(const QString& text, const QString& title) override {
    if (text.startsWith("Error "_L1)) errors << text;
    MessageBoxes::MsgWarn(text, title);
  }
};

/** The whole program on the sample retailer's books, signed in; nothing leaves its folder. */
class Shop {
 public:
  Shop() {
    pc_.clock.set(QDateTime(QDate(2026, 3, 16), QTime(9, 0)));
    tests::ScriptedPrompts quiet;
    samples::makeBooks(pc_, quiet);
    const QString paper = folder_.filePath("paper.pdf");
    printers_.askFile = [paper](const QString&) { return paper; };
    printChooser() = [](Session&, int pages, QWidget*) { return PrintChoice{pdfPrinterName(), 1, pages}; };
    pc_.process.setStarter([](const QString&, const QStringList&, const QString&) { return true; });
    session.printers = &printers_;
    session.reports = &reports_;
    start_.SubMain([&] { start_.load(); });
    start_.enterPassword(QString::fromLatin1(samples::password));
    openWindow();
  }
  ~Shop() {
    window_.reset();
    printChooser() = asking_;
    if (session.dbBasic.isOpen()) start_.shutDown();
  }

  frmMain& window() { return *window_; }
  void openWindow() {
    window_ = std::make_unique<frmMain>(session, pickers_);
    pickers_.setContext(window_->context());
    window_->relink = [this] { start_.relink(); };
    window_->resize(1280, 800);
    tests::show(*window_);
  }

 private:
  QTemporaryDir folder_;
  pc::Pc pc_{folder_.path()};

 public:
  WatchedBoxes boxes{[] { return "해온판매"; }};
  Session session{pc_, boxes};

 private:
  PcPrinters printers_{pc_};
  ReportViewer reports_{session};
  StartUp start_{session};
  FormPickers pickers_{session};
  std::unique_ptr<frmMain> window_;
  const PrintChooser asking_ = printChooser();
};

struct Stroke {
  int key = 0;
  Qt::KeyboardModifiers modifiers;
  QString text;  ///< what the key writes, or with key 0 what the input method composes
};

class Hands {
 public:
  explicit Hands(quint32 seed) : dice_(seed) {}

  Stroke next() {
    if (below(25) == 0) return {0, {}, one("ㅎㅁㅏㅂ산글5-")};
    const int key = choose();
    const Qt::KeyboardModifiers held = modifiers();
    return {key, held, written(key, held)};
  }
  int below(int count) { return int(dice_.bounded(quint32(count))); }

 private:
  QString one(const QString& of) { return of.at(below(int(of.size()))); }
  int choose() {
    static const QList<int> moves{Qt::Key_Return,    Qt::Key_Return,   Qt::Key_Return,  Qt::Key_Enter,
                                  Qt::Key_Escape,    Qt::Key_Tab,      Qt::Key_Backtab, Qt::Key_Left,
                                  Qt::Key_Right,     Qt::Key_Up,       Qt::Key_Down,    Qt::Key_Down,
                                  Qt::Key_PageUp,    Qt::Key_PageDown, Qt::Key_Home,    Qt::Key_End,
                                  Qt::Key_Backspace, Qt::Key_Delete,   Qt::Key_Space};
    static const QList<int> odd{Qt::Key_Shift,      Qt::Key_Control, Qt::Key_Alt,     Qt::Key_Meta,
                                Qt::Key_CapsLock,   Qt::Key_Hangul,  Qt::Key_NumLock, Qt::Key_Hangul_Hanja,
                                Qt::Key_Menu,       Qt::Key_Insert,  Qt::Key_Print,   Qt::Key_Pause,
                                Qt::Key_ScrollLock, Qt::Key_Clear,   Qt::Key_AltGr};
    // The apostrophe breaks a statement by rule, and is told so; it has its own tests.
    static const QString signs = "!\"#$%&()*+,-./:;<=>?@[\\]^_`{|}~";
    const int turn = below(100);
    if (turn < 45) return moves[below(int(moves.size()))];
    if (turn < 65) return Qt::Key_0 + below(10);
    if (turn < 78) return Qt::Key_A + below(26);
    if (turn < 90) return Qt::Key_F1 + below(12);
    if (turn < 95) return signs.at(below(int(signs.size()))).unicode();
    return odd[below(int(odd.size()))];
  }
  Qt::KeyboardModifiers modifiers() {
    const int turn = below(100);
    if (turn < 68) return {};
    if (turn < 78) return Qt::ShiftModifier;
    if (turn < 86) return Qt::ControlModifier;
    if (turn < 93) return Qt::AltModifier;
    if (turn < 96) return Qt::ControlModifier | Qt::ShiftModifier;
    if (turn < 98) return Qt::KeypadModifier;
    return Qt::AltModifier | Qt::ShiftModifier;
  }
  static QString written(int key, Qt::KeyboardModifiers held) {
    if (held & (Qt::ControlModifier | Qt::AltModifier) || key > 0x7f) return {};
    const QString letter = QChar(key);
    return held & Qt::ShiftModifier ? letter : letter.toLower();
  }

  QRandomGenerator dice_;
};

/** Ends the program when no key has been taken for a minute: it hangs, and nobody would hear of it otherwise. */
class Watch {
 public:
  explicit Watch(const std::string& what) : thread_([this, what] { look(what); }) {}
  ~Watch() {
    over_ = true;
    thread_.join();
  }
  void pressed() { ++keys_; }

 private:
  void look(const std::string& what) {
    int seen = -1, still = 0;
    while (!over_) {
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
      still = keys_ == seen ? still + 1 : 0;
      seen = keys_;
      if (still < 600) continue;
      std::fprintf(stderr, "%s: the program does not answer after %d keys\n", what.c_str(), seen);
      std::abort();
    }
  }
  std::atomic<int> keys_ = 0;
  std::atomic<bool> over_ = false;
  std::thread thread_;
};

class Monkey : public QObject {
 public:
  Monkey(const QString& form, quint32 seed, int keys)
      : form_(form),
        name_(u"monkey, seed %1, %2"_s.arg(seed).arg(form.isEmpty() ? u"frmMain"_s : form)),
        left_(keys),
        loud_(qEnvironmentVariableIsSet("HAEON_MONKEY")),
        hands_(seed),
        watch_(name_.toStdString()) {}

  void run() {
    std::fprintf(stderr, "%s\n", qPrintable(name_));
    shop_.window().activateWindow();
    QTimer::singleShot(0, this, [this] { step(); });
    QApplication::exec();  // the program's own loop: a form may end it
    QApplication::processEvents();
    for (const Spread* const grid : shop_.window().findChildren<Spread*>())
      if (!grid->isVisible() && grid->isEditing())
        ADD_FAILURE() << qPrintable(name_) << ": an editor out of sight";
    // A new data folder ends the program; any other end was none of the keys' doing.
    EXPECT_TRUE(left_ <= 0 || !shop_.session.dbBasic.isOpen() || !shop_.boxes.errors.isEmpty());
    EXPECT_EQ(shop_.boxes.errors.join(u'\n'), QString())
        << qPrintable(name_) << " after " << last_.join(u' ').toStdString();
  }

 private:
  /** The next turn is on its way before this one's key is pressed: a box that comes up runs its own loop. */
  void step() {
    const bool over = left_ <= 0 || !shop_.session.dbBasic.isOpen() || !shop_.boxes.errors.isEmpty();
    const QWidget* const box = QApplication::activeModalWidget();
    const bool free = depth_ == 0 && !box && !QApplication::activePopupWidget();
    if (over && free) return QApplication::exit();
    QTimer::singleShot(0, this, [this] { step(); });
    ++depth_;
    if (over)
      leave();
    else if (free && !stands())
      open();
    else if (box && box->objectName() == "frmSecurity" && hands_.below(10) == 0)
      for (const char* key = "1234\r"; *key; ++key)
        press({*key == '\r' ? int(Qt::Key_Return) : *key, {}, QChar(*key)});
    else
      press(hands_.next());
    --depth_;
  }

  bool stands() {
    if (!shop_.window().isVisible()) return false;
    if (form_.isEmpty()) return true;
    QWidget* const front = shop_.window().activeForm();
    return front && front->objectName() == form_.section(u':', 0, 0);
  }
  void open() {
    --left_;
    if (!shop_.window().isVisible()) shop_.openWindow();
    if (!form_.isEmpty()) shop_.window().openForm(form_);
  }
  void leave() {
    if (QWidget* const popup = QApplication::activePopupWidget()) {
      popup->close();
    } else if (QWidget* const box = QApplication::activeModalWidget()) {
      // A question whether typed texts may go keeps its form until somebody says yes.
      if (auto* const asked = qobject_cast<QMessageBox*>(box))
        asked->buttons().at(hands_.below(int(asked->buttons().size())))->click();
      else if (QWidget* const hand = box->focusWidget(); hand && hands_.below(2) == 0)
        QTest::keyClick(hand, Qt::Key_Escape);  // a wrong cell keeps its window until it is given up
      else if (auto* const dialog = qobject_cast<QDialog*>(box))
        dialog->reject();
      else
        box->close();
    }
    watch_.pressed();
  }

  void press(const Stroke& stroke) {
    --left_;
    watch_.pressed();
    note(stroke);
    if (stroke.key == 0) return compose(stroke.text);
    QWindow* const at = QGuiApplication::focusWindow();
    if (!at) {
      QWidget* const top =
          QApplication::activeModalWidget() ? QApplication::activeModalWidget() : &shop_.window();
      top->activateWindow();
      return;
    }
    const QPointer<QWindow> window(at);
    const std::pair<Qt::KeyboardModifier, int> held[] = {{Qt::ShiftModifier, Qt::Key_Shift},
                                                         {Qt::ControlModifier, Qt::Key_Control},
                                                         {Qt::AltModifier, Qt::Key_Alt}};
    const auto send = [&](QEvent::Type type, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
      if (window) qt_handleKeyEvent(window, type, key, modifiers, text);
    };
    for (const auto& [modifier, key] : held)
      if (stroke.modifiers & modifier) send(QEvent::KeyPress, key, {}, {});
    send(QEvent::KeyPress, stroke.key, stroke.modifiers, stroke.text);
    send(QEvent::KeyRelease, stroke.key, stroke.modifiers, stroke.text);
    for (const auto& [modifier, key] : held)
      if (stroke.modifiers & modifier) send(QEvent::KeyRelease, key, stroke.modifiers, {});
  }

  /** A syllable begun, and one time in two finished. */
  void compose(const QString& text) {
    const bool finished = hands_.below(2) == 0;
    QInputMethodEvent begun(text, {});
    if (QObject* const at = QGuiApplication::focusObject()) QCoreApplication::sendEvent(at, &begun);
    QInputMethodEvent done;
    if (finished) done.setCommitString(text);
    if (QObject* const at = QGuiApplication::focusObject()) QCoreApplication::sendEvent(at, &done);
  }

  void note(const Stroke& stroke) {
    last_ << (stroke.key ? QKeySequence(int(stroke.modifiers) | stroke.key).toString()
                         : u"[%1]"_s.arg(stroke.text));
    if (last_.size() > 40) last_.removeFirst();
    if (!loud_) return;
    const QWidget* const focus = QApplication::focusWidget();
    std::fprintf(stderr, "%d %s -> %s\n", left_, qPrintable(last_.last()),
                 focus ? qPrintable(focus->objectName() + " / " + focus->window()->windowTitle()) : "-");
  }

  Shop shop_;
  QString form_, name_;
  int left_, depth_ = 0;
  bool loud_;
  Hands hands_;
  Watch watch_;
  QStringList last_;
};

/** The bare main window, every form that the menu opens, on the page it opens it on, and every other form. */
QStringList everyForm() {
  QStringList forms{""};
  for (const CommandEntry& entry : commandMap())
    if (findForm(entry.formName()) && !forms.contains(entry.formName())) forms << entry.formName();
  for (const FormEntry& entry : builtForms()) {
    const QString name = QString::fromUtf16(entry.name);
    const auto isIts = [&](const QString& form) { return form.section(u':', 0, 0) == name; };
    if (std::ranges::none_of(forms, isIts)) forms << name;
  }
  return forms;
}

/** The forms in parts, so that none of them takes long. */
constexpr int parts = 6;
struct FormMonkey : testing::TestWithParam<int> {};

TEST_P(FormMonkey, AnyKeyInAnyStateEndsWell) {
  const bool longRun = qgetenv("HAEON_STORM") == "long";
  const QString only = qEnvironmentVariable("HAEON_MONKEY_FORM");
  const QByteArray named = qgetenv("HAEON_MONKEY");
  const quint32 first = !named.isEmpty() ? named.toUInt()
                        : longRun        ? QRandomGenerator::global()->generate()
                                         : 1;
  const QStringList forms = everyForm();
  EXPECT_GT(forms.size(), 20);
  const int keys = longRun ? 4000 : only.isEmpty() ? 6000 / int(forms.size()) : 250;
  QApplication::setQuitOnLastWindowClosed(false);  // as the program does
  const QString here = QDir::currentPath();
  QTemporaryDir elsewhere;
  QDir::setCurrent(elsewhere.path());
  for (qsizetype at = GetParam(); at < forms.size(); at += parts) {
    if (!only.isEmpty() && !forms[at].startsWith(only)) continue;
    Monkey(forms[at], named.isEmpty() ? first + quint32(at) : first, keys).run();
  }
  QDir::setCurrent(here);
}

INSTANTIATE_TEST_SUITE_P(Parts, FormMonkey, testing::Range(0, parts));

}  // namespace
