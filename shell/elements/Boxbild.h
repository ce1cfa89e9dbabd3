#pragma once

#include <QIcon>
#include <QStyle>

/// The picture of a message box, drawn in its own size at every scale of the screen; null for any other picture.
QIcon boxbild(QStyle::StandardPixmap art);
