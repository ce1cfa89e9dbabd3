#pragma once

#include "shell/logic/Uhr.h"

#include <functional>

/// Calls `pumpe` again and again until `sekunden` have passed on the clock's `Timer`, or until it gives false because
/// the program ends. Midnight is not looked after: a wait that would end behind it goes on until the pump ends it.
void Warte(double sekunden, const Uhr& uhr, const std::function<bool()>& pumpe);
