#include "document/Ladebefund.h"

#include "document/Profil.h"
#include "document/Texte.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace kw {

namespace {

constexpr Zweisprachig KeinProjekt{"kein Kinwright-Projekt", "not a Kinwright project"};
constexpr Zweisprachig Teilweise{"; %1 von %2 Einträgen gelesen", "; %1 of %2 records read"};
constexpr Zweisprachig Keine{"keines", "none"};

struct Satzart {
    std::string_view Abschnitt;
    Zweisprachig Name;
};
constexpr Satzart Arten[] = {{"OBJECTS", {"eine Person", "a person"}},
                             {"TEXT", {"ein Textfeld", "a text box"}},
                             {"LINEA", {"eine Beziehungslinie", "a relationship line"}},
                             {"LINEB", {"eine Partnerschaftslinie", "a partnership line"}},
                             {"LINEC", {"eine Kindlinie", "a child line"}},
                             {"LINED", {"eine Kreislinie", "a circle line"}},
                             {"LINEE", {"ein Pfeil", "an arrow"}}};

/// In the order of `Schadensart`. %1 is the section, %2 the key in it, %3 the kind of record, %4 the number of fields
/// that it needs and %5 of those that it has, %6 what a buffer holds.
constexpr std::array<Zweisprachig, 7> Sätze{{
    {"Text vor dem ersten Abschnitt wird nicht gelesen", "text before the first section isn't read"},
    {"%1 %2: %3 hat höchstens %6 Zeichen, der Rest fehlt", "%1 %2: %3 has at most %6 characters, the rest is lost"},
    {"%1 %2: %3 braucht einen Punkt, hat keinen", "%1 %2: %3 needs a point, has none"},
    {"%1 %2: %3 braucht %4 Felder, hat %5", "%1 %2: %3 needs %4 fields, has %5"},
    {"%1: mehr Einträge, als gelesen werden können, der erste ist %1 %2",
     "%1: more records than can be read, the first is %1 %2"},
    {"%1: eine Zeile, die kein Eintrag ist, wird nicht gelesen", "%1: a line that is no record isn't read"},
    {"%1: nur der erste Abschnitt dieses Namens wird gelesen", "%1: only the first section of this name is read"},
}};
/// The legend is no record with a number.
constexpr Zweisprachig Legendensatz{"%1 legende: die Legende braucht %4 Felder, hat %5",
                                    "%1 legende: the legend needs %4 fields, has %5"};

std::string_view ArtIn(std::string_view abschnitt, Sprache sprache) {
    const auto *const art =
        std::find_if(std::begin(Arten), std::end(Arten), [&](const Satzart &a) { return a.Abschnitt == abschnitt; });
    return art == std::end(Arten) ? std::string_view{} : art->Name.In(sprache);
}

std::string Schadenstext(const Ladeschaden &schaden, Sprache sprache) {
    const auto art = ArtIn(schaden.Abschnitt, sprache);
    const bool legende = art.empty() && schaden.Art == Schadensart::FelderFehlen;
    const auto &satz = legende ? Legendensatz : Sätze.at(static_cast<std::size_t>(schaden.Art));
    auto text = Ersetzt(std::string(satz.In(sprache)), "%1", schaden.Abschnitt);
    text = Ersetzt(std::move(text), "%2", std::to_string(schaden.Position));
    text = Ersetzt(std::move(text), "%3", art);
    text = Ersetzt(std::move(text), "%4", std::to_string(schaden.Gebraucht));
    text = Ersetzt(std::move(text), "%5",
                   schaden.Vorhanden == 0 ? std::string(Keine.In(sprache)) : std::to_string(schaden.Vorhanden));
    return Ersetzt(std::move(text), "%6", std::to_string(Profil::Lesepuffer - 1));
}

} // namespace

std::string Ladetext(const Ladebefund &befund, Sprache sprache) {
    if (!befund.IstProjekt) return std::string(KeinProjekt.In(sprache));
    if (!befund.Schaden) return {};
    const auto schaden = Schadenstext(*befund.Schaden, sprache);
    if (befund.Gelesen >= befund.Vorhanden) return schaden;
    const auto teil = Ersetzt(std::string(Teilweise.In(sprache)), "%1", std::to_string(befund.Gelesen));
    return schaden + Ersetzt(teil, "%2", std::to_string(befund.Vorhanden));
}

} // namespace kw
