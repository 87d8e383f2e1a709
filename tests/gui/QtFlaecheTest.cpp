// What the drawing surface really paints: measured in its pictures, not asked of the surface.
#include "gui/Programmaufruf.h"
#include "qt/malen/LeinwandFlaeche.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QSvgGenerator>
#include <QTemporaryDir>

#include <cmath>
#include <limits>

using namespace kw;

namespace {

constexpr double Breite = 29.7; // cm, A4 landscape
constexpr double Höhe = 21;
constexpr double DruckPixel = 600 / 2.54;

/// A canvas as the page setup leaves it.
struct Leinwand : LeinwandFläche {
    explicit Leinwand(double verhältnis, double faktor = 1) : LeinwandFläche(verhältnis) {
        const auto twips = [&](double cm) { return static_cast<int>(std::lround(cm * faktor * TwipsJeCm)); };
        GrößeSetzen(twips(Breite), twips(Höhe));
        Scale(Breite, Höhe, faktor);
        Cls();
    }
    double PixelJeCm() const { return BildschirmPixelJeCm * Faktor() * Pixelverhältnis(); }
};

/// A page to print on.
struct Papier : QtFläche {
    explicit Papier(QPaintDevice &gerät, double geräteJeCm) {
        Scale(Breite, Höhe, 1);
        EXPECT_TRUE(Beginnen(gerät, geräteJeCm, DruckPixelJeCm));
    }
    ~Papier() override { EXPECT_TRUE(Beenden()); }
};

QImage LeeresBild(double pixelJeCm) {
    QImage bild((QSizeF(Breite, Höhe) * pixelJeCm).toSize(), QImage::Format_RGB32);
    bild.fill(Qt::white);
    return bild;
}

int Grau(const QImage &bild, double x, double y) { return qGray(bild.pixel(static_cast<int>(x), static_cast<int>(y))); }

/// The columns with ink in some rows: the first, and one behind the last.
std::pair<int, int> Tinte(const QImage &bild, double vonZeile, double bisZeile) {
    std::pair spalten(bild.width(), -1);
    for (int y = static_cast<int>(vonZeile); y < std::min(static_cast<int>(bisZeile), bild.height()); ++y)
        for (int x = 0; x < bild.width(); ++x)
            if (qGray(reinterpret_cast<const QRgb *>(bild.constScanLine(y))[x]) < 230)
                spalten = {std::min(spalten.first, x), std::max(spalten.second, x + 1)};
    return spalten;
}

/// The smallest rectangle that holds all ink of the corner of the page.
QRect Tintenrahmen(const QImage &bild) {
    QRect rahmen;
    for (int y = 0; y < bild.height() / 8; ++y)
        for (int x = 0; x < bild.width() / 8; ++x)
            if (Grau(bild, x, y) < 230) rahmen |= QRect(x, y, 1, 1);
    return rahmen;
}

const QStringList Texte =
    QStringLiteral(
        "Anna,Müller,Jörg Weiß,AVATAR To. Wa,fi ffl Steffi,iiiii,WWW,* 1950,+ 85,Éloïse,Łukasz,Ελένη,1234567890,"
        "…„Zitat“ €,T.T.T.T,Yvonne Ä.,x  y   z,ßßß,a_(b),Hans-Jürgen")
        .split(u',');

/// All texts in one size, a line a centimetre, each repeated over most of the page, so that a pixel more or
/// less at its ends is far below half a percent. Gives the measured widths.
std::vector<double> TextseiteZeichnen(QtFläche &f, double größe) {
    std::vector<double> breiten;
    f.FontSize = größe * f.Faktor();
    for (const QString &text : Texte) {
        std::string zeile = "|";
        while (f.TextWidth(zeile) < 20) zeile += text.toStdString() + "|";
        f.CurrentX = 1;
        f.CurrentY = 0.5 + static_cast<double>(breiten.size());
        f.Print(zeile);
        breiten.push_back(f.TextWidth(zeile));
    }
    return breiten;
}

/// Painted widths (cm) of such a page.
std::vector<double> GemalteBreiten(const QImage &bild, double pixelJeCm) {
    std::vector<double> breiten;
    for (double y = 0.5; y < 20; ++y) {
        const auto [links, rechts] = Tinte(bild, y * pixelJeCm, (y + 0.98) * pixelJeCm);
        breiten.push_back((rechts - links) / pixelJeCm);
    }
    return breiten;
}

/// The same of a PDF, from the lines' beginning to their last word's right edge.
std::vector<double> BreitenImPdf(double größe) {
    const QTemporaryDir ordner;
    const QString datei = ordner.filePath(QStringLiteral("text.pdf"));
    QPdfWriter pdf(datei);
    pdf.setResolution(1200);
    pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF()));
    TextseiteZeichnen(*std::make_unique<Papier>(pdf, 1200 / 2.54), größe);
    constexpr double CmJePunkt = 2.54 / 72;
    std::vector<double> breiten(20);
    const QRegularExpression wort(QStringLiteral("yMin=\"([\\d.]+)\" xMax=\"([\\d.]+)\""));
    const QString worte = Ausgegeben("pdftotext", {QStringLiteral("-bbox"), datei, QStringLiteral("-")});
    for (auto i = wort.globalMatch(worte); i.hasNext();) {
        const auto m = i.next();
        double &breite = breiten.at(static_cast<std::size_t>(m.captured(1).toDouble() * CmJePunkt - 0.4));
        breite = std::max(breite, m.captured(2).toDouble() * CmJePunkt - 1);
    }
    return breiten;
}

void Vergleichen(const std::vector<double> &soll, const std::vector<double> &ist, double größe, const char *wo) {
    for (std::size_t i = 0; i < 20; ++i)
        EXPECT_NEAR(ist.at(i) / soll.at(i), 1, 0.005) << wo << ", " << größe << " points, text " << i;
}

} // namespace

TEST(QtFläche, TextIstÜberallGleichBreit) {
    constexpr double Größen[]{8, 6, 7, 11, 14, 24};
    for (size_t i = 0; i < std::size(Größen); i += KW_STICHPROBE) {
        const double größe = Größen[i];
        QImage papier = LeeresBild(DruckPixel);
        Papier druck(papier, DruckPixel);
        const auto gemessen = TextseiteZeichnen(druck, größe);
        const auto gemalt = GemalteBreiten(papier, DruckPixel);
        EXPECT_NEAR(druck.TextWidth("0000000000") / (5.56 * größe * 2.54 / 72), 1, 0.005); // a digit of Arial: 0.556 em
        auto vonStrichZuStrich = gemessen;
        for (double &breite : vonStrichZuStrich) breite -= druck.TextWidth("|");
        Vergleichen(vonStrichZuStrich, gemalt, größe, "print");
        Vergleichen(gemessen, BreitenImPdf(größe), größe, "PDF");
        for (const double faktor : {0.8, 1.0, 1.5, 2.5})
            for (const double verhältnis : {1.0, 1.25, 2.0}) {
                Leinwand f(verhältnis, faktor);
                EXPECT_EQ(TextseiteZeichnen(f, größe), gemessen);
                Vergleichen(gemalt, GemalteBreiten(f.Bild(), f.PixelJeCm()), größe, "canvas");
            }
    }
}

TEST(QtFläche, GeradeLinienSindScharfUndTreffenFlächen) {
    const std::pair<double, int> pixelBeiVerhältnis[] = {{1, 1}, {1.25, 1}, {1.5, 2}, {2, 2}};
    for (const auto &[verhältnis, pixel] : pixelBeiVerhältnis)
        for (const double x : {3.0, 4.217, 5.5}) {
            Leinwand f(verhältnis);
            const double k = f.PixelJeCm();
            EXPECT_EQ(f.Bild().size(), QSizeF(1122.667 * verhältnis, 793.8 * verhältnis).toSize());
            f.Line(LinieFarbig, x, 1, x, 2, Schwarz);
            const auto [links, rechts] = Tinte(f.Bild(), 1.5 * k, 1.5 * k + 1);
            EXPECT_EQ(rechts - links, pixel) << verhältnis;
            EXPECT_NEAR((links + rechts) / 2.0, x * k, 0.51) << verhältnis;
            EXPECT_EQ(Grau(f.Bild(), links, 1.5 * k), 0);
            EXPECT_EQ(Grau(f.Bild(), links - 1, 1.5 * k) + Grau(f.Bild(), rechts, 1.5 * k), 2 * 255);
            f.FillStyle = Gefüllt;
            f.FillColor = SystemFläche;
            f.Line(KastenFarbig, x, 4, x + 1, 5, Schwarz);
            EXPECT_EQ(Tinte(f.Bild(), 4.5 * k, 4.5 * k + 1).first, links);
            EXPECT_EQ(Grau(f.Bild(), rechts, 4.5 * k), 0xE3);
            const int p = static_cast<int>(std::nearbyint(x * BildschirmPixelJeCm));
            f.Polygon(std::array<Bildpunkt, 4>{{{p, 300}, {p + 40, 300}, {p + 40, 400}, {p, 400}}});
            EXPECT_NEAR(Tinte(f.Bild(), 350 * verhältnis, 350 * verhältnis + 1).first, links, verhältnis);
        }
}

/// The page is as large on the screen whatever its scale: a line must not become thicker beside the same texts. On a
/// screen of more pixels the texts grow too.
TEST(QtFläche, LinienSindNebenTextenSoSchwerWieOhneSkalierung) {
    const std::tuple<QSize, double, int> fälle[] = {
        {{1920, 1080}, 1, 1}, {{1280, 720}, 1.5, 1}, {{960, 540}, 2, 1},     {{640, 360}, 3, 1},
        {{3840, 2160}, 1, 1}, {{1920, 1080}, 2, 2},  {{1280, 720}, 3, 2},    {{1920, 1080}, 3, 3},
        {{1366, 768}, 1, 1},  {{911, 512}, 1.5, 1},  {{1536, 864}, 1.25, 1}, {{1536, 864}, 2.5, 2}};
    for (const auto &[bildschirm, verhältnis, pixel] : fälle) {
        Leinwand f(verhältnis);
        f.BildschirmSetzen(bildschirm);
        f.Cls();
        for (const int breite : {1, 2}) {
            f.DrawWidth = breite;
            f.Line(LinieFarbig, 3, breite * 2, 3, breite * 2 + 1, Schwarz);
            const double zeile = (breite * 2 + 0.5) * f.PixelJeCm();
            const auto [links, rechts] = Tinte(f.Bild(), zeile, zeile + 1);
            EXPECT_EQ(rechts - links, breite * pixel) << bildschirm.width() << " " << verhältnis;
        }
    }
}

TEST(QtFläche, GedruckteLinienHabenBreiteUndOrt) {
    for (const double k : {DruckPixel, 96 / 2.54}) {
        QImage bild = LeeresBild(k);
        Papier f(bild, k);
        f.DrawWidth = 6;
        f.Line(LinieFarbig, 5, 2, 5, 4, Schwarz);
        f.Polygon(std::array<Bildpunkt, 3>{{{5 * 236, 6 * 236}, {5 * 236, 8 * 236}, {7 * 236, 8 * 236}}});
        const auto [links, rechts] = Tinte(bild, 3 * k, 3 * k + 1);
        EXPECT_NEAR(rechts - links, std::max(1.0, 6.0 / 236 * k), 0.9);
        EXPECT_EQ(Grau(bild, links, 3 * k), 0) << "no line is paler than it is, however thin";
        EXPECT_EQ(Tinte(bild, 7 * k, 7 * k + 1).first, links);
    }
}

/// A deceased person's cross over its outline, on screens and on paper.
TEST(QtFläche, DiagonalenBleibenImUmrissUndGleichenEinander) {
    const auto zeichnen = [](QtFläche &f, const QImage &bild, double x) {
        f.Line(Kasten, x, 0.3, x + 1.2, 1.5, Schwarz);
        const QRect umriss = Tintenrahmen(bild);
        f.Diagonalen(Linie, x, 0.3, x + 1.2, 1.5, Schwarz);
        EXPECT_EQ(Tintenrahmen(bild), umriss) << x << ": a corner sticks out";
        const QImage kreuz = bild.copy(umriss);
        EXPECT_LT(Grau(kreuz, umriss.width() / 4.0, umriss.height() / 4.0), 128) << x;
        for (int i = 0; i < kreuz.width() * kreuz.height(); ++i) {
            const QPoint p(i % kreuz.width(), i / kreuz.width());
            ASSERT_NEAR(Grau(kreuz, p.x(), p.y()), Grau(kreuz, p.x(), kreuz.height() - 1 - p.y()), 1) << x;
        }
    };
    for (const double x : {0.3, 0.317, 0.4083, 0.45}) {
        for (const double verhältnis : {1.0, 1.25, 1.5, 2.0})
            for (const int breite : {1, 2}) {
                Leinwand f(verhältnis);
                f.DrawWidth = breite;
                zeichnen(f, f.Bild(), x);
            }
        for (const double k : {DruckPixel, 96 / 2.54}) {
            QImage bild = LeeresBild(k);
            Papier f(bild, k);
            f.DrawWidth = 6;
            zeichnen(f, bild, x);
        }
    }
}

/// A hand-drawn line has hundreds of stretches: as lines of their own they make files that nobody can open, and show
/// wherever they overlap. On a picture they stay what they were.
TEST(QtFläche, EinLinienzugIstInDateienEineLinieUndAufBildernJedeStrecke) {
    std::vector<Zeichenort> zug{{2, 2}, {2, 2}, {2.5, 2}, {3, 2}, {2.9, 2}, {4, 3.3}, {5, 4.6}, {3.5, 6}};
    const auto strecken = [](QtFläche &f, std::span<const Zeichenort> orte) {
        for (std::size_t i = 1; i < orte.size(); ++i)
            f.Line(LinieFarbig, orte[i - 1].X, orte[i - 1].Y, orte[i].X, orte[i].Y, Schwarz);
    };
    const auto alsSvg = [&] {
        QByteArray inhalt;
        QBuffer puffer(&inhalt);
        QSvgGenerator svg;
        svg.setOutputDevice(&puffer);
        Papier f(svg, 1200 / 2.54);
        f.Linienzug(zug, Schwarz);
        EXPECT_TRUE(f.Beenden());
        return inhalt;
    };
    const QByteArray svg = alsSvg();
    EXPECT_EQ(svg.count("<polyline"), 1);
    EXPECT_TRUE(svg.contains("stroke-linejoin=\"round\"")) << "thorns where the hand turns";
    const qsizetype punkte = svg.indexOf("points=\"") + 8;
    EXPECT_EQ(svg.mid(punkte, svg.indexOf('"', punkte) - punkte).trimmed().count(' ') + 1, 6) << svg.toStdString();
    for (const double fern : {2.0, 1e300, std::nan("")}) {
        QImage bild = LeeresBild(40);
        QImage soll = LeeresBild(40);
        zug[3].X = fern;
        Papier f(bild, 40);
        f.Linienzug(zug, Schwarz);
        Papier s(soll, 40);
        strecken(s, zug);
        EXPECT_EQ(bild, soll);
        EXPECT_EQ(alsSvg().count("nan") + alsSvg().count("e+"), 0);
    }
}

TEST(QtFläche, DeckenderTextLöschtWasDahinterLiegt) {
    for (const bool durchsichtig : {false, true}) {
        Leinwand f(1);
        f.DrawWidth = 5;
        f.Line(LinieFarbig, 2, 3.15, 12, 3.15, Schwarz);
        f.FontTransparent = durchsichtig;
        f.CurrentX = 5;
        f.CurrentY = 3;
        f.Print("    "); // blanks have their ground, too
        EXPECT_EQ(Grau(f.Bild(), 5.15 * 37.8, 3.15 * 37.8), durchsichtig ? 0 : 255);
        EXPECT_EQ(Grau(f.Bild(), 4.9 * 37.8, 3.15 * 37.8), 0);
    }
}

/// Records from elsewhere hold anything. Whatever it is, a page is drawn.
TEST(QtFläche, UnsinnigeWerteUndTexteSchadenNicht) {
    Leinwand f(1);
    constexpr double Unendlich = std::numeric_limits<double>::infinity();
    for (const double u : {std::nan(""), Unendlich, -Unendlich, 1e300, -1e300, 1e9, -1000.0, 31000.0, 0.0}) {
        for (const int stil : {StilDurchgezogen, StilGepunktet, StilStrichpunkt})
            for (const int art : {LinieFarbig, KastenFarbig}) {
                f.DrawStyle = stil;
                f.Line(art, u, 1, 5, 5, Schwarz);
                f.Line(art, -u, u, u, -u, Schwarz);
                f.Diagonalen(art, u, 1, 5, -u, Schwarz);
            }
        f.Circle(0, 5, 5, u, Schwarz);
        f.Torte(0, 5, u, 5, Rot, u, u);
        f.FontSize = f.CurrentX = u;
        EXPECT_GT(f.TextWidth(std::string(4095, 'W')) * f.TextHeight(), 0) << u;
        f.Print(std::string(4095, 'W'));
    }
    constexpr int Groß = std::numeric_limits<int>::max();
    f.Polygon(std::array<Bildpunkt, 3>{{{-Groß, Groß}, {Groß, 0}, {0, -Groß}}});
    f.Polygon({});
    f.FontSize = 8;
    for (const char *text : {"a\x01\x7f\tb", "a\r\nb", "a\xff\xc3", "a\u2028b\u2029c", "\uffff"}) {
        f.Cls();
        f.CurrentX = f.CurrentY = 2;
        f.Print(text);
        EXPECT_EQ(Tinte(f.Bild(), f.CurrentY * f.PixelJeCm() + 1, 794).second, -1) << "a second line";
    }
    f.GrößeSetzen(Groß, 30);
    f.Cls();
    EXPECT_TRUE(f.Beenden());
}
