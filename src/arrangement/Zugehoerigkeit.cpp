#include "arrangement/Zugehoerigkeit.h"

#include "arrangement/Umzug.h"
#include "document/Dokument.h"
#include "document/Zahlen.h"
#include "document/saetze/Person.h"
#include "rendering/Ansicht.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kw {

namespace {

/// As far as one generation is from the next, cm: what is written about somebody stands before the next row.
constexpr double Reichweite = 1.2 + VonHand.Generationen;
/// A text that near to somebody is theirs even at the page's edge, cm.
constexpr double Daneben = 1;
/// And one that near to a line is its couple's or child's, cm.
constexpr double AnDerLinie = 0.6;

/// From one box to the other, cm; nothing when they lie on each other.
double Zwischenraum(const Umgebung &a, const Umgebung &b) {
    return std::hypot(std::max({0.0, a.Links - b.Rechts, b.Links - a.Rechts}),
                      std::max({0.0, a.Oben - b.Unten, b.Oben - a.Unten}));
}

double Nächster(const std::vector<Umgebung> &kästen, const Umgebung &u) {
    double nächster = HUGE_VAL;
    for (const Umgebung &k : kästen)
        if (!k.Leer) nächster = std::min(nächster, Zwischenraum(k, u));
    return nächster;
}

} // namespace

Zugehörigkeit::Zugehörigkeit(const Dokument &dokument, const Ansicht &ansicht) : d_(dokument), ansicht_(ansicht) {
    for (const std::string &satz : d_.cboPersonen) {
        const PersonSatz person(satz, Lücken::Leer);
        personen_.push_back(
            person.HatOrt() ? Personenkasten(person, {person.PosX(), person.PosY()}, person.Groesse(), 0) : Umgebung());
    }
    for (const Seitenlinie &linie : LinienDerSeite(d_, ansicht_))
        linien_.insert(linien_.end(), linie.Kästen.begin(), linie.Kästen.end());
}

std::optional<int> Zugehörigkeit::PersonZuText(const Umgebung &text) const {
    const double weit = Nächster(personen_, text);
    const double rand =
        std::min({text.Links, text.Oben, ansicht_.SeitenBreite - text.Rechts, ansicht_.SeitenHöhe - text.Unten});
    const bool fern = weit > Reichweite || (weit > Daneben && weit > rand);
    if (fern && Nächster(linien_, text) > AnDerLinie) return std::nullopt;
    return NächstePersonZu(text);
}

/// A long text's middle can be nearest to somebody whom none of its words stands beside.
std::optional<int> Zugehörigkeit::NächstePersonZu(const Umgebung &text) const {
    std::optional<int> nächste;
    std::pair<double, double> ferne;
    for (size_t i = 0; i < personen_.size(); ++i) {
        const Umgebung &k = personen_[i];
        if (k.Leer) continue;
        const std::pair hier{Gerundet(Zwischenraum(k, text), 4),
                             Gerundet(std::hypot(k.MitteX() - text.MitteX(), k.MitteY() - text.MitteY()), 4)};
        if (nächste && hier >= ferne) continue;
        nächste = static_cast<int>(i);
        ferne = hier;
    }
    return nächste;
}

} // namespace kw
