#pragma once
// The three roads of a run of papers, for every form that prints them: to a printer, to a window, into PDF files.
#include "papers/document_run.h"

class QWidget;

/** Documents that went out. The bar over the window stops the run between two of them; what was put goes out. Throws
 *  PrintError when the printer is not there or refuses. */
int printRun(Session& session, QWidget* over, const DocumentRun& run, const QString& printer);

/** The same papers in a window; its print button closes it and runs print. */
void previewRun(Session& session, QWidget* over, const DocumentRun& run, const std::function<void()>& print);

/** One document asks for its file, several for a folder; each becomes a file of its own name, and one that is there
 *  already is kept: the new one gets a number. 0 when the operator leaves. */
int saveRun(Session& session, QWidget* over, const DocumentRun& run);

/** Asks for the folder of several files; '' when the operator leaves. A test puts its own in its place. */
using FolderAsker = std::function<QString(QWidget* over, const QString& offered)>;
FolderAsker& folderAsker();
