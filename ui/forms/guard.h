#pragma once
// The one net under every event handler: an error ends in a box, never in the event loop.
#include <functional>

#include "ui/model/prompts.h"

/** Runs work; an error of any kind goes to say with a number and a text. True: there was none. */
bool guardedBy(const std::function<void()>& work, const std::function<void(const jet::Error&)>& say);

/** The same with the box for run-time errors. */
bool guarded(Prompts& prompts, const std::function<void()>& work);
