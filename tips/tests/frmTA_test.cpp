#include "shell/elements/BildschirmVerzeichnis.h"
#include "shell/elements/Liste.h"
#include "testhilfen/Schreibhindernisse.h"
#include "tips/screens/Tippempfaenger.h"
#include "tips/screens/frmTA.h"
#include "tips/tests/Tipptest.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace {

const QString kKeineZiehung =
    "info|Lotto-Fehler|Felder Z1-Z6 oder SZ sind nicht vollständig, nicht sortiert oder falsch ausgefüllt. ";
const QString kSchreibfehler =
    "info|Tombrix|Fehler beim Schreiben! Mögliche Ursachen:\n1. Der aktuelle Ordner befindet "
    "sich auf einen schreibgeschützten Datenträger.\n2. Sie besitzen keine Rechte um in "
    "diesen Ordner zu schreiben.";
const QString kFrage = "input|Lotto-Anfrage|Samstag-Tipschein:\nTipschein unter diesem Spieljahr und dieser Spielwoche "
                       "speichern oder neue Spielwoche eingeben ?";
const QString kUngespeichert =
    "question|Lotto-Kontrollabfrage|Die Tipps wurden noch nicht gespeichert. Jetzt speichern ?";
const QByteArray kZeile = "202418. 3. 7.12.23.34.45:5\r\n";

class Tippscheinbildschirm : public Tipptest {
protected:
    /// The last of two draws: 3, 7, 12, 23, 34, 45 with Superzahl 5 in week 17 of 2024.
    void oeffneSchein(const QString& option = "Option1")
    {
        for (const char* datei : {"SALOTTO.DAT", "MALOTTO.DAT", "MBLOTTO.DAT"})
            schreibe(datei, {"2024,16,01,02,04,05,06,08,00,9", "2024,17,03,07,12,23,34,45,00,5"});
        starte();
        klicke(option);
        oeffne("frmTA");
    }
    frmTA& schirm() { return buehne.bildschirme.lade<frmTA>("frmTA"); }

    void setzeReihe(int nr, const QStringList& zahlen, const QString& superzahl = "5")
    {
        for (int i = 0; i < zahlen.size(); ++i)
            setze(QString("Text%1(%2)").arg(nr).arg(i), zahlen[i]);
        setze(QString("tSZ(%1)").arg(nr), superzahl);
    }
    /// "n1 n2 n3 n4 n5 n6:sz"
    QString reihe(int nr)
    {
        QStringList zahlen;
        for (int i = 0; i < 6; ++i)
            zahlen << lies(QString("Text%1(%2)").arg(nr).arg(i));
        return zahlen.join(' ') + ":" + lies(QString("tSZ(%1)").arg(nr));
    }
    QString gewinn(int nr) { return lies(QString("lblGewinn(%1)").arg(nr - 1)); }
    QString fehler(int nr) { return lies(QString("lblFehler(%1)").arg(nr - 1)); }
    QString fokus() { return schirm().focusWidget()->objectName(); }
    bool hatGrund(const QString& feld, const QString& farbe) { return zustand(feld).contains("back=" + farbe); }

    QString pfad(const QString& name) const { return QDir(ordner.path()).filePath(name); }
    void lege(const QString& name, const QByteArray& bytes) const
    {
        QFile datei(pfad(name));
        ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
        datei.write(bytes);
    }
    QByteArray inhalt(const QString& name) const
    {
        QFile datei(pfad(name));
        return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray("fehlt");
    }
    QStringList scheine() { return bedienung.zeilen("Datei1", 0, 100).zeilen; }
    void antworte(const QStringList& antworten)
    {
        for (const QString& antwort : antworten)
            buehne.boxen.antworte(antwort);
    }
    void rechtsklicke(const QString& name, int zeile)
    {
        auto* liste = dynamic_cast<Liste*>(bedienung.finde(name));
        const QPoint ort = liste->zeilenrechteck(zeile).center();
        QContextMenuEvent ereignis(QContextMenuEvent::Mouse, ort, liste->viewport()->mapToGlobal(ort));
        QCoreApplication::sendEvent(liste->viewport(), &ereignis);
    }
};

const QStringList kSechser{"3", "7", "12", "23", "34", "45"};

TEST_F(Tippscheinbildschirm, OeffnetMitDerLetztenZiehungUndLeerenReihen)
{
    oeffneSchein();
    EXPECT_EQ(titel(), "Tippscheinauswertung - vergleicht Tipps mit der letzten (aktuellen) Ziehung");
    EXPECT_EQ(lies("Rahmen2"), "Letzte (aktuelle) Ziehung 2024/17");
    EXPECT_EQ(lies("Bezeichnung46"), "SAMSTAGS-TIPPS");
    EXPECT_EQ(lies("Bezeichnung47"), "SAMSTAGSLOTTO");
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(lies(QString("Text13(%1)").arg(i)), kSechser[i]);
    EXPECT_EQ(lies("Text13(6)"), "5");
    EXPECT_EQ(reihe(1), "     :0");
    EXPECT_EQ(reihe(12), "     :0");
    EXPECT_EQ(bedienung.eintraege("kombo1").zeilen.join(""), "0123456789");
    EXPECT_EQ(fokus(), "Text1(0)");
    EXPECT_FALSE(sichtbar("Datei2"));
    EXPECT_FALSE(sichtbar("Text20"));
    EXPECT_TRUE(bedienbar("Command1"));
    EXPECT_EQ(boxen(), QStringList{});
}

TEST_F(Tippscheinbildschirm, MittwochUndMittwochB)
{
    oeffneSchein("Option3");
    EXPECT_EQ(lies("Bezeichnung46"), "MITTWOCHS-TIPPS");
    EXPECT_EQ(lies("Bezeichnung47"), "MITTWOCHSLOTTO (B)");
    schliesse();
    klicke("Option2");
    oeffne("frmTA");
    EXPECT_EQ(lies("Bezeichnung47"), "MITTWOCHSLOTTO ");
}

TEST_F(Tippscheinbildschirm, VergleichtAlleReihen)
{
    oeffneSchein();
    setzeReihe(1, kSechser, "5");
    setzeReihe(2, {"1", "2", "3", "4", "5", "7"}, "5");
    setzeReihe(3, {"1", "2", "3", "4", "5", "7"}, "6");
    setzeReihe(4, {"7", "3", "12", "13", "14", "15"}, "5");
    setzeReihe(5, {"1", "2", "", "4", "5", "6"}, "");
    setzeReihe(6, {"3", "8", "13", "24", "35", "46"}, "5");
    klicke("Befehl1");
    EXPECT_EQ(gewinn(1), "6-er+SZ");
    EXPECT_EQ(gewinn(2), "2-er+SZ");
    EXPECT_EQ(gewinn(3), "2");
    EXPECT_EQ(gewinn(4), "");
    EXPECT_EQ(fehler(4), "Fehler");
    EXPECT_EQ(fehler(5), "Fehler");
    EXPECT_EQ(gewinn(6), "1");
    EXPECT_EQ(gewinn(7), "");
    EXPECT_EQ(fehler(7), "");
    EXPECT_TRUE(hatGrund("Text1(0)", "#00ffff"));
    EXPECT_TRUE(hatGrund("Text13(0)", "#00ffff"));
    EXPECT_TRUE(hatGrund("tSZ(1)", "#ffff00"));
    EXPECT_TRUE(hatGrund("Text13(6)", "#ffff00"));
    EXPECT_TRUE(hatGrund("Text4(0)", "#00ffff")) << "auch in einer Reihe mit Fehler";
    EXPECT_TRUE(hatGrund("tSZ(4)", "#ffff00"));
    EXPECT_TRUE(hatGrund("Text2(0)", "#ffffff"));
    EXPECT_TRUE(hatGrund("tSZ(3)", "#ffffff"));
    EXPECT_TRUE(hatGrund("tSZ(6)", "#ffffff")) << "bei einem Treffer wird die Superzahl nicht angesehen";
}

TEST_F(Tippscheinbildschirm, EinGeaenderterTippVerliertSeinErgebnisDieAnderenNicht)
{
    oeffneSchein();
    setzeReihe(1, kSechser);
    setzeReihe(2, kSechser);
    klicke("Befehl1");
    setze("Text1(5)", "46");
    EXPECT_EQ(gewinn(1), "");
    EXPECT_TRUE(hatGrund("Text1(0)", "#ffffff"));
    EXPECT_EQ(gewinn(2), "6-er+SZ");
    setze("HBildlauf1", "1");
    EXPECT_EQ(gewinn(2), "");
}

TEST_F(Tippscheinbildschirm, EineFalscheZiehungLaesstDieReihenWieSieSind)
{
    oeffneSchein();
    setzeReihe(1, kSechser);
    klicke("Befehl1");
    for (const auto& [feld, text] : QList<std::pair<QString, QString>>{{"Text13(0)", ""},
                                                                       {"Text13(0)", "x"},
                                                                       {"Text13(0)", "0"},
                                                                       {"Text13(0)", "7"},
                                                                       {"Text13(5)", "50"},
                                                                       {"Text13(5)", "99999999999"},
                                                                       {"Text13(6)", "10"},
                                                                       {"Text13(6)", ""}}) {
        const QString vorher = lies(feld);
        setze(feld, text);
        klicke("Befehl1");
        EXPECT_EQ(boxen(), QStringList{kKeineZiehung}) << text.toStdString();
        EXPECT_EQ(gewinn(1), "6-er+SZ");
        setze(feld, vorher);
    }
    setze("Text13(0)", "007");
    setze("Text13(1)", "8");
    klicke("Befehl1");
    EXPECT_EQ(boxen(), QStringList{});
    EXPECT_EQ(gewinn(1), "5-er+SZ");
}

TEST_F(Tippscheinbildschirm, DerBildlaufWaehltDieZiehung)
{
    oeffneSchein();
    setze("HBildlauf1", "1");
    EXPECT_EQ(lies("Rahmen2"), "Ziehung: So, 09.10.1955    2024/16");
    EXPECT_EQ(lies("Text13(0)"), "1");
    EXPECT_EQ(lies("Text13(6)"), "9");
    setze("HBildlauf1", "2");
    EXPECT_EQ(lies("Rahmen2"), "Letzte Ziehung: So, 16.10.1955    2024/17");
    EXPECT_FALSE(bedienung.setze("HBildlauf1", "3").gelungen());
}

TEST_F(Tippscheinbildschirm, OhneZiehungenBleibenDieFelderLeer)
{
    schreibe("SALOTTO.DAT", {});
    starte();
    oeffne("frmTA");
    EXPECT_EQ(lies("Text13(0)"), "");
    klicke("Befehl1");
    EXPECT_EQ(boxen(), QStringList{kKeineZiehung});
}

TEST_F(Tippscheinbildschirm, DasZahlenfeldOrdnetDieReiheUndGehtWeiter)
{
    oeffneSchein();
    for (const int index : {44, 2, 2, 11, 6, 22, 33})
        klicke(QString("Befehl4(%1)").arg(index));
    EXPECT_EQ(reihe(1), "3 7 12 23 45 :0");
    EXPECT_EQ(reihe(2), "34     :0") << "doppelte Zahlen belegen ein Feld, der Cursor geht trotzdem weiter";
    EXPECT_EQ(fokus(), "Text2(1)");
    EXPECT_TRUE(schirm().ungespeichert());
}

TEST_F(Tippscheinbildschirm, DerCursorGehtMitKnoepfenUndTasten)
{
    oeffneSchein();
    klicke("Befehl6");
    EXPECT_EQ(fokus(), "Text12(5)");
    klicke("Befehl5");
    EXPECT_EQ(fokus(), "Text1(0)");
    klicke("Befehl8");
    EXPECT_EQ(fokus(), "Text12(0)");
    klicke("Befehl7");
    EXPECT_EQ(fokus(), "Text1(0)");
    tippe("Text1(0)", "Down");
    EXPECT_EQ(fokus(), "Text2(0)");
    tippe("Text2(0)", "Right");
    EXPECT_EQ(fokus(), "Text2(1)");
    tippe("Text2(1)", "Up");
    EXPECT_EQ(fokus(), "Text1(1)");
    tippe("Text1(1)", "Left");
    EXPECT_EQ(fokus(), "Text1(0)");
    tippe("Text1(0)", "Left");
    EXPECT_EQ(fokus(), "Text12(5)");
    setze("Text7(2)", "12");
    tippe("Text7(2)", "Left");
    EXPECT_EQ(fokus(), "Text7(2)") << "erst an das Ende des Textes";
    klicke("Befehl4(4)");
    EXPECT_EQ(reihe(7), "5     :0") << "die Eingabe geht in das Feld, das den Fokus hatte";
}

TEST_F(Tippscheinbildschirm, DieSuperzahlFuerAlle)
{
    oeffneSchein();
    setze("kombo1", "7");
    EXPECT_EQ(reihe(1), "     :7");
    EXPECT_EQ(reihe(12), "     :7");
    setze("kombo1", "x");
    EXPECT_EQ(reihe(12), "     :x");
}

TEST_F(Tippscheinbildschirm, ClearLeertAllesUndSetztDenCursorZurueck)
{
    oeffneSchein();
    setzeReihe(1, kSechser);
    setzeReihe(4, {"4", "3", "2", "1", "5", "6"});
    klicke("Befehl1");
    klicke("Befehl9");
    EXPECT_EQ(reihe(1), "     :");
    EXPECT_EQ(reihe(4), "     :");
    EXPECT_EQ(gewinn(1), "");
    EXPECT_EQ(fehler(4), "");
    EXPECT_TRUE(hatGrund("Text1(0)", "#ffffff"));
    EXPECT_EQ(fokus(), "Text1(0)");
}

TEST_F(Tippscheinbildschirm, SpeichertUnterDerVorgeschlagenenWoche)
{
    oeffneSchein();
    klicke("Befehl4(0)");
    klicke("Befehl9");
    setzeReihe(1, kSechser);
    setzeReihe(2, {"5", "3", "7", "8", "9", "10"});
    setzeReihe(12, {"1", "2", "3", "4", "5", "6"}, "");
    antworte({"text:202418", "yes"});
    klicke("Befehl10");
    EXPECT_EQ(boxen(), (QStringList{kFrage, "question|Lotto-Nachricht|Tipschein wird als Samstag-Tipschein unter "
                                            "Spielwoche 202418 gespeichert. "}));
    EXPECT_EQ(inhalt("S_202418.dat"), kZeile + "202418. 1. 2. 3. 4. 5. 6:\r\n");
    EXPECT_EQ(scheine(), QStringList{"S_202418.dat"});
    EXPECT_EQ(lies("Bezeichnung33"), "S_202418");
    EXPECT_EQ(fehler(2), "Fehler");
    EXPECT_FALSE(schirm().ungespeichert());
}

TEST_F(Tippscheinbildschirm, FragtBisDieWocheGiltUndLaesstSichAbbrechen)
{
    oeffneSchein();
    setzeReihe(1, kSechser);
    antworte({"text:202400", "text:202454", "text:2024", "text:../x12", "text:" + QString(200, '1'), "text:"});
    klicke("Befehl10");
    EXPECT_EQ(boxen(), QStringList(6, kFrage));
    EXPECT_EQ(scheine(), QStringList{});
    antworte({"text:202453", "no"});
    klicke("Befehl10");
    EXPECT_EQ(boxen().size(), 2);
    EXPECT_EQ(scheine(), QStringList{});
    antworte({"text:202453", "yes"});
    klicke("Befehl10");
    EXPECT_EQ(inhalt("S_202453.dat"), "202453. 3. 7.12.23.34.45:5\r\n");
    antworte({"ok", "yes"});
    klicke("Befehl10");
    EXPECT_EQ(inhalt("S_202418.dat"), kZeile) << "der Vorschlag";
    antworte({"text:Haus12", "yes"});
    klicke("Befehl10");
    EXPECT_EQ(inhalt("S_Haus12.dat"), "Haus12. 3. 7.12.23.34.45:5\r\n");
}

TEST_F(Tippscheinbildschirm, FragtVorDemUeberschreibenUndBeiNeinVonVorn)
{
    oeffneSchein();
    lege("s_202418.DAT", kZeile + kZeile);
    setzeReihe(1, kSechser);
    antworte({"text:202418", "yes", "no", "text:202418", "yes", "yes"});
    klicke("Befehl10");
    const QStringList gezeigt = boxen();
    ASSERT_EQ(gezeigt.size(), 6);
    EXPECT_EQ(gezeigt[2], "question|Tombrix|Unter Spielwoche 202418 wurden schon Tipps in einer Datei S_202418.dat "
                          "abgespeichert. Datei überschreiben ?");
    EXPECT_EQ(gezeigt[3], kFrage);
    EXPECT_EQ(inhalt("s_202418.DAT"), kZeile);
    EXPECT_EQ(inhalt("s_202418.DAT.bak"), kZeile + kZeile);
    EXPECT_EQ(scheine(), QStringList{"s_202418.DAT"});
}

TEST_F(Tippscheinbildschirm, SpeichertAuchNebenEinerFalschenZiehungNurGueltigeReihen)
{
    oeffneSchein();
    setze("Text13(0)", "x");
    setzeReihe(1, {"45", "7", "12", "23", "34", "3"});
    setzeReihe(2, kSechser);
    antworte({"text:202418", "yes"});
    klicke("Befehl10");
    EXPECT_EQ(boxen().value(0), kKeineZiehung);
    EXPECT_EQ(fehler(1), "Fehler");
    EXPECT_EQ(inhalt("S_202418.dat"), kZeile);
}

TEST_F(Tippscheinbildschirm, EinScheinOhneTippsIstEineLeereDatei)
{
    oeffneSchein("Option3");
    antworte({"text:202418", "yes"});
    klicke("Befehl10");
    EXPECT_EQ(inhalt("M_202418.dat"), "");
}

TEST_F(Tippscheinbildschirm, ZwoelfTippsGebenZwoelfZeilen)
{
    oeffneSchein();
    for (int nr = 1; nr <= 12; ++nr)
        setzeReihe(nr, kSechser);
    antworte({"text:202418", "yes"});
    klicke("Befehl10");
    EXPECT_EQ(inhalt("S_202418.dat"), kZeile.repeated(12));
}

TEST_F(Tippscheinbildschirm, WasNichtGeschriebenWerdenKannBleibtUngespeichert)
{
    oeffneSchein();
    klicke("Befehl4(0)");
    QDir(ordner.path()).mkdir("S_202418.dat");
    antworte({"text:202418", "yes"});
    klicke("Befehl10");
    EXPECT_EQ(boxen().last(), kSchreibfehler);
    EXPECT_TRUE(schirm().ungespeichert());
    setzeReihe(1, kSechser);
    lege("S_202419.dat", "alt");
    {
        const VolleScheibe voll(10);
        antworte({"text:202419", "yes", "yes"});
        klicke("Befehl10");
    }
    EXPECT_EQ(boxen().last(), kSchreibfehler);
    EXPECT_EQ(inhalt("S_202419.dat"), "alt");
    EXPECT_EQ(reihe(1), "3 7 12 23 34 45:5");
}

TEST_F(Tippscheinbildschirm, EinKlickLaedt)
{
    oeffneSchein();
    setzeReihe(3, kSechser);
    klicke("Befehl1");
    lege("S_202418.dat", kZeile + "202418. 1. 2. 3. 4. 5. 6:\n");
    schliesse();
    oeffne("frmTA");
    setzeReihe(3, kSechser);
    bedienung.waehle("Datei1", {0});
    EXPECT_EQ(lies("Bezeichnung33"), "S_202418");
    EXPECT_EQ(reihe(1), " 3  7 12 23 34 45:5");
    EXPECT_EQ(reihe(2), " 1  2  3  4  5  6:");
    EXPECT_EQ(reihe(3), "     :");
    EXPECT_FALSE(schirm().ungespeichert());
    klicke("Befehl9");
    klicke("Befehl11");
    EXPECT_EQ(reihe(1), " 3  7 12 23 34 45:5");
    klicke("Befehl1");
    EXPECT_EQ(gewinn(1), "6-er+SZ");
}

TEST_F(Tippscheinbildschirm, EinScheinDesMittwochsGiltFuerBeideMittwoche)
{
    lege("M_202418.dat", kZeile);
    lege("S_202419.dat", "");
    oeffneSchein("Option3");
    EXPECT_EQ(scheine(), QStringList{"M_202418.dat"});
    bedienung.waehle("Datei1", {0});
    EXPECT_EQ(reihe(1), " 3  7 12 23 34 45:5");
}

TEST_F(Tippscheinbildschirm, EineJahresdateiWirdAbgewiesen)
{
    lege("S_1999al.dat", kZeile);
    oeffneSchein();
    setzeReihe(1, {"1", "2", "3", "4", "5", "6"});
    bedienung.waehle("Datei1", {0});
    EXPECT_EQ(boxen(),
              QStringList{"info|Lotto-Nachricht|Die Datei S_1999al.dat   ist eine, aus wöchentlichen Tipscheinen "
                          "zusammengefasste, Jahres-Tipscheindatei. Es können in diesem Programm nur wöchentliche "
                          "Tipschein-Dateien geladen werden."});
    EXPECT_EQ(reihe(1), "1 2 3 4 5 6:5");
}

TEST_F(Tippscheinbildschirm, VerschwundeneUndUnlesbareScheineLassenDieFelder)
{
    lege("S_202418.dat", kZeile);
    lege("S_202419.dat", {});
    ASSERT_TRUE(QFile::resize(pfad("S_202419.dat"), 100'000'000));
    oeffneSchein();
    setzeReihe(1, {"1", "2", "3", "4", "5", "6"});
    QFile::remove(pfad("S_202418.dat"));
    bedienung.waehle("Datei1", {0});
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|ERROR 53: Tipdatei nicht gefunden !"});
    EXPECT_EQ(scheine(), QStringList{"S_202419.dat"});
    bedienung.waehle("Datei1", {0});
    EXPECT_EQ(boxen(), QStringList{"info|Tombrix|Die Datei S_202419.dat kann nicht gelesen werden."});
    EXPECT_EQ(reihe(1), "1 2 3 4 5 6:5");
}

TEST_F(Tippscheinbildschirm, VerdorbeneZeilenWerdenBeimVergleichZuFehlern)
{
    lege("S_202418.dat", QByteArray("202\r\n202418. 0. 1. 2. 3. 4. 5:1\r\n202418. 1. 2. 3. 4. 5.50:1\r\n"
                                    "202418.-1. 2. 3. 4. 5. 6:1\r\n202418. 1. 1. 2. 3. 4. 5:1\r\n"
                                    "202418. 6. 5. 4. 3. 2. 1:1\r\n202418.\xe4\xf6. 2. 3. 4. 5. 6:1\r\n") +
                             QByteArray("20\0418. 1. 2. 3. 4. 5.\0"
                                        "6:1\r\n",
                                        28) +
                             QByteArray(300, '7') + "\r\n");
    oeffneSchein();
    bedienung.waehle("Datei1", {0});
    klicke("Befehl1");
    EXPECT_EQ(reihe(1), "     :");
    EXPECT_EQ(fehler(1), "");
    for (int nr = 2; nr <= 9; ++nr)
        EXPECT_EQ(fehler(nr), "Fehler") << nr;
    EXPECT_EQ(fehler(10), "");
}

TEST_F(Tippscheinbildschirm, EntfUndDieRechteTasteLoeschenNachFrage)
{
    lege("S_202418.dat", kZeile);
    lege("S_202419.dat", kZeile);
    oeffneSchein();
    bedienung.waehle("Datei1", {0});
    tippe("Datei1", "Del");
    EXPECT_EQ(boxen(), QStringList{"question|Lotto-Kontrollabfrage|Soll Tipschein-Datei S_202418.dat wirklich gelöscht "
                                   "werden ?"});
    EXPECT_EQ(scheine().size(), 2);
    antworte({"yes"});
    tippe("Datei1", "Del");
    EXPECT_EQ(scheine(), QStringList{"S_202419.dat"});
    EXPECT_EQ(inhalt("S_202418.dat"), "fehlt");
    boxen();
    antworte({"yes"});
    rechtsklicke("Datei1", 0);
    EXPECT_EQ(boxen().size(), 1);
    EXPECT_EQ(scheine(), QStringList{});
    tippe("Datei1", "Del");
    EXPECT_EQ(boxen(), QStringList{});
}

TEST_F(Tippscheinbildschirm, FragtBeimVerlassenNachUngespeichertenTipps)
{
    oeffneSchein();
    setzeReihe(1, kSechser);
    schliesse();
    EXPECT_EQ(boxen(), QStringList{}) << "nur das Zahlenfeld und übergebene Tipps zählen";
    oeffne("frmTA");
    klicke("Befehl4(0)");
    antworte({"yes"});
    klicke("Befehl2");
    EXPECT_EQ(boxen(), (QStringList{kUngespeichert, kFrage}));
    EXPECT_TRUE(schirm().isVisible());
    klicke("Befehl2");
    EXPECT_EQ(boxen(), QStringList{kUngespeichert});
    EXPECT_TRUE(buehne.bildschirme.geladen("frmLSTART")->isVisible());
    EXPECT_EQ(buehne.bildschirme.geladen("frmTA"), nullptr);
}

TEST_F(Tippscheinbildschirm, UebernimmtTippsEinesAnderenBildschirms)
{
    oeffneSchein();
    schliesse();
    QCoreApplication::processEvents();
    std::vector<Tippreihe> tipps(13, Tippreihe{{"1", "2", "3", "4", "5", "6"}, ""});
    tipps[1].superzahl = "9";
    schirm().uebernimm(tipps);
    oeffne("frmTA");
    EXPECT_EQ(reihe(1), "1 2 3 4 5 6:0");
    EXPECT_EQ(reihe(2), "1 2 3 4 5 6:9");
    EXPECT_EQ(reihe(12), "1 2 3 4 5 6:0");
    EXPECT_TRUE(schirm().ungespeichert());
    schirm().uebernimm({{{"7", "8", "9", "10", "11", "12"}, ""}});
    EXPECT_EQ(reihe(1), "7 8 9 10 11 12:0");
    EXPECT_EQ(reihe(2), "1 2 3 4 5 6:9") << "die anderen Reihen bleiben";
}

class Druckersatz final : public Bildschirm, public Tippempfaenger {
public:
    explicit Druckersatz(Umgebung& umgebung) : Bildschirm(umgebung, "frmTippen", "Druck")
    {
        Liste1 = liste("List1");
        setzeInhalt(spalte({Liste1}));
    }
    void nimmTippzeilen(const std::vector<std::string>& zeilen) override
    {
        for (const std::string& zeile : zeilen)
            Liste1->modell().AddItem(zeile);
    }

private:
    Liste* Liste1;
};

TEST_F(Tippscheinbildschirm, GibtGueltigeReihenAnDenDruckWeiter)
{
    buehne.bildschirme.registriere<Druckersatz>("frmTippen");
    oeffneSchein();
    setzeReihe(1, kSechser);
    setzeReihe(2, {"7", "3", "12", "13", "14", "15"});
    klicke("Command1");
    EXPECT_TRUE(buehne.bildschirme.geladen("frmTippen")->isVisible());
    bedienung.benutze("frmTippen");
    EXPECT_EQ(bedienung.zeilen("List1", 0, 20).zeilen, QStringList{"            3  7 12 23 34 45"});
}

TEST_F(Tippscheinbildschirm, DieHilfeNenntDieDateinamen)
{
    oeffneSchein();
    klicke("Befehl3");
    const QString hilfe = boxen().value(0);
    EXPECT_TRUE(hilfe.startsWith("info|Lotto-Hinweis zur Tipschein-Auswertung|Um einen Tippschein mit der letzten"));
    EXPECT_TRUE(hilfe.contains("Samstagslotto   : S_JJJJSW.DAT (JJJJSW-> Jahr Spielwoche)"));
    EXPECT_TRUE(hilfe.contains("Mittwochslotto  : M_JJJJSW.DAT"));
}

} // namespace
