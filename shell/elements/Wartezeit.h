#pragma once

#include <chrono>

class Lauf;

/// Waits while the event loop turns: the pace of an animation. False once the run is to stop.
bool warte(Lauf& lauf, std::chrono::milliseconds dauer);
