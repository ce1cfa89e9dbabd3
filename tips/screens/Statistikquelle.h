#pragma once

#include "tips/logic/Tippvorschlag.h"

#include <QScopedValueRollback>

struct Umgebung;

/// The statistics that tip proposals take numbers from: the records of the statistics' own screens, which are loaded
/// for a moment and put away unseen. On the B game, which has no new tips, no button of theirs is pressed: what they
/// hold before is taken.
class Statistikquelle {
public:
    explicit Statistikquelle(Umgebung& umgebung);

    /// `sw` is 1..53.
    Statistikliste wochenliste(int sw);
    Statistikliste haeufigkeitsliste();
    Statistikliste abwesenheitsliste();

private:
    Umgebung& umgebung_;
    QScopedValueRollback<bool> vorschlagLaeuft_;
};
