#include "pc/program_line.h"

#include <cstdio>
#include <string_view>

namespace pc {
namespace {

void printUse(FILE* to, const ProgramLine& line) {
  std::fprintf(to, "usage: %s%s%s\n", line.name, *line.arguments ? " " : "", line.arguments);
}

}  // namespace

bool saidOfItself(const ProgramLine& line, int argc, char** argv) {
  if (argc != 2) return false;
  const std::string_view asked = argv[1];
  if (asked == "--version") {
    std::printf("%s %s\n", line.name, HAEON_VERSION);
  } else if (asked == "--help") {
    printUse(stdout, line);
    std::printf("%s\n", line.what);
  } else {
    return false;
  }
  return true;
}

int wrongUse(const ProgramLine& line) {
  printUse(stderr, line);
  return 2;
}

}  // namespace pc
