// One target under libFuzzer; which one is chosen when it is built.
#include "tests/fuzz/targets.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const fuzz::Target target = [] {
    for (const fuzz::Target& each : fuzz::targets())
      if (QByteArrayView(each.name) == HAEON_FUZZ_TARGET) return each;
    std::abort();
  }();
  target.run(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
  return 0;
}
