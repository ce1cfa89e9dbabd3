#include "shell/elements/Bildschirm.h"

#include "shell/elements/BildschirmVerzeichnis.h"
#include "shell/elements/Farben.h"
#include "shell/elements/Fensterplatz.h"
#include "shell/elements/Fokus.h"
#include "shell/elements/Liste.h"
#include "shell/elements/Rahmen.h"
#include "shell/elements/Rollinhalt.h"
#include "shell/elements/Stil.h"
#include "shell/elements/Utf8.h"
#include "shell/logic/ClipReport.h"
#include "shell/logic/Format.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <utility>

namespace {
constexpr auto kHinweis = "hinweis";
} // namespace

QString zeilenangabe(qsizetype anzahl)
{
    return anzahl == 1 ? "1 Zeile" : qt(Format(anzahl, "#,###,##0")) + " Zeilen";
}

void setzeHinweis(QWidget* feld, const QString& text)
{
    feld->setProperty(kHinweis, text);
}

QString hinweisVon(const QWidget* feld)
{
    for (; feld; feld = feld->parentWidget()) {
        const QVariant text = feld->property(kHinweis);
        if (text.isValid())
            return text.toString();
    }
    return {};
}

Bildschirm::Bildschirm(Umgebung& umgebung, const QString& name, const QString& titel)
    : umgebung_(umgebung),
      grundtitel_(titel),
      stand_(titel)
{
    setObjectName(name);
    setWindowTitle(titel);
}

Bildschirm::~Bildschirm() = default;

void Bildschirm::setzeTitel(const QString& text)
{
    ergebnis_ = text;
    setzeStand(text);
}

void Bildschirm::setzeStand(const QString& text)
{
    stand_ = text;
    zeigeStand();
}

void Bildschirm::zeigeStand()
{
    zeigeStatus(stand_);
    if (statuszeile_)
        statuszeile_->setText((ergebnis_.isEmpty() ? grundtitel_ : ergebnis_).simplified());
}

void Bildschirm::melde(const QString& text)
{
    if (!statuszeile_)
        return;
    statuszeile_->setText(text);
    meldet_ = true;
}

void Bildschirm::uebertrage(const QString& text)
{
    if (text.isEmpty())
        return;
    umgebung_.zwischenablage.setze(text);
    const qsizetype zeilen = text.count('\n') + (text.endsWith('\n') ? 0 : 1);
    melde(zeilenangabe(zeilen) + " in die Zwischenablage übertragen");
}

void Bildschirm::zeigeStatus(const QString& text)
{
    meldet_ = false;
    setWindowTitle(text);
    if (statuszeile_)
        statuszeile_->setText(text.simplified());
}

void Bildschirm::mausUeber(QWidget* feld)
{
    const bool nochDort = std::exchange(unterMaus_, feld) == feld;
    if (laeuft() || (meldet_ && nochDort))
        return;
    const QString text = hinweisVon(feld);
    if (!text.isEmpty())
        zeigeStatus(text);
    else
        setzeStand(feld == this ? grundtitel_ : stand_);
}

void Bildschirm::setzeInhalt(QLayout* inhalt)
{
    inhalt->setContentsMargins(Stil::kRand, Stil::kRand, Stil::kRand, Stil::kRand);
    statuszeile_ = bezeichnung("Statuszeile", grundtitel_.simplified());
    statuszeile_->setTextFormat(Qt::PlainText);
    statuszeile_->setContentsMargins(Stil::kRand, Stil::kEng, Stil::kRand, Stil::kEng);
    statuszeile_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    faerbe(statuszeile_, Farben::Fuss, Farben::FussText);
    setzeInhalt(inhalt, statuszeile_);
}

void Bildschirm::setzeInhalt(QLayout* inhalt, QWidget* fuss)
{
    inhalt_ = new Rollinhalt(this, inhalt, fuss, [this] { return Fensterplatz::hoechstgroesse(*this); });
}

template <class Feld> Feld* Bildschirm::benannt(Feld* feld, const QString& name, const Hinweis& hinweis)
{
    feld->setObjectName(name);
    if (!hinweis.text.isEmpty())
        setzeHinweis(feld, hinweis.text);
    return feld;
}

QPushButton* Bildschirm::befehl(const QString& name, const QString& text, const Hinweis& hinweis)
{
    return benannt(new QPushButton(text, this), name, hinweis);
}

QLabel* Bildschirm::bezeichnung(const QString& name, const QString& text)
{
    return benannt(new QLabel(text, this), name);
}

QLabel* Bildschirm::listenkopf(const QString& name, const QString& text)
{
    QLabel* kopf = bezeichnung(name, text);
    kopf->setFont(Stil::festeSchrift());
    kopf->setIndent(Liste::kEinzug + Stil::kFokus);
    return kopf;
}

QLineEdit* Bildschirm::textfeld(const QString& name, const QString& text)
{
    return benannt(new QLineEdit(text, this), name);
}

QComboBox* Bildschirm::kombi(const QString& name)
{
    return benannt(new QComboBox(this), name);
}

QCheckBox* Bildschirm::kontroll(const QString& name, const QString& text)
{
    return benannt(new QCheckBox(text, this), name);
}

QRadioButton* Bildschirm::option(const QString& name, const QString& text, const Hinweis& hinweis)
{
    return benannt(new QRadioButton(text, this), name, hinweis);
}

QGroupBox* Bildschirm::rahmen(const QString& name, const QString& titel, QLayout* inhalt)
{
    auto* rahmen = benannt(new Rahmen(titel, this), name);
    rahmen->setzeInhalt(inhalt);
    return rahmen;
}

Liste* Bildschirm::liste(const QString& name, ListenModell::Eigenschaften eigenschaften)
{
    return benannt(new Liste(this, eigenschaften), name);
}

QPushButton* Bildschirm::clipBefehl(const QString& name, const std::function<std::string()>& bericht)
{
    QPushButton* knopf = befehl(name, qt(kClipBefehl));
    knopf->setToolTip(qt(kClipHinweis));
    bei(knopf, [this, bericht] { uebertrage(qt(bericht())); });
    return knopf;
}

void Bildschirm::bei(QAbstractButton* knopf, const std::function<void()>& tue)
{
    connect(knopf, &QAbstractButton::clicked, knopf, [tue] { tue(); });
}

void Bildschirm::bei(QComboBox* kombi, const std::function<void()>& tue)
{
    connect(kombi, &QComboBox::activated, kombi, [tue] { tue(); });
}

void Bildschirm::showEvent(QShowEvent* ereignis)
{
    if (!fokusGeordnet_) {
        ordneFokus(*this, tastatur_.hauptaktionen.knopf());
        fokusGeordnet_ = true;
    }
    QWidget::showEvent(ereignis);
    setAttribute(Qt::WA_KeyboardFocusChange); // the focus is seen before the first key
}

void Bildschirm::resizeEvent(QResizeEvent* ereignis)
{
    QWidget::resizeEvent(ereignis);
    const bool vonSelbst = !ereignis->spontaneous();
    if (isVisible() && vonSelbst)
        Fensterplatz::holeHerein(*this);
}

void Bildschirm::changeEvent(QEvent* ereignis)
{
    QWidget::changeEvent(ereignis);
    if (ereignis->type() != QEvent::ActivationChange || !isActiveWindow() || stehtImRahmen_)
        return;
    stehtImRahmen_ = true;
    Fensterplatz::berichtige(*this);
}

void Bildschirm::keyPressEvent(QKeyEvent* ereignis)
{
    if (!tastatur_.nimm(*ereignis))
        QWidget::keyPressEvent(ereignis);
}

void Bildschirm::closeEvent(QCloseEvent* ereignis)
{
    if (laeuft()) {
        stoppe();
        schliesstNachLauf_ = true;
        hide();
        ereignis->ignore();
        return;
    }
    ereignis->accept();
    gehe();
}

void Bildschirm::gehe()
{
    beimSchliessen();
    const bool zumMenue = kehrtZumMenueZurueck();
    umgebung_.bildschirme->entlade(*this);
    if (zumMenue && umgebung_.menue)
        umgebung_.menue->zeigeWieder();
}
