#pragma once
// A PC on which other programs are started: they are looked for, noted and come up or not.
#include "tests/support.h"

namespace tests {

struct StartingPc : TestPc {
  QStringList started;  ///< program, then its arguments
  bool starts = true;

  StartingPc() {
    session.AppTitle = "해온판매";
    pc.process.setStarter([this](const QString& program, const QStringList& arguments, const QString&) {
      started = QStringList(QFileInfo(program).fileName()) + arguments;
      return starts;
    });
  }
  /** An empty file in the program's folder. */
  void install(const QString& program) { writeFile(pc.paths.native("C:\\RWGas\\" + program)); }
};

}  // namespace tests
