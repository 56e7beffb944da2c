// Keys pressed on the real windows over the sample retailer's books, and what came of them.
#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QProcess>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTabBar>
#include <QTest>
#include <QTextStream>
#include <QTimer>
#include <QWindow>

#include <cstdio>
#include <deque>

#include "app/form_pickers.h"
#include "app/frmMain.h"
#include "app/start_up.h"
#include "papers/form_document_run.h"
#include "pc/cp949.h"
#include "pc/program_line.h"
#include "samples/book_rows.h"
#include "samples/form_words.h"
#include "samples/sample_books.h"
#include "store/jet/connection.h"
#include "store/jet/functions.h"
#include "store/settings_table.h"
#include "ui/forms/FrmProgress.h"
#include "ui/forms/style.h"
#include "ui/grid/spread.h"
#include "ui/paper/pages_window.h"
#include "ui/paper/print_report.h"
#include "ui/paper/printers.h"
#include "ui/paper/report_viewer.h"

using namespace Qt::StringLiterals;

namespace {

constexpr pc::ProgramLine programLine{
    "play_keys", "PC SCRIPT",
    "Plays the lines of SCRIPT that begin with \"> \" on the books in the folder PC and writes the script "
    "anew:\n"
    "below each such line stands what it changed on the window in front and in the data files.\n"
    "  > form NAME       opens a form; > run NAME: a menu entry, by its name\n"
    "  > other FILE SQL  another program writes into a data file\n"
    "  > file NAME TEXT  a text in the folder of the program; | ends a line\n"
    "  > day yyyy-MM-dd  the PC's clock shows nine on that day\n"
    "  > look            everything that stands on the window in front\n"
    "  > anything else   keys: Enter Esc F5 Ctrl+P Down*3, 'typed text', and in brackets\n"
    "    [yes] [no] [cancel] [say TEXT]: the answer to the next box that is not answered yet, before its "
    "key;\n"
    "[click NAME] [double NAME] [focus NAME] [choose NAME=ITEM] [cell ROW,COL] [double ROW,COL] "
    "[clip TEXT]\n    [run NAME] [menu] [close]"};

/** Tells every box, and answers as the script says; nobody's answer is the one that does nothing. */
class ToldBoxes : public Prompts {
 public:
  QStringList told;
  std::deque<QString> answers;

  void MsgInfo(const QString& text, const QString& title) override { tell(u"info"_s, text, title); }
  void MsgWarn(const QString& text, const QString& title) override { tell(u"warning"_s, text, title); }
  bool MsgAsk(const QString& text, const QString& title, bool yesFirst) override {
    return ask(yesFirst ? u"question"_s : u"question on no"_s, text, title) == "yes"_L1;
  }
  Answer MsgYesNoCancel(const QString& text, const QString& title) override {
    const QString said = ask(u"question of three"_s, text, title);
    return said == "yes"_L1 ? Answer::Yes : said == "no"_L1 ? Answer::No : Answer::Cancel;
  }
  void ErrorBox(const QString& text, int number, const QString& description) override {
    tell(u"error %1"_s.arg(number), text, description);
  }
  std::optional<QString> InputBox(const QString& text, const QString& title,
                                  const QString& initial) override {
    const QString said = ask(u"input '%1'"_s.arg(initial), text, title);
    if (!said.startsWith("say"_L1)) return {};
    return said.mid(4);
  }

 private:
  void tell(const QString& kind, const QString& text, const QString& title) {
    QString line = u"box %1: %2"_s.arg(kind, text);
    if (!title.isEmpty()) line += u" (%1)"_s.arg(title);
    told << line.replace(u'\n', u'/');
  }
  QString ask(const QString& kind, const QString& text, const QString& title) {
    tell(kind, text, title);
    const QString said = answers.empty() ? u"nobody answers"_s : answers.front();
    if (!answers.empty()) answers.pop_front();
    told.last() += u" -> "_s + said;
    return said;
  }
};

/** The lines of a window by what they are of: a control, or a grid's row by its number. */
QMap<QString, QString> byControl(const QString& words) {
  QMap<QString, QString> lines;
  QString control;
  for (const QString& line : words.split(u'\n', Qt::SkipEmptyParts)) {
    const bool within = line.startsWith(u' ');
    if (!within) control = line.section(u' ', 0, 1);
    if (control.endsWith(u' ')) control = line;  // it has no name: its text is all there is to know it by
    QString key = within ? control + u' ' + line.section(u':', 0, 0).trimmed() : control;
    for (int at = 2; lines.contains(key); ++at) key = u"%1 #%2"_s.arg(key.section(u" #"_s, 0, 0)).arg(at);
    lines[key] = line;
  }
  return lines;
}

class Player : public QObject {
 public:
  Player(const QString& root, const QString& script)
      : root_(root),
        pc_(root),
        session_(pc_, boxes_),
        printers_(pc_),
        reports_(session_),
        start_(session_),
        pickers_(session_) {
    session_.printers = &printers_;
    session_.reports = &reports_;
    paper_ = root + "/paper.pdf";
    printers_.askFile = [this](const QString&) { return paper_; };
    folderAsker() = [this](QWidget*, const QString&) {
      QDir(root_).mkdir(u"papers"_s);
      return root_ + u"/papers"_s;
    };
    printChooser() = [](Session&, int pages, QWidget*) { return PrintChoice{pdfPrinterName(), 1, pages}; };
    pc_.process.setStarter([this](const QString& program, const QStringList& arguments, const QString&) {
      boxes_.told << u"starts %1 %2"_s.arg(program, arguments.join(u' ')).remove(root_);
      return true;
    });
    QFile file(script);
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("cannot read the script");
    for (const QString& line : QString::fromUtf8(file.readAll()).trimmed().split(u'\n')) read(line);
  }

  QString play() {
    qApp->installEventFilter(this);
    stopTime();
    if (!start_.SubMain([&] { start_.load(); })) throw std::runtime_error("the books do not open");
    start_.enterPassword(QString::fromLatin1(samples::password));
    window_ = std::make_unique<frmMain>(session_, pickers_);
    pickers_.setContext(window_->context());
    window_->relink = [this] { start_.relink(); };
    window_->resize(1280, 860);
    window_->show();
    window_->activateWindow();
    rows_ = books_.read(folder());
    QStringList before;
    recordSettings(before);
    QTimer::singleShot(0, this, [this] { turn(); });
    QApplication::exec();
    window_->setSilentClose();
    window_.reset();
    if (session_.dbBasic.isOpen()) start_.shutDown();
    return out_.join(u'\n') + u'\n';
  }

 private:
  // --- the script -------------------------------------------------------------------------------------------
  void read(const QString& line) {
    if (!line.startsWith("> "_L1)) {
      // What stands below a line of keys is written anew; a remark and what parts the lines stay.
      if (line.startsWith(u'#') || line.isEmpty()) steps_.push_back([this, line] { out_ << line; });
      return;
    }
    steps_.push_back([this, line] { out_ << line; });
    const QString word = line.section(u' ', 1, 1), rest = line.section(u' ', 2);
    if (word == "form"_L1) {
      steps_.push_back([this, rest] {
        if (!window_->openForm(rest)) boxes_.told << u"no such form"_s;
      });
    } else if (word == "run"_L1) {
      steps_.push_back([this, rest] {
        if (!window_->run(rest)) boxes_.told << u"no such entry, or it is off"_s;
      });
    } else if (word == "other"_L1) {
      steps_.push_back([this, rest] { otherWrites(rest.section(u' ', 0, 0), rest.section(u' ', 1)); });
    } else if (word == "file"_L1) {
      steps_.push_back([this, rest] { writeText(rest.section(u' ', 0, 0), rest.section(u' ', 1)); });
    } else if (word == "day"_L1) {
      steps_.push_back([this, rest] { day_ = QDate::fromString(rest, Qt::ISODate); });
    } else if (word == "look"_L1) {
      steps_.push_back([this] { out_ << inset(samples::contentsOf(*front())); });
    } else {
      static const QRegularExpression tokens(u"\\[[^\\]]*\\]|'[^']*'|\\S+"_s);
      for (const auto& found : tokens.globalMatch(line.mid(2))) readToken(found.captured());
    }
    steps_.push_back(nullptr);
  }
  void readToken(const QString& token) {
    if (token.startsWith(u'\'')) {
      for (const QChar letter : token.mid(1, token.size() - 2))
        steps_.push_back([this, letter] { type(letter); });
      return;
    }
    if (token.startsWith(u'[')) {
      steps_.push_back([this, hand = token.mid(1, token.size() - 2)] { act(hand); });
      return;
    }
    static const QRegularExpression repeated(u"^(.+)\\*(\\d+)$"_s);
    const auto times = repeated.match(token);
    const QString name = times.hasMatch() ? times.captured(1) : token;
    const QKeySequence key(QString(name).replace("Enter"_L1, "Return"_L1));
    if (key.count() != 1) throw std::runtime_error("no such key: " + token.toStdString());
    for (int at = times.hasMatch() ? times.captured(2).toInt() : 1; at > 0; --at)
      steps_.push_back([this, key] { press(key[0].key(), key[0].keyboardModifiers(), {}); });
  }

  // --- turns ------------------------------------------------------------------------------------------------
  /** The next turn is on its way before this one's step is taken: a window that comes up runs its own loop. Until a step
   *  has come to its end, or stands in such a window, nothing further is pressed. */
  void turn() {
    QTimer::singleShot(0, this, [this] { turn(); });
    if (depth_ > standing()) return;
    if (window_->isHidden() && depth_ == 0) {
      record();
      out_ << u"    the program has gone"_s;
      steps_.clear();
    }
    if (steps_.empty()) {
      if (depth_ == 0) return QApplication::exit();
      leave();
      return;
    }
    if (!handIsIn(front()->window())) {
      front()->window()->activateWindow();
      return;
    }
    stopTime();
    const auto step = steps_.front();
    if (!step && quiet_ < 2) {  // what the forms leave for the next round is done first
      ++quiet_;
      return;
    }
    quiet_ = 0;
    steps_.pop_front();
    ++depth_;
    try {
      step ? step() : record();
    } catch (const std::runtime_error& wrong) {
      boxes_.told << QString::fromUtf8(wrong.what());
    }
    --depth_;
  }
  /** A key pressed before a box has the hand would reach the window behind it, which is shut, and be lost. */
  static bool handIsIn(const QWidget* window) {
    const QWindow* const has = QGuiApplication::focusWindow();
    return has && (!window->isModal() || QApplication::activePopupWidget() || has == window->windowHandle());
  }
  /** Windows that hold up whoever opened them. */
  static int standing() {
    int count = 0;
    for (const QWidget* window : QApplication::topLevelWidgets())
      count += window->isVisible() && (window->isModal() || window->windowType() == Qt::Popup) &&
               !dynamic_cast<const FrmProgress*>(window);
    return count;
  }
  static void leave() {
    QWidget* const box = QApplication::activeModalWidget();
    if (auto* const dialog = qobject_cast<QDialog*>(box))
      dialog->reject();
    else if (box)
      box->close();
  }
  void stopTime() { pc_.clock.set(day_.startOfDay().addSecs(9 * 3600)); }

  // --- the hand ---------------------------------------------------------------------------------------------
  QWidget* front() const {
    if (QWidget* const modal = QApplication::activeModalWidget()) return modal;
    QWidget* const active = QApplication::activeWindow();
    if (active && active != window_.get()) return active;
    QWidget* const form = window_->activeForm();
    return form ? form : window_.get();
  }
  template <class Control = QWidget>
  Control* named(const QString& name) const {
    QWidget* const in = front();
    const QList<Control*> all = in->findChildren<Control*>(name);  // of tabs, the one in front is meant
    for (Control* const control : all)
      if (control->isVisible()) return control;
    if (!all.isEmpty()) return all.front();
    throw std::runtime_error("no such control: " + name.toStdString());
  }
  Spread* grid() const {
    if (auto* const at = qobject_cast<Spread*>(QApplication::focusWidget())) return at;
    for (QWidget* at = QApplication::focusWidget(); at; at = at->parentWidget())
      if (auto* const spread = qobject_cast<Spread*>(at)) return spread;
    if (auto* const only = front()->findChild<Spread*>()) return only;
    throw std::runtime_error("no grid");
  }
  void press(int key, Qt::KeyboardModifiers held, const QString& text) {
    QWindow* const at = QGuiApplication::focusWindow();
    qt_handleKeyEvent(at, QEvent::KeyPress, Qt::Key(key), held, text);
    if (QGuiApplication::allWindows().contains(at))
      qt_handleKeyEvent(at, QEvent::KeyRelease, Qt::Key(key), held, text);
  }
  void type(QChar letter) {
    if (letter.unicode() < 0x80)
      return press(letter.toUpper().unicode(), letter.isUpper() ? Qt::ShiftModifier : Qt::NoModifier, letter);
    QInputMethodEvent done;
    done.setCommitString(letter);
    if (QObject* const at = QGuiApplication::focusObject()) QCoreApplication::sendEvent(at, &done);
  }
  void act(const QString& hand) {
    const QString word = hand.section(u' ', 0, 0), rest = hand.section(u' ', 1);
    if (word == "click"_L1) {
      named<QAbstractButton>(rest)->click();
    } else if (word == "focus"_L1) {
      named(rest)->setFocus();
    } else if (word == "choose"_L1) {
      const QString name = rest.section(u'=', 0, 0), item = rest.section(u'=', 1);
      if (auto* const tabs = front()->findChild<QTabBar*>(name)) {
        for (int at = 0; at < tabs->count(); ++at)
          if (tabs->tabText(at) == item) tabs->setCurrentIndex(at);
      } else {
        auto* const box = named<QComboBox>(name);
        box->setCurrentIndex(box->findText(item));
      }
    } else if (word == "cell"_L1 || word == "double"_L1) {
      Spread* const on = grid();
      const int row = rest.section(u',', 0, 0).toInt(), col = rest.section(u',', 1).toInt();
      on->showRow(row);
      const QPoint at = on->cellRect(row, col).center();
      QTest::mouseClick(on->viewport(), Qt::LeftButton, {}, at);
      if (word == "double"_L1) QTest::mouseDClick(on->viewport(), Qt::LeftButton, {}, at);
    } else if (word == "run"_L1) {
      if (!window_->run(rest)) boxes_.told << u"no such entry, or it is off"_s;
    } else if (word == "clip"_L1) {
      QApplication::clipboard()->setText(clip_ = QString(rest).replace(u'|', u'\n').replace(u'>', u'\t'));
    } else if (word == "menu"_L1) {
      Spread* const on = grid();
      const QPoint at = on->cellRect(on->activeRow(), on->activeCol()).center();
      QContextMenuEvent asked(QContextMenuEvent::Mouse, at, on->viewport()->mapToGlobal(at));
      QApplication::sendEvent(on->viewport(), &asked);
    } else if (word == "close"_L1) {
      QWidget* const in = front();
      (in->isWindow() ? in : in->parentWidget())->close();
    } else {
      boxes_.answers.push_back(hand);
    }
  }
  void otherWrites(const QString& file, const QString& statement) {
    try {
      jet::Connection books(folder() + u'/' + file, 1000);
      jet::registerFunctions(books);  // an index over texts asks for the order that they stand in
      books.exec(statement.toUtf8());
    } catch (const jet::Error& error) {
      boxes_.told << u"other: "_s + error.description();
    }
  }

  QDir programFolder() const { return QDir(pc_.paths.native(pc_.paths.programFolder())); }
  void writeText(const QString& name, QString text) {
    QFile file(programFolder().filePath(name));
    if (!file.open(QIODevice::WriteOnly)) throw std::runtime_error("cannot write the text");
    file.write(pc::toCp949(text.replace(u'|', u"\r\n"_s)));
    file.close();
    texts_[name] = pc::fromCp949(pc::toCp949(text));
  }

  // --- the record -------------------------------------------------------------------------------------------
  QString folder() const { return pc_.paths.native(session_.DbPath); }
  static QString inset(QString text) {
    // The clock runs, and a station's name ends with the PC's name and the program's number.
    static const QRegularExpression passing(u"(?<=\\d:\\d\\d):\\d\\d|(?<=Station=\\d{4}-\\d\\d-\\d\\d) .*"_s);
    text.remove(passing);
    return u"    "_s + text.trimmed().replace(u'\n', u"\n    "_s);
  }
  /** What floats over a form goes away by itself: it is told when it comes, and is gone before the window is written. */
  bool eventFilter(QObject* of, QEvent* event) override {
    if (event->type() == QEvent::Show && of->objectName() == "frmFloatMsg"_L1)
      boxes_.told << u"floats: "_s + of->findChild<QLabel*>()->text();
    return false;
  }
  void record() {
    for (QWidget* const window : QApplication::topLevelWidgets())
      if (window->objectName() == "frmFloatMsg"_L1) window->close();
    QStringList found = boxes_.told;
    boxes_.told.clear();
    for (const QString& answer : boxes_.answers) found << u"NOT ASKED: "_s + answer;
    boxes_.answers.clear();
    recordWindow(found);
    const samples::BookRows now = books_.read(folder());
    found += samples::changesBetween(rows_, now);
    rows_ = now;
    recordPaper(found);
    recordTexts(found);
    recordSettings(found);
    if (const QString copied = QApplication::clipboard()->text(); copied != std::exchange(clip_, copied))
      found << u"copied: "_s + QString(copied).replace(u'\n', u'|').replace(u'\t', u'>');
    for (const QString& line : found) out_ << inset(line);
    // A passing notice goes by the clock: it has been read.
    for (QWidget* const window : QApplication::topLevelWidgets())
      if (window->objectName() == "frmFloatMsg"_L1) window->close();
  }
  void recordWindow(QStringList& found) {
    QWidget* const in = front();
    if (const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
      QStringList entries;
      for (const QAction* entry : menu->actions()) entries << entry->text();
      found << u"menu: "_s + entries.join(u" | "_s);
    }
    if (in != last_) found << u"in front: %1 '%2'"_s.arg(in->objectName(), in->windowTitle());
    last_ = in;
    if (const auto* paper = dynamic_cast<PagesWindow*>(in)) {
      found << samples::wordsOf(paper->pages());
      in->close();
      return;
    }
    QString words = in == window_.get() ? QString() : samples::contentsOf(*in);
    words += samples::contentsOf(*window_->statusBar()).section(u"Tab:"_s, 0, 0);
    static const QRegularExpression clock(u"QLabel LblClock [^\n]*\n"_s);  // it goes by the second
    const QMap<QString, QString> now = byControl(words.remove(clock));
    if (!words_.contains(in)) {
      words_[in] = now;
      connect(in, &QObject::destroyed, this, [this, in] { words_.remove(in); });
      for (auto line = now.cbegin(); line != now.cend(); ++line)
        if (line->startsWith("Hand"_L1)) found << *line;
      return;
    }
    const QMap<QString, QString> before = std::exchange(words_[in], now);
    for (auto line = before.cbegin(); line != before.cend(); ++line)
      if (!now.contains(line.key()) && !line->startsWith("Hand"_L1)) found << u"gone: "_s + line->trimmed();
    for (auto line = now.cbegin(); line != now.cend(); ++line)
      if (before.value(line.key()) != *line) found << line->trimmed();
  }
  void recordPaper(QStringList& found) {
    QStringList papers{paper_};
    const QDir several(root_ + u"/papers"_s);
    for (const QString& name : several.entryList(QDir::Files)) papers << several.filePath(name);
    for (const QString& paper : papers) recordPaper(paper, found);
  }
  void recordPaper(const QString& paper, QStringList& found) {
    if (!QFile::exists(paper)) return;
    QProcess reader;
    reader.start(u"pdftotext"_s, {u"-layout"_s, paper, u"-"_s});
    reader.waitForFinished();
    found << (paper == paper_ ? u"paper"_s : u"paper "_s + QFileInfo(paper).fileName());
    for (const QString& line : QString::fromUtf8(reader.readAllStandardOutput()).split(u'\n'))
      if (!line.trimmed().isEmpty()) found << u"  "_s + line.simplified();
    QFile::remove(paper);
  }
  /** What the forms write beside the program. */
  void recordTexts(QStringList& found) {
    for (const QString& name : programFolder().entryList({u"*.txt"_s}, QDir::Files)) {
      QFile file(programFolder().filePath(name));
      if (!file.open(QIODevice::ReadOnly)) continue;
      const QString text = pc::fromCp949(file.readAll());
      if (texts_.contains(name) && texts_[name] == text) continue;
      texts_[name] = text;
      found << u"text "_s + name;
      for (const QString& line : text.split(u"\r\n"_s, Qt::SkipEmptyParts)) found << u"  "_s + line;
    }
  }
  void recordSettings(QStringList& found) {
    QMap<QString, QString> now;
    const QDir settings(root_ + "/settings");
    for (const QString& name : settings.entryList({u"*.ini"_s}, QDir::Files)) {
      QFile file(settings.filePath(name));
      if (!file.open(QIODevice::ReadOnly)) continue;
      QString section;
      for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts))
        if (line.startsWith(u'['))
          section = line;
        else
          now[section + line.section(u'=', 0, 0)] = line.section(u'=', 1);
    }
    for (auto set = now.cbegin(); set != now.cend(); ++set)
      if (settings_.value(set.key()) != *set) found << u"setting %1=%2"_s.arg(set.key(), *set).remove(root_);
    settings_ = now;
  }

  QDate day_{2026, 3, 16};
  const QString root_;
  ToldBoxes boxes_;
  pc::Pc pc_;
  Session session_;
  PcPrinters printers_;
  ReportViewer reports_;
  StartUp start_;
  FormPickers pickers_;
  std::unique_ptr<frmMain> window_;
  QString paper_, clip_;

  std::deque<std::function<void()>> steps_;  ///< an empty one: what came of the line is written down
  int depth_ = 0, quiet_ = 0;
  QStringList out_;
  samples::BookReader books_;
  samples::BookRows rows_;
  QPointer<QWidget> last_;
  QMap<const QWidget*, QMap<QString, QString>> words_;
  QMap<QString, QString> settings_, texts_;
};

}  // namespace

int main(int argc, char** argv) {
  if (pc::saidOfItself(programLine, argc, argv)) return 0;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  const QStringList arguments = application.arguments().mid(1);
  if (arguments.size() != 2) return pc::wrongUse(programLine);
  look::apply(application);
  try {
    QTextStream(stdout) << Player(arguments[0], arguments[1]).play();
  } catch (const std::exception& wrong) {
    QTextStream(stderr) << wrong.what() << '\n';
    return 1;
  }
  return 0;
}
