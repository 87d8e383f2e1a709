// What is exported without names holds none of them: not in its text, its streams, its metadata, whatever way they are
// written. The same search finds them in the usual exports.
#include "app/Einzelbild.h"
#include "document/Dateien.h"
#include "document/Maskierung.h"
#include "document/ProjektDatei.h"
#include "document/saetze/Textbox.h"
#include "familytree/Uebergabe.h"
#include "gui/Programmaufruf.h"
#include "qt/drucken/Ausgabe.h"
#include "qt/grund/QtPlattform.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtEndian>

#include <random>
#include <set>
#include <vector>

using namespace kw;

namespace {

/// A document that says much of a family, and every word of that.
struct Fall {
    Dokument dokument;
    std::set<QString> Worte;  ///< names and texts, and their parts of three letters or more
    std::set<QString> Zahlen; ///< dates, and their parts of three digits or more
    std::set<QString>
        Gezeigt; ///< of the words, those that stand on the page in a script that extracts as it is written
};

class Erfinder {
  public:
    explicit Erfinder(unsigned saat) : zufall_(saat) {}

    Fall Erfinden() {
        for (int i = 1; i <= 24; ++i) Person(i);
        for (int i = 1; i <= 6; ++i) Linie(i);
        Institution();
        Texte();
        fall_.dokument.LegendeSichtbar = true;
        return std::move(fall_);
    }

  private:
    int Zahl(int von, int bis) { return von + static_cast<int>(zufall_() % static_cast<unsigned>(bis - von + 1)); }

    /// A made-up word, in one of several scripts. Of letters that no caption and no number of a page holds in a row.
    QString Wort() {
        static const QStringList Schriften{QStringLiteral("qxjvzwkfyh"),          QStringLiteral("QXJVZäöüßÄ"),
                                           QStringLiteral("ξψωφθλγδζη"),          QStringLiteral("жщыэюяфцчш"),
                                           QStringLiteral("אבגדהוזחטי"),          QStringLiteral("الحديثمرقز"),
                                           QStringLiteral("家族関係図書館山川田")};
        schrift_ = Zahl(0, static_cast<int>(Schriften.size()) - 1);
        const QString &zeichen = Schriften[schrift_];
        QString wort;
        for (int n = Zahl(3, 8); wort.size() < n;)
            if (const QChar c = zeichen[Zahl(0, 9)]; !wort.endsWith(c)) wort += c;
        return wort;
    }

    QString Name(bool gezeigt) {
        QString name = Wort();
        if (gezeigt && schrift_ < 4) fall_.Gezeigt.insert(name);
        fall_.Worte.insert(name);
        if (Zahl(0, 3) > 0) return name;
        const QString zweites = Wort();
        fall_.Worte.insert(zweites);
        return name + (Zahl(0, 1) ? u' ' : u'-') + zweites;
    }

    QString Tag() {
        const QString jahr = QString::number(Zahl(1905, 2019));
        QString tag = jahr;
        switch (Zahl(0, 3)) {
        case 0: break;
        case 1: tag = QStringLiteral("%1.%2.%3").arg(Zahl(1, 28)).arg(Zahl(1, 12)).arg(jahr); break;
        case 2: tag = QStringLiteral("%1-0%2-%3").arg(jahr).arg(Zahl(1, 9)).arg(Zahl(10, 28)); break;
        default: tag = QStringLiteral("um %1").arg(jahr);
        }
        fall_.Zahlen.insert({jahr, tag});
        return tag;
    }

    void Person(int nr) {
        const int spalte = (nr - 1) % 8;
        const int zeile = (nr - 1) / 8;
        const QString satz = QStringLiteral("%1_%2_%3_%4_1.2_%5_%6_0_1_%7_%8_%9__")
                                 .arg(nr, 3, 10, QLatin1Char('0'))
                                 .arg(1 + nr % 2)
                                 .arg(2.4 + 3.3 * spalte)
                                 .arg(2.4 + 3.6 * zeile)
                                 .arg(nr == 11 ? 1 : 0)
                                 .arg(Zahl(0, 4) ? QString() : QStringLiteral("$%1").arg(Zahl(1, 99)))
                                 .arg(Name(true), Name(true), Tag());
        fall_.dokument.cboPersonen.Anhängen(satz.toStdString());
    }

    void Linie(int nr) {
        const double x = 2.4 + 6.6 * ((nr - 1) % 4);
        const double y = 2.4 + 3.6 * ((nr - 1) / 4);
        const int mann = 2 * nr - 1;
        const auto nummer = [](int n) { return QStringLiteral("%1").arg(n, 3, 10, QLatin1Char('0')); };
        fall_.dokument.cboPartnerschaftsLinien.Anhängen(
            QStringLiteral("%1_%2_%3_%4_%5_%4_%6_%7_%8_%8_%3_%5__%9#%10#%11#%12")
                .arg(nummer(nr))
                .arg(nr % 4)
                .arg(x)
                .arg(y + 1.8)
                .arg(x + 3.3)
                .arg(nummer(mann), nummer(mann + 1))
                .arg(y)
                .arg(Tag(), Tag(), Name(false), Tag())
                .toStdString());
        if (nr > 4) return;
        fall_.dokument.cboKindlinien.Anhängen(QStringLiteral("%1_0_%2_%3_%3_%4_%5")
                                                  .arg(nummer(nr + 8), nummer(nr))
                                                  .arg(x)
                                                  .arg(y + 3.6)
                                                  .arg(y + 1.8)
                                                  .toStdString());
        fall_.dokument.cboBeziehungsLinien.Anhängen(
            QStringLiteral("_5_%1_%2_%1_%2_%3_%4").arg(x).arg(y).arg(nummer(nr), nummer(nr + 8)).toStdString());
    }

    /// The form lets "_" through here: the words come into fields that hold something else.
    void Institution() {
        const QStringList worte{Name(false), Name(false), Name(false), Name(false)};
        fall_.dokument.cboPersonen.Anhängen(
            QStringLiteral("099_9_24_14_1.2_____%1____").arg(worte.join(u'_')).toStdString());
    }

    void Texte() {
        for (const int länge : {1, 3, 900}) {
            QStringList worte;
            for (int i = 0; i < länge; ++i) worte += i % 50 ? Name(false) : Tag();
            TextBau box;
            box.Ort(3, 16).Schriftart("Arial").Schriftgroesse("9").Farbe("0").Inhalt(
                worte.join(länge == 3 ? u'#' : u' ').toStdString());
            fall_.dokument.cboTextboxen.Anhängen(box.Text());
        }
    }

    std::mt19937 zufall_;
    Fall fall_;
    int schrift_ = 0;
};

/// The word in all the ways in which a file can hold it.
std::vector<QByteArray> Schreibweisen(const QString &wort) {
    const QByteArray utf8 = wort.toUtf8();
    QByteArray vorn; // UTF-16, the higher byte first
    QByteArray entitäten;
    QByteArray hexadezimal;
    for (const QChar c : wort) {
        vorn += static_cast<char>(c.unicode() >> 8U);
        vorn += static_cast<char>(c.unicode() & 0xFFU);
        entitäten += "&#" + QByteArray::number(c.unicode()) + ";";
        hexadezimal += "&#x" + QByteArray::number(c.unicode(), 16) + ";";
    }
    QByteArray hinten = vorn;
    for (qsizetype i = 0; i < hinten.size(); i += 2) std::swap(hinten[i], hinten[i + 1]);
    std::vector<QByteArray> alle{utf8,
                                 vorn,
                                 hinten,
                                 entitäten,
                                 hexadezimal,
                                 utf8.toPercentEncoding(),
                                 utf8.toBase64(),
                                 QByteArray::fromStdString(Maskiert(utf8.toStdString()))};
    if (const QByteArray latin = wort.toLatin1(); QString::fromLatin1(latin) == wort) alle.push_back(latin);
    for (std::size_t i = 0; i < 3; ++i) alle.insert(alle.end(), {alle[i].toHex(), alle[i].toHex().toUpper()});
    return alle;
}

/// A few bytes in a row stand in every compressed file by chance: there the text says whether short words are in it.
bool Enthält(const QByteArray &bytes, const QString &wort) {
    constexpr qsizetype KeinZufall = 5;
    if (wort.size() < KeinZufall && bytes.contains('\0')) return false;
    for (const QByteArray &schreibweise : Schreibweisen(wort))
        if (bytes.contains(schreibweise)) return true;
    return false;
}

QByteArray Gelesen(const QString &datei) {
    QFile f(datei);
    EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << datei.toStdString();
    return f.readAll();
}

/// The file, and behind it what its compressed streams hold.
QByteArray Entpackt(const QByteArray &pdf) {
    QByteArray alles = pdf;
    int ströme = 0;
    for (qsizetype i = 0; (i = pdf.indexOf("stream\n", i)) >= 0; i += 7) {
        const qsizetype anfang = i + 7;
        const qsizetype ende = pdf.indexOf("endstream", anfang);
        const bool gepackt = pdf.mid(anfang, 1) == "\x78"; // others stand in the file as they are
        if (ende < 0 || !gepackt || pdf.mid(i - 3, 3) == "end") continue;
        const QByteArray inhalt = qUncompress(QByteArray("\0\x40\0\0", 4) + pdf.mid(anfang, ende - anfang));
        ströme += inhalt.isEmpty() ? 0 : 1;
        alles += '\n' + inhalt;
    }
    EXPECT_GE(ströme, 3);
    return alles;
}

/// With what stands beside the page, but for the file's size.
QString TextVonPdf(const QString &datei) {
    static const QRegularExpression Größe(QStringLiteral("File size:.*"));
    return Ausgegeben("pdftotext", {QStringLiteral("-enc"), QStringLiteral("UTF-8"), datei, QStringLiteral("-")}) +
           Ausgegeben("pdfinfo", {datei}).remove(Größe);
}

QString TextVonSvg(const QByteArray &svg) {
    QXmlStreamReader xml(svg);
    QString text;
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::Characters) text += xml.text().toString() + u'\n';
    EXPECT_FALSE(xml.hasError());
    return text;
}

/// Every character that the fonts of a PDF say they have.
std::set<char32_t> Schriftzeichen(const QByteArray &entpackt) {
    std::set<char32_t> zeichen;
    static const QRegularExpression Zuordnung(
        QStringLiteral("<([0-9A-Fa-f]{4})>\\s+<([0-9A-Fa-f]{4})>\\s+<([0-9A-Fa-f]{4})>|"
                       "\\[((?:<[0-9A-Fa-f]{4}>\\s*)+)\\]"));
    static const QRegularExpression Einzeln(QStringLiteral("<([0-9A-Fa-f]{4})>"));
    auto karten = QString::fromLatin1(entpackt);
    for (auto i = Zuordnung.globalMatch(karten); i.hasNext();) {
        const auto treffer = i.next();
        if (!treffer.captured(3).isEmpty()) zeichen.insert(treffer.captured(3).toUInt(nullptr, 16));
        for (auto j = Einzeln.globalMatch(treffer.captured(4)); j.hasNext();)
            zeichen.insert(j.next().captured(1).toUInt(nullptr, 16));
    }
    return zeichen;
}

QList<QByteArray> PngAbschnitte(const QByteArray &png) {
    QList<QByteArray> namen;
    for (qsizetype i = 8; i + 8 <= png.size();) {
        namen += png.mid(i + 4, 4);
        i += 12 + static_cast<qsizetype>(qFromBigEndian<quint32>(png.constData() + i));
    }
    return namen;
}

class Seitenexport : public testing::Test {
  protected:
    /// What the export of that kind says, bytes and text.
    struct Ausgegebenes {
        QByteArray Bytes;
        QString Text;
    };
    Ausgegebenes Ausgeben(Einzelbild &bild, const char *kennung, const QString &titel) {
        const QString datei = ordner.filePath(QStringLiteral("seite.") + QLatin1String(kennung));
        EXPECT_EQ(Exportieren(bild, datei.toStdString(), 100, titel.toStdString()), "");
        const QByteArray bytes = Gelesen(datei);
        if (kennung == std::string_view("pdf")) return {Entpackt(bytes), TextVonPdf(datei)};
        if (kennung == std::string_view("svg")) return {bytes, TextVonSvg(bytes)};
        return {bytes, QString()};
    }

    QTemporaryDir ordner;
    QtUhr uhr;
};

class OhneNamenExport : public Seitenexport, public testing::WithParamInterface<Lebenszeit> {};

} // namespace

TEST_P(OhneNamenExport, VerrätKeinenNamenKeinDatumUndKeinenText) {
    const bool jahre = GetParam() == Lebenszeit::Geburtsjahr;
    for (unsigned saat = 1; saat <= 3; ++saat) {
        const Fall fall = Erfinder(saat).Erfinden();
        Einzelbild bild(uhr, "");
        bild.dokument = fall.dokument;
        bild.OhneNamen(GetParam());
        const auto prüfen = [&](const QByteArray &bytes, const QString &text, const char *was) {
            for (const QString &wort : fall.Worte) {
                ASSERT_FALSE(Enthält(bytes, wort)) << wort.toStdString() << " in the bytes of " << was;
                ASSERT_FALSE(text.contains(wort)) << wort.toStdString() << " in the text of " << was;
            }
            for (const QString &zahl : fall.Zahlen) {
                const bool istJahr = zahl.size() == 4; // which, of birth, may show
                ASSERT_FALSE((!istJahr || !jahre) && text.contains(zahl)) << zahl.toStdString() << " in " << was;
                ASSERT_FALSE(!istJahr && bytes.contains(zahl.toUtf8())) << zahl.toStdString() << " in " << was;
            }
        };
        for (const char *kennung : {"pdf", "svg", "png"}) {
            const auto [bytes, text] = Ausgeben(bild, kennung, QStringLiteral("Kinwright"));
            prüfen(bytes, text, kennung);
            if (kennung == std::string_view("png"))
                EXPECT_EQ(PngAbschnitte(bytes), QList<QByteArray>({"IHDR", "pHYs", "IDAT", "IEND"}));
            else EXPECT_TRUE(text.contains(QStringLiteral("B7"))) << "it has its people";
            if (kennung != std::string_view("pdf")) continue;
            EXPECT_FALSE(bytes.contains("CreationDate"));
            for (const char32_t zeichen : Schriftzeichen(bytes)) EXPECT_LT(zeichen, 0x80U) << "a letter of a name";
        }
        const std::string projekt = ProjektInhalt(bild.dokument);
        const QByteArray bytes = QByteArray::fromStdString(projekt);
        prüfen(bytes, QString::fromLatin1(bytes), "the project");
        Dokument wieder;
        EXPECT_TRUE(ProjektLesen(Profil(projekt), wieder).Unversehrt());
        EXPECT_TRUE(wieder.GleicheSätze(bild.dokument));
        for (const auto fassung : {Stammbaumfassung::Gedcom551, Stammbaumfassung::Gedcom70}) {
            const auto baum = QByteArray::fromStdString(Übergeben(bild.dokument, uhr, {fassung, true, true}).Text);
            prüfen(baum, QString::fromUtf8(baum), "the family tree");
            EXPECT_TRUE(baum.contains("NAME B7")) << "it has its people";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Beide, OhneNamenExport, testing::Values(Lebenszeit::Alter, Lebenszeit::Geburtsjahr),
                         [](const auto &fall) { return fall.param == Lebenszeit::Alter ? "Alter" : "Geburtsjahr"; });

/// The search would find them: it does in what is exported with names.
TEST_F(Seitenexport, HatSonstAlleNamen) {
    const Fall fall = Erfinder(1).Erfinden();
    Einzelbild bild(uhr, "");
    bild.dokument = fall.dokument;
    ASSERT_GT(fall.Gezeigt.size(), 10U);
    for (const char *kennung : {"pdf", "svg"}) {
        const QString titel = *fall.Gezeigt.begin();
        const auto [bytes, text] = Ausgeben(bild, kennung, titel);
        EXPECT_TRUE(Enthält(bytes, titel)) << "the title of " << kennung;
        for (const QString &wort : fall.Gezeigt)
            EXPECT_TRUE(text.contains(wort)) << wort.toStdString() << " in " << kennung;
        if (kennung == std::string_view("svg")) continue;
        const auto zeichen = Schriftzeichen(bytes);
        EXPECT_TRUE(std::any_of(zeichen.begin(), zeichen.end(), [](char32_t z) { return z >= 0x370 && z < 0x500; }));
    }
    const QByteArray projekt = QByteArray::fromStdString(ProjektInhalt(fall.dokument));
    for (const QString &wort : fall.Worte) EXPECT_TRUE(Enthält(projekt, wort)) << wort.toStdString();
    const auto baum = QByteArray::fromStdString(Übergeben(fall.dokument, uhr).Text);
    for (const QString &wort : fall.Gezeigt) EXPECT_TRUE(Enthält(baum, wort)) << wort.toStdString();
    for (const QString &zahl : fall.Zahlen) EXPECT_TRUE(Enthält(projekt, zahl)) << zahl.toStdString();
}
