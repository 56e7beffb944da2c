#pragma once
// An off-screen stage for the whole program: a display, a window manager, a caller-identification unit on a
// pseudo-terminal, and the program itself, driven by real keystrokes and read back through jetsql.
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>
#include <functional>
#include <memory>

namespace samples {

class Display;

/** When something does not come in time it throws std::runtime_error with what was awaited and what was on the screen,
 *  and leaves a picture "stopped-here.png". */
class Stage {
 public:
  struct Options {
    QString programs;  ///< folder of haeon and jetsql
    QString pcRoot;    ///< the PC that the program runs on
    QString clock;     ///< "yyyy-MM-dd HH:mm:ss" at start; empty: the real one
    QString pictures;  ///< folder for screenshots; empty: none are taken
    QString pdf;       ///< file that the PDF writer fills; empty: it asks
    QString size = "1280x900";
    double scale = 1;  ///< 1.5 shows the program as on a 144 dpi screen
  };
  explicit Stage(Options options);
  ~Stage();

  void startProgram();
  bool programRuns() const;
  /** Waits until the program has ended by itself; its exit status. */
  int awaitEnd();
  /** From now on the keys go to what the program has started before its end; that one's end is not watched. */
  void goOnWithCompanion() { goesOn_ = true; }

  /** Keys by their names ("Return", "Down", "alt+l") to the window in front, each when the one before is done with. */
  void keys(const QStringList& names);
  void type(const QString& digitsAndLetters);
  /** Waits until the window in front has a title with this part. */
  void awaitWindow(const QString& part);
  /** What the unit sends over the line; the program has read it when this returns. */
  void callerUnitSends(const QByteArray& bytes);

  /** Rows of a statement, tab-separated lines. file: name in the data folder. */
  QStringList query(const QString& file, const QString& statement) const;
  /** Waits until the statement's first line is this. */
  void awaitRow(const QString& file, const QString& statement, const QString& line);
  /** Waits until there is a file of this name; the program names a file when it is whole. */
  void awaitFile(const QString& path);
  /** Waits for anything else; what: its name when it does not come. */
  void await(const QString& what, const std::function<bool()>& come) const;
  void picture(const QString& name);
  /** Ends the play: what is wrong, what was on the screen, a picture. */
  [[noreturn]] void stop(const QString& wrong) const;

 private:
  /** Waits until the program has done what it was sent, or stands in a box that it opened for it. */
  void awaitHandled();
  QString takePicture(const QString& name) const;
  QString run(const QString& program, const QStringList& arguments) const;

  Options options_;
  QProcessEnvironment environment_;
  std::unique_ptr<QProcess> display_, manager_, program_;
  std::unique_ptr<Display> screen_;
  quint32 lastToken_ = 0;
  bool goesOn_ = false;
  int unit_ = -1, unitFarEnd_ = -1;  // the pseudo-terminal's two ends
};

}  // namespace samples
