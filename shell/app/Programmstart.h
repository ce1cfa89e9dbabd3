#pragma once

class BildschirmVerzeichnis;
struct Umgebung;

/// Names every screen of the program. A tool that is not among them is grey on the selection menu.
void registriereBildschirme(BildschirmVerzeichnis& verzeichnis);

/// Loads the archive and shows the selection menu; a box names a missing file until it is there.
void starteProgramm(Umgebung& umgebung);
