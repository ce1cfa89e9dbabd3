#pragma once

class BildschirmVerzeichnis;

/// Names the screens of the draw archive.
void registriereArchivbildschirme(BildschirmVerzeichnis& verzeichnis);
