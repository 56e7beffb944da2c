#pragma once
// A PC with a session on it and what stands behind a session on the screen: boxes, printers, previews.
#include "store/session.h"
#include "store/support_log.h"
#include "ui/forms/message_boxes.h"
#include "ui/paper/printers.h"
#include "ui/paper/report_viewer.h"

struct Desk {
  /** root: the folder that stands for the PC's drives and settings. An error that a box tells goes to its support log. */
  explicit Desk(const QString& root)
      : pc(root),
        boxes([this] { return session.AppTitle; },
              [this](const QString& window, const jet::Error& error) {
                support::noteError(pc, window, error);
              }),
        session(pc, boxes),
        printers(pc),
        reports(session) {
    session.printers = &printers;
    session.reports = &reports;
  }
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;

  pc::Pc pc;
  MessageBoxes boxes;
  Session session;
  PcPrinters printers;
  ReportViewer reports;
};
