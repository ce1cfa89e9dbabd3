#include "engines/screens/WiederholungsBildschirm.h"

#include "engines/logic/WiederholungBericht.h"
#include "shell/elements/Infotafel.h"
#include "shell/elements/Lauf.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Textanzeige.h"
#include "shell/elements/Utf8.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace {

const std::vector<std::string> kInfo{
    "Klickt man auf eine gefundene Kombination in den einzelnen ",
    "Ergebnislisten, werden in der rechten Detailliste die Ziehungen",
    "und das Ziehungsdatum für diese Kombination angezeigt.",
    "",
    "Button \"Details\": In der rechten Detailliste werden für alle",
    "gefundenen Kombinationen die Ziehungen und das Ziehungsdatum",
    "angezeigt.",
};

struct Feldnamen {
    const char *suchen, *beschriftung, *liste, *details, *clip, *hinweis;
};

constexpr std::array<Feldnamen, 5> kNamen{{
    {"Befehl11", "&Zweier", "Liste7", "Befehl13", "Befehl15",
     "Sucht die häufigsten Zweierkombinationen (Zweierwiederholungen)."},
    {"Befehl16", "&Dreier", "Liste8", "Befehl17", "Befehl19",
     "Sucht die häufigsten Dreier-Kombinationen (Dreierwiederholungen)."},
    {"Befehl12", "&Vierer", "Liste4", "Befehl5", "Befehl4",
     "Sucht die häufigsten Viererkombinationen. (Viererwiederholungen)"},
    {"Befehl1", "&Fünfer", "Liste5", "Befehl7", "Befehl9",
     "Sucht die häufigsten Fünferkombinationen. (Fünferwiederholungen)"},
    {"Befehl6", "&Sechser", "Liste6", "Befehl8", "Befehl10",
     "Sucht die häufigsten Sechserkombinationen (Sechserwiederholungen)."},
}};

constexpr int kListenzeilen = 10;
constexpr int kDetailzeilen = 12;

/// The head of the details of all lines.
QString titelAller(int k)
{
    return QString("Bei diesen Lottoziehungen wurden die %1-er Kombinationen gezogen").arg(k);
}

} // namespace

WiederholungsBildschirm::WiederholungsBildschirm(Umgebung& umgebung, const QString& name, const QString& titel,
                                                 const Wiederholungsart& art, const std::vector<std::string>& hinweise)
    : Bildschirm(umgebung, name, titel),
      art_(art),
      details_(std::make_shared<Details>())
{
    baueFelder();
    Liste2 = liste("Liste2");
    Liste3 = liste("Liste3");
    txtH = new Textanzeige("txtH", 8, 33, this);
    Text15 = bezeichnung("Text15");
    Bezeichnung2 = bezeichnung("Bezeichnung2");
    Befehl2 = befehl("Befehl2", "&<<");
    Befehl18 = clipBefehl("Befehl18", [this] { return KopiereDetails(); });
    Befehl20 = befehl("Befehl20", "&Info");
    Rahmen1 = new Infotafel(this, Liste2, {.rahmen = "Rahmen1", .ok = "Befehl3", .okText = "&ok"});
    Rahmen2 = rahmen("Rahmen2", "Detailliste", spalte({Text15, dehnbar(Liste3), zeile({Befehl18, luecke()})}));

    txtH->zeige(leereWiederholungszusammenfassung());
    std::vector<std::string> info = kInfo;
    info.insert(info.end(), hinweise.begin(), hinweise.end());
    Liste2->modell().fuelle(std::move(info));
    Liste2->setzeSichtbar(Liste2->zeilenzahl() + 1, 64);
    Liste3->setzeSichtbar(kDetailzeilen, static_cast<int>(art.striche));
    Text15->setMinimumWidth(Text15->fontMetrics().horizontalAdvance(titelAller(kGroessteWiederholung)));
    Befehl18->setEnabled(false);

    bei(Befehl2, [this] { schliesse(); });
    bei(Befehl20, [this] { Rahmen1->zeige(); });
}

void WiederholungsBildschirm::baueFelder()
{
    for (std::size_t i = 0; i < felder_.size(); ++i) {
        const Feldnamen& namen = kNamen[i];
        Feld& neu = felder_[i];
        neu.k = kKleinsteWiederholung + static_cast<int>(i);
        neu.liste = liste(namen.liste, {.Sorted = true});
        neu.suchen = befehl(namen.suchen, namen.beschriftung, hinweis(namen.hinweis));
        neu.details = befehl(namen.details, "Details");
        neu.clip = clipBefehl(namen.clip, [this, &neu] { return KopiereListe(neu); });
        const bool vonAnfangAn = neu.k <= 3;
        neu.details->setEnabled(vonAnfangAn);
        neu.clip->setEnabled(vonAnfangAn);
        const auto zeichen = neu.k == 6 ? kKeineSechserwiederholungen.size() : ergebniszeile({}, neu.k, art_).size();
        neu.liste->setzeSichtbar(kListenzeilen, static_cast<int>(zeichen));
        neu.liste->beiAuswahl = neu.liste->beiLoslassen = [this, &neu] { ZeigeDetail(neu); };
        bei(neu.suchen, [this, k = neu.k] { suche(k); });
        bei(neu.details, [this, &neu] { ZeigeDetails(neu); });
    }
    hauptaktionen({feld(2).suchen, feld(3).suchen, feld(4).suchen, feld(5).suchen, feld(6).suchen});
}

QLayout* WiederholungsBildschirm::feldblock(Feld& hier)
{
    Bloecke kopf{hier.suchen, luecke()};
    if (hier.anzahl)
        kopf.insert(kopf.begin() + 1, hier.anzahl);
    return spalte({zeile(kopf), dehnbar(hier.liste), zeile({hier.details, hier.clip, luecke()})});
}

QLayout* WiederholungsBildschirm::ergebnisblock()
{
    const auto reihe = [this](int von, int bis) {
        Bloecke bloecke;
        for (int k = von; k <= bis; ++k)
            bloecke.push_back(dehnbar(feldblock(feld(k))));
        return zeile(bloecke);
    };
    return spalte({dehnbar(reihe(2, 4)), dehnbar(reihe(5, 6))});
}

QGroupBox* WiederholungsBildschirm::zusammenfassungsrahmen()
{
    return rahmen("RahmenH", " Zusammenfassung  ", spalte({txtH}));
}

const std::vector<std::string>& WiederholungsBildschirm::ergebniszeilen(int k) const
{
    return feld(k).liste->modell().zeilen();
}

void WiederholungsBildschirm::ZeigeDetails(const Feld& hier)
{
    ListenModell& modell = hier.liste->modell();
    if (laeuft() || istKeineSechser(modell.List(0)))
        return;
    Wiederholungslaenge = hier.k;
    Text15->setText(titelAller(hier.k));
    Lauf lauf(*this, "Bitte warten, die detailierte Suchliste wird erstellt !");
    Liste3->modell().Clear();
    const auto quelle = quelleVon(hier);
    zeige(wiederholungDetails(quelle->ziehungen, hier.k, art_, modell.zeilen(),
                              [&lauf](std::uint64_t) { return lauf.zug(); }),
          *quelle);
    if (modell.SetListIndex(0)) {
        hier.liste->zeigeZeile(0);
        modell.SetListIndex(ListenModell::kKeiner);
    }
}

void WiederholungsBildschirm::ZeigeDetail(const Feld& hier)
{
    const ListenModell& modell = hier.liste->modell();
    const std::ptrdiff_t index = modell.ListIndex();
    if (laeuft() || index == ListenModell::kKeiner)
        return;
    const std::string zeile = modell.List(static_cast<std::size_t>(index));
    if (istKeineSechser(zeile))
        return;
    for (const Feld& andere : felder_)
        if (andere.k != hier.k)
            andere.liste->modell().SetListIndex(ListenModell::kKeiner);
    Wiederholungslaenge = hier.k;
    Text15->setText(QString("Bei diesen Lottoziehungen wurde die %1-er Kombination gezogen").arg(hier.k));
    const auto quelle = quelleVon(hier);
    zeige(wiederholungDetails(quelle->ziehungen, hier.k, art_, {&zeile, 1}), *quelle);
}

void WiederholungsBildschirm::zeige(Detailzeilen zeilen, const Quelle& quelle)
{
    details_ = std::make_shared<const Details>(Details{std::move(zeilen), quelle.spiel, quelle.schluss});
    Liste3->modell().aufAnfrage(details_->zeilen.anzahl(),
                                [details = details_](std::size_t index) { return details->zeilen.zeile(index); });
    Liste3->zeigeZeile(0);
    Befehl18->setEnabled(true);
}

WiederholungsBildschirm::Quelle WiederholungsBildschirm::gegenwart() const
{
    return {umgebung().archiv, spielname(), berichtsschluss()};
}

std::shared_ptr<const WiederholungsBildschirm::Quelle> WiederholungsBildschirm::quelleVon(const Feld& hier) const
{
    return hier.quelle ? hier.quelle : std::make_shared<const Quelle>(gegenwart());
}

std::string WiederholungsBildschirm::KopiereListe(const Feld& hier) const
{
    const auto quelle = quelleVon(hier);
    return listenBericht(wiederholungsname(hier.k).wiederholungen, quelle->spiel, hier.liste->modell().zeilen(),
                         quelle->schluss);
}

std::string WiederholungsBildschirm::KopiereDetails() const
{
    return detailBericht(wiederholungsname(Wiederholungslaenge).wiederholungen, details_->spiel, details_->zeilen,
                         details_->schluss);
}
