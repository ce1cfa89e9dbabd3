#pragma once

#include <functional>

class QWidget;

/// Calls `tue` on every double click with the left button on a control that has no click of its own, such as a
/// heading.
void beiDoppelklick(QWidget* feld, const std::function<void()>& tue);
