#pragma once
// The hand-over of customers to the separate sender tools: a list file beside the tool, then the tool is started. Serves
// any grid with a tick, a name and a telephone column. Nothing is sent from here.
#include "store/session.h"
#include "ui/model/spread_model.h"

/** 0 is the text tool, any other the one for fax and voice. */
enum SenderTool { TextTool = 0, RelayTool = 1 };
/** "문자전송" or "팩스/음성전송", as buttons and questions name it. */
QString senderLabel(int toolIndex);

/** The folder that holds the tool: the program's own, else the one the tool told when it was installed; '' after telling
 *  that there is none. */
QString GetSenderPath(Session& session, int toolIndex);

/** Writes "number,name" in code page 949 for every number of a ticked row; an old file goes first. False when it cannot
 *  be written. path: as the texts write it. */
bool CreateTelListFile(const Session& session, const SpreadModel& grid, const QString& path, int colCheck,
                       int colName, int colTel);

/** The whole hand-over; True when the tool was started. Without a ticked row, or when the list cannot be written, the
 *  tool starts without a list. */
bool TransFromSpread(Session& session, const SpreadModel& grid, int colCheck, int colName, int colTel,
                     int toolIndex);
