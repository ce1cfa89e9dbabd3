#include "shell/elements/Wartezeit.h"

#include "shell/elements/Lauf.h"

#include <QThread>

#include <algorithm>

bool warte(Lauf& lauf, std::chrono::milliseconds dauer)
{
    using Zeit = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds kSchlaf{5}; // what the user does is noticed as soon
    const Zeit::time_point ende = Zeit::now() + dauer;
    bool weiter = lauf.zug();
    for (Zeit::time_point jetzt = Zeit::now(); weiter && jetzt < ende; jetzt = Zeit::now()) {
        const auto rest = std::chrono::ceil<std::chrono::milliseconds>(ende - jetzt);
        QThread::msleep(static_cast<unsigned long>(std::min(rest, kSchlaf).count()));
        weiter = lauf.zug();
    }
    return weiter;
}
