#include "output/NamenloseAusgabe.h"

#include "anonymity/NamenloseSeite.h"
#include "document/Dateien.h"
#include "document/ProjektDatei.h"
#include "editing/Absagen.h"
#include "familytree/Uebergabe.h"
#include "output/Fehlertexte.h"
#include "output/Zieldatei.h"
#include "platform/Benutzer.h"
#include "platform/Bilder.h"
#include "platform/Drucker.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

namespace kw {

namespace {

constexpr Zweisprachig Titel{"Ohne Namen exportieren", "Export Without Names"};
constexpr Zweisprachig Vorschlag{"Genogramm ohne Namen", "Genogram without Names"};
constexpr Zweisprachig Projektfilter{"Kinwright Datei (*.kwp)|*.kwp", "Kinwright file (*.kwp)|*.kwp"};
constexpr Zweisprachig EigeneDatei{
    "Das ist die Datei dieses Projekts: Sie behält die Namen. Bitte einen anderen Namen wählen.",
    "That is the file of this project, which keeps the names. Please choose another name."};
constexpr Zweisprachig FremdeKennung{"Der Name muss auf .pdf, .png, .svg, .ged oder .kwp enden.",
                                     "The name has to end in .pdf, .png, .svg, .ged or .kwp."};
constexpr std::array<std::string_view, 3> Seitenarten{"pdf", "png", "svg"};
constexpr std::string_view Stammbaumart = "ged";

/// Why the file can't be written whatever the disk says; nothing when it can.
const Zweisprachig *Einwand(const std::string &datei, const std::string &projektdatei, const Dokument &dokument) {
    std::error_code fehler; // a file that isn't there is no other
    if (std::filesystem::equivalent(datei, projektdatei, fehler)) return &EigeneDatei;
    if (HatKennung(datei, Stammbaumart)) return HatStammbaum(dokument) ? nullptr : &Absage::KeinStammbaum;
    const bool bekannt = IstProjektname(datei) || std::any_of(Seitenarten.begin(), Seitenarten.end(),
                                                              [&](auto art) { return HatKennung(datei, art); });
    return bekannt ? nullptr : &FremdeKennung;
}

Ursache Schreiben(const Ausgabewege &wege, const NamenloseSeite &seite, const std::string &datei) {
    if (IstProjektname(datei)) return DateiSchreiben(datei, ProjektInhalt(seite.Inhalt())).Grund;
    if (HatKennung(datei, Stammbaumart)) return DateiSchreiben(datei, Übergeben(seite.Inhalt(), wege.uhr).Text).Grund;
    Druckauftrag auftrag{Drucktitel({}),
                         true,
                         seite.Breite(),
                         seite.Höhe(),
                         [&](Zeichenfläche &papier) { DruckZeichnen(papier, seite.Bild()); },
                         {}};
    auftrag.OhneZeit = true;
    return wege.bilder.SeiteAls(datei, auftrag);
}

} // namespace

bool OhneNamenAusgeben(const Ausgabewege &wege, const Dokument &dokument, const Ansicht &ansicht, Lebenszeit zeit,
                       const std::string &projektdatei) {
    const Sprache sprache = ansicht.Sprache;
    const Dateiwahl wahl{std::string(Titel.In(sprache)),
                         std::string(Vorschlag.In(sprache)),
                         "PDF  (*.pdf)|*.pdf",
                         Ausgabeordner(wege.benutzer, projektdatei),
                         Dateiwahl::Kennungen::Alle,
                         "PNG  (*.png)|*.png|SVG  (*.svg)|*.svg|GEDCOM  (*.ged)|*.ged|" +
                             std::string(Projektfilter.In(sprache))};
    const auto datei = ZieldateiWählen(wege.benutzer, wahl, sprache, Ersetzungsfrage, [&](const std::string &gewählt) {
        const auto *einwand = Einwand(gewählt, projektdatei, dokument);
        if (einwand)
            wege.benutzer.Fragen({"Kinwright", std::string(einwand->In(sprache)), Knöpfe::Ok, Zeichen::Warnung});
        return !einwand;
    });
    if (!datei) return false;
    const auto grund =
        Fehlgrund([&] { return Schreiben(wege, NamenloseSeite(dokument, ansicht, zeit, wege.uhr), *datei); });
    if (grund) NichtGeschriebenMelden(wege.benutzer, sprache, *datei, *grund);
    return !grund;
}

} // namespace kw
