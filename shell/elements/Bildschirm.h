#pragma once

#include "shell/elements/Bloecke.h"
#include "shell/elements/Tastatur.h"
#include "shell/elements/Umgebung.h"
#include "shell/logic/ListenModell.h"

#include <QWidget>

#include <array>
#include <functional>
#include <vector>

class Liste;
class QAbstractButton;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class Rollinhalt;

/// The hint that the status line shows while the mouse is over a control.
struct Hinweis {
    QString text;
};
inline Hinweis hinweis(const QString& text)
{
    return {text};
}

/// First index of a control array: `feld(labels, "Bezeichnung1", ab(1))` names Bezeichnung1(1), Bezeichnung1(2) ...
struct Ab {
    int erster = 0;
};
inline Ab ab(int erster)
{
    return {erster};
}

/// "1 Zeile", "3.693 Zeilen".
QString zeilenangabe(qsizetype anzahl);

/// Sets or replaces the hint of a control. A hint holds for the children of a control too.
void setzeHinweis(QWidget* feld, const QString& text);
/// The hint of a control, or of the nearest one around it that has one; empty without any.
QString hinweisVon(const QWidget* feld);

/// Base of all screens. It owns the title that doubles as status line, the running flag of long evaluations, and the
/// way back to the selection menu. Controls carry their name as object name.
class Bildschirm : public QWidget {
public:
    ~Bildschirm() override;

    Umgebung& umgebung() const { return umgebung_; }
    QString name() const { return objectName(); }
    Rollinhalt& inhalt() const { return *inhalt_; }

    /// Shows a text in the title until the next one, or until the mouse is over the bare form, and at the foot until
    /// the next one.
    void setzeTitel(const QString& text);
    /// The text that the title falls back to.
    void setzeGrundtitel(const QString& text) { grundtitel_ = text; }
    const QString& grundtitel() const { return grundtitel_; }
    /// The title without a hint over it.
    const QString& stand() const { return stand_; }
    /// Says something in passing in the strip at the foot, until the next text or until the mouse goes to another
    /// control. The title stays.
    void melde(const QString& text);
    /// Replaces the clipboard and says how many lines were taken. An empty text changes nothing.
    void uebertrage(const QString& text);

    /// True while an evaluation of this screen runs.
    bool laeuft() const { return laeufe_ > 0; }
    /// Asks the running evaluation to end at its next turn.
    void stoppe() { stopp_ = true; }
    bool gestoppt() const { return stopp_; }
    /// True from its closing in the middle of a run until the run has unwound and the screen is gone.
    bool schliesst() const { return schliesstNachLauf_; }

    /// The mouse moved over `feld`, a control of this screen or the screen itself. Shows the hint.
    virtual void mausUeber(QWidget* feld);

    /// Brings everything up to date that depends on the archive; runs each time before the screen is shown.
    virtual void beimZeigen() {}

    /// Presses the start button of a tool that is set going without being shown.
    virtual void druckeStart() {}

    /// Closes as the window button would: a running evaluation is stopped first and unwinds.
    void schliesse() { close(); }
    /// True if closing this screen brings the selection menu back.
    virtual bool kehrtZumMenueZurueck() const { return true; }
    /// True if Esc leaves this screen.
    virtual bool schliesstMitEsc() const { return true; }

protected:
    Bildschirm(Umgebung& umgebung, const QString& name, const QString& titel);

    /// Runs once on closing, after a run has unwound: restores what the screen changed.
    virtual void beimSchliessen() {}
    /// Shows a text where this screen has its status line.
    virtual void zeigeStatus(const QString& text);

    /// The whole screen: the blocks above, the status line at the foot.
    void setzeInhalt(QLayout* inhalt);
    /// The same with a foot of the screen's own.
    void setzeInhalt(QLayout* inhalt, QWidget* fuss);

    QPushButton* befehl(const QString& name, const QString& text, const Hinweis& hinweis = {});
    QLabel* bezeichnung(const QString& name, const QString& text = {});
    /// The column heads above a list box, in its font and at its indent.
    QLabel* listenkopf(const QString& name, const QString& text);
    QLineEdit* textfeld(const QString& name, const QString& text = {});
    QComboBox* kombi(const QString& name);
    QCheckBox* kontroll(const QString& name, const QString& text);
    QRadioButton* option(const QString& name, const QString& text, const Hinweis& hinweis = {});
    QGroupBox* rahmen(const QString& name, const QString& titel, QLayout* inhalt);
    Liste* liste(const QString& name, ListenModell::Eigenschaften eigenschaften = {});

    /// The button that replaces the clipboard by a report; an empty report changes nothing.
    QPushButton* clipBefehl(const QString& name, const std::function<std::string()>& bericht);

    /// Makes the labels of a control array.
    template <std::size_t N> void feld(std::array<QLabel*, N>& felder, const QString& name, Ab ab = {});

    /// The start buttons of the tool, the usual one first. Enter in a field and F5 press the one that was pressed last,
    /// at first the first one, on which the first focus lies.
    void hauptaktionen(const std::vector<QPushButton*>& startknoepfe) { tastatur_.hauptaktionen.setze(startknoepfe); }
    /// Marks the start button that has made what the screen shows; null marks none.
    void zeigeGelaufen(const QPushButton* startknopf) { tastatur_.hauptaktionen.zeigeGelaufen(startknopf); }
    /// Enter in this field presses a button of its own instead.
    void enterDrueckt(const QWidget* feld, QPushButton* knopf) { tastatur_.enterknoepfe[feld] = knopf; }
    /// The button that stops a run; Esc presses it.
    void stoppknopf(QPushButton* knopf) { tastatur_.stoppknopf = knopf; }

    /// Calls `tue` on every click.
    static void bei(QAbstractButton* knopf, const std::function<void()>& tue);
    /// Calls `tue` when the user takes an entry.
    static void bei(QComboBox* kombi, const std::function<void()>& tue);

    void closeEvent(QCloseEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void showEvent(QShowEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void changeEvent(QEvent* ereignis) override;

private:
    friend class Lauf;
    friend class WarteAnzeige;

    template <class Feld> Feld* benannt(Feld* feld, const QString& name, const Hinweis& hinweis = {});
    void setzeStand(const QString& text);
    void zeigeStand();
    void gehe();

    Umgebung& umgebung_;
    Tastatur tastatur_{*this};
    QString grundtitel_;
    QString stand_;    ///< the title without a hint over it
    QString ergebnis_; ///< the text at the foot without a hint over it; empty: the title it falls back to
    Rollinhalt* inhalt_ = nullptr;
    QLabel* statuszeile_ = nullptr;
    const QWidget* unterMaus_ = nullptr; ///< the control that the mouse was seen over last; only to be compared
    bool meldet_ = false;                ///< the strip says something in passing
    int laeufe_ = 0;
    bool stopp_ = false;
    bool schliesstNachLauf_ = false;
    bool fokusGeordnet_ = false;
    bool stehtImRahmen_ = false; ///< the window has been on the desktop, so that its frame is known
};

template <std::size_t N> void Bildschirm::feld(std::array<QLabel*, N>& felder, const QString& name, Ab ab)
{
    for (std::size_t i = 0; i < N; ++i)
        felder[i] = bezeichnung(QString("%1(%2)").arg(name).arg(ab.erster + static_cast<int>(i)));
}
