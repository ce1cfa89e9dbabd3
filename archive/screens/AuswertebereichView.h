#pragma once

#include "shell/logic/Auswertebereich.h"

#include <QWidget>

#include <functional>

class Bildschirm;
class QComboBox;
class QGroupBox;
class QLineEdit;
class QPushButton;
class QStackedLayout;

/// Names of the controls, as far as a screen calls them otherwise.
struct AuswertebereichNamen {
    const char* von = "Text1";
    const char* bis = "Text2";
    const char* bisZiehung = "Text3";
    const char* vonAuswahl = "cmbVon";
    const char* bisAuswahl = "cmbBis";
    const char* bisZiehungAuswahl = "cmbT3";
    const char* rahmenJahre = "Rahmen1";
    const char* rahmenZiehung = "Rahmen2";
    const char* zurZiehung = "Befehl9";
    const char* zuJahren = "Befehl10";
};

/// The evaluation range on a screen: two frames in one place, by years and by draw, with a small button between them.
class AuswertebereichView final : public QWidget {
public:
    explicit AuswertebereichView(Bildschirm& bildschirm, const AuswertebereichNamen& namen = {});

    /// Fills fields and drop-downs anew from the archive of the screen.
    void fuelle();
    /// Follows a change of the archive, which a check does on its own; what the form in view shows stays.
    void folgeArchiv();
    /// Checks the fields. A message is shown; without a range the evaluation ends.
    std::optional<Ziehungsbereich> pruefe();
    /// The fields as they stand.
    const Bereichsangabe& angabe() const { return modell_.angabe(); }

private:
    QGroupBox* baueJahre(const AuswertebereichNamen& namen);
    QGroupBox* baueZiehung(const AuswertebereichNamen& namen);
    void fuelleAuswahlen();
    void uebernimm();
    void zeige();

    Bildschirm& bildschirm_;
    Auswertebereich modell_;
    QLineEdit *von_, *bis_, *bisZiehung_;
    QComboBox *vonAuswahl_, *bisAuswahl_, *bisZiehungAuswahl_;
    QGroupBox *jahre_, *ziehung_;
    QStackedLayout* wechsel_;
};
