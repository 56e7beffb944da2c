#pragma once
// What is fed with texts that nobody would write. A target returns quietly for every input; a broken promise ends the
// process with a word about it, as a crash would.
#include <QByteArray>
#include <QByteArrayList>

namespace fuzz {

struct Target {
  const char* name;
  void (*run)(const QByteArray& input);
  /** The committed inputs to begin with. */
  QByteArrayList (*seeds)();
  /** Words that are put into inputs. */
  QByteArrayList words;
};

const QList<Target>& targets();

/** Files of corpus/<name>. */
QByteArrayList corpusOf(const char* name);
[[noreturn]] void broken(const QByteArray& input, const QString& promise);

void runStatement(
    const QByteArray& input);          ///< lexer, parser, resolver, writer and the rows of two real files
QByteArrayList statementSeeds();       ///< besides the corpus every statement of the engine's own tests
void runIni(const QByteArray& input);  ///< a settings file's bytes
void runCollection(const QByteArray& input);  ///< the bank's file of a month
void runDevice(const QByteArray& input);      ///< what a caller unit sends

}  // namespace fuzz
