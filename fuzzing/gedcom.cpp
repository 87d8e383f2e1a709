// Family trees as genealogy programs write them. An input is a file. All persons are taken, first by the default
// answers, then by others; then they are written and read again.
#include "../tests/familytree/Umschrift.h"
#include "Ziel.h"

#include "familytree/Uebernahme.h"
#include "familytree/Utf8.h"
#include "replay/Stammbaumausgabe.h"

#include <algorithm>
#include <numeric>
#include <sstream>
#include <string>
#include <vector>

namespace kw {

namespace {

constexpr std::size_t MehrAlsGenug = 999; ///< persons, as many as a document holds

bool SindZeichen(std::string_view text, std::string_view erlaubte) {
    return text.find_first_not_of(erlaubte) == std::string_view::npos;
}

void PersonPrüfen(const Übernahme &ü, std::uint32_t nummer) {
    const auto &person = ü.Personen[nummer];
    const auto &a = person.Angaben;
    for (const auto &name : {a.Vorname, a.Nachname}) {
        Halten(IstUtf8(name), "a name is UTF-8");
        Halten(name.find_first_of("_\n\t") == std::string::npos, "a name is one field of one line");
    }
    Halten(SindZeichen(a.Geburtsdatum, "0123456789."), "a date of birth can be typed");
    Halten(a.Geburtsdatum.empty() || a.Geburtsdatum.size() == 4 || a.Geburtsdatum.size() == 10, "a day or a year");
    Halten(a.Sterbealter.empty() || (a.Sterbealter[0] == '$' && SindZeichen(a.Sterbealter.substr(1), "0123456789")),
           "an age at death stands behind its mark");
    if (person.Paar == Keine) return;
    const auto &kinder = ü.Paare.at(person.Paar).Kinder;
    Halten(std::count(kinder.begin(), kinder.end(), nummer) == 1, "parents know their child once");
    if (person.Zwilling != Keine) {
        const auto &anderer = ü.Personen.at(person.Zwilling);
        Halten(anderer.Zwilling == nummer && anderer.Eineiig == person.Eineiig, "twins name each other");
    }
}

/// Whoever has no parents left stands for nobody's ancestor twice: takes persons away whose parents are gone already.
void AhnenPrüfen(const Übernahme &ü) {
    std::vector<int> offen(ü.Personen.size());
    std::vector<std::uint32_t> fertige;
    std::vector<std::vector<std::uint32_t>> kinder(ü.Personen.size());
    for (std::uint32_t i = 0; i < offen.size(); ++i) {
        const auto paar = ü.Personen[i].Paar;
        if (paar == Keine) {
            fertige.push_back(i);
            continue;
        }
        offen[i] = 2;
        kinder[ü.Paare[paar].Erster].push_back(i);
        kinder[ü.Paare[paar].Zweiter].push_back(i);
    }
    for (std::size_t i = 0; i < fertige.size(); ++i)
        for (const auto kind : kinder[fertige[i]])
            if (--offen[kind] == 0) fertige.push_back(kind);
    Halten(fertige.size() == ü.Personen.size(), "nobody is their own ancestor");
}

/// What was written once comes back from there as it went.
void UmlaufPrüfen(const Übernahme &ü, const Übernahmeregeln &regeln) {
    if (ü.Personen.size() > MehrAlsGenug) return;
    for (const auto fassung : {Stammbaumfassung::Gedcom551, Stammbaumfassung::Gedcom70}) {
        const auto eine = Übernommen(Geschrieben(DokumentAus(ü), {fassung, false, false}).Text, regeln);
        const auto andere = Übernommen(Geschrieben(DokumentAus(eine), {fassung, false, false}).Text, regeln);
        Halten(eine.Personen.size() == ü.Personen.size(), "everybody comes back");
        Halten(eine.Paare.size() == ü.Paare.size(), "every couple comes back");
        Halten(Kern(eine) == Kern(andere), "what was written comes back as it went");
    }
}

void Prüfen(const Stammbaum &baum, const Verwandtschaft &verwandte, const Übernahmeregeln &regeln) {
    std::vector<std::uint32_t> alle(std::min(baum.Personen.size(), MehrAlsGenug));
    std::iota(alle.begin(), alle.end(), 0U);
    const auto ü = Übertragen(baum, verwandte, alle, regeln);
    Halten(ü.Personen.size() >= alle.size(), "everybody who was taken is there");
    for (const auto &paar : ü.Paare) {
        Halten(paar.Erster < ü.Personen.size() && paar.Zweiter < ü.Personen.size(), "a couple has two partners");
        Halten(paar.Erster != paar.Zweiter, "nobody is their own partner");
        for (const auto &text : paar.Angaben.Daten)
            Halten(text.find_first_of("_#") == std::string::npos && IstUtf8(text), "a date is one field");
    }
    for (std::uint32_t i = 0; i < ü.Personen.size(); ++i) PersonPrüfen(ü, i);
    AhnenPrüfen(ü);
    UmlaufPrüfen(ü, regeln);
    for (const auto sprache : {Sprache::Deutsch, Sprache::Englisch}) {
        const auto bericht = Berichtstext(ü.Bericht, baum.Warnliste, sprache);
        Halten(IstUtf8(bericht), "a report is UTF-8");
    }
}

} // namespace

} // namespace kw

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t anzahl) {
    using namespace kw;
    const auto baum = StammbaumLesen(std::string(AlsText(bytes, anzahl)));
    // Each of many families of one name is told with the children of all of them.
    if (baum.Warnliste.Anzahl(Warnungsart::DoppelteKennung) < MehrAlsGenug) {
        std::ostringstream ausgabe;
        StammbaumZeigen(ausgabe, baum);
        Halten(IstUtf8(ausgabe.str()), "facts are UTF-8");
    }
    const Verwandtschaft verwandte(baum);
    Übernahmeregeln regeln;
    Prüfen(baum, verwandte, regeln);
    regeln = {Sprache::Englisch, TypWeiblich, "", true, true, true};
    Prüfen(baum, verwandte, regeln);
    return 0;
}
