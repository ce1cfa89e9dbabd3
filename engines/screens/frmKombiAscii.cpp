#include "engines/screens/frmKombiAscii.h"

#include "archive/logic/ZiehungsArchiv.h"
#include "engines/logic/Exporttexte.h"
#include "shell/elements/SpezialOrdner.h"
#include "shell/elements/Utf8.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

namespace {

constexpr auto kInfo =
    "Das Programm erzeugt alle Kombinationen von 2 bis 6 Zahlen aus 49 und schreibt sie in Textdateien, in jede Zeile "
    "eine Kombination.\n\n"
    "Die Datei aller 13.983.816 Kombinationen 6aus49 wird bis zu 540 MB groß. Der einfache Editor des Systems kann "
    "eine so große Datei nicht öffnen. Deshalb lassen sich die Kombinationen 6aus49 und 5aus49 auch auf mehrere "
    "Teildateien mit je 200.000 Zeilen verteilen.\n\n"
    "Mit Bankzahlen werden nur die Kombinationen geschrieben, in denen alle ausgewählten Bankzahlen enthalten sind, "
    "mit einem Bereich nur die, deren Zahlen alle in ihm liegen.\n\n"
    "Eine Datei bekommt ihren Namen erst, wenn sie fertig ist. Nach einem Abbruch bleiben die fertigen Teildateien.";

constexpr std::array kGroessen{"2aus49", "3aus49", "4aus49", "5aus49", "6aus49"};
constexpr std::array kBankwahlen{" keine", "1", "2", "3", "4", "5", "Nur Zahlen aus einem Bereich"};
constexpr std::array kTrennernamen{"Leerzeichen", ",", ";", "TAB"};
constexpr std::array kDateiwahlen{"Nur einer Datei?", "Mehreren Teildateien?"};

template <std::size_t N> std::size_t gewaehlte(const std::array<QRadioButton*, N>& optionen)
{
    const auto an = std::ranges::find_if(optionen, [](const QRadioButton* knopf) { return knopf->isChecked(); });
    return static_cast<std::size_t>(an - optionen.begin());
}

template <std::size_t N> Bloecke alle(const std::array<QRadioButton*, N>& optionen)
{
    return {optionen.begin(), optionen.end()};
}

std::filesystem::path inidatei(const Umgebung& umgebung)
{
    return std::filesystem::path(umgebung.archiv.ProgrammVerzeichnis) / "druck_settings.ini";
}

/// The user's documents, or the program's own folder where there are none.
QString ueblicherOrdner(const Umgebung& umgebung)
{
    const QString dokumente = SpezialOrdner(kCsidlDokumente);
    return QDir(dokumente).exists() && !dokumente.isEmpty() ? dokumente : qt(umgebung.archiv.ProgrammVerzeichnis);
}

} // namespace

frmKombiAscii::frmKombiAscii(Umgebung& umgebung) : Bildschirm(umgebung, "frmKombiAscii", qt(kExporttitel))
{
    QLayout* wahl = wahlblock();
    QLayout* form = formblock();
    cmdSpeicherpfad = befehl("cmdSpeicherpfad", "Speicherordner &wählen");
    cmdOpen = befehl("cmdOpen", "Ordner &öffnen");
    lblPfad = bezeichnung("lblPfad");
    lblDateien = bezeichnung("lblDateien");
    lblAnzahl = bezeichnung("lblAnzahl");
    lblZeit = bezeichnung("lblZeit");
    cmdStart = befehl("cmdStart", "&Start");
    cmdAbbruch = befehl("cmdAbbruch", "&Abbruch");
    cmdInfo = befehl("cmdInfo", "&Info");
    cmdEnd = befehl("cmdEnd", ">>");
    lblPfad->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblPfad->setWordWrap(true);
    cmdAbbruch->setEnabled(false);

    // clang-format off
    setzeInhalt(spalte({
        wahl,
        form,
        rahmen("frmPfad", "Speicherordner", spalte({
            lblPfad,
            lblDateien,
            zeile({cmdSpeicherpfad, cmdOpen, luecke()}),
        })),
        zeile({cmdStart, cmdAbbruch, lblAnzahl, luecke(), lblZeit}),
        luecke(),
        zeile({cmdInfo, luecke(), cmdEnd}),
    }));
    // clang-format on

    hauptaktionen({cmdStart});
    stoppknopf(cmdAbbruch);
    optK.back()->setChecked(true);
    optBZ.front()->setChecked(true);
    zeigeEinstellungen(liesExporteinstellungen(inidatei(umgebung)));
    verbinde();
    zeigeAuftrag();
}

QLayout* frmKombiAscii::wahlblock()
{
    for (std::size_t i = 0; i < optK.size(); ++i)
        optK[i] = option(QString("optK(%1)").arg(i), kGroessen[i]);
    for (std::size_t i = 0; i < optBZ.size(); ++i)
        optBZ[i] = option(QString("optBZ(%1)").arg(i), kBankwahlen[i]);
    for (std::size_t i = 0; i < cmbB.size(); ++i)
        cmbB[i] = kombi(QString("cmbB(%1)").arg(i));
    cmbVon = kombi("cmbVon");
    cmbBis = kombi("cmbBis");
    lblBis = bezeichnung("lblBis");
    fuelleZahlenboxen();

    Bloecke bankwahl = alle(optBZ);
    bankwahl.pop_back();
    bankwahl.push_back(luecke());
    Bloecke bankzahlen{cmbB.begin(), cmbB.end()};
    bankzahlen.push_back(luecke());
    frmK = rahmen("frmK", "Kombinationen", eng(spalte(alle(optK))));
    // clang-format off
    frmBZ = rahmen("frmBZ", "Bankzahlen", spalte({
        zeile(bankwahl),
        zeile(bankzahlen),
        zeile({optBZ.back(), bezeichnung("lblVon", "Z1>="), cmbVon, lblBis, cmbBis, luecke()}),
        luecke(),
    }));
    // clang-format on
    return zeile({frmK, dehnbar(frmBZ)});
}

QLayout* frmKombiAscii::formblock()
{
    for (std::size_t i = 0; i < optSep.size(); ++i)
        optSep[i] = option(QString("optSep(%1)").arg(i), kTrennernamen[i]);
    for (std::size_t i = 0; i < optEx.size(); ++i)
        optEx[i] = option(QString("optEx(%1)").arg(i), qt(kExportendungen[i]));
    for (std::size_t i = 0; i < optAll.size(); ++i)
        optAll[i] = option(QString("optAll(%1)").arg(i), kDateiwahlen[i]);
    chkKN = kontroll("chkKN", "Kombinationen nummerieren");
    frmForm = rahmen("frmNummerierung", "Nummerierung", spalte({chkKN, luecke()}));
    return zeile({
        rahmen("frmSep", "Trennzeichen", eng(spalte(alle(optSep)))),
        rahmen("frmEx", "Dateiendung", eng(spalte({optEx[0], optEx[1], luecke()}))),
        rahmen("frmAll", "Speichern in", eng(spalte({optAll[0], optAll[1], luecke()}))),
        dehnbar(frmForm),
    });
}

void frmKombiAscii::fuelleZahlenboxen()
{
    std::vector<QComboBox*> boxen{cmbVon, cmbBis};
    boxen.insert(boxen.end(), cmbB.begin(), cmbB.end());
    for (QComboBox* box : boxen)
        for (int zahl = 1; zahl <= kHoechsteZahl; ++zahl)
            box->addItem(QString::number(zahl), zahl);
    for (std::size_t i = 0; i < cmbB.size(); ++i)
        cmbB[i]->setCurrentIndex(static_cast<int>(i));
}

void frmKombiAscii::verbinde()
{
    for (QRadioButton* knopf : findChildren<QRadioButton*>())
        bei(knopf, [this] { zeigeAuftrag(); });
    for (QComboBox* box : findChildren<QComboBox*>())
        bei(box, [this] { zeigeAuftrag(); });
    bei(chkKN, [this] { zeigeAuftrag(); });
    bei(cmdStart, [this] { starte(); });
    bei(cmdAbbruch, [this] { stoppe(); });
    bei(cmdSpeicherpfad, [this] { waehleOrdner(); });
    bei(cmdOpen, [this] { oeffneOrdner(); });
    bei(cmdInfo, [this] { this->umgebung().boxen.info(kInfotitel, kInfo); });
    bei(cmdEnd, [this] { schliesse(); });
}

void frmKombiAscii::zeigeEinstellungen(const Exporteinstellungen& einstellungen)
{
    ordner_ = einstellungen.ordner.empty() ? ueblicherOrdner(umgebung()) : qt(einstellungen.ordner);
    optSep.at(einstellungen.trenner)->setChecked(true);
    optEx.at(einstellungen.endung)->setChecked(true);
    optAll.at(einstellungen.geteilt ? 1 : 0)->setChecked(true);
    chkKN->setChecked(einstellungen.nummeriert);
    cmbVon->setCurrentIndex(einstellungen.bereich.von - 1);
    cmbBis->setCurrentIndex(einstellungen.bereich.bis - 1);
}

Exporteinstellungen frmKombiAscii::einstellungen() const
{
    return {.ordner = utf8(ordner_),
            .trenner = gewaehlte(optSep),
            .endung = gewaehlte(optEx),
            .geteilt = optAll[1]->isChecked(),
            .nummeriert = chkKN->isChecked(),
            .bereich = {cmbVon->currentData().toInt(), cmbBis->currentData().toInt()}};
}

void frmKombiAscii::beimSchliessen()
{
    schreibeExporteinstellungen(inidatei(umgebung()), einstellungen());
}

Exportauftrag frmKombiAscii::auftrag() const
{
    const Exporteinstellungen wahl = einstellungen();
    Exportauftrag auftrag;
    auftrag.k = kKleinsterExport + static_cast<int>(gewaehlte(optK));
    auftrag.trenner = kExporttrenner[wahl.trenner];
    auftrag.endung = kExportendungen[wahl.endung];
    auftrag.geteilt = wahl.geteilt;
    auftrag.nummeriert = wahl.nummeriert;
    const std::size_t filter = gewaehlte(optBZ);
    if (filter == kBereichswahl)
        auftrag.bereich = wahl.bereich;
    else
        for (std::size_t i = 0; i < filter; ++i)
            auftrag.bankzahlen.push_back(cmbB[i]->currentData().toInt());
    return auftrag;
}

/// Brings everything up to date that depends on the choice. The count and the time of the last export belonged to
/// another one.
void frmKombiAscii::zeigeAuftrag()
{
    const Exportauftrag neuer = auftrag();
    for (std::size_t i = 0; i < cmbB.size(); ++i)
        cmbB[i]->setEnabled(i < neuer.bankzahlen.size());
    cmbVon->setEnabled(neuer.bereich.has_value());
    cmbBis->setEnabled(neuer.bereich.has_value());
    lblBis->setText(QString("Z%1<=").arg(neuer.k));
    for (QWidget* feld : std::initializer_list<QWidget*>{frmK, frmBZ, cmdStart})
        setzeHinweis(feld, qt(exporthinweis(neuer)));
    lblPfad->setText(QDir::toNativeSeparators(ordner_));
    lblDateien->setText(auftragsfehler(neuer) ? "-" : qt(dateienangabe(exportdateien(neuer))));
    lblAnzahl->clear();
    lblZeit->clear();
}
