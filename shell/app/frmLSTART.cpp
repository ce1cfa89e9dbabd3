#include "shell/app/frmLSTART.h"

#include "archive/logic/ZiehungsArchiv.h"
#include "archive/screens/Spielartlader.h"
#include "shell/app/Rollo.h"
#include "shell/elements/BildschirmVerzeichnis.h"
#include "shell/elements/Farben.h"
#include "shell/elements/Fensterplatz.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Tippfeld7x7View.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/Zufall.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QFrame>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedLayout>

#include <algorithm>

namespace {

constexpr auto kTitel = "Lotto-Auswahlmenü";
constexpr auto kPopupknopf = "Befehl1";
constexpr auto kSpendenseite = "https://www.paypal.com/donate";
constexpr auto kNichtEingebaut = "Dieses Werkzeug gehört noch nicht zum Programm.";
constexpr auto kZiehungBBeendet = "Die Ziehung B des Mittwochslottos wurde am 29.11.2000 zum letzten Mal ausgespielt.";

constexpr auto kInfoZusammen =
    "Bis Juni 2013 wurden für die Mittwochs- und Samstagsziehungen des Lotto 6 aus 49 verschiedenen "
    "Ziehungsgeräte und Kugelsätze verwendet. Die Samstagsziehungen fanden beim Hessischen Rundfunk in Frankfurt "
    "statt. Die Mittwochsziehungen fanden beim ZDF in Mainz statt (anderes Ziehungsgerät, anderer Kugelsatz).\n"
    "Da für die Ziehungen also verschiedene Geräte und Kugeln verwendet wurden, war es sinnvoll die "
    "Lottostatistiken getrennt für Samstag und Mittwoch zu erstellen.\n"
    "Seit dem 06.07.2013 werden alle Ziehungen (Sa+Mi) in einem Studio des Saarländischen Rundfunks "
    "durchgeführt. Da die Ziehungen also jetzt mit nur einem Ziehungsgerät und gleichen Kugeln stattfinden, ist "
    "eine strikte Trennung der Statistiken für das Samstags- und Mittwochlotto eigentlich nicht mehr notwendig.\n"
    "Mit Auswahl des Optionsfeldes \"Sa + Mi zusammen\" können die wichtigsten Statistiken deshalb auch zusammen "
    "für das Samstags- und Mittwochslotto ausgewertet werden.";

/// What the menu says of one game.
struct Spieltexte {
    const char* ladetitel;
    const char* spielname;
    const char* klammer;
};

const Spieltexte& spieltexte(std::int16_t spielart)
{
    static const std::array<Spieltexte, 3> texte{{{" >>>>>>>>>>>     SALOTTO.DAT wird geladen      <<<<<<<<<<<",
                                                   "Samstagslotto 6 aus 49", "(SALOTTO.DAT; Samstagslotto)"},
                                                  {" >>>>>>>>>>>     MALOTTO.DAT wird geladen      <<<<<<<<<<<",
                                                   "Mittwochslotto 6 aus 49 ", "(MALOTTO.DAT; Mittwochslotto A)"},
                                                  {" >>>>>>>>>>>     MBLOTTO.DAT wird geladen      <<<<<<<<<<<",
                                                   "Mittwochslotto 6 aus 49 (B)", "(MBLOTTO.DAT; Mittwochslotto B)"}}};
    return istSamstag(spielart) ? texte[0] : texte.at(static_cast<std::size_t>(spielart - 1));
}

} // namespace

frmLSTART::frmLSTART(Umgebung& umgebung) : Bildschirm(umgebung, "frmLSTART", kTitel)
{
    umgebung.menue = this;
    Option1 = option("Option1", "Samstagslotto");
    Option2 = option("Option2", "Mittwochslotto ");
    Option3 = option("Option3", "Mittwochslotto (B)",
                     hinweis("Statistik für Mittwochslotto-Ziehung B (wurde bis 29.11.2000 ausgespielt !)."));
    Option4 =
        option("Option4", "Sa + Mi zusammen",
               hinweis("Bei Auswahl dieser Option können die Samstags- und Mittwochsziehungen für die wichtigsten "
                       "Statistiken zusammen auswertet werden."));
    mnuOption = bauePopup();
    wand_ = baueWand(menuewand(), "Gruppe");
    frameRollo = baueRollo();
    wechsel_ = new QStackedLayout;
    wechsel_->addWidget(wand_);
    wechsel_->addWidget(frameRollo);

    // clang-format off
    QLayout* oben = zeile({
        spalte({
            baueSpielnamen(),
            rahmen("RahmenSpielart", "Spielart", spalte({Option1, Option2, Option3, Option4})),
            baueTipp(),
            luecke(),
        }),
        dehnbar(wechsel_),
    });
    // clang-format on
    oben->setContentsMargins(Stil::kRand, Stil::kRand, Stil::kRand, Stil::kRand);
    setzeInhalt(oben, baueFuss());

    bei(Option1, [this] { ladeArchiv(Samstagslotto); });
    bei(Option2, [this] { ladeArchiv(Mittwochslotto); });
    bei(Option3, [this] { ladeArchiv(MittwochslottoB); });
    bei(Option4, [this] { zeigeZusammen(); });

    tippe();
    waehleSpielart(Samstagslotto);
}

frmLSTART::~frmLSTART()
{
    umgebung().menue = nullptr;
}

QWidget* frmLSTART::baueSpielnamen()
{
    auto* flaeche = new Spielname(this);
    Bezeichnung3 = flaeche->bezeichnungen();
    return flaeche;
}

QGroupBox* frmLSTART::baueTipp()
{
    Bezeichnung1 = new Tippfeld7x7View("Bezeichnung1", Tippfeld7x7View::Art::NurAnzeige, this);
    return rahmen("Rahmen1", "Tipp", spalte({Bezeichnung1}));
}

QMenu* frmLSTART::bauePopup()
{
    auto* menue = new QMenu(this);
    menue->setObjectName("mnuOption");
    for (const Popupeintrag& eintrag : menueOption()) {
        if (QString(eintrag.text) == "-") {
            menue->addSeparator()->setObjectName(eintrag.name);
            continue;
        }
        QAction* zeile = menue->addAction(eintrag.text);
        zeile->setObjectName(eintrag.name);
        zeile->setCheckable(true);
        zeile->setEnabled(umgebung().bildschirme->kennt(eintrag.ziel));
        connect(zeile, &QAction::triggered, this, [this, eintrag] { oeffneAusPopup(eintrag); });
    }
    return menue;
}

Knopfwand* frmLSTART::baueWand(const std::vector<std::vector<Menuegruppe>>& spalten, const QString& gruppenname)
{
    auto* wand = new Knopfwand(
        spalten, gruppenname, [this](const Menueknopf& knopf) { fuehreAus(knopf); }, this);
    wand->stelle([this](const Menueknopf& knopf) { return knopfstand(knopf, Samstagslotto); });
    return wand;
}

QWidget* frmLSTART::baueRollo()
{
    auto* rollo = new Rollo(this);
    rollo->setzeInhalt(baueWand(menuerollo(), "Rollo"));
    return rollo;
}

QWidget* frmLSTART::baueFuss()
{
    Bezeichnung2 = bezeichnung("Bezeichnung2");
    Bezeichnung2->setContentsMargins(Stil::kRand, Stil::kAbstand, Stil::kRand, Stil::kAbstand);
    Bezeichnung2->setWordWrap(true);
    Bezeichnung2->setMinimumHeight(2 * fontMetrics().lineSpacing() + 2 * Stil::kAbstand);
    picU = new QFrame(this);
    picU->setObjectName("picU");
    faerbe(picU, Farben::Fuss, Farben::FussText);
    faerbe(Bezeichnung2, Farben::Fuss, Farben::FussText);
    picU->setLayout(spalte({Bezeichnung2}));
    return picU;
}

void frmLSTART::waehleSpielart(std::int16_t spielart)
{
    const std::array optionen{Option1, Option2, Option3};
    optionen.at(static_cast<std::size_t>(spielart - 1))->setChecked(true);
    ladeArchiv(spielart);
}

std::int16_t frmLSTART::gewaehlteSpielart() const
{
    if (Option1->isChecked())
        return Samstagslotto;
    if (Option2->isChecked())
        return Mittwochslotto;
    return Option3->isChecked() ? MittwochslottoB : SpielartStart;
}

void frmLSTART::ladeArchiv(std::int16_t spielart)
{
    wechsel_->setCurrentIndex(0);
    wand_->stelle([this, spielart](const Menueknopf& knopf) { return knopfstand(knopf, spielart); });
    setWindowTitle(spieltexte(spielart).ladetitel);
    for (QLabel* name : Bezeichnung3)
        name->setText(spieltexte(spielart).spielname);
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    ladeSpielart(umgebung(), spielart);
    QGuiApplication::restoreOverrideCursor();
    setWindowTitle(kTitel);
    zeigeLetzteZiehung();
}

Knopfstand frmLSTART::knopfstand(const Menueknopf& knopf, std::int16_t spielart) const
{
    Knopfstand stand{knopf.hinweis, {}};
    if (knopf.spielbezug == Spielbezug::MitErstemJahr)
        stand.hinweis += qt(erstesSpieljahr(spielart));
    if (!istEingebaut(knopf))
        stand.sperrgrund = kNichtEingebaut;
    else if (knopf.spielbezug == Spielbezug::OhneMittwochB && spielart == MittwochslottoB)
        stand.sperrgrund = kZiehungBBeendet;
    return stand;
}

bool frmLSTART::istEingebaut(const Menueknopf& knopf) const
{
    const auto kennt = [this](const char* ziel) { return umgebung().bildschirme->kennt(ziel); };
    if (QString(knopf.name) == kPopupknopf)
        return std::ranges::any_of(menueOption(), kennt, &Popupeintrag::ziel);
    return !*knopf.ziel || kennt(knopf.ziel);
}

void frmLSTART::zeigeZusammen()
{
    wechsel_->setCurrentWidget(frameRollo);
    Fensterplatz::zentriere(*this);
}

/// Of the archive as it is now. With the combined tools, and without a draw, the line stays as it is.
void frmLSTART::zeigeLetzteZiehung()
{
    const ZiehungsArchiv& archiv = umgebung().archiv;
    if (Option4->isChecked() || archiv.AnzahlZiehungen < 1)
        return;
    const auto letzte = static_cast<std::size_t>(archiv.AnzahlZiehungen);
    zeigeStatus(
        QString("*** Letzte eingetragene Ziehung in Gewinnzahl-Datei %1 ->  %2 vom %3 ***")
            .arg(spieltexte(archiv.Spielart).klammer, qt(jahrUndWoche(archiv, letzte)), qt(archiv.Datum[letzte])));
}

void frmLSTART::zeigeStatus(const QString& text)
{
    Bezeichnung2->setText(text);
}

/// A frame or a gap tells as little as the bare form.
void frmLSTART::mausUeber(QWidget* feld)
{
    if (feld == wand_->knopf("Befehl13"))
        tippe();
    const QString text = hinweisVon(feld);
    if (text.isEmpty())
        zeigeLetzteZiehung();
    else
        zeigeStatus(text);
}

void frmLSTART::tippe()
{
    umgebung().zufall.Randomize(umgebung().uhr.Timer());
    Tippfeld7x7 feld;
    feld.zeige(sechsZahlen(umgebung().zufall));
    Bezeichnung1->zeige(feld);
}

void frmLSTART::fuehreAus(const Menueknopf& knopf)
{
    const QString name = knopf.name;
    if (name == "Befehl13" || name == "cmdU")
        schliesse();
    else if (name == "Befehl15")
        zeigeHilfe();
    else if (name == "cmdPaypal")
        umgebung().oeffner.oeffne(kSpendenseite);
    else if (name == "cmdInfo2")
        zeigeInfoZusammen();
    else if (name == kPopupknopf)
        mnuOption->popup(QCursor::pos());
    else
        oeffne(knopf);
}

void frmLSTART::oeffne(const Menueknopf& knopf)
{
    umgebung().klang.SpieleKlang(1);
    BildschirmVerzeichnis& bildschirme = *umgebung().bildschirme;
    if (knopf.oeffnung == Oeffnung::NurDruecken) {
        bildschirme.lade(knopf.ziel).druckeStart();
        return;
    }
    if (knopf.oeffnung == Oeffnung::ErstVerbergen)
        hide();
    bildschirme.oeffne(knopf.ziel);
    hide();
}

void frmLSTART::oeffneAusPopup(const Popupeintrag& eintrag)
{
    for (QAction* zeile : mnuOption->actions())
        zeile->setChecked(zeile->objectName() == eintrag.name);
    wand_->knopf(kPopupknopf)->setEnabled(true);
    umgebung().klang.SpieleKlang(1);
    umgebung().bildschirme->oeffne(eintrag.ziel);
    hide();
}

/// A tool may have changed the archive. The focus is where it was, and is seen though it was the mouse that set it.
void frmLSTART::zeigeWieder()
{
    show();
    activateWindow();
    setAttribute(Qt::WA_KeyboardFocusChange);
    zeigeLetzteZiehung();
}

/// The compiled help where there is one and a viewer for it, else the same as a page.
void frmLSTART::zeigeHilfe()
{
    const QString verzeichnis = qt(umgebung().archiv.ProgrammVerzeichnis);
    const QString kompiliert = verzeichnis + "lotto-hilfe.chm";
    const QString seite = verzeichnis + "lotto-hilfe.html";
    if (QFileInfo::exists(kompiliert) && umgebung().oeffner.oeffne(kompiliert))
        return;
    const bool geoeffnet = umgebung().oeffner.oeffne(seite);
    if (!QFileInfo::exists(seite))
        umgebung().boxen.info(kProgrammtitel, "Die Hilfe wurde nicht gefunden. Sie gehört hierhin:\n" + seite);
    else if (!geoeffnet)
        umgebung().boxen.info(kProgrammtitel,
                              "Die Hilfe lässt sich auf diesem Rechner nicht öffnen. Sie liegt hier:\n" + seite);
}

void frmLSTART::zeigeInfoZusammen()
{
    umgebung().boxen.info(kProgrammtitel, kInfoZusammen);
}

void frmLSTART::paintEvent(QPaintEvent*)
{
    constexpr int kBaender = 256;
    QPainter maler(this);
    for (int band = 0; band < kBaender; ++band) {
        const int oben = height() * band / kBaender;
        const int unten = height() * (band + 1) / kBaender;
        maler.fillRect(0, oben, width(), unten - oben, QColor(0, kBaender - 1 - band, 0));
    }
}

void frmLSTART::beimSchliessen()
{
    umgebung().bildschirme->entladeAlle();
    QCoreApplication::quit();
}
