#pragma once
// Why a report layout is refused.
#include "pc/report_layout.h"

namespace tests {

/** The words of the refusal; '' for a layout that is understood. */
inline QString refusalOf(const QString& layout) {
  try {
    pc::parseReportLayout(layout);
  } catch (const pc::ReportError& error) {
    return error.text;
  }
  return {};
}

}  // namespace tests
