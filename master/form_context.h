#pragma once
// What every form is handed: the session, the pickers, and the way to other forms.
#include "master/pickers.h"
#include "store/session.h"
#include "ui/commands.h"

struct FormContext {
  Session& session;
  Pickers& pickers;
  Commands& commands;
};
