#include "shell/elements/Stil.h"

#include "shell/elements/Farben.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QTranslator>
#include <QWidget>

namespace {

/// Fusion with more room beside the caption of a button.
class Programmstil final : public QProxyStyle {
public:
    Programmstil() : QProxyStyle(QStyleFactory::create("Fusion")) {}

    QSize sizeFromContents(ContentsType art, const QStyleOption* option, const QSize& inhalt,
                           const QWidget* feld) const override
    {
        const QSize platz = QProxyStyle::sizeFromContents(art, option, inhalt, feld);
        return art == CT_PushButton ? platz.expandedTo(QSize(inhalt.width() + kKnopfrand, 0)) : platz;
    }

    /// A letter is underlined where Alt and that letter press the button.
    int styleHint(StyleHint art, const QStyleOption* option, const QWidget* feld,
                  QStyleHintReturn* daten) const override
    {
        const auto* knopf = qobject_cast<const QAbstractButton*>(feld);
        const bool ohneKuerzel = art == SH_UnderlineShortcut && knopf && knopf->shortcut().isEmpty();
        return ohneKuerzel ? 0 : QProxyStyle::styleHint(art, option, feld, daten);
    }

private:
    static constexpr int kKnopfrand = 24;
};

} // namespace

void Stil::richteEin(QApplication& programm)
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    auto* uebersetzung = new QTranslator(&programm);
    if (uebersetzung->load("qtbase_de", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        programm.installTranslator(uebersetzung);
    programm.setStyle(new Programmstil);
    programm.setPalette(Farben::palette());
    QFont schrift;
    schrift.setFamilies({"Segoe UI", "Arial", "Liberation Sans"});
    schrift.setPointSizeF(10);
    programm.setFont(schrift);
}

QFont Stil::festeSchrift()
{
    QFont schrift;
    schrift.setFamilies({"Courier New", "Liberation Mono"});
    schrift.setStyleHint(QFont::Monospace);
    schrift.setFixedPitch(true);
    schrift.setPointSizeF(10);
    return schrift;
}

void alsUeberschrift(QWidget* feld)
{
    QFont schrift = feld->font();
    schrift.setPointSizeF(schrift.pointSizeF() * 1.15);
    schrift.setBold(true);
    feld->setFont(schrift);
}
