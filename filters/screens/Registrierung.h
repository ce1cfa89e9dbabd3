#pragma once

class BildschirmVerzeichnis;

/// Names the screens of the draw filters.
void registriereFilterbildschirme(BildschirmVerzeichnis& verzeichnis);
