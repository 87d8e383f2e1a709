#include "layout/Reihensuche.h"

#include <algorithm>
#include <limits>

namespace kw {

namespace {

constexpr int Weitester = 8;   // places that a run is carried in one go
constexpr int Längster = 2;    // and how many it holds; longer ones are carried as pieces
constexpr int Teuerstes = 600; // what lies between may cost
constexpr int Duldsam = 30;    // how much dearer rows may get on the way to cheaper ones

/// A run of neighbours in hand. It can be carried along its row, and back to where that cost least.
class Lauf {
  public:
    Lauf(Reihen &reihen, int zeile, int platz, int länge)
        : reihen_(reihen), zeile_(zeile), platz_(platz), länge_(länge), anfangsPlatz_(platz), bestPlatz_(platz) {
        reihen_.Behalten();
        anfang_ = beste_ = reihen_.Merken();
    }

    int Platz() const { return platz_; }
    bool ZuTeuer() const { return reihen_.Kosten() >= beste_.Kosten + Teuerstes; }

    void Rücken(bool rechts) {
        Schritt(rechts);
        if (reihen_.Kosten() >= beste_.Kosten) return;
        beste_ = reihen_.Merken();
        bestPlatz_ = platz_;
    }
    void ZumAnfang() {
        reihen_.Zurück(anfang_);
        platz_ = anfangsPlatz_;
    }
    void ZumBesten() {
        const bool hier = platz_ != anfangsPlatz_ && (platz_ < anfangsPlatz_) == (bestPlatz_ < anfangsPlatz_);
        if (hier && bestPlatz_ != anfangsPlatz_) reihen_.Zurück(beste_);
        else {
            ZumAnfang();
            while (platz_ != bestPlatz_) Schritt(platz_ < bestPlatz_);
        }
        platz_ = bestPlatz_;
    }

  private:
    void Schritt(bool rechts) {
        if (rechts)
            for (int i = platz_ + länge_ - 1; i >= platz_; i--) reihen_.Tauschen(zeile_, i);
        else
            for (int i = platz_ - 1; i < platz_ + länge_ - 1; i++) reihen_.Tauschen(zeile_, i);
        platz_ += rechts ? 1 : -1;
    }

    Reihen &reihen_;
    int zeile_, platz_, länge_;
    Reihen::Marke anfang_{}, beste_{};
    int anfangsPlatz_, bestPlatz_;
};

/// Carries a run to where it costs least in its row, as far as what lies between isn't too dear; by how many places
/// that is elsewhere.
int Bestplatz(Reihen &reihen, int zeile, int platz, int länge) {
    const int rechts = static_cast<int>(reihen.Zeile(zeile).size()) - länge;
    Lauf lauf(reihen, zeile, platz, länge);
    while (lauf.Platz() > std::max(platz - Weitester, 0) && !lauf.ZuTeuer()) lauf.Rücken(false);
    lauf.ZumAnfang();
    while (lauf.Platz() < std::min(platz + Weitester, rechts) && !lauf.ZuTeuer()) lauf.Rücken(true);
    lauf.ZumBesten();
    return lauf.Platz() - platz;
}

/// Turns a run round where that pays.
bool Umgedreht(Reihen &reihen, int zeile, int platz, int länge) {
    reihen.Behalten();
    const Reihen::Marke vorher = reihen.Merken();
    for (int ende = platz + länge - 1; ende > platz; ende--)
        for (int i = platz; i < ende; i++) reihen.Tauschen(zeile, i);
    if (reihen.Kosten() < vorher.Kosten) return true;
    reihen.Zurück(vorher);
    return false;
}

void ZeileSetzenlassen(Reihen &reihen, int zeile, Unruhe &unruhe) {
    const auto breite = static_cast<int>(reihen.Zeile(zeile).size());
    const std::vector<char> anfangs = unruhe.Abnehmen(zeile);
    const auto unruhig = [&](int platz) {
        const int person = reihen.Zeile(zeile)[Z(platz)];
        return anfangs[Z(person)] || unruhe.Herrscht(zeile, person);
    };
    const auto gerückt = [&](int von, int bis) {
        for (int i = std::max(von - 1, 0); i <= std::min(bis + 1, breite - 1); i++)
            unruhe.Stiften(zeile, reihen.Zeile(zeile)[Z(i)]);
    };
    for (int länge = 1; länge <= std::min(Längster, breite - 1); länge++)
        for (int platz = 0; platz + länge <= breite; platz++) {
            bool lohnt = false;
            for (int i = platz; i < platz + länge; i++) lohnt |= unruhig(i);
            if (!lohnt) continue;
            const int weite = Bestplatz(reihen, zeile, platz, länge);
            if (weite != 0) gerückt(platz + std::min(weite, 0), platz + länge - 1 + std::max(weite, 0));
            if (länge > 1 && Umgedreht(reihen, zeile, platz, länge)) gerückt(platz, platz + länge - 1);
        }
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

void ReihenSetzenlassen(Reihen &reihen, Unruhe &unruhe) {
    constexpr int Runden = 8;
    const int letzte = reihen.Anzahl() - 1;
    for (int runde = 0; runde < Runden; runde++) {
        bool ruhig = true;
        for (int i = 0; i <= letzte; i++) {
            const int zeile = runde % 2 == 0 ? i : letzte - i;
            if (!unruhe.Herrscht(zeile)) continue;
            ruhig = false;
            ZeileSetzenlassen(reihen, zeile, unruhe);
        }
        if (ruhig) return;
    }
}

void ReihenRütteln(Reihen &reihen, const std::vector<Stück> &stücke, Unruhe &unruhe, Zufall &zufall, int mal) {
    if (stücke.empty()) return;
    Reihen hier = reihen; // where each try begins; `reihen` holds the best
    for (int i = 0; i < mal; i++) {
        Reihen versuch = hier;
        for (int k = zufall.Wenig(2); k >= 0; k--) {
            const Stück &stück = stücke[Z(zufall.Unter(static_cast<int>(stücke.size())))];
            const bool umgedreht = zufall.Unter(3) == 0;
            Stückzug(versuch, stück, umgedreht).Tun(zufall.Unter(4) > 0 ? &zufall : nullptr);
        }
        unruhe.Stiften(hier, versuch);
        ReihenSetzenlassen(versuch, unruhe);
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
    Unruhe unruhe(gerüst);
    Reihen reihen(graph, gerüst, GewichteFür(graph));
    Reihen beste = reihen;
    // Small families are told and shaken often enough to find the best there is; the work of large ones grows with
    // their size.
    const auto anzahl = static_cast<std::int64_t>(graph.Personen.size());
    for (int i = 0; i < 40 && (i < 3 || reihen.Arbeit() < 600 * anzahl); i++) {
        const Reihen::Folgen erzählt = ErzählteReihen(gerüst, zufall);
        reihen.Setzen(i == 0 ? GezeichneteReihen(graph, erzählt) : erzählt);
        unruhe.Überall();
        ReihenSetzenlassen(reihen, unruhe);
        if (i == 0 || reihen.Kosten() < beste.Kosten()) beste = reihen;
    }
    ReihenRütteln(beste, stücke, unruhe, zufall, static_cast<int>(std::clamp<std::int64_t>(11000 / anzahl, 10, 90)));
    return beste.Zeilen();
}

} // namespace kw
