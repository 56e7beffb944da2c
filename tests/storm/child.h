#pragma once
// This program started once more as another PC.
#include <QProcess>
#include <QStringList>

#include "tests/storm/books.h"

namespace storm {

class Child {
 public:
  /** arguments: its work and what that takes. preloaded: a library in front of all others. */
  explicit Child(const QStringList& arguments, const QString& preloaded = {});
  ~Child();

  /** Waits for a line that begins so; false when the process ended or the time is over. */
  bool waitFor(const QString& beginning, int milliseconds);
  /** The same for a line that is told from now on. */
  bool waitForAnother(const QString& beginning, int milliseconds);
  /** Ends it at once, as a power cut ends a PC. */
  void kill();
  /** Waits for its own end; false when it did not end well. */
  bool finish(int milliseconds);

  const QStringList& lines() const { return lines_; }

 private:
  void read();
  bool waitFrom(qsizetype seen, const QString& beginning, int milliseconds);

  QProcess process_;
  QByteArray rest_;
  QStringList lines_;
};

/** What a child has told, put together. */
struct Told {
  Lines lines;  ///< as told last
  Readings readings;
  QList<qint64> gone;          ///< told as deleted
  QList<int> blocks;           ///< told as made and not as razed
  std::optional<qint64> open;  ///< the step under way at the end: its line, 0 for a new one, or its block
  QList<int> failures;
  QStringList failureTexts;
  int steps = 0;
  qint64 longest = 0;  ///< milliseconds

  static Told of(const QStringList& report);
};

/** How the stored lines differ from what was told. The line of an open step may be as told or changed, and one new
 *  line may have come. */
QStringList differences(const Lines& stored, const Lines& told, const QList<qint64>& gone,
                        const std::optional<qint64>& open);

}  // namespace storm
