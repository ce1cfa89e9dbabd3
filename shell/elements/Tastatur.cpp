#include "shell/elements/Tastatur.h"

#include "shell/elements/Bildschirm.h"
#include "shell/elements/Infotafel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {

/// A control in which a tool's choice is entered, so that Enter there means: go.
bool istFeld(const QWidget* feld)
{
    return qobject_cast<const QLineEdit*>(feld) || qobject_cast<const QComboBox*>(feld) ||
           qobject_cast<const QCheckBox*>(feld) || qobject_cast<const QRadioButton*>(feld);
}

Infotafel* offeneInfotafel(const Bildschirm& bildschirm)
{
    for (QFrame* rahmen : bildschirm.findChildren<QFrame*>())
        if (auto* tafel = dynamic_cast<Infotafel*>(rahmen); tafel && tafel->isVisible())
            return tafel;
    return nullptr;
}

/// False if there is no button.
bool drueckt(QAbstractButton* knopf)
{
    if (knopf)
        knopf->click();
    return knopf;
}

bool istBedienbar(const QPushButton* knopf)
{
    return knopf && knopf->isVisible() && knopf->isEnabled();
}

} // namespace

bool Tastatur::nimm(const QKeyEvent& taste) const
{
    if (taste.isAutoRepeat() || (taste.modifiers() & ~Qt::KeypadModifier))
        return false;
    switch (taste.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return bestaetige();
    case Qt::Key_F5:
        return starte();
    case Qt::Key_Escape:
        return brichAb();
    default:
        return false;
    }
}

bool Tastatur::bestaetige() const
{
    QWidget* feld = bildschirm_.focusWidget();
    const auto eigener = enterknoepfe.find(feld);
    if (eigener != enterknoepfe.end())
        return drueckt(eigener->second);
    return istFeld(feld) ? starte() : drueckt(qobject_cast<QAbstractButton*>(feld));
}

bool Tastatur::starte() const
{
    return drueckt(hauptaktionen.knopf());
}

bool Tastatur::brichAb() const
{
    if (Infotafel* tafel = offeneInfotafel(bildschirm_))
        tafel->hide();
    else if (bildschirm_.laeuft() && istBedienbar(stoppknopf))
        stoppknopf->click();
    else if (bildschirm_.schliesstMitEsc())
        bildschirm_.schliesse();
    else
        return false;
    return true;
}
