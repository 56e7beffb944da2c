#pragma once
// The least drawing that puts recorded texts and lines on a PDF file: what the program's printing is held against.
#include <QPageLayout>

#include "tests/recorded_print.h"

namespace bench {

/** On A4, each text in its font at its place. */
void drawPlainly(const tests::RecordedJob& job, const QString& file, QPageLayout::Orientation orientation);

}  // namespace bench
