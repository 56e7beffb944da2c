#include "tests/storm/child.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcessEnvironment>

#include "tests/storm/poster.h"

using namespace Qt::StringLiterals;

namespace storm {

Child::Child(const QStringList& arguments, const QString& preloaded) {
  if (!preloaded.isEmpty()) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_PRELOAD", preloaded);
    // The address sanitizer wants to be first; in front of it stands nothing that allocates.
    const QString options = environment.value("ASAN_OPTIONS");
    environment.insert("ASAN_OPTIONS", options + ":verify_asan_link_order=0");
    process_.setProcessEnvironment(environment);
  }
  process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process_.start(QCoreApplication::applicationFilePath(), QStringList("--pc") + arguments);
}

Child::~Child() {
  kill();
}

void Child::read() {
  rest_ += process_.readAllStandardOutput();
  for (qsizetype end = rest_.indexOf('\n'); end >= 0; end = rest_.indexOf('\n')) {
    lines_ << QString::fromUtf8(rest_.first(end));
    rest_.remove(0, end + 1);
  }
}

bool Child::waitFor(const QString& beginning, int milliseconds) {
  return waitFrom(0, beginning, milliseconds);
}

bool Child::waitForAnother(const QString& beginning, int milliseconds) {
  read();
  return waitFrom(lines_.size(), beginning, milliseconds);
}

bool Child::waitFrom(qsizetype seen, const QString& beginning, int milliseconds) {
  QElapsedTimer since;
  since.start();
  for (;;) {
    for (; seen < lines_.size(); ++seen)
      if (lines_.at(seen).startsWith(beginning)) return true;
    const qint64 left = milliseconds - since.elapsed();
    if (left <= 0 || !process_.waitForReadyRead(int(left))) return false;
    read();
  }
}

void Child::kill() {
  if (process_.state() == QProcess::NotRunning) return;
  process_.kill();
  process_.waitForFinished(-1);
  read();
}

bool Child::finish(int milliseconds) {
  const bool ended = process_.state() == QProcess::NotRunning || process_.waitForFinished(milliseconds);
  read();
  return ended && process_.exitStatus() == QProcess::NormalExit && process_.exitCode() == 0;
}

Told Told::of(const QStringList& report) {
  Told told;
  for (const QString& text : report) {
    const QStringList words = text.split(u' ');
    const auto number = [&](int at) { return words.value(at).toLongLong(); };
    const auto is = [&](const char* word) { return words.first() == QLatin1String(word); };
    if (is(word::at)) {
      told.open = number(1);
    } else if (is(word::line)) {
      told.lines[number(1)] = {int(number(3)), number(2), number(4), number(5), number(6)};
      told.open.reset();
    } else if (is(word::read)) {
      told.readings[number(1)] = {number(2), number(3)};
      told.open.reset();
    } else if (is(word::gone)) {
      told.lines.remove(number(1));
      told.gone << number(1);
      told.open.reset();
    } else if (is(word::made)) {
      told.blocks << int(number(1));
      told.open.reset();
    } else if (is(word::razed)) {
      told.blocks.removeOne(int(number(1)));
      told.open.reset();
    } else if (is(word::told)) {
      told.failures << int(number(1));
      told.failureTexts << words.mid(2).join(u' ');
      told.open.reset();
    } else if (is(word::done)) {
      told.steps = int(number(1));
      told.longest = number(2);
    }
  }
  return told;
}

QStringList differences(const Lines& stored, const Lines& told, const QList<qint64>& gone,
                        const std::optional<qint64>& open) {
  QStringList found;
  for (auto at = told.begin(); at != told.end(); ++at) {
    if (open == at.key()) continue;
    const auto line = stored.find(at.key());
    if (line == stored.end())
      found << u"line %1 is lost: %2"_s.arg(at.key()).arg(at->text());
    else if (*line != *at)
      found << u"line %1 is %2, told was %3"_s.arg(at.key()).arg(line->text(), at->text());
  }
  for (const qint64 key : gone)
    if (stored.contains(key)) found << u"line %1 is back"_s.arg(key);
  int unknown = 0;
  for (auto at = stored.begin(); at != stored.end(); ++at) unknown += !told.contains(at.key());
  const bool deleting = open.value_or(0) > 0 && !stored.contains(*open);
  if (unknown > (open == 0 ? 1 : 0)) found << u"%1 lines nobody told of"_s.arg(unknown);
  if (deleting && !told.contains(*open)) found << u"line %1 went twice"_s.arg(*open);
  return found;
}

}  // namespace storm
