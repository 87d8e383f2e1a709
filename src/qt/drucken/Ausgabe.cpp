#include "qt/drucken/Ausgabe.h"

#include "app/Einzelbild.h"
#include "document/Dateien.h"
#include "output/Pngbild.h"
#include "platform/Drucker.h"
#include "qt/grund/Text.h"
#include "qt/malen/QtFlaeche.h"
#include "qt/malen/Spielraum.h"
#include "rendering/Ebenen.h"
#include "rendering/Seite.h"
#include "rendering/Zeichnung.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPageSize>
#include <QPaintEngine>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <new>
#include <span>

namespace kw {

namespace {

constexpr int VektorDpi = 1200;
constexpr double HöchstzahlPixel = 200e6; ///< 800 MB of picture; A4 at 1400 dpi

/// One export: what to draw and where the bytes go.
struct Auftrag {
    const Druckauftrag &seite;
    int dpi;
    QByteArray inhalt;

    QString Titel() const { return Text(seite.Titel); }
    QSizeF Millimeter() const { return QSizeF(seite.SeitenBreite, seite.SeitenHöhe) * 10; }
};

/// Empty on success.
std::string Drucken(const Auftrag &a, QPaintDevice &gerät, double geräteJeCm) {
    return SeiteDrucken(a.seite, gerät, geräteJeCm) ? "" : "cannot draw the page";
}

/// Blanks in the place of the time that the toolkit writes: nothing behind it may move, since the file counts bytes.
void ZeitTilgen(QByteArray &pdf) {
    const qsizetype anfang = pdf.indexOf("/CreationDate (");
    const qsizetype ende = anfang < 0 ? -1 : pdf.indexOf(')', anfang);
    if (ende >= 0) pdf.replace(anfang, ende + 1 - anfang, QByteArray(ende + 1 - anfang, ' '));
}

std::string AlsPdf(Auftrag &a) {
    QBuffer puffer(&a.inhalt);
    puffer.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&puffer);
    pdf.setTitle(a.Titel());
    pdf.setCreator(QStringLiteral("Kinwright"));
    pdf.setResolution(VektorDpi);
    const QPageSize papier(a.Millimeter(), QPageSize::Millimeter, QString(), QPageSize::ExactMatch);
    pdf.setPageLayout(QPageLayout(papier, QPageLayout::Portrait, QMarginsF()));
    const std::string fehler = Drucken(a, pdf, VektorDpi / CmJeZoll);
    if (a.seite.OhneZeit) ZeitTilgen(a.inhalt);
    return fehler;
}

std::string AlsSvg(Auftrag &a) {
    QBuffer puffer(&a.inhalt);
    puffer.open(QIODevice::WriteOnly);
    QSvgGenerator svg;
    svg.setOutputDevice(&puffer);
    svg.setTitle(FürXml(a.seite.Titel)); // written as it stands
    svg.setDescription(QStringLiteral("Kinwright"));
    // The size goes into the file as whole units of this resolution: tenths of a millimetre lose nothing.
    constexpr int ZehntelmillimeterDpi = 254;
    svg.setResolution(ZehntelmillimeterDpi);
    svg.setSize((a.Millimeter() * 10).toSize());
    svg.setViewBox(QRectF(QPointF(), a.Millimeter() / 10 / CmJeZoll * VektorDpi));
    return Drucken(a, svg, VektorDpi / CmJeZoll);
}

/// The resolution in the unit of the formats.
int JeMeter(const Auftrag &a) { return static_cast<int>(std::lround(a.dpi / 0.0254)); }

/// The page on white, opaque, into `bild`.
std::string BildMalen(const Auftrag &a, QImage &bild) {
    const QSizeF größe = a.Millimeter() / 10 / CmJeZoll * a.dpi;
    const QSize pixel = größe.toSize();
    if (größe.width() * größe.height() > HöchstzahlPixel)
        return std::to_string(a.dpi) + " dots per inch make a picture of " + std::to_string(pixel.width()) + " x " +
               std::to_string(pixel.height()) + " pixels; at most 200 million are possible";
    bild = QImage(pixel, QImage::Format_RGB32);
    SpielraumVerlangen(bild);
    bild.fill(Qt::white);
    return Drucken(a, bild, a.dpi / CmJeZoll);
}

std::string AlsBild(Auftrag &a, const char *format) {
    QImage bild;
    if (auto fehler = BildMalen(a, bild); !fehler.empty()) return fehler;
    bild.setDotsPerMeterX(JeMeter(a));
    bild.setDotsPerMeterY(JeMeter(a));
    QBuffer puffer(&a.inhalt);
    puffer.open(QIODevice::WriteOnly);
    QImageWriter schreiber(&puffer, format);
    if (*format == 'j') schreiber.setQuality(100);
    return schreiber.write(bild) ? "" : schreiber.errorString().toStdString();
}

std::string AlsPng(Auftrag &a) {
    QImage bild;
    if (auto fehler = BildMalen(a, bild); !fehler.empty()) return fehler;
    const auto breite = static_cast<std::uint32_t>(bild.width());
    const std::span pixel(reinterpret_cast<std::uint32_t *>(bild.bits()),
                          breite * static_cast<std::size_t>(bild.height()));
    a.inhalt = QByteArray::fromStdString(PngAus(pixel, breite, static_cast<std::uint32_t>(JeMeter(a))));
    return "";
}

struct Format {
    std::string_view Endung;
    std::string (*Erzeugen)(Auftrag &);
};
constexpr Format Formate[] = {
    {"pdf", AlsPdf},
    {"svg", AlsSvg},
    {"png", AlsPng},
    {"jpg", [](Auftrag &a) { return AlsBild(a, "jpeg"); }},
    {"jpeg", [](Auftrag &a) { return AlsBild(a, "jpeg"); }},
    {"bmp", [](Auftrag &a) { return AlsBild(a, "bmp"); }},
};

const Format *FormatFür(std::string_view ziel) {
    std::string endung = Kennung(DateiName(std::string(ziel)));
    for (char &c : endung)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    const auto *ende = std::end(Formate);
    const auto *i = std::find_if(std::begin(Formate), ende, [&](const Format &f) { return f.Endung == endung; });
    return i == ende ? nullptr : i;
}

Dateibefund Schreiben(const Format &format, Auftrag auftrag, const std::string &ziel) {
    SpielraumVerlangen();
    if (auto fehler = format.Erzeugen(auftrag); !fehler.empty()) return {fehler, Ursache::Sonstiges};
    const QByteArray &inhalt = auftrag.inhalt;
    if (inhalt.isEmpty()) return {"the page came out empty", Ursache::Sonstiges};
    return DateiSchreiben(ziel, {inhalt.constData(), static_cast<std::size_t>(inhalt.size())});
}

} // namespace

bool IstAusgabeformat(std::string_view ziel) { return FormatFür(ziel) != nullptr; }

Druckauftrag GanzeSeite(Einzelbild &bild, const std::string &titel) {
    SeiteBestimmen(bild.dokument, bild.ansicht);
    Druckauftrag seite{titel,
                       true,
                       bild.ansicht.SeitenBreite,
                       bild.ansicht.SeitenHöhe,
                       [&bild](Zeichenfläche &papier) { bild.AufPapier(papier); },
                       {},
                       bild.IstOhneNamen()};
    if (HatUngemesseneTextboxen(bild.dokument)) {
        QImage probe(1, 1, QImage::Format_RGB32);
        SeiteDrucken(seite, probe, 1);
    }
    return seite;
}

std::string Exportieren(Einzelbild &bild, const std::string &ziel, int dpi, const std::string &titel) {
    const Format *format = FormatFür(ziel);
    if (!format) return "unknown kind of file";
    if (dpi < KleinsteDpi || dpi > GrößteDpi) return "the resolution is out of range";
    try {
        const Druckauftrag seite = GanzeSeite(bild, titel);
        return Schreiben(*format, {seite, dpi, {}}, ziel).Meldung;
    } catch (const std::bad_alloc &) {
        return "not enough memory for the page";
    }
}

bool SeiteDrucken(const Druckauftrag &seite, QPaintDevice &gerät, double geräteJeCm, const QTransform &aufGerät) {
    const auto twips = [](double cm) { return static_cast<int>(std::lround(cm * TwipsJeCm)); };
    QtFläche papier;
    papier.GrößeSetzen(twips(seite.SeitenBreite), twips(seite.SeitenHöhe));
    papier.Scale(seite.SeitenBreite, seite.SeitenHöhe, 1);
    if (!seite.Farbig) papier.InGrau();
    if (!papier.Beginnen(gerät, geräteJeCm, DruckPixelJeCm, aufGerät)) return false;
    // Viewers show an SVG on whatever ground they have themselves, dark ones too.
    if (gerät.paintEngine()->type() == QPaintEngine::SVG) papier.Cls();
    seite.Zeichnen(papier);
    for (const auto &zeichnen : seite.WeitereBlätter) {
        if (!papier.NeuesBlatt()) return false;
        zeichnen(papier);
    }
    return papier.Beenden();
}

Ursache SeiteSchreiben(const Druckauftrag &seite, const std::string &ziel) {
    const Format *format = FormatFür(ziel);
    return format ? Schreiben(*format, {seite, ÜblicheDpi, {}}, ziel).Grund : Ursache::Sonstiges;
}

Ursache PdfSchreiben(const Druckauftrag &seite, const std::string &ziel) {
    return Schreiben({"pdf", AlsPdf}, {seite, VektorDpi, {}}, ziel).Grund;
}

} // namespace kw
