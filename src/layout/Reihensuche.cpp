#include "layout/Reihensuche.h"

#include <algorithm>

namespace kw {

namespace {

constexpr int Weitester = 8; // places that a run is carried in one go
constexpr int Längster = 4;  // and how many it holds
constexpr int ZuTeuer = 600; // what lies between may cost
constexpr int Duldsam = 30;  // how much dearer rows may get on the way to cheaper ones

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

/// Carries a run to where it costs least in its row, as far as what lies between isn't too dear; whether that is
/// elsewhere.
bool Bestplatz(Reihen &reihen, int zeile, int platz, int länge) {
    const auto breite = static_cast<int>(reihen.Zeile(zeile).size());
    int kosten = 0;
    int beste = 0;
    int bestWeite = 0;
    int weite = 0;
    const auto um = [&](bool rechts) {
        kosten += Rücken(reihen, zeile, platz + weite, länge, rechts);
        weite += rechts ? 1 : -1;
    };
    const auto suchen = [&](bool rechts, int grenze) {
        for (int i = 0; i < grenze && kosten < beste + ZuTeuer; i++) {
            um(rechts);
            if (kosten >= beste) continue;
            beste = kosten;
            bestWeite = weite;
        }
    };
    suchen(false, std::min(platz, Weitester));
    while (weite < 0) um(true);
    suchen(true, std::min(breite - länge - platz, Weitester));
    while (weite != bestWeite) um(weite < bestWeite);
    return weite != 0;
}

bool ZeileSetzenlassen(Reihen &reihen, int zeile) {
    const auto breite = static_cast<int>(reihen.Zeile(zeile).size());
    bool besser = false;
    for (int länge = 1; länge <= std::min(Längster, breite - 1); länge++)
        for (int platz = 0; platz + länge <= breite; platz++) {
            besser |= Bestplatz(reihen, zeile, platz, länge);
            if (länge == 1) continue;
            if (Umdrehen(reihen, zeile, platz, länge) < 0) besser = true;
            else Umdrehen(reihen, zeile, platz, länge);
        }
    return besser;
}

/// A piece in hand, to be carried elsewhere.
class Stückzug {
  public:
    Stückzug(Reihen &reihen, const Stück &stück, bool umgedreht)
        : reihen_(reihen), stück_(stück), umgedreht_(umgedreht) {}

    /// Into the row of its bond anywhere, or, without `zufall`, where that costs least; then into each other row of it
    /// where that costs least.
    void Tun(Zufall *zufall) {
        Setzen(stück_.Anker, zufall);
        const int letzte = stück_.Erste + static_cast<int>(stück_.Zeilen.size()) - 1;
        for (int z = stück_.Anker + 1; z <= letzte; z++) Setzen(z, nullptr);
        for (int z = stück_.Anker - 1; z >= stück_.Erste; z--) Setzen(z, nullptr);
    }

  private:
    void Setzen(int zeile, Zufall *zufall) {
        const auto länge = static_cast<int>(stück_.Zeilen[Z(zeile - stück_.Erste)].size());
        const auto breite = static_cast<int>(reihen_.Zeile(zeile).size());
        if (länge == 0) return;
        NachLinks(zeile);
        int kosten = 0;
        int beste = 0;
        int bestPlatz = 0;
        const int letzter = zufall ? zufall->Unter(breite - länge + 1) : breite - länge;
        for (int platz = 0; platz < letzter; platz++) {
            kosten += Rücken(reihen_, zeile, platz, länge, true);
            if (kosten >= beste) continue;
            beste = kosten;
            bestPlatz = platz + 1;
        }
        if (zufall) return;
        for (int platz = letzter; platz > bestPlatz; platz--) Rücken(reihen_, zeile, platz, länge, false);
    }

    /// Those of the piece to the left end of the row, in their order or turned round.
    void NachLinks(int zeile) {
        const std::vector<int> &wer = stück_.Zeilen[Z(zeile - stück_.Erste)];
        const std::vector<int> &reihe = reihen_.Zeile(zeile);
        const auto dabei = [&](int platz) { return std::find(wer.begin(), wer.end(), reihe[Z(platz)]) != wer.end(); };
        for (int ziel = 0; ziel < static_cast<int>(wer.size()); ziel++) {
            int platz = umgedreht_ ? static_cast<int>(reihe.size()) - 1 : ziel;
            while (!dabei(platz)) platz += umgedreht_ ? -1 : 1;
            for (; platz > ziel; platz--) reihen_.Tauschen(zeile, platz - 1);
        }
    }

    Reihen &reihen_;
    const Stück &stück_;
    bool umgedreht_;
};

} // namespace

void ReihenSetzenlassen(Reihen &reihen, std::vector<char> &unruhig) {
    constexpr int Runden = 8;
    const int letzte = reihen.Anzahl() - 1;
    for (int runde = 0; runde < Runden; runde++) {
        bool ruhig = true;
        for (int i = 0; i <= letzte; i++) {
            const int zeile = runde % 2 == 0 ? i : letzte - i;
            if (!unruhig[Z(zeile)]) continue;
            unruhig[Z(zeile)] = 0;
            if (!ZeileSetzenlassen(reihen, zeile)) continue;
            ruhig = false;
            for (int z = std::max(zeile - 1, 0); z <= std::min(zeile + 1, letzte); z++) unruhig[Z(z)] = 1;
        }
        if (ruhig) return;
    }
}

void ReihenRütteln(Reihen &reihen, const std::vector<Stück> &stücke, Zufall &zufall, int mal) {
    if (stücke.empty()) return;
    Reihen hier = reihen; // where each try begins; `reihen` holds the best
    for (int i = 0; i < mal; i++) {
        Reihen versuch = hier;
        std::vector<char> unruhig(Z(reihen.Anzahl()), 0);
        for (int k = zufall.Wenig(2); k >= 0; k--) {
            const Stück &stück = stücke[Z(zufall.Unter(static_cast<int>(stücke.size())))];
            const bool umgedreht = zufall.Unter(3) == 0;
            Stückzug(versuch, stück, umgedreht).Tun(zufall.Unter(4) > 0 ? &zufall : nullptr);
            for (std::size_t z = 0; z < stück.Zeilen.size(); z++) unruhig[Z(stück.Erste) + z] = 1;
        }
        ReihenSetzenlassen(versuch, unruhig);
        const std::int64_t schwelle = std::int64_t{Duldsam} * zufall.Ausdauer() * (mal - i) / mal / 256;
        if (versuch.Kosten() < reihen.Kosten()) reihen = versuch;
        if (versuch.Kosten() <= hier.Kosten() + schwelle) hier = std::move(versuch);
    }
}

Reihen::Folgen BesteReihen(const Familiengraph &graph, const Gerüst &gerüst) {
    Zufall zufall(1);
    const std::vector<Stück> stücke = StückeFinden(gerüst);
    Reihen reihen(graph, gerüst, {});
    Reihen beste = reihen;
    const std::int64_t grenze = 4000 * static_cast<std::int64_t>(graph.Personen.size());
    for (int i = 0; i < 40 && (i < 3 || reihen.Arbeit() < grenze); i++) {
        reihen.Setzen(ErzählteReihen(gerüst, zufall));
        std::vector<char> unruhig(Z(gerüst.Zeilen), 1);
        ReihenSetzenlassen(reihen, unruhig);
        if (i == 0 || reihen.Kosten() < beste.Kosten()) beste = reihen;
    }
    ReihenRütteln(beste, stücke, zufall, 10);
    return beste.Zeilen();
}

} // namespace kw
