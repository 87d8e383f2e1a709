#include "layout/Orte.h"

#include <algorithm>
#include <iterator>

namespace kw {

namespace {

constexpr int Feinstes = 50;          // thousandths; where the page has no raster
constexpr double Liniennähe = 0.3;    // between lines that pass a row side by side, cm
constexpr std::int64_t Länge = 1000;  // a step of a line
constexpr std::int64_t Schiefe = 150; // a step that a child line leans, besides what it gets longer
constexpr double Eckenluft = 0.3;     // of a child from where its bar touches another one of the same partner, cm
constexpr std::int64_t Verwechselbar = 10'000; // a step that it lacks: beyond it is read as the other couple's child
constexpr std::int64_t Mitte = 1; // a step of a child from each of its parents, squared: only what settles ties
constexpr int WeitesterSchritt = 128;
constexpr std::int64_t Ungefähr = 800; // thousandths; the last step of what needn't be exact

/// Rows in which columns of several rows keep one order in all of them: by where they stand on average.
Reihen::Folgen Widerspruchsfrei(const Gerüst &gerüst, Reihen::Folgen zeilen) {
    std::vector<std::int64_t> stand(gerüst.Spalten.size(), 0);
    const auto lang = [&](int p) { return gerüst.Spalten[Z(p)].Oben < gerüst.Spalten[Z(p)].Unten; };
    for (const std::vector<int> &zeile : zeilen)
        for (std::size_t i = 0; i < zeile.size(); i++) {
            const Spalte &spalte = gerüst.Spalten[Z(zeile[i])];
            const auto mitte = static_cast<std::int64_t>((i * 2 + 1) * 1'000'000 / zeile.size());
            stand[Z(zeile[i])] += mitte / (spalte.Unten - spalte.Oben + 1);
        }
    for (std::vector<int> &zeile : zeilen) {
        std::vector<int> lange;
        std::copy_if(zeile.begin(), zeile.end(), std::back_inserter(lange), lang);
        std::sort(lange.begin(), lange.end(),
                  [&](int a, int b) { return stand[Z(a)] != stand[Z(b)] ? stand[Z(a)] < stand[Z(b)] : a < b; });
        auto nächster = lange.begin();
        for (int &p : zeile)
            if (lang(p)) p = *nächster++;
    }
    return zeilen;
}

/// On which sides of their partners bars hang in the rows.
class Balkenseiten {
  public:
    Balkenseiten(const Gerüst &gerüst, const Reihen::Folgen &zeilen)
        : seiten_(zeilen.size(), std::vector<Seiten>(gerüst.Spalten.size())) {
        for (std::size_t z = 0; z < zeilen.size(); z++) {
            std::vector<std::size_t> platz(gerüst.Spalten.size(), 0);
            for (std::size_t i = 0; i < zeilen[z].size(); i++) platz[Z(zeilen[z][i])] = i;
            for (const Gehänge &g : gerüst.Gehängte) {
                if (Z(gerüst.Balkenzeile[Z(g.Familie)]) != z || g.A == g.B) continue;
                const bool gedreht = platz[Z(g.A)] > platz[Z(g.B)];
                seiten_[z][Z(gedreht ? g.B : g.A)].Rechts = true;
                seiten_[z][Z(gedreht ? g.A : g.B)].Links = true;
            }
        }
    }
    bool Links(int person, int zeile) const { return seiten_[Z(zeile)][Z(person)].Links; }
    bool Rechts(int person, int zeile) const { return seiten_[Z(zeile)][Z(person)].Rechts; }

  private:
    struct Seiten {
        bool Links = false, Rechts = false;
    };
    std::vector<std::vector<Seiten>> seiten_;
};

} // namespace

Orte::Orte(const Familiengraph &graph, const Gerüst &gerüst, const Abstände &abstände)
    : graph_(graph), gerüst_(gerüst), abstände_(abstände),
      schritt_(abstände.Raster > 0 ? std::max<std::int64_t>(Tausendstel(abstände.Raster), 1) : Feinstes),
      gezeichnet_(HabenPlatz(graph)) {}

bool HabenPlatz(const Familiengraph &graph) {
    return !graph.Personen.empty() &&
           std::all_of(graph.Personen.begin(), graph.Personen.end(),
                       [](const Familienperson &person) { return person.Platz.has_value(); });
}

namespace {

/// Steps from 0 to the nearest one.
int Nächster(double cm, std::int64_t schritt) {
    constexpr double Rand = 1'000'000; // pages are smaller
    const std::int64_t ort = Tausendstel(std::clamp(cm, -Rand, Rand));
    return static_cast<int>((ort + (ort < 0 ? -schritt : schritt) / 2) / schritt);
}

} // namespace

std::vector<std::int64_t> Zeilenhöhen(const Familiengraph &graph, const Gerüst &gerüst, const Abstände &abstände) {
    std::vector<std::int64_t> höhen;
    höhen.reserve(Z(gerüst.Zeilen));
    for (int z = 0; z < gerüst.Zeilen; z++) höhen.push_back(z * Tausendstel(abstände.Generationen));
    if (!HabenPlatz(graph)) return höhen;
    const std::int64_t schritt =
        abstände.Raster > 0 ? std::max<std::int64_t>(Tausendstel(abstände.Raster), 1) : Feinstes;
    Differenzen zeilen(gerüst.Zeilen + 1);
    for (int z = 1; z < gerüst.Zeilen; z++)
        zeilen.Mindestens(z - 1, z, static_cast<int>((Tausendstel(abstände.Generationen) + schritt - 1) / schritt));
    for (std::size_t i = 0; i < graph.Personen.size(); i++)
        zeilen.Kosten(Kostenart::Betrag, gerüst.Zeilen, gerüst.Spalten[i].Ebene,
                      Nächster(graph.Personen[i].Platz->Y, schritt), 1);
    std::vector<int> y;
    zeilen.Kleinste(y);
    zeilen.Lösen(y, WeitesterSchritt);
    for (std::size_t z = 0; z < höhen.size(); z++) höhen[z] = (y[z] - y.back()) * schritt;
    return höhen;
}

int Orte::Schritte(double cm) const { return static_cast<int>((Tausendstel(cm) + schritt_ - 1) / schritt_); }

int Orte::Abstand(int zeile, int links, int rechts) const {
    const bool l = gerüst_.Spalten[Z(links)].Ebene == zeile;
    const bool r = gerüst_.Spalten[Z(rechts)].Ebene == zeile;
    const double breiteL = graph_.Personen[Z(links)].BreiteRechts;
    const double breiteR = graph_.Personen[Z(rechts)].BreiteLinks;
    if (l && r) return Schritte(std::max(abstände_.Personen, breiteL + breiteR + abstände_.Namensluft));
    if (!l && !r) return Schritte(Liniennähe);
    return Schritte(std::max(abstände_.Personen / 2, (l ? breiteL : breiteR) + abstände_.Namensluft / 2));
}

/// Bounds between neighbours; false when no places keep them, which columns bring about that change sides from row to
/// row.
bool Orte::ReihenHalten(const Reihen::Folgen &zeilen, Differenzen &orte) const {
    for (std::size_t z = 0; z < zeilen.size(); z++)
        for (std::size_t i = 1; i < zeilen[z].size(); i++) {
            const int links = zeilen[z][i - 1];
            const int rechts = zeilen[z][i];
            orte.Mindestens(links, rechts, Abstand(static_cast<int>(z), links, rechts));
        }
    std::vector<int> x;
    return orte.Kleinste(x);
}

/// What lines cost. `innen` gets the bounds by which lines that pass a row become upright.
void Orte::Gewichten(const Reihen::Folgen &zeilen, Differenzen &orte, Paare &innen) const {
    const Balkenseiten berührt(gerüst_, zeilen);
    const int ecke = Schritte(Eckenluft);
    // Where all have a place, nobody loses it to this.
    const std::int64_t verwechselt = gezeichnet_ ? Länge / 2 : Verwechselbar;
    const int höhe = Schritte(abstände_.Generationen - abstände_.Balken - abstände_.Symbol / 2);
    for (const Gehänge &g : gerüst_.Gehängte) {
        const int balken = gerüst_.Balkenzeile[Z(g.Familie)];
        const std::vector<int> &zeile = zeilen[Z(balken)];
        const bool gedreht = std::find(zeile.begin(), zeile.end(), g.A) > std::find(zeile.begin(), zeile.end(), g.B);
        const int l = gedreht ? g.B : g.A;
        const int r = gedreht ? g.A : g.B;
        orte.Kosten(Kostenart::Über, l, r, 0, Länge);
        for (const int kind : g.Kinder) {
            if (gerüst_.Spalten[Z(kind)].Ebene > balken + 1) {
                innen.emplace_back(l, kind);
                innen.emplace_back(kind, r);
            }
            orte.Kosten(Kostenart::Schräg, kind, l, 0, Länge, höhe);
            orte.Kosten(Kostenart::Schräg, r, kind, 0, Länge, höhe);
            orte.Kosten(Kostenart::Über, kind, l, 0, Schiefe); // upright rather than nearly so
            orte.Kosten(Kostenart::Über, r, kind, 0, Schiefe);
            if (berührt.Links(l, balken)) orte.Kosten(Kostenart::Über, kind, l, -ecke, verwechselt);
            if (berührt.Rechts(r, balken)) orte.Kosten(Kostenart::Über, r, kind, -ecke, verwechselt);
            orte.Kosten(Kostenart::Quadrat, l, kind, 0, Mitte);
            orte.Kosten(Kostenart::Quadrat, kind, r, 0, Mitte);
        }
    }
    for (const Familie &familie : gerüst_.Familien) // siblings that no line holds together
        for (std::size_t i = 1; familie.Partner.empty() && i < familie.Kinder.size(); i++)
            orte.Kosten(Kostenart::Betrag, familie.Kinder[i - 1], familie.Kinder[i], 0, Länge);
}

/// All rows centred, which isn't far from the shortest lines. Nobody has a place there yet that keeps the bounds.
std::vector<int> Orte::Anfang(const Reihen::Folgen &zeilen) const {
    std::vector<int> x(gerüst_.Spalten.size() + 1, 0);
    if (gezeichnet_) return x;
    std::size_t breiteste = 0;
    for (const std::vector<int> &zeile : zeilen) breiteste = std::max(breiteste, zeile.size());
    const int abstand = Schritte(abstände_.Personen);
    for (const std::vector<int> &zeile : zeilen)
        for (std::size_t i = 0; i < zeile.size(); i++)
            x[Z(zeile[i])] = static_cast<int>(breiteste - zeile.size() + 2 * i) * abstand / 2;
    return x;
}

std::vector<int> Orte::Finden(const Reihen::Folgen &zeilen, Güte güte) const {
    Reihen::Folgen folgen = zeilen;
    Differenzen orte(static_cast<int>(gerüst_.Spalten.size()) + 1);
    if (!ReihenHalten(folgen, orte)) {
        folgen = Widerspruchsfrei(gerüst_, zeilen);
        orte = Differenzen(static_cast<int>(gerüst_.Spalten.size()) + 1);
        ReihenHalten(folgen, orte);
    }
    Paare innen;
    Gewichten(folgen, orte, innen);
    if (gezeichnet_) Halten(folgen, orte);
    std::vector<int> x = Anfang(folgen);
    Differenzen alle = orte;
    for (const auto &[a, b] : innen) alle.Mindestens(a, b, 0);
    if (alle.Kleinste(x)) orte = std::move(alle);
    else
        for (const auto &[a, b] : innen) { // then as many as can be
            Differenzen mit = orte;
            mit.Mindestens(a, b, 0);
            x = Anfang(folgen);
            if (mit.Kleinste(x)) orte = std::move(mit);
        }
    x = Anfang(folgen);
    orte.Kleinste(x);
    orte.Lösen(x, WeitesterSchritt, güte == Güte::Genau ? 1 : static_cast<int>(Ungefähr / schritt_));
    const int rand = x.back();
    x.pop_back();
    const int links = gezeichnet_ ? rand : *std::min_element(x.begin(), x.end());
    for (int &ort : x) ort -= links;
    return x;
}

namespace {

/// The most of a row who stand in the order in which they are drawn.
std::vector<int> InDerFolge(const Familiengraph &graph, const std::vector<int> &zeile) {
    struct Kette {
        int Länge = 1, Davor = -1;
    };
    std::vector<Kette> ketten(zeile.size());
    const auto x = [&](int platz) { return graph.Personen[Z(zeile[Z(platz)])].Platz->X; };
    int längste = -1;
    for (int i = 0; i < static_cast<int>(zeile.size()); i++) {
        for (int k = 0; k < i; k++)
            if (x(k) <= x(i) && ketten[Z(k)].Länge >= ketten[Z(i)].Länge) ketten[Z(i)] = {ketten[Z(k)].Länge + 1, k};
        if (längste < 0 || ketten[Z(i)].Länge > ketten[Z(längste)].Länge) längste = i;
    }
    std::vector<int> folge;
    for (int i = längste; i >= 0; i = ketten[Z(i)].Davor) folge.push_back(zeile[Z(i)]);
    return folge;
}

} // namespace

/// What it costs that somebody doesn't stay where they stand, unless others have come between. The page's edge is
/// counted behind the persons.
void Orte::Halten(const Reihen::Folgen &zeilen, Differenzen &orte) const {
    const auto anzahl = static_cast<int>(gerüst_.Spalten.size());
    const auto treue = static_cast<std::int64_t>(abstände_.Treue * static_cast<double>(Länge));
    for (std::size_t z = 0; z < zeilen.size(); z++) {
        std::vector<int> hier;
        for (const int person : zeilen[z])
            if (gerüst_.Spalten[Z(person)].Ebene == static_cast<int>(z)) hier.push_back(person);
        for (const int person : InDerFolge(graph_, hier))
            orte.Kosten(Kostenart::Betrag, anzahl, person, Nächster(graph_.Personen[Z(person)].Platz->X, schritt_),
                        treue);
    }
}

} // namespace kw
