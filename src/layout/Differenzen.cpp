#include "layout/Differenzen.h"

#include "layout/Schnitt.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>

namespace kw {

namespace {

constexpr std::size_t Z(int zahl) { return static_cast<std::size_t>(zahl); }

/// The root of `quadrat`, rounded down, the same on every machine.
std::int64_t Wurzel(std::int64_t quadrat) {
    auto wurzel = static_cast<std::int64_t>(std::sqrt(static_cast<double>(quadrat)));
    while (wurzel * wurzel > quadrat) wurzel--;
    while ((wurzel + 1) * (wurzel + 1) <= quadrat) wurzel++;
    return wurzel;
}

} // namespace

Differenzen::Differenzen(int anzahl) : anzahl_(anzahl) {}

void Differenzen::Mindestens(int a, int b, int abstand) { schranken_.push_back({a, b, abstand}); }

void Differenzen::Kosten(Kostenart art, int a, int b, int ruhe, std::int64_t gewicht, int höhe) {
    if (a != b) kosten_.push_back({art, a, b, ruhe, höhe, gewicht});
}

std::int64_t Differenzen::Wert(const Kostenglied &glied, std::int64_t differenz) {
    const std::int64_t d = differenz - glied.Ruhe;
    switch (glied.Art) {
    case Kostenart::Über: return d > 0 ? glied.Gewicht * d : 0;
    case Kostenart::Betrag: return glied.Gewicht * (d < 0 ? -d : d);
    case Kostenart::Quadrat: return glied.Gewicht * d * d;
    case Kostenart::Schräg: break;
    }
    if (d <= 0) return 0;
    const std::int64_t h = glied.Höhe;
    return glied.Gewicht * (Wurzel((h * h + d * d) * 4096) - h * 64) / 64;
}

bool Differenzen::Kleinste(std::vector<int> &x) const {
    x.resize(Z(anzahl_), 0);
    for (int runde = 0; runde <= anzahl_; runde++) {
        bool ruhig = true;
        for (const Schranke &s : schranken_)
            if (x[Z(s.B)] < x[Z(s.A)] + s.Abstand) {
                x[Z(s.B)] = x[Z(s.A)] + s.Abstand;
                ruhig = false;
            }
        if (ruhig) return true;
    }
    return false;
}

std::int64_t Differenzen::Summe(const std::vector<int> &x) const {
    std::int64_t summe = 0;
    for (const Kostenglied &glied : kosten_) summe += Wert(glied, x[Z(glied.B)] - x[Z(glied.A)]);
    return summe;
}

bool Differenzen::Zusammen(const Kostenglied &a, const Kostenglied &b) {
    return std::minmax(a.A, a.B) == std::minmax(b.A, b.B);
}

/// One step by `weite`, upwards or, below 0, downwards; whether it paid. What two cost each other stands together in
/// `glieder`.
bool Differenzen::Schritt(std::vector<int> &x, int weite, const std::vector<Kostenglied> &glieder) const {
    Schnitt schnitt(anzahl_);
    for (const Schranke &s : schranken_) {
        const bool drückt = x[Z(s.B)] - x[Z(s.A)] - std::abs(weite) < s.Abstand;
        if (drückt) schnitt.Paar(weite > 0 ? s.A : s.B, weite > 0 ? s.B : s.A, Schnitt::Verboten);
    }
    for (std::size_t i = 0; i < glieder.size();) {
        const Kostenglied &erstes = glieder[i];
        std::int64_t hin = 0;
        std::int64_t zurück = 0;
        for (; i < glieder.size() && Zusammen(erstes, glieder[i]); i++) {
            const Kostenglied &glied = glieder[i];
            const std::int64_t d = x[Z(glied.B)] - x[Z(glied.A)];
            const std::int64_t jetzt = Wert(glied, d);
            const std::int64_t nurB = Wert(glied, d + weite) - jetzt;
            const std::int64_t nurA = Wert(glied, d - weite) - jetzt;
            schnitt.Knoten(glied.B, nurB);
            schnitt.Knoten(glied.A, -nurB);
            (glied.A == erstes.A ? hin : zurück) += nurA + nurB;
        }
        schnitt.Paar(erstes.A, erstes.B, hin, zurück);
    }
    const std::vector<char> menge = schnitt.Menge();
    for (std::size_t i = 0; i < menge.size(); i++)
        if (menge[i]) x[i] += weite;
    return !menge.empty();
}

void Differenzen::Lösen(std::vector<int> &x, int schritt, int letzter) const {
    std::vector<Kostenglied> glieder = kosten_;
    std::stable_sort(glieder.begin(), glieder.end(), [](const Kostenglied &a, const Kostenglied &b) {
        return std::minmax(a.A, a.B) < std::minmax(b.A, b.B);
    });
    const auto [kleinste, größte] = std::minmax_element(x.begin(), x.end());
    const int breite = x.empty() ? 0 : *größte - *kleinste;
    while (schritt < breite / 64) schritt *= 2; // a broad one would take many steps
    for (int weite = schritt; weite >= std::max(letzter, 1); weite /= 2) {
        int vergeblich = 0;
        for (int richtung = weite; vergeblich < 2; richtung = -richtung) {
            if (Schritt(x, richtung, glieder)) {
                vergeblich = 0;
                while (Schritt(x, richtung, glieder)) {
                }
            }
            vergeblich++;
        }
    }
}

} // namespace kw
