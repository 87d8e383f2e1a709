// Exports: whole files of the right size, or a message and no file.
#include "qt/drucken/Ausgabe.h"
#include "app/Einzelbild.h"
#include "document/Dateien.h"
#include "gui/Programmaufruf.h"
#include "output/Pngbild.h"
#include "qt/drucken/Vorschaubild.h"
#include "qt/grund/QtPlattform.h"

#include <QColor>
#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <cstdint>
#include <random>
#include <vector>

#include <sys/stat.h>

using namespace kw;

namespace {

class Ausgabe : public testing::Test {
  protected:
    Ausgabe() {
        bild.dokument.cboPersonen.Anhängen("001_1_5_5_1.2_0__0_0_Jörg_Größmann_1950__");
        bild.dokument.cboTextboxen.Anhängen("3_8_Arial_12_255_1_0_0_0_Öl & <Käse>#\x01\xff\xef\xbf\xbe]]>_4_1");
        bild.ansicht.bRasterAnzeigen = true; // of the screen only
    }
    QString Ort(const char *name) const { return ordner.filePath(QString::fromUtf8(name)); }
    std::string Fehler(const char *name, int dpi = 150) {
        return Exportieren(bild, Ort(name).toStdString(), dpi, titel);
    }

    std::string titel = "Mein Täst";
    QTemporaryDir ordner;
    QtUhr uhr;
    Einzelbild bild{uhr, ""};
};

void EnthältAlle(const QString &text, std::initializer_list<const char *> worte) {
    for (const char *wort : worte)
        EXPECT_TRUE(text.contains(QString::fromUtf8(wort))) << wort << " in\n" << text.toStdString();
}

} // namespace

TEST_F(Ausgabe, BilderHabenDieGrößeDerSeiteUndIhreAuflösung) {
    for (const char *name : {"a.png", "a.JPG", "a.jpeg", "a.Bmp"}) {
        EXPECT_EQ(Fehler(name), "");
        const QImage gelesen(Ort(name));
        EXPECT_EQ(gelesen.size(), QSize(1754, 1240)) << name;
        EXPECT_NEAR(gelesen.dotsPerMeterX(), 150 / 0.0254, 20) << name;
        EXPECT_FALSE(gelesen.hasAlphaChannel()) << name;
        for (const QPoint leer : {QPoint(0, 0), QPoint(18, 9), QPoint(1753, 1239)})
            EXPECT_EQ(gelesen.pixelColor(leer), QColor(Qt::white)) << name;
        EXPECT_NEAR(gelesen.pixelColor(272, 272).blue(), 226, 4) << "inside the person, " << name;
    }
}

/// Our own encoder against the toolkit's decoder. The rows are made in the pixels' memory: what overwrites a pixel that
/// is still to be read shows in narrow pictures first.
TEST(Pngbild, WirdPixelFürPixelWiederGelesen) {
    std::mt19937 zufall(7);
    const std::pair<unsigned, unsigned> größen[] = {{1, 1}, {1, 9}, {2, 5}, {3, 3}, {9, 1}, {61, 47}, {11000, 3}};
    for (const auto &[breite, höhe] : größen)
        for (const std::uint32_t farben : {0xFFFFFFFFU, 0x00010101U, 0U}) { // noise, specks, one colour
            std::vector<std::uint32_t> pixel(std::size_t{breite} * höhe);
            for (auto &p : pixel) p = 0xFFFFFFFFU ^ (static_cast<std::uint32_t>(zufall()) & farben);
            const QImage bild(reinterpret_cast<const uchar *>(pixel.data()), static_cast<int>(breite),
                              static_cast<int>(höhe), QImage::Format_RGB32);
            const QImage vorher = bild.copy();
            const QImage gelesen = QImage::fromData(QByteArray::fromStdString(PngAus(pixel, breite, 11811)), "png");
            EXPECT_EQ(gelesen.convertToFormat(QImage::Format_RGB32), vorher) << breite << " x " << höhe;
            EXPECT_EQ(gelesen.dotsPerMeterX(), 11811);
        }
}

/// The page's PNG goes by our own encoder, its bitmap by the toolkit's.
TEST_F(Ausgabe, PngIstDieSeiteUndNichtGrößerAlsDasDerBibliothek) {
    ASSERT_EQ(bild.Laden(KW_TESTDATEN "/../samples/grossfamilie.kwp"), "");
    for (const int dpi : {40, 300}) {
        EXPECT_EQ(Fehler("a.png", dpi), "");
        EXPECT_EQ(Fehler("a.bmp", dpi), "");
        const QImage png = QImage(Ort("a.png")).convertToFormat(QImage::Format_RGB32);
        EXPECT_EQ(png, QImage(Ort("a.bmp")).convertToFormat(QImage::Format_RGB32));
        ASSERT_TRUE(png.save(Ort("b.png")));
        EXPECT_LE(QFileInfo(Ort("a.png")).size(), QFileInfo(Ort("b.png")).size());
    }
}

/// The file manager names the file that is to be written: by no ending of ours.
TEST_F(Ausgabe, VorschaubildIstDieGanzeSeiteImQuadrat) {
    const std::string ziel = Ort("vorschau").toStdString();
    bild.dokument.cboPersonen.Anhängen("002_1_28.4_19.7_1.2_0__0_0_Eck_Person_1950__");
    for (const auto &[lage, größe] : {std::pair(1, QSize(181, 256)), std::pair(2, QSize(256, 181))}) {
        bild.dokument.Seitenlage = lage;
        EXPECT_EQ(VorschaubildSchreiben(bild, ziel, 256), "");
        const QImage gelesen(Ort("vorschau"), "png");
        EXPECT_EQ(gelesen.size(), größe);
        EXPECT_EQ(gelesen.pixelColor(1, 1), QColor(Qt::white));
        EXPECT_NEAR(gelesen.pixelColor(40, 40).blue(), 226, 4) << "inside the person, " << lage;
    }
    EXPECT_NEAR(QImage(Ort("vorschau"), "png").pixelColor(242, 167).blue(), 226, 4) << "the page's other end";
    EXPECT_NE(VorschaubildSchreiben(bild, Ort("nirgends/x").toStdString(), 256), "");
    EXPECT_NE(VorschaubildSchreiben(bild, Ort("x").toStdString(), GrößteKante + 1), "");
    EXPECT_FALSE(QFile::exists(Ort("x")));
}

TEST_F(Ausgabe, PdfHatPapierSchriftenUndText) {
    const std::tuple<int, int, const char *> seiten[] = {
        {9, 2, "842 x 595 pts"}, {9, 1, "595 x 842 pts"}, {11, 1, "420 x 595 pts"}, {1, 2, "792 x 612 pts"}};
    for (const auto &[papier, lage, größe] : seiten) {
        bild.dokument.Papiercode = papier;
        bild.dokument.Seitenlage = lage;
        EXPECT_EQ(Fehler("a.pdf"), "");
        EnthältAlle(Ausgegeben("pdfinfo", {Ort("a.pdf")}), {größe, "Pages:           1\n", "Mein Täst"});
    }
    SchriftenEnthalten(Ort("a.pdf"));
    EnthältAlle(Ausgegeben("pdftotext", {Ort("a.pdf"), QStringLiteral("-")}), {"Jörg", "Größmann", "Öl & <Käse>"});
}

TEST_F(Ausgabe, SvgIstGanzWasAuchInTextenSteht) {
    const std::string böse = "Arial\x01\" onmouseover=\"alert(1)\"><script>&";
    bild.dokument.cboTextboxen.Anhängen("9_8_" + böse + "_12_255_1_0_0_0_Wort_4_1");
    titel = "Müller & Schmidt </title><script>\x02";
    std::string inhalt;
    EXPECT_EQ(Fehler("a.svg"), "");
    EXPECT_TRUE(DateiLesen(Ort("a.svg").toStdString(), inhalt).Gelungen());
    EXPECT_NE(inhalt.find("width=\"297mm\" height=\"210mm\""), std::string::npos);
    QXmlStreamReader xml(QByteArray::fromStdString(inhalt));
    QString texte;
    QStringList schriften;
    while (xml.readNext() != QXmlStreamReader::Invalid && !xml.atEnd()) {
        texte += xml.text();
        EXPECT_NE(xml.name(), QStringLiteral("script"));
        EXPECT_FALSE(xml.attributes().hasAttribute(QStringLiteral("onmouseover")));
        schriften += xml.attributes().value(QStringLiteral("font-family")).toString();
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EnthältAlle(texte, {"Größmann", "Öl & <Käse>", "]]>", "Müller & Schmidt </title><script>"});
    EXPECT_TRUE(schriften.contains(QString::fromStdString(böse).replace(u'\x01', u' ')));
}

TEST_F(Ausgabe, WasSichNichtSchreibenLässtWirdGesagtUndLässtNichtsZurück) {
    QDir(ordner.path()).mkdir(QStringLiteral("ordner.pdf"));
    ASSERT_TRUE(DateiSchreiben(Ort("fest.pdf").toStdString(), "alt").Gelungen());
    ASSERT_EQ(::chmod(Ort("fest.pdf").toUtf8().constData(), 0444), 0);
    for (const char *name : {"voll.pdf", "voll.svg", "voll.png", "voll.jpg", "voll.bmp"}) {
        ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), Ort(name)));
        EXPECT_EQ(Fehler(name), "No space left on device");
        QFile::remove(Ort(name));
    }
    for (const char *name : {"ordner.pdf", "fest.pdf", "gibt/es/nicht.pdf", "a.gif", "pdf", ""})
        EXPECT_NE(Fehler(name), "") << name;
    for (const int dpi : {GrößteDpi + 1, KleinsteDpi - 1, GrößteDpi}) EXPECT_NE(Fehler("a.png", dpi), "");
    EXPECT_EQ(QDir(ordner.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).join(u' '),
              QStringLiteral("fest.pdf ordner.pdf"));
    EXPECT_EQ(QFileInfo(Ort("fest.pdf")).size(), 3);
}
