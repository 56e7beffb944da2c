#pragma once
// Handing finished pages to one of the PC's print queues (CUPS). The toolkit's own way keeps silent when a queue
// refuses a job and prints what was abandoned; here a job goes out whole or not at all.
#include <QString>

#include "pc/print_job.h"

/** The name of a new empty file in the temporary folder. Throws PrintError. */
QString newSpoolFile();

/** Prints a PDF without scaling. Throws PrintError with the queue's own reason when it does not take the job. */
void sendToQueue(const QString& printer, const QString& title, const QString& file,
                 const pc::PaperSize& paper);
