#pragma once
// A save that is refused.
#include "master/registers/register_rules.h"
#include "tests/support.h"

namespace tests {

/** The box that the focus goes to when a register refuses these with one notice. */
inline QString refusedAt(ScriptedPrompts& prompts, RegisterRules& rules, const RegisterFields& boxes,
                         const QString& told) {
  prompts.expect(told);
  const auto saved = rules.save(boxes);
  EXPECT_FALSE(saved.done) << told.toStdString();
  return saved.focus;
}

}  // namespace tests
