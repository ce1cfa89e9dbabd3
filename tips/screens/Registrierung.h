#pragma once

class BildschirmVerzeichnis;

/// Names the screens of the tips.
void registriereTippbildschirme(BildschirmVerzeichnis& verzeichnis);
