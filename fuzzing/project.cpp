// A project file: load, write as a family tree, draw, print, save, load again.
#include "Umlauf.h"

#include "document/saetze/Person.h"
#include "familytree/Stammbaum.h"
#include "familytree/Uebergabe.h"
#include "familytree/Utf8.h"
#include "rendering/Legende.h"
#include "rendering/Seite.h"
#include "rendering/Zeichnung.h"
#include "replay/Aufzeichnung.h"
#include "replay/Plattform.h"

#include <algorithm>

namespace kw {

namespace {

/// Draws it as window and printer do, and applies what that finds.
void Zeichnen(Dokument &dokument) {
    DrehbuchUhr uhr;
    Ansicht ansicht;
    Auswahl auswahl;
    Gestenlage geste;
    geste.Aktion = Aktion::TextGesetzt; // has text boxes measured
    Legendenblatt legende;
    LegendeAufbauen(dokument, legende);
    SeiteBestimmen(dokument, ansicht);
    Aufzeichnung blatt;
    blatt.GrößeSetzen(16000, 11000);
    Anwenden(VorschauZeichnen(blatt, {dokument, ansicht, auswahl, geste, legende, uhr}), dokument, ansicht, geste,
             legende);
    blatt.PixelJeCm = DruckPixelJeCm;
    blatt.Scale(ansicht.SeitenBreite, ansicht.SeitenHöhe, 1);
    Anwenden(DruckZeichnen(blatt, {dokument, ansicht, auswahl, geste, legende, uhr, true}), dokument, ansicht, geste,
             legende);
}

/// A file has circle lines without blanks.
Satzliste OhneBlanks(const Satzliste &kreislinien) {
    Satzliste ohne;
    for (auto satz : kreislinien) {
        std::erase(satz, ' ');
        ohne.Anhängen(satz);
    }
    return ohne;
}

/// What of it goes into a family tree is read there without a fault.
void AlsStammbaum(const Dokument &dokument) {
    for (const auto fassung : {Stammbaumfassung::Gedcom551, Stammbaumfassung::Gedcom70}) {
        const auto ü = Übergeben(dokument, DrehbuchUhr(), {fassung, true, true});
        Berichtszeilen(ü.Bericht, Sprache::Deutsch);
        Halten(IstUtf8(ü.Text), "a family tree is UTF-8");
        const auto baum = StammbaumLesen(ü.Text);
        Halten(baum.Warnliste.Liste().empty(), "a family tree that was written has no fault");
        Halten(baum.Personen.size() == ü.Personen, "everybody who went along is there");
        Halten(baum.Einseitige.empty(), "families and children name each other");
    }
}

} // namespace

} // namespace kw

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t anzahl) {
    using namespace kw;
    Dokument dokument;
    const auto befund = ProjektLesen(Profil(std::string(AlsText(bytes, anzahl))), dokument);
    Ladetext(befund, Sprache::Deutsch);
    if (befund.BisZumEnde) dokument.FreieNummernAufbauen();
    AlsStammbaum(dokument);
    for (const bool gezeichnet : {false, true}) {
        if (gezeichnet) Zeichnen(dokument);
        const auto wieder = Umlauf(dokument);
        dokument.cboFreehandlines = OhneBlanks(dokument.cboFreehandlines);
        Halten(wieder.GleicheSätze(dokument), "the records that were loaded are those that were saved");
        Halten(wieder.Papiercode == dokument.Papiercode && wieder.Seitenlage == dokument.Seitenlage, "the page stays");
    }
    return 0;
}
