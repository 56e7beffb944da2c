#pragma once
// Companion tools: started by the path the texts write, and files shown by the PC's own program for them.
#include <QString>
#include <QStringList>
#include <functional>

#include "pc/paths.h"

namespace pc {

/** Starts programs of the PC and does not wait for them. A test puts in a starter of its own. */
class Process {
 public:
  /** program and folder are the PC's own paths; False when nothing was started. */
  using Starter =
      std::function<bool(const QString& program, const QStringList& arguments, const QString& folder)>;

  explicit Process(const Paths& paths) : paths_(paths) {}

  /** False when there is no such file or it does not start. What the program's folder lacks is looked for where this
   *  program is installed: there lie the companions that come with it. */
  bool start(const QString& written, const QStringList& arguments = {}) const;
  /** Hands a file or folder to the PC's own program for it; False when the file or such a program is missing. */
  bool open(const QString& written) const;
  /** Runs a command line of one program and one file, "notepad C:\\RWGas\\202603Out.txt". Outside Windows its own
   *  programs are missing: the file goes to the PC's program for it. False when nothing was started. */
  bool shell(const QString& line) const;
  void setStarter(Starter starter) { starter_ = std::move(starter); }

 private:
  bool run(const QString& program, const QStringList& arguments, const QString& folder) const;

  const Paths& paths_;
  Starter starter_;
};

}  // namespace pc
