#pragma once
// A retailer's books for the storm: real files in a folder, worked on by several processes, and what must be true of
// them at any moment at which nobody posts.
#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>

#include "pc/pc.h"
#include "store/session.h"
#include "ui/model/prompts.h"

namespace storm {

constexpr int clientCount = 40;           ///< codes 1 to clientCount, all of whom owe the same at first
constexpr int meteredCount = 15;          ///< codes behind them, with a meter and thirteen rows each
constexpr int readMonth = 3;              ///< the month that is read
constexpr qint64 startBalance = 500'000;  ///< won, gas and material alike

/** Says Yes to every question and keeps what it was told; nobody sits at this PC. */
class LonePrompts : public Prompts {
 public:
  QStringList told;          ///< texts of notices and warnings
  QList<int> failures;       ///< numbers of the error boxes
  QStringList failureTexts;  ///< their Korean texts

  void MsgInfo(const QString& text, const QString&) override { told << text; }
  void MsgWarn(const QString& text, const QString&) override { told << text; }
  bool MsgAsk(const QString&, const QString&, bool) override { return true; }
  void ErrorBox(const QString& text, int number, const QString& description) override {
    told << text;
    failures << number;
    failureTexts << description;
  }
  std::optional<QString> InputBox(const QString&, const QString&, const QString& initial) override {
    return initial;
  }
};

/** Told in words to the operator. */
bool isKorean(const QString& text);

/** One PC on the folder below root. */
struct Pc {
  explicit Pc(const QString& root);
  /** Makes the empty files, the customers and the catalogue. */
  void makeBooks();
  /** As at the end of a start. Throws jet::Error. */
  void open();
  void close();

  pc::Pc pc;
  LonePrompts prompts;
  Session session{pc, prompts};
};

/** The same with its files open. */
struct OpenPc : Pc {
  explicit OpenPc(const QString& root) : Pc(root) { open(); }
};

/** A line of Sale as a process has told it. */
struct Line {
  int kind = 0;
  qint64 client = 0, number = 0, income = 0, trust = 0;
  bool operator==(const Line&) const = default;
  QString text() const;
};
using Lines = QMap<qint64, Line>;

/** Sale as it lies in the year file. */
Lines storedLines(const Session& session);

/** Meter and bill of the month that is read, by customer. */
using Readings = QMap<qint64, QPair<qint64, qint64>>;
Readings storedReadings(const Session& session);

/** What is wrong with the books: an integrity check of every file, balances and stock recomputed from the lines of
 *  Sale, and bills that were not carried into the next month. Empty when all is well. */
QStringList faultsOf(const QString& root);

}  // namespace storm
