#pragma once

class BildschirmVerzeichnis;

/// Names every screen of the program. A tool that is not in here is grey on the selection menu.
void registriereBildschirme(BildschirmVerzeichnis& verzeichnis);
