#pragma once
// What every program says of itself on its command line.

namespace pc {

struct ProgramLine {
  const char* name;
  const char* arguments;  ///< as in "jetsql [-h] FILE"; "" where there are none
  const char* what;       ///< sentences, with their line breaks
};

/** Answers --help or --version, alone on the line, on standard output; true: it was asked and the program ends well.
 *  Needs no display. */
bool saidOfItself(const ProgramLine& line, int argc, char** argv);
/** The line after "usage: " on standard error. Gives the status of a line that is none: 2. */
int wrongUse(const ProgramLine& line);

}  // namespace pc
