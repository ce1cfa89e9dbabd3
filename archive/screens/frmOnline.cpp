#include "archive/screens/frmOnline.h"

#include "archive/logic/Onlinetexte.h"
#include "archive/screens/Fortschrittsfeld.h"
#include "archive/screens/Spielartlader.h"
#include "archive/screens/Updateserver.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Dateien.h"

#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace {

constexpr std::int64_t kZug = 16; ///< milliseconds between two turns of the event loop

/// A transfer that takes longer has failed, even if a byte comes now and then.
constexpr std::chrono::minutes kHoechstdauer{10};

constexpr auto kSalotto = "Aktualisieren Samstagslotto (Salotto.dat)";
constexpr auto kMalotto = "Aktualisieren Mittwochslotto (Malotto.dat)";

constexpr int kAdressbreite = 340; ///< pixels

const QColor kBalken(192, 192, 0);

} // namespace

frmOnline::frmOnline(Umgebung& umgebung)
    : Bildschirm(umgebung, "frmOnline", "Aktualisierung der Ziehungsdateien"),
      internet_([this] { return warte(); }),
      dl(internet_,
         {[this] { return seitStart_.elapsed(); }, [this] { return istZeitFuerZug(); }, [this] { gibZug(); }})
{
    seitStart_.start();
    dl.Update = [this] { dl_Update(); };
    baueFelder();

    // clang-format off
    Bloecke figuren;
    for (std::size_t i = 0; i < lblInfo.size(); ++i) {
        figuren.emplace_back(lblInfo[i]);
        figuren.emplace_back(dehnbar(lblStatus[i]));
    }
    fraStatus = rahmen("fraStatus", "Status", spalte({
        raster(6, figuren),
        zeile({dehnbar(Picture1), Label3}),
        lblStatus[6],
    }));
    setzeInhalt(spalte({
        eng(spalte({Label1, zeile({dehnbar(txtSa), cmdStart[1]})})),
        eng(spalte({Label2, zeile({dehnbar(txtMa), cmdStart[2]})})),
        eng(spalte({lblURL, zeile({dehnbar(txtURL), cmdStart[0]})})),
        zeile({lblVerz, dehnbar(txtFolder)}),
        fraStatus,
        Label4,
        luecke(),
        zeile({Command1, luecke(), Command2}),
    }));
    // clang-format on

    hauptaktionen({cmdStart[1], cmdStart[2], cmdStart[0]});
    enterDrueckt(txtSa, cmdStart[1]);
    enterDrueckt(txtMa, cmdStart[2]);
    enterDrueckt(txtURL, cmdStart[0]);

    bei(cmdStart[0], [this] { starte(Onlineaufgabe::Zip); });
    bei(cmdStart[1], [this] { starte(Onlineaufgabe::Samstag); });
    bei(cmdStart[2], [this] { starte(Onlineaufgabe::Mittwoch); });
    bei(Command1, [this] { melde(downloadHilfe()); });
    bei(Command2, [this] { schliesse(); });
}

void frmOnline::baueFelder()
{
    cmdStart[0] = befehl("cmdStart(0)", "Ziehungsdateien als ZipFile downloaden",
                         hinweis("Download aller Ziehungsdateien. Für den Fall, dass die Ziehungsdateien nicht mehr "
                                 "vorhanden sind."));
    cmdStart[1] = befehl("cmdStart(1)", kSalotto, hinweis("Aktualisieren Samstagslotto"));
    cmdStart[2] = befehl("cmdStart(2)", kMalotto, hinweis("Aktualisieren Mittwochslotto"));
    for (QPushButton* knopf : cmdStart)
        knopf->setMinimumWidth(cmdStart[2]->sizeHint().width());
    txtFolder = textfeld("txtFolder");
    txtSa = textfeld("txtSa", updateAdresse("/lotto/Salotto.dat"));
    txtMa = textfeld("txtMa", updateAdresse("/lotto/Malotto.dat"));
    txtURL = textfeld("txtURL", updateAdresse("/lotto/ziehungen.zip"));
    lblURL = bezeichnung("lblURL", "Alle Ziehunsdateien als ZipFile (Sa, Mi und alte Mittwochziehung B)");
    Label1 = bezeichnung("Label1", kSalotto);
    Label2 = bezeichnung("Label2", kMalotto);
    Label3 = bezeichnung("Label3", "0 %");
    Label4 = bezeichnung("Label4", "Hinweis: Für die Aktualisierung muss der Computer mit dem Internet verbunden sein. "
                                   "Das Programm startet selbst keine Verbindung.");
    Label4->setWordWrap(true);
    lblVerz = bezeichnung("lblVerz", "Zielverzeichnis :");
    feld(lblInfo, "lblInfo");
    feld(lblStatus, "lblStatus");
    const std::array infos{"Größe:", "Empfangen:", "Zeit:", "Restzeit:", "Gesamtzeit:", "Geschwindigkeit:"};
    for (std::size_t i = 0; i < infos.size(); ++i)
        lblInfo[i]->setText(infos[i]);
    for (QLabel* figur : lblStatus) {
        figur->setTextFormat(Qt::PlainText);
        figur->setMinimumWidth(fontMetrics().horizontalAdvance("999.999,99 KB/s"));
    }
    Label3->setMinimumWidth(fontMetrics().horizontalAdvance("100,0 %"));
    for (QLineEdit* adresse : {txtSa, txtMa, txtURL})
        adresse->setMinimumWidth(kAdressbreite);
    Picture1 = new Fortschrittsfeld(this);
    Picture1->setObjectName("Picture1");
    Command1 = befehl("Command1", "Hilfe");
    Command2 = befehl("Command2", "<<", hinweis("Zum Lotto-Auswahlmenü"));
}

void frmOnline::beimZeigen()
{
    txtFolder->setText(qt(mitTrenner(umgebung().archiv.ProgrammVerzeichnis)));
}

void frmOnline::starte(Onlineaufgabe aufgabe)
{
    Lauf lauf(*this);
    if (!lauf)
        return;
    setzeAnzeigeZurueck();
    Onlineaktualisierung aktualisierung(aufgabe, umgebung().archiv.ProgrammVerzeichnis, utf8(txtFolder->text()));
    if (!QFileInfo(txtFolder->text()).isDir() || !aktualisierung.beginne()) {
        melde({"", "Bitte ein gültiges, vorhandenes Verzeichnis angeben."});
        return;
    }
    if (aufgabe != Onlineaufgabe::Zip)
        waehle(spielartVon(aufgabe));
    sperre(true);
    if (!uebertrage(aktualisierung, aufgabe))
        return;
    sperre(false);
    cmdStart.at(static_cast<std::size_t>(aufgabe))->setFocus();
}

/// Loads a game, which becomes the one of the menu. False if its file is missing: that is no reason for a box here, it
/// may be what the user has come to fetch.
bool frmOnline::waehle(std::int16_t spielart)
{
    if (!gibtZiehungsdatei(umgebung().archiv.ProgrammVerzeichnis, spielart))
        return false;
    umgebung().menue->waehleSpielart(spielart);
    return true;
}

/// False if the new file was rejected: then the start buttons stay disabled.
bool frmOnline::uebertrage(Onlineaktualisierung& aktualisierung, Onlineaufgabe aufgabe)
{
    const bool zip = aufgabe == Onlineaufgabe::Zip;
    lblStatus[6]->setText(zip ? "Status: Download wird gestartet. Bitte warten ..."
                              : "Status: Aktualisierung wird gestartet. Bitte warten ...");
    const std::array quellen{txtURL, txtSa, txtMa};
    const QString quelle = quellen.at(static_cast<std::size_t>(aufgabe))->text();
    begonnen_ = umgebung().uhr.jetzt();
    zuLange_ = false;
    dl.Download(utf8(quelle), aktualisierung.empfangsordner());
    if (zuLange_)
        lblStatus[6]->setText(qt(statusZuLange()));
    const auto bytes = zuLange_ ? std::nullopt : std::optional<std::int64_t>(dl.ReceivedBytes());
    const Onlineausgang ausgang = aktualisierung.schliesseAb(bytes, [this] { return gibZugWennEsZeitIst(); });
    if (ausgang == Onlineausgang::Abgewiesen)
        melde(abweisung());
    else if (ausgang == Onlineausgang::Besetzt)
        lblStatus[6]->setText(qt(statusBesetzt()));
    else if (ausgang == Onlineausgang::Uebernommen && !zip)
        zeigeErfolg(aufgabe);
    return ausgang != Onlineausgang::Abgewiesen;
}

void frmOnline::zeigeErfolg(Onlineaufgabe aufgabe)
{
    if (waehle(spielartVon(aufgabe)) && umgebung().archiv.AnzahlZiehungen > 0)
        melde(erfolgsmeldung(umgebung().archiv));
}

void frmOnline::setzeAnzeigeZurueck()
{
    for (QLabel* figur : lblStatus)
        figur->setText("0");
    Label3->setText("0 %");
    O_ShowProgressBar(Picture1, 100, Qt::black, 100);
    ref();
}

void frmOnline::sperre(bool gesperrt)
{
    for (QPushButton* knopf : cmdStart)
        knopf->setEnabled(!gesperrt);
}

void frmOnline::melde(const Meldung& meldung)
{
    umgebung().boxen.info(meldung.titel.empty() ? kProgrammtitel : qt(meldung.titel), qt(meldung.text));
}

/// A chunk has come or an error has ended the transfer. The screen follows at the pace of the eye, with the next turn
/// of the event loop.
void frmOnline::dl_Update()
{
    figurenSindAlt_ = true;
    if (dl.ErrorNumber() != 0 || istZeitFuerZug())
        gibZug();
}

void frmOnline::zeigeFiguren()
{
    const Downloadfiguren figuren{dl.Size(),  dl.ReceivedBytes(), dl.Downloadtime(),
                                  dl.Speed(), dl.ErrorNumber(),   dl.ErrorDescription()};
    if (const auto status = downloadStatus(figuren))
        lblStatus[6]->setText(qt(*status));
    const auto anzeige = downloadanzeige(figuren);
    if (!anzeige)
        return;
    for (std::size_t i = 0; i < anzeige->werte.size(); ++i)
        lblStatus[i]->setText(qt(anzeige->werte[i]));
    Label3->setText(qt(anzeige->anteil));
    O_ShowProgressBar(Picture1, anzeige->prozent, kBalken, 100);
}

void frmOnline::ref()
{
    Picture1->fuelle(0, {});
    repaint();
}

void frmOnline::O_ShowProgressBar(Fortschrittsfeld* box, double percent, const QColor& color, double max) const
{
    box->fuelle(fortschrittsbreite(percent, max, box->contentsRect().width()), color);
}

bool frmOnline::istZeitFuerZug() const
{
    return seitStart_.elapsed() - letzterZug_ >= kZug;
}

void frmOnline::gibZug()
{
    if (std::exchange(figurenSindAlt_, false))
        zeigeFiguren();
    if (!umgebung().pumpe.verarbeite())
        stoppe();
    if (gestoppt())
        dl.StopDownload(true);
    letzterZug_ = seitStart_.elapsed();
}

bool frmOnline::gibZugWennEsZeitIst()
{
    if (istZeitFuerZug())
        gibZug();
    return !gestoppt();
}

/// The transfer waits for the server. False once it is to end.
bool frmOnline::warte()
{
    const bool weiter = gibZugWennEsZeitIst();
    zuLange_ = umgebung().uhr.jetzt() - begonnen_ >= kHoechstdauer;
    return weiter && !zuLange_;
}

/// The menu's option, the Spielart and the archive agree again. Without an option of one game the Spielart stays.
void frmOnline::beimSchliessen()
{
    dl.StopDownload(true);
    if (!umgebung().menue)
        return;
    ZiehungsArchiv& archiv = umgebung().archiv;
    const std::int16_t gewaehlte = umgebung().menue->gewaehlteSpielart();
    archiv.Spielart = gewaehlte != SpielartStart ? gewaehlte : std::max<std::int16_t>(archiv.Spielart, Samstagslotto);
    if (!gibtZiehungsdatei(archiv.ProgrammVerzeichnis, archiv.Spielart))
        archiv.AnzahlZiehungen = 0;
    else if (gewaehlte != SpielartStart)
        umgebung().menue->waehleSpielart(gewaehlte);
    else
        ladeSpielart(umgebung(), archiv.Spielart);
}
