#pragma once

class BildschirmVerzeichnis;

/// Names the screens of the searches through combinations.
void registriereSuchbildschirme(BildschirmVerzeichnis& verzeichnis);
