#include "tips/screens/frmZusammenLottoneu.h"

#include "tips/screens/Desktopausgabe.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>

namespace {
constexpr std::array kSpielarten{"Samstagslotto", "Mittwochslotto", "Mttwochslotto (B)"};

constexpr std::size_t stelle(std::int16_t spielart)
{
    return static_cast<std::size_t>(spielart - Samstagslotto);
}
} // namespace

frmZusammenLottoneu::frmZusammenLottoneu(Umgebung& umgebung)
    : Zeitreisebildschirm(umgebung, "frmZusammenLottoneu", Zeitreiseform::Zusammen),
      lader_(umgebung)
{
    for (std::size_t i = 0; i < chkArt.size(); ++i) {
        chkArt[i] = kontroll(QString("chkArt(%1)").arg(i), kSpielarten[i]);
        chkArt[i]->setChecked(true);
        bei(chkArt[i], [this, i] {
            fehlt_[i] = false;
            erneuere();
        });
    }
    ordneAn({}, {rahmen("frmArt", "Diese Ziehungen einbeziehen:", spalte({chkArt.begin(), chkArt.end()}))},
            {ausgabe()->csvKnopf(), ausgabe()->htmlKnopf()});
}

std::vector<std::int16_t> frmZusammenLottoneu::spielarten() const
{
    std::vector<std::int16_t> gewaehlte;
    for (const std::int16_t spielart : {Samstagslotto, Mittwochslotto, MittwochslottoB})
        if (const QCheckBox* kasten = chkArt[stelle(spielart)]; kasten && kasten->isChecked())
            gewaehlte.push_back(spielart);
    return gewaehlte;
}

void frmZusammenLottoneu::lade(std::int16_t spielart)
{
    bool& fehlt = fehlt_[stelle(spielart)];
    lader_.lade(spielart, fehlt ? Einzellader::FehlendeDatei::Verschweigen : Einzellader::FehlendeDatei::Nennen);
    fehlt = umgebung().archiv.AnzahlZiehungen == 0;
}

Zeitreise frmZusammenLottoneu::werteAus(const Zeitreisefrage& frage)
{
    Zeitreise alle = ohneSpiele(frage, form());
    for (const std::int16_t spielart : spielarten()) {
        lade(spielart);
        fuegeHinzu(alle, evaluate(umgebung().archiv, frage, spielart, form()));
    }
    ordneNachWoche(alle);
    return alle;
}

std::optional<Zeitreisezeile> frmZusammenLottoneu::letzte()
{
    std::optional<Zeitreisezeile> spaeteste;
    for (const std::int16_t spielart : spielarten()) {
        lade(spielart);
        const auto letzte = letzteZiehung(umgebung().archiv, spielart);
        if (letzte && (!spaeteste || ziehungstag(*letzte) >= ziehungstag(*spaeteste)))
            spaeteste = letzte;
    }
    return spaeteste;
}
