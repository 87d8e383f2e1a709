#include "layout/Reihensuche.h"

#include <algorithm>
#include <limits>

namespace kw {

namespace {

constexpr int Weitester = 8;   // places that a run is carried in one go
constexpr int Längster = 4;    // and how many it holds
constexpr int Teuerstes = 600; // what lies between may cost
constexpr int Duldsam = 30;    // how much dearer rows may get on the way to cheaper ones

/// A run of neighbours in hand. It can be carried along its row, and back to where that cost least.
class Lauf {
  public:
    Lauf(Reihen &reihen, int zeile, int platz, int länge)
        : reihen_(reihen), zeile_(zeile), platz_(platz), länge_(länge), anfang_(reihen.Kosten()), bestPlatz_(platz) {}

    int Platz() const { return platz_; }
    bool ZuTeuer() const { return reihen_.Kosten() >= anfang_ + beste_ + Teuerstes; }

    void Rücken(bool rechts) {
        Schritt(rechts, [this](int platz) { reihen_.Tauschen(zeile_, platz); });
        const std::int64_t mehr = reihen_.Kosten() - anfang_;
        if (mehr >= beste_) return;
        beste_ = mehr;
        bestPlatz_ = platz_;
    }
    /// Back to a place where it has been, `mehr` dearer than at first.
    void Zurück(int platz, std::int64_t mehr) {
        while (platz_ != platz) Schritt(platz_ < platz, [this](int p) { reihen_.Zurücktauschen(zeile_, p); });
        reihen_.KostenGelten(anfang_ + mehr);
    }
    void ZumBesten() { Zurück(bestPlatz_, beste_); }

  private:
    template <typename Tausch> void Schritt(bool rechts, Tausch tausch) {
        if (rechts)
            for (int i = platz_ + länge_ - 1; i >= platz_; i--) tausch(i);
        else
            for (int i = platz_ - 1; i < platz_ + länge_ - 1; i++) tausch(i);
        platz_ += rechts ? 1 : -1;
    }

    Reihen &reihen_;
    int zeile_, platz_, länge_;
    std::int64_t anfang_, beste_ = 0;
    int bestPlatz_;
};

/// Carries a run to where it costs least in its row, as far as what lies between isn't too dear; whether that is
/// elsewhere.
bool Bestplatz(Reihen &reihen, int zeile, int platz, int länge) {
    const int rechts = static_cast<int>(reihen.Zeile(zeile).size()) - länge;
    Lauf lauf(reihen, zeile, platz, länge);
    while (lauf.Platz() > std::max(platz - Weitester, 0) && !lauf.ZuTeuer()) lauf.Rücken(false);
    lauf.Zurück(platz, 0);
    while (lauf.Platz() < std::min(platz + Weitester, rechts) && !lauf.ZuTeuer()) lauf.Rücken(true);
    lauf.ZumBesten();
    return lauf.Platz() != platz;
}

/// Turns a run round where that pays.
bool Umgedreht(Reihen &reihen, int zeile, int platz, int länge) {
    const std::int64_t vorher = reihen.Kosten();
    const auto umdrehen = [&](auto tausch) {
        for (int ende = platz + länge - 1; ende > platz; ende--)
            for (int i = platz; i < ende; i++) tausch(i);
    };
    umdrehen([&](int i) { reihen.Tauschen(zeile, i); });
    if (reihen.Kosten() < vorher) return true;
    umdrehen([&](int i) { reihen.Zurücktauschen(zeile, i); });
    reihen.KostenGelten(vorher);
    return false;
}

bool ZeileSetzenlassen(Reihen &reihen, int zeile) {
    const auto breite = static_cast<int>(reihen.Zeile(zeile).size());
    bool besser = false;
    for (int länge = 1; länge <= std::min(Längster, breite - 1); länge++)
        for (int platz = 0; platz + länge <= breite; platz++) {
            besser |= Bestplatz(reihen, zeile, platz, länge);
            besser |= länge > 1 && Umgedreht(reihen, zeile, platz, länge);
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
        Lauf lauf(reihen_, zeile, 0, länge);
        const int letzter = zufall ? zufall->Unter(breite - länge + 1) : breite - länge;
        while (lauf.Platz() < letzter) lauf.Rücken(true);
        if (!zufall) lauf.ZumBesten();
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
    constexpr int Runden = 4;
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

namespace {

/// What is drawn already keeps its order but where lines cross; shorter lines are no reason then.
Gewichte GewichteFür(const Familiengraph &graph) {
    Gewichte gewichte;
    const auto gezeichnet = std::count_if(graph.Personen.begin(), graph.Personen.end(),
                                          [](const Familienperson &person) { return person.Gezeichnet.has_value(); });
    if (Z(static_cast<int>(gezeichnet)) * 2 > graph.Personen.size()) gewichte.Weite = 0;
    return gewichte;
}

/// Rows as the user drew them; those who are new keep behind whom they were told.
Reihen::Folgen GezeichneteReihen(const Familiengraph &graph, Reihen::Folgen zeilen) {
    for (std::vector<int> &zeile : zeilen) {
        std::vector<std::pair<double, int>> folge;
        double x = -std::numeric_limits<double>::infinity();
        for (const int person : zeile) {
            x = graph.Personen[Z(person)].Gezeichnet.value_or(x);
            folge.emplace_back(x, person);
        }
        std::stable_sort(folge.begin(), folge.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
        for (std::size_t i = 0; i < zeile.size(); i++) zeile[i] = folge[i].second;
    }
    return zeilen;
}

} // namespace

Reihen::Folgen BesteReihen(const Familiengraph &graph, const Gerüst &gerüst) {
    Zufall zufall(1);
    const std::vector<Stück> stücke = StückeFinden(gerüst);
    Gewichte gewichte = GewichteFür(graph);
    Reihen reihen(graph, gerüst, gewichte);
    Reihen beste = reihen;
    // Small families are told often enough to find the best there is; the work of large ones grows with their size.
    const std::int64_t genug = 2800 * static_cast<std::int64_t>(graph.Personen.size());
    for (int i = 0; i < 40 && (i < 3 || reihen.Arbeit() < genug); i++) {
        const Reihen::Folgen erzählt = ErzählteReihen(gerüst, zufall);
        reihen.Setzen(i == 0 ? GezeichneteReihen(graph, erzählt) : erzählt);
        std::vector<char> unruhig(Z(gerüst.Zeilen), 1);
        ReihenSetzenlassen(reihen, unruhig);
        if (i == 0 || reihen.Kosten() < beste.Kosten()) beste = reihen;
    }
    ReihenRütteln(beste, stücke, zufall, 8);
    return beste.Zeilen();
}

} // namespace kw
