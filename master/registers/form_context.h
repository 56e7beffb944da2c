#pragma once
// What every form is handed: the session, the pickers, the way to other forms, the calls that wait.
#include "master/customers/calls.h"
#include "master/registers/pickers.h"
#include "store/session.h"
#include "ui/model/commands.h"

struct FormContext {
  Session& session;
  Pickers& pickers;
  Commands& commands;
  WaitingCalls& calls;
};
