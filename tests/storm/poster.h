#pragma once
// A process that posts: it works the sale screen's rules as an operator does and tells each finished step on its
// standard output, so that the one who watches knows what must be in the books when it dies.
#include <QStringList>
#include <QVariant>

#include "tests/idle_context.h"

namespace storm {

/** Words of the report, one a line:
 *    ready                                      the books are open
 *    at KEY                                     a step on this line begins; 0 for a new one
 *    line KEY CLIENT KIND PIECES INCOME CREDIT   it is written so
 *    read CODE METER BILL                       a customer's month is written so
 *    gone KEY                                   it is deleted
 *    made BLOCK, razed BLOCK                    a block stands with all its households, or is deleted with them
 *    told NUMBER TEXT                           a statement failed with this error
 *    done STEPS LONGEST                         steps done, the longest in milliseconds
 */
namespace word {
inline const char* const ready = "ready";
inline const char* const at = "at";
inline const char* const line = "line";
inline const char* const read = "read";
inline const char* const gone = "gone";
inline const char* const made = "made";
inline const char* const razed = "razed";
inline const char* const told = "told";
inline const char* const done = "done";
}  // namespace word

/** 홍길동 delivers everything. */
struct ChosenPickers : tests::IdlePickers {
  ChosenPickers() { person = "홍길동"; }
};

struct Pc;
/** So many steps of a poster, at once and without a report. */
void postLines(Pc& here, quint32 seed, int steps);

/** One line of a report, at once: a text, or words with blanks between. */
void report(const QString& text);
template <typename... Words>
void report(const char* word, const Words&... more) {
  report(QStringList{word, QVariant(more).toString()...}.join(' '));
}

/** The process's work: ROOT SEED STEPS; steps 0 works until it is killed, any other count at most until failures
 *  have become the rule. */
int runPoster(const QStringList& arguments);
/** ROOT SEED: reads meters until it is killed. */
int runReader(const QStringList& arguments);

}  // namespace storm
