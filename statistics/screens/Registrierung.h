#pragma once

class BildschirmVerzeichnis;

/// Names the screens of the number statistics.
void registriereStatistikbildschirme(BildschirmVerzeichnis& verzeichnis);
