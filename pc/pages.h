#pragma once
// Pages that stand ready and are drawn one by one, in any order: a report, the papers of a run.
#include "pc/print_job.h"

namespace pc {

class Pages {
 public:
  virtual ~Pages() = default;
  virtual int count() const = 0;
  virtual PaperSize paper() const = 0;
  /** Draws one page (from 0) on the job's current page. */
  virtual void draw(PrintJob& job, int page) const = 0;
};

}  // namespace pc
