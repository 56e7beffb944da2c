#include "store/jet/tree.h"

#include <algorithm>

namespace jet {

namespace {

void collectSources(const From& from, std::vector<const From*>& sources) {
  if (from.sides.empty()) sources.push_back(&from);
  for (const From& side : from.sides) collectSources(side, sources);
}

}  // namespace

std::vector<const From*> sourcesOf(const From& from) {
  std::vector<const From*> sources;
  collectSources(from, sources);
  return sources;
}

std::vector<const From*> sourcesAsWritten(const std::vector<From>& from) {
  std::vector<const From*> sources;
  for (const From& each : from) collectSources(each, sources);
  std::sort(sources.begin(), sources.end(), [](const From* a, const From* b) { return a->place < b->place; });
  return sources;
}

}  // namespace jet
