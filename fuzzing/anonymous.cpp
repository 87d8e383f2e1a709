// A project file, exported without names: whatever text it holds, and wherever, none of it comes along.
#include "Umlauf.h"

#include "anonymity/NamenloseSeite.h"
#include "document/Felder.h"
#include "document/basAltersberechnung.h"
#include "replay/Aufzeichnung.h"
#include "replay/Plattform.h"

#include <algorithm>

namespace kw {

namespace {

bool Nur(std::string_view text, std::string_view erlaubt) {
    return text.find_first_not_of(erlaubt) == std::string_view::npos;
}

constexpr std::string_view Ziffern = "0123456789";

bool IstKurzname(std::string_view name) {
    const auto zahl = std::min(name.find_first_of(Ziffern), name.size());
    return Nur(name.substr(0, zahl), "ABCDEFGHIJKLMNOPQRSTUVWXYZ") && Nur(name.substr(zahl), Ziffern);
}

/// Numbers, codes, and of a person the short name, and an age or a year.
bool IstNamenlos(const std::string &satz, bool person) {
    if (!person) return Nur(satz, "0123456789.-_^#");
    const Felder felder(satz);
    bool so = felder.Anzahl() == 14 && felder[10].empty() && IstKurzname(felder[9]);
    const std::string_view geboren = felder.OderLeer(11);
    so = so && (geboren.empty() || AlterAusAngabe(geboren) || (geboren.size() == 4 && Nur(geboren, Ziffern)));
    for (int i = 0; i < felder.Anzahl(); ++i)
        so = so && (i == 9 || i == 11 || Nur(felder.OderLeer(i), i == 13 ? "0123456789E" : "0123456789.-$"));
    return so;
}

void Prüfen(const Dokument &dokument, Lebenszeit zeit) {
    const DrehbuchUhr uhr;
    const NamenloseSeite seite(dokument, Ansicht(), zeit, uhr);
    const Dokument &neu = seite.Inhalt();
    Halten(neu.cboTextboxen.Leer(), "no text is left");
    Halten(neu.cboPersonen.Anzahl() == dokument.cboPersonen.Anzahl(), "everybody is there");
    for (const auto &zeile : SpeicherTabelle)
        for (const auto &satz : neu.*zeile.Liste)
            Halten(IstNamenlos(satz, zeile.Liste == &Dokument::cboPersonen), "a record has what its fields may hold");
    Halten(OhneNamen(neu, zeit, uhr, Sprache::Englisch).GleicheSätze(neu), "what has no names keeps none");
    Halten(Umlauf(neu).GleicheSätze(neu), "the project comes back as it was");
    Aufzeichnung blatt;
    blatt.GrößeSetzen(16000, 11000);
    blatt.Scale(seite.Breite(), seite.Höhe(), 1);
    DruckZeichnen(blatt, seite.Bild());
}

} // namespace

} // namespace kw

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t anzahl) {
    using namespace kw;
    Dokument dokument;
    ProjektLesen(Profil(std::string(AlsText(bytes, anzahl))), dokument);
    for (const Lebenszeit zeit : {Lebenszeit::Alter, Lebenszeit::Geburtsjahr}) Prüfen(dokument, zeit);
    return 0;
}
