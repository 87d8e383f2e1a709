#include "arrangement/Stammbaumseite.h"

#include <algorithm>
#include <numeric>

namespace kw {

namespace {

std::vector<std::uint32_t> Gefragte(Sippschaft alle, const Seitenwunsch &wunsch) {
    if (!wunsch.Alle) return Sippe(alle, wunsch.Proband, wunsch.Wahl, wunsch.Regeln.AdoptionVorGeburt);
    std::vector<std::uint32_t> gefragte(alle.Baum.Personen.size());
    std::iota(gefragte.begin(), gefragte.end(), 0U);
    return gefragte;
}

/// Steps that take somebody away, those who are farthest from the proband first. False where there is nobody to take.
constexpr bool (*Kürzungen[])(Sippenwahl &) = {
    [](Sippenwahl &w) { return std::exchange(w.Cousins, false) && w.TantenOnkel && w.Hinauf > 1; },
    [](Sippenwahl &w) { return std::exchange(w.NichtenNeffen, false) && w.Geschwister && w.Hinauf > 0; },
    [](Sippenwahl &w) { return w.Hinauf > 2 && w.Hinauf--; },
    [](Sippenwahl &w) { return w.Hinunter > 1 && w.Hinunter--; },
    [](Sippenwahl &w) { return std::exchange(w.TantenOnkel, false) && w.Hinauf > 1; },
    [](Sippenwahl &w) { return w.Hinauf == 2 && w.Hinauf--; },
    [](Sippenwahl &w) { return w.Hinunter == 1 && w.Hinunter--; },
    [](Sippenwahl &w) { return std::exchange(w.Partner, false); },
    [](Sippenwahl &w) { return std::exchange(w.Geschwister, false) && w.Hinauf > 0; },
    [](Sippenwahl &w) { return w.Hinauf == 1 && w.Hinauf--; },
};

} // namespace

Stammbaumseite SeiteAus(Sippschaft alle, const Seitenwunsch &wunsch, Zeichenfläche &fläche) {
    Stammbaumseite seite;
    const std::vector<std::uint32_t> gefragte = Gefragte(alle, wunsch);
    seite.Personen = gefragte.size();
    if (seite.Personen == 0 || seite.Personen > HöchstzahlPersonen) return seite;
    seite.Übernommen = Übertragen(alle.Baum, alle.Verwandte, gefragte, wunsch.Regeln);
    seite.Personen = seite.Übernommen.Personen.size();
    seite.Paare = seite.Übernommen.Paare.size();
    if (seite.Personen > HöchstzahlPersonen || seite.Paare > HöchstzahlPaare) return seite;
    const auto proband = std::find(gefragte.begin(), gefragte.end(), wunsch.Proband); // those taken come first
    seite.Blatt = BlattFüllen(seite.Übernommen, static_cast<std::uint32_t>(proband - gefragte.begin()), wunsch.Blatt,
                              fläche, seite.Seite);
    seite.Ausgang = seite.Blatt.Blatt ? Seitenausgang::Passt : Seitenausgang::PasstNicht;
    return seite;
}

std::vector<Seitenwunsch> Auswege(const Seitenwunsch &wunsch) {
    std::vector<Seitenwunsch> auswege;
    const auto hinzu = [&](const Sippenwahl &wahl, bool kleiner) {
        const auto gleich = [&](const Seitenwunsch &w) { return w.Wahl == wahl && w.Blatt.Kleiner == kleiner; };
        if (std::any_of(auswege.begin(), auswege.end(), gleich) || (!wunsch.Alle && gleich(wunsch))) return;
        auswege.push_back(wunsch);
        auswege.back().Alle = false;
        auswege.back().Wahl = wahl;
        auswege.back().Blatt.Kleiner = kleiner;
        auswege.back().Blatt.AuchDarüber = false;
    };
    if (wunsch.Alle) hinzu(wunsch.Wahl, wunsch.Blatt.Kleiner);
    hinzu(wunsch.Wahl, true);
    for (const bool kleiner : {wunsch.Blatt.Kleiner, true})
        for (const auto kürzen : Kürzungen)
            if (Sippenwahl wahl = wunsch.Wahl; kürzen(wahl)) hinzu(wahl, kleiner);
    Sippenwahl wahl = wunsch.Wahl;
    for (const auto kürzen : Kürzungen)
        while (kürzen(wahl))
            for (const bool kleiner : {wunsch.Blatt.Kleiner, true}) hinzu(wahl, kleiner);
    return auswege;
}

} // namespace kw
