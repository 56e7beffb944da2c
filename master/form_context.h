#pragma once
// What every form is handed: the session, the pickers, the way to other forms, the calls that wait.
#include "master/calls.h"
#include "master/pickers.h"
#include "store/session.h"
#include "ui/commands.h"

struct FormContext {
  Session& session;
  Pickers& pickers;
  Commands& commands;
  WaitingCalls& calls;
};
