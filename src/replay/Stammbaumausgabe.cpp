#include "replay/Stammbaumausgabe.h"

#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace kw {

namespace {

void Zeile(std::ostream &aus, std::initializer_list<std::string_view> felder) {
    const char *trenner = "";
    for (const auto feld : felder) {
        aus << trenner << feld;
        trenner = "\t";
    }
    aus << "\n";
}

std::string Aufzählung(const std::vector<std::string_view> &texte) {
    std::string liste;
    const char *trenner = "";
    for (const auto text : texte) {
        liste.append(trenner).append(text);
        trenner = ",";
    }
    return liste;
}

void PersonZeigen(std::ostream &aus, const Stammperson &p) {
    std::vector<std::string_view> eltern;
    eltern.reserve(p.Eltern.size());
    for (const auto &herkunft : p.Eltern) eltern.push_back(herkunft.Familie);
    Zeile(aus, {"P", p.Kennung, p.Geschlecht, p.Vorname, p.Nachname, p.Geburt, p.Tod, p.Gestorben ? "1" : "0",
                p.Sterbealter, Aufzählung(eltern), Aufzählung(p.Familien)});
}

/// What a family says of its children: the father's word, a stroke, the mother's.
using Zuordnungen = std::map<std::string_view, std::string>;

Zuordnungen Zugeordnete(const Stammfamilie &familie) {
    Zuordnungen zuordnungen;
    for (const auto &kind : familie.Kinder)
        if (!kind.ZumMann.empty() || !kind.ZurFrau.empty())
            zuordnungen.emplace(kind.Kennung, std::string(kind.ZumMann).append("/").append(kind.ZurFrau));
    return zuordnungen;
}

void KinderZeigen(std::ostream &aus, const Stammbaum &baum, const Stammfamilie &familie,
                  const Zuordnungen &zugeordnet) {
    for (const auto &kind : familie.Kinder) {
        const auto *const person = kind.Nummer == Keine ? nullptr : &baum.Personen[kind.Nummer];
        const auto zuordnung = zugeordnet.find(kind.Kennung);
        Zeile(aus,
              {"C", familie.Kennung, kind.Kennung, person ? person->Kindschaft(familie.Kennung) : std::string_view(),
               zuordnung == zugeordnet.end() ? std::string_view() : zuordnung->second});
    }
}

} // namespace

void StammbaumZeigen(std::ostream &aus, const Stammbaum &baum) {
    for (const auto &person : baum.Personen) PersonZeigen(aus, person);
    // Families of one name are told with the children of all of them.
    std::map<std::string_view, std::vector<const Stammfamilie *>> gleichnamige;
    for (const auto &familie : baum.Familien) gleichnamige[familie.Kennung].push_back(&familie);
    for (const auto &familie : baum.Familien) {
        Zeile(aus, {"F", familie.Kennung, Aufzählung(familie.Partner), familie.Heirat, familie.Scheidung,
                    Aufzählung(familie.Ereignisse)});
        const auto zugeordnet = Zugeordnete(familie);
        for (const auto *andere : gleichnamige[familie.Kennung]) KinderZeigen(aus, baum, *andere, zugeordnet);
    }
    for (const auto &kind : baum.Einseitige) Zeile(aus, {"c", kind.Familie, kind.Kind, kind.Kindschaft});
    for (const auto &b : baum.Beziehungen) Zeile(aus, {"A", b.Von, b.Zu, b.Rolle});
    for (const auto &familie : baum.Familien)
        for (const auto &gruppe : familie.Gleichaltrige) Zeile(aus, {"T", Aufzählung(gruppe)});
}

} // namespace kw
