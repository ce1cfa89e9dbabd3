#include "tips/screens/Registrierung.h"

void registriereTippbildschirme(BildschirmVerzeichnis& verzeichnis)
{
    static_cast<void>(verzeichnis);
}
