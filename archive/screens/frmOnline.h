#pragma once

#include "archive/logic/Downloadanzeige.h"
#include "archive/logic/Onlineaktualisierung.h"
#include "archive/logic/clsDownload.h"
#include "archive/screens/HttpInternet.h"
#include "shell/elements/Bildschirm.h"
#include "shell/logic/Meldung.h"

#include <QElapsedTimer>

class Fortschrittsfeld;

/// Fetches the Ziehungsdateien from the update server.
class frmOnline final : public Bildschirm {
public:
    explicit frmOnline(Umgebung& umgebung);

    void beimZeigen() override;

protected:
    void beimSchliessen() override;

private:
    void baueFelder();
    void starte(Onlineaufgabe aufgabe);
    bool waehle(std::int16_t spielart);
    bool uebertrage(Onlineaktualisierung& aktualisierung, Onlineaufgabe aufgabe);
    void zeigeErfolg(Onlineaufgabe aufgabe);
    void setzeAnzeigeZurueck();
    void sperre(bool gesperrt);
    void melde(const Meldung& meldung);

    void dl_Update();
    void zeigeFiguren();
    void ref();
    void O_ShowProgressBar(Fortschrittsfeld* box, double percent, const QColor& color, double max) const;

    bool istZeitFuerZug() const;
    void gibZug();
    bool gibZugWennEsZeitIst();
    bool warte();

    HttpInternet internet_;
    clsDownload dl;
    QElapsedTimer seitStart_;
    std::int64_t letzterZug_ = 0; ///< milliseconds on `seitStart_`
    bool figurenSindAlt_ = false; ///< a chunk or an error has come since they were shown
    Zeitpunkt begonnen_;          ///< when the transfer began
    bool zuLange_ = false;        ///< the transfer has ended because it took too long

    std::array<QPushButton*, 3> cmdStart;
    QLineEdit *txtFolder, *txtSa, *txtMa, *txtURL;
    QLabel *lblURL, *Label1, *Label2, *Label3, *Label4, *lblVerz;
    QGroupBox* fraStatus;
    std::array<QLabel*, 6> lblInfo;
    std::array<QLabel*, 7> lblStatus; ///< six figures and (6) the status line
    Fortschrittsfeld* Picture1;
    QPushButton *Command1, *Command2;
};
