// Pictures of the page: what the window exports and copies.
#include "app/Einzelbild.h"
#include "document/Dateien.h"
#include "editing/Personen.h"
#include "gui/Bedienung.h"
#include "output/basBildExport.h"
#include "qt/drucken/Ausgabe.h"
#include "qt/drucken/QtBilder.h"
#include <QClipboard>
#include <QDir>
#include <QTemporaryDir>
#include <fstream>
#include <new>
#include <sys/resource.h>
#include <unistd.h>

#include <gtest/gtest.h>

using namespace kw;

namespace {

/// A resolution in the file would print the page at a size that nobody has chosen.
TEST_F(Bedienung, BildIstDieLeinwandOhneAuflösung) {
    PersonSetzen({400, 300});
    QtBilder kamera(leinwand);
    kamera.InZwischenablage({30, 45, 6000, 3000}); // twips
    EXPECT_EQ(QGuiApplication::clipboard()->image().convertToFormat(leinwand.Bild().format()),
              leinwand.Bild().copy(2, 3, 400, 200));
    const QTemporaryDir ordner;
    const QString datei = ordner.filePath(QStringLiteral("bild"));
    const auto bytes = [&](int stelle, int anzahl) {
        QFile f(datei);
        EXPECT_TRUE(f.open(QIODevice::ReadOnly));
        return f.readAll().mid(stelle, anzahl).toHex();
    };
    ASSERT_EQ(kamera.SavePicture(datei.toStdString(), std::nullopt), Ursache::Keine);
    EXPECT_EQ(bytes(38, 8), QByteArray(16, '0'));
    ASSERT_EQ(kamera.AlsJpeg(datei.toStdString(), 100), Ursache::Keine);
    EXPECT_EQ(bytes(6, 12), "4a4649460001010000010001"); // JFIF 1.1, no unit
    EXPECT_EQ(QImage(datei).size(), leinwand.Bild().size());
}

/// Whatever is selected and however it is zoomed: to the byte what an export without a window writes.
TEST_F(Bedienung, PngUndSvgGleichenDenenDerBefehlszeile) {
    const std::string projekt = KW_TESTDATEN "/../samples/familie.kwp";
    const QTemporaryDir ordner;
    QtBilder kamera(leinwand);
    Bildexport bildexport(benutzer, kamera, innen.bereich, innen.ansicht,
                          {[] {}, [this](Zeichenfläche &papier) { innen.AufPapier(papier); }});
    ASSERT_TRUE(innen.projekt.Öffnen(projekt));
    ASSERT_TRUE(haupt.BefehlAusführen("mnuFarbig"));
    ASSERT_TRUE(haupt.BefehlAusführen("mnuRasterAnzeigen"));
    PersonAuswählen(innen, 0);
    Einzelbild allein(uhr, "");
    ASSERT_EQ(allein.Laden(projekt), "");
    for (const char *endung : {"png", "SVG"}) {
        const std::string hier = ordner.filePath(QStringLiteral("hier.")).toStdString() + endung;
        const std::string dort = ordner.filePath(QStringLiteral("dort.")).toStdString() + endung;
        benutzer.Antworten.push_back({DrehbuchBenutzer::Vorbereitet::Art::Datei, false, Antwort::Ok, hier});
        bildexport.SeiteExportieren(projekt);
        EXPECT_EQ(Exportieren(allein, dort, ÜblicheDpi, "familie"), "");
        std::string einer, anderer;
        EXPECT_TRUE(DateiLesen(hier, einer).Gelungen() && DateiLesen(dort, anderer).Gelungen());
        EXPECT_TRUE(einer == anderer) << endung;
    }
}

#ifndef KW_SANITIZER // it would end the program itself
/// The page that is too large isn't drawn, and nothing is written; with the next one all is as before.
TEST_F(Bedienung, OhneSpeicherGehtNurDasGroßeBildNicht) {
    const QTemporaryDir ordner;
    QtBilder kamera(leinwand);
    rlimit vorher{};
    ::getrlimit(RLIMIT_AS, &vorher);
    std::ifstream belegt("/proc/self/statm");
    rlim_t seiten = 0;
    belegt >> seiten;
    const rlimit knapp{seiten * static_cast<rlim_t>(::getpagesize()) + (rlim_t{24} << 20), vorher.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_AS, &knapp), 0);
    innen.bereich.ZoomWählen(Zoom250);
    EXPECT_TRUE(leinwand.Bild().isNull());
    EXPECT_THROW(kamera.AlsJpeg(ordner.filePath(QStringLiteral("a.jpg")).toStdString(), 100), std::bad_alloc);
    EXPECT_THROW(kamera.InZwischenablage({0, 0, 6000, 3000}), std::bad_alloc);
    ::setrlimit(RLIMIT_AS, &vorher);
    EXPECT_TRUE(QDir(ordner.path()).isEmpty());
    innen.bereich.ZoomWählen(Zoom100);
    EXPECT_FALSE(leinwand.Bild().isNull());
}
#endif

} // namespace
