#include "layout/Reihensuche.h"

#include <algorithm>

namespace kw {

namespace {

/// Carries the run of `länge` from `platz` by one; returns what that costs.
int Rücken(Reihen &reihen, int zeile, int platz, int länge, bool rechts) {
    int mehr = 0;
    if (rechts)
        for (int i = platz + länge - 1; i >= platz; i--) mehr += reihen.Tauschen(zeile, i);
    else
        for (int i = platz - 1; i < platz + länge - 1; i++) mehr += reihen.Tauschen(zeile, i);
    return mehr;
}

int Umdrehen(Reihen &reihen, int zeile, int platz, int länge) {
    int mehr = 0;
    for (int ende = platz + länge - 1; ende > platz; ende--)
        for (int i = platz; i < ende; i++) mehr += reihen.Tauschen(zeile, i);
    return mehr;
}

int Schieben(Reihen &reihen, int zeile, int platz, int länge, int weite) {
    int mehr = 0;
    for (; weite > 0; weite--) mehr += Rücken(reihen, zeile, platz++, länge, true);
    for (; weite < 0; weite++) mehr += Rücken(reihen, zeile, platz--, länge, false);
    return mehr;
}

void Versuch(Reihen &reihen, Zufall &zufall, int zeile, int wärme) {
    const int breite = static_cast<int>(reihen.Zeile(zeile).size());
    const int länge = std::min(1 + zufall.Wenig(12), breite - 1);
    const int platz = zufall.Unter(breite - länge + 1);
    const int schwelle = wärme * zufall.Ausdauer() / 256;
    if (länge > 1 && zufall.Unter(4) == 0) {
        if (Umdrehen(reihen, zeile, platz, länge) > schwelle) Umdrehen(reihen, zeile, platz, länge);
        return;
    }
    const bool rechts = platz == 0 || (platz + länge < breite && zufall.Unter(2) == 0);
    const int platzDort = rechts ? breite - platz - länge : platz;
    const int weite = std::min(1 + zufall.Wenig(8), platzDort) * (rechts ? 1 : -1);
    if (Schieben(reihen, zeile, platz, länge, weite) > schwelle) Schieben(reihen, zeile, platz + weite, länge, -weite);
}

/// Carries a run to where it costs least in its row; whether that is elsewhere.
bool Bestplatz(Reihen &reihen, int zeile, int platz, int länge) {
    const int breite = static_cast<int>(reihen.Zeile(zeile).size());
    int kosten = 0;
    int beste = 0;
    int bestWeite = 0;
    int weite = 0;
    const auto bis = [&](int ziel) {
        while (weite != ziel) {
            kosten += Rücken(reihen, zeile, platz + weite, länge, ziel > weite);
            weite += ziel > weite ? 1 : -1;
            if (kosten < beste) {
                beste = kosten;
                bestWeite = weite;
            }
        }
    };
    bis(-std::min(platz, 8));
    bis(std::min(breite - länge - platz, 8));
    const int ziel = bestWeite;
    bis(ziel);
    return ziel != 0;
}

} // namespace

void ReihenSetzenlassen(Reihen &reihen) {
    for (int runde = 0; runde < 8; runde++) {
        bool besser = false;
        for (int zeile = 0; zeile < reihen.Anzahl(); zeile++) {
            const int breite = static_cast<int>(reihen.Zeile(zeile).size());
            for (int länge = 1; länge <= std::min(4, breite - 1); länge++)
                for (int platz = 0; platz + länge <= breite; platz++) {
                    besser |= Bestplatz(reihen, zeile, platz, länge);
                    if (länge > 1) {
                        if (Umdrehen(reihen, zeile, platz, länge) < 0) besser = true;
                        else Umdrehen(reihen, zeile, platz, länge);
                    }
                }
        }
        if (!besser) return;
    }
}

void ReihenSuchen(Reihen &reihen, Zufall &zufall, int züge) {
    std::vector<int> breite; // rows of several, the wider the more often
    for (int zeile = 0; zeile < reihen.Anzahl(); zeile++)
        for (std::size_t i = 1; i < reihen.Zeile(zeile).size(); i++) breite.push_back(zeile);
    if (breite.empty()) return;
    const int heiß = 60;
    for (int i = 0; i < züge; i++) {
        const int rest = züge - i;
        const int wärme = static_cast<int>(std::int64_t{heiß} * rest / züge);
        Versuch(reihen, zufall, breite[Z(zufall.Unter(static_cast<int>(breite.size())))], wärme);
    }
}

} // namespace kw
