#pragma once

class QLineEdit;

/// Makes a field one that shows a count: flat, on the ground of the screen, aligned to the right, ten digits wide.
QLineEdit* alsZaehler(QLineEdit* feld);
