#pragma once
// Every grid as a spreadsheet file.
#include <QString>

class SpreadModel;
struct Session;

/** Sends the grid's shown columns to a file in "\ExpExcel" under the program folder and opens it; where
 *  nothing opens such files, tells where it lies. quiet leaves the
 *  question out. Amounts go as numbers, everything else as text. The file is a workbook of today's kind and is named
 *  by what it is (".xlsx"): one that called itself ".XLS" would be opened with a warning. What was done stands beside
 *  it in a file that ends in "LOG.TXT". The written path; empty when nothing was exported. */
QString ExportToExcelFile(Session& session, const SpreadModel& grid, const QString& title, bool quiet = false,
                          bool keepHeaders = true);
