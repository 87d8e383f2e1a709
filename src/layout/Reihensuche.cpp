#include "layout/Reihensuche.h"

#include <algorithm>
#include <limits>

namespace kw {

namespace {

constexpr int Weitester = 8;   // places that a run is carried in one go
constexpr int Längster = 4;    // and how many partners it holds
constexpr int Teuerstes = 350; // what lies between may cost, besides that it parts a couple
constexpr int Duldsam = 60;    // how much dearer rows may get on the way to cheaper ones
constexpr int TeuersteTrennung = 1150;
constexpr int Strenge = 3500; // what each couple apart but one costs at last
constexpr int Ordnung = 700;  // and each pair of siblings in the wrong order that is too many

/// A run of neighbours in hand. It can be carried along its row, and back to where that cost least.
class Lauf {
  public:
    Lauf(Reihen &reihen, int zeile, int platz, int länge)
        : reihen_(reihen), zeile_(zeile), platz_(platz), länge_(länge), anfangsPlatz_(platz), bestPlatz_(platz) {
        reihen_.Behalten();
        anfang_ = beste_ = reihen_.Merken();
    }

    int Platz() const { return platz_; }
    bool ZuTeuer() const {
        const int getrennt = std::min(reihen_.Wiegt().NochEinGetrennt, TeuersteTrennung);
        return reihen_.Kosten() >= beste_.Kosten + Teuerstes + getrennt;
    }

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
    const auto lohnt = [&](int platz, int länge) {
        bool einer = unruhig(platz);
        for (int i = platz + 1; i < platz + länge; i++) {
            if (!reihen.SindPartner(reihen.Zeile(zeile)[Z(i - 1)], reihen.Zeile(zeile)[Z(i)])) return false;
            einer = einer || unruhig(i);
        }
        return einer;
    };
    for (int länge = 1; länge <= std::min(Längster, breite - 1); länge++)
        for (int platz = 0; platz + länge <= breite; platz++) {
            if (!lohnt(platz, länge)) continue;
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

namespace {

/// The cheapest few rows that were seen.
class Auslese {
  public:
    explicit Auslese(int wieviele) : wieviele_(Z(wieviele)) {}

    void Sehen(const Reihen &reihen) {
        const std::int64_t kosten = reihen.Kosten();
        if (beste_.size() == wieviele_ && kosten >= beste_.back().Kosten) return;
        for (const Eine &eine : beste_)
            if (eine.Kosten == kosten && eine.Zeilen == reihen.Zeilen()) return;
        const auto dahinter =
            std::find_if(beste_.begin(), beste_.end(), [&](const Eine &e) { return e.Kosten > kosten; });
        beste_.insert(dahinter, {kosten, reihen.Zeilen()});
        if (beste_.size() > wieviele_) beste_.pop_back();
    }
    /// Of these the one that is best when it is drawn.
    Reihen::Folgen Beste(Reihen maß, const Probe &probe) const {
        if (beste_.size() == 1) return beste_.front().Zeilen;
        std::size_t beste = 0;
        std::int64_t wenigstes = std::numeric_limits<std::int64_t>::max();
        for (std::size_t i = 0; i < beste_.size(); i++) {
            maß.Setzen(beste_[i].Zeilen);
            const std::int64_t wert = maß.Wert(probe(beste_[i].Zeilen));
            if (wert >= wenigstes) continue;
            wenigstes = wert;
            beste = i;
        }
        return beste_[beste].Zeilen;
    }

  private:
    struct Eine {
        std::int64_t Kosten;
        Reihen::Folgen Zeilen;
    };
    std::size_t wieviele_;
    std::vector<Eine> beste_;
};

/// Shakes rows: carries pieces elsewhere and lets the rows settle, again and again.
class Rüttler {
  public:
    Rüttler(const Gerüst &gerüst, Unruhe &unruhe, Zufall &zufall) : wahl_(gerüst), unruhe_(unruhe), zufall_(zufall) {}

    /// So many times, of a hundred tries `zusammen` by bringing a couple together; ends with the cheapest rows seen.
    void Rütteln(Reihen &reihen, int mal, int zusammen, Auslese &auslese) {
        auslese.Sehen(reihen);
        Reihen hier = reihen; // where each try begins; `reihen` holds the best
        for (int i = 0; i < mal; i++) {
            Reihen versuch = hier;
            const bool zusammengebracht = Zusammengebracht(versuch, zusammen);
            for (int k = zusammengebracht ? zufall_.Unter(2) : 1 + zufall_.Wenig(2); k > 0; k--) Stören(versuch);
            unruhe_.Stiften(hier, versuch);
            ReihenSetzenlassen(versuch, unruhe_);
            auslese.Sehen(versuch);
            const std::int64_t schwelle = std::int64_t{Duldsam} * zufall_.Ausdauer() * (mal - i) / mal / 256;
            if (versuch.Kosten() < reihen.Kosten()) reihen = versuch;
            if (versuch.Kosten() <= hier.Kosten() + schwelle) hier = std::move(versuch);
        }
    }

  private:
    void Stören(Reihen &reihen) {
        const Stück stück = wahl_.Irgendeines(zufall_);
        if (stück.Zeilen.empty()) return;
        const bool umgedreht = zufall_.Unter(3) == 0;
        Stückzug(reihen, stück, umgedreht).Tun(zufall_.Unter(4) > 0 ? &zufall_ : nullptr);
    }

    bool Zusammengebracht(Reihen &reihen, int zusammen) {
        const std::vector<Reihen::Paar> paare = reihen.Getrennte();
        if (paare.empty() || zufall_.Unter(100) >= zusammen) return false;
        Reihen::Paar paar = paare[Z(zufall_.Unter(static_cast<int>(paare.size())))];
        if (zufall_.Unter(2) == 0) std::swap(paar.A, paar.B);
        const bool allein = zufall_.Unter(4) == 0;
        const Stück stück =
            allein ? Stück{{{paar.A}}, paar.Zeile, paar.Zeile} : wahl_.Partner(paar.Zeile, paar.A, paar.B);
        Stückzug(reihen, stück, zufall_.Unter(2) == 0).Tun(nullptr);
        return true;
    }

    Stückwahl wahl_;
    Unruhe &unruhe_;
    Zufall &zufall_;
};

} // namespace

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

Reihen::Folgen BesteReihen(const Familiengraph &graph, const Gerüst &gerüst, const Probe &probe) {
    Zufall zufall(1);
    Unruhe unruhe(gerüst);
    Reihen reihen(graph, gerüst, GewichteFür(graph));
    Reihen beste = reihen;
    // Small families are told and shaken often enough to find the best there is; the work of large ones grows with
    // their size.
    const auto anzahl = static_cast<int>(graph.Personen.size());
    for (int i = 0; i < 40 && (i < 3 || reihen.Arbeit() < std::int64_t{200} * anzahl); i++) {
        const Reihen::Folgen erzählt = ErzählteReihen(gerüst, zufall);
        reihen.Setzen(i == 0 ? GezeichneteReihen(graph, erzählt) : erzählt);
        unruhe.Überall();
        ReihenSetzenlassen(reihen, unruhe);
        if (i == 0 || reihen.Kosten() < beste.Kosten()) beste = reihen;
    }
    const bool gezeichnet = beste.Wiegt().Weite == 0; // then the order is what counts, not how it is drawn
    const Auslese leer(gezeichnet ? 1 : std::clamp(400 / anzahl, 1, 8));
    Auslese auslese = leer;
    Rüttler rüttler(gerüst, unruhe, zufall);
    const int mal = std::clamp(11000 / anzahl, 10, 90);
    rüttler.Rütteln(beste, mal, 10, auslese);
    if (beste.ZuVielesFalsch()) {
        // Weights that forbid this would have held everybody where they were told, so they come last.
        beste.StrengerSein(Strenge, Ordnung);
        auslese = leer;
        rüttler.Rütteln(beste, mal, 90, auslese);
    }
    return auslese.Beste(beste, probe);
}

} // namespace kw
