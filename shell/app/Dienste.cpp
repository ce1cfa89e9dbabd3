#include "shell/app/Dienste.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QSoundEffect>
#include <QUrl>

namespace {

constexpr int kKlaenge = 3;

int zeigeBox(QMessageBox::Icon bild, const QString& titel, const QString& text, QMessageBox::StandardButtons knoepfe)
{
    QMessageBox box(bild, titel, text, knoepfe, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    if (QAbstractButton* ja = box.button(QMessageBox::Yes))
        ja->setText("Ja");
    if (QAbstractButton* nein = box.button(QMessageBox::No))
        nein->setText("Nein");
    return box.exec();
}

/// The proposed file, in the home folder where there is no such folder.
QString vorhandenerOrt(const QString& pfad)
{
    const QFileInfo vorschlag(pfad);
    return vorschlag.dir().exists() ? pfad : QDir::home().filePath(vorschlag.fileName());
}

void spiele(QObject* spieler, int nummer)
{
    const QString name = QString("klang%1").arg(nummer);
    auto* klang = spieler->findChild<QSoundEffect*>(name);
    if (!klang) {
        klang = new QSoundEffect(spieler);
        klang->setObjectName(name);
        klang->setSource(QUrl(QString("qrc:/klang/%1.wav").arg(nummer)));
    }
    klang->play();
}

} // namespace

void FensterBoxen::info(const QString& titel, const QString& text)
{
    zeigeBox(QMessageBox::Information, titel, text, QMessageBox::Ok);
}

bool FensterBoxen::frage(const QString& titel, const QString& text)
{
    return zeigeBox(QMessageBox::Question, titel, text, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

std::optional<QString> FensterBoxen::eingabe(const QString& titel, const QString& text, const QString& vorgabe)
{
    bool angenommen = false;
    const QString wert =
        QInputDialog::getText(QApplication::activeWindow(), titel, text, QLineEdit::Normal, vorgabe, &angenommen);
    return angenommen ? std::optional(wert) : std::nullopt;
}

std::optional<QString> FensterBoxen::datei(const DateiFrage& frage)
{
    QFileDialog dialog(QApplication::activeWindow(), frage.titel, vorhandenerOrt(frage.pfad), frage.filter);
    dialog.setAcceptMode(frage.speichern ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(frage.ordner      ? QFileDialog::Directory
                       : frage.speichern ? QFileDialog::AnyFile
                                         : QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::ShowDirsOnly, frage.ordner);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !frage.frageVorUeberschreiben);
    dialog.setDefaultSuffix(frage.standardendung);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().constFirst();
}

void SystemZwischenablage::setze(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
}

QString SystemZwischenablage::text() const
{
    return QGuiApplication::clipboard()->text();
}

QStringList SystemDrucker::namen() const
{
    QStringList namen = QPrinterInfo::availablePrinterNames();
    if (const qsizetype standard = namen.indexOf(QPrinterInfo::defaultPrinterName()); standard > 0)
        namen.move(standard, 0);
    return namen;
}

bool SystemDrucker::drucke(const QString& titel, const Maler& male)
{
    return druckeAuf(QPrinterInfo::defaultPrinterName(), titel, male);
}

bool SystemDrucker::druckeAuf(const QString& name, const QString& titel, const Maler& male)
{
    const QPrinterInfo gewaehlt = QPrinterInfo::printerInfo(name);
    if (gewaehlt.isNull())
        return false;
    QPrinter drucker(gewaehlt);
    drucker.setDocName(titel);
    QPainter maler;
    if (!maler.begin(&drucker))
        return false;
    male(maler, drucker);
    return maler.end();
}

SystemKlang::~SystemKlang()
{
    faden_.quit();
    faden_.wait();
}

void SystemKlang::SpieleKlang(int nummer)
{
    if (nummer < 1 || nummer > kKlaenge)
        return;
    if (!spieler_) {
        spieler_ = new QObject;
        spieler_->moveToThread(&faden_);
        QObject::connect(&faden_, &QThread::finished, spieler_, &QObject::deleteLater);
        faden_.start(QThread::LowPriority);
    }
    QMetaObject::invokeMethod(spieler_, [spieler = spieler_, nummer] { spiele(spieler, nummer); });
}

bool SystemOeffner::oeffne(const QString& dateiOderAdresse)
{
    return QDesktopServices::openUrl(QUrl::fromUserInput(dateiOderAdresse));
}

bool SystemPumpe::verarbeite()
{
    QCoreApplication::processEvents();
    return !QCoreApplication::closingDown();
}
