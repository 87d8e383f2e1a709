#include "layout/Orte.h"

#include <algorithm>
#include <utility>

namespace kw {

namespace {

constexpr double Genutzt = 0.75;           // of the room between the highest bar and the children
constexpr double Luft = 0.1;               // between a bar that is drawn and the symbols above and below it, cm
constexpr double Weitester = 1'000'000;    // pages are smaller, cm
constexpr std::size_t Geduld = 20'000'000; // pairs of lines that are compared for one group

struct Balken {
    int Familie = 0;
    std::int64_t L = 0, R = 0;
    int Stufe = 0; ///< 0 is the highest
};

/// Bars of a row that lie on each other or meet. Each has its step; those that lie on each other never the same.
class Balkengruppe {
  public:
    Balkengruppe(const Gerüst &gerüst, const std::vector<Punkt> &personen, const Abstände &abstände, std::int64_t oben)
        : gerüst_(gerüst), personen_(personen), halb_(Tausendstel(abstände.Symbol / 2)), oben_(oben),
          stufe_(Tausendstel(abstände.Balkenstufe)),
          raum_(Tausendstel((abstände.Generationen - abstände.Balken - abstände.Symbol / 2) * Genutzt)) {}

    void Hinzu(const Balken &balken) { balken_.push_back(balken); }
    const std::vector<Balken> &Gehängt() const { return balken_; }
    std::int64_t Höhe(const Balken &b) const { return oben_ + b.Stufe * stufe_; }

    /// Begins with the narrow ones on top; then each bar alone, and each two, to the steps where lines cross least.
    void Hängen() {
        std::stable_sort(balken_.begin(), balken_.end(),
                         [](const Balken &a, const Balken &b) { return a.R - a.L < b.R - b.L; });
        int stufen = 1;
        for (std::size_t i = 0; i < balken_.size(); i++) {
            while (!Frei(i, i)) balken_[i].Stufe++;
            stufen = std::max(stufen, balken_[i].Stufe + 1);
        }
        if (stufen == 1) return;
        stufe_ = std::min(stufe_, raum_ / (stufen - 1)); // all of them above the children
        int wenigste = Kreuzungen();
        for (int runde = 0; runde < 4 && wenigste > 0; runde++) {
            const int vorher = wenigste;
            for (std::size_t i = 0; i < balken_.size(); i++) Einzeln(i, stufen, wenigste);
            for (std::size_t i = 0; i < balken_.size(); i++)
                for (std::size_t j = 0; j < i && !Müde(); j++) Tauschen(i, j, wenigste);
            if (wenigste == vorher) break;
        }
    }

  private:
    /// Whether none of the first `bis` bars has the place of bar `i`.
    bool Frei(std::size_t i, std::size_t bis) const {
        const Balken &b = balken_[i];
        for (std::size_t j = 0; j < bis; j++) {
            const Balken &a = balken_[j];
            if (j != i && a.Stufe == b.Stufe && a.L < b.R && b.L < a.R) return false;
        }
        return true;
    }

    void Einzeln(std::size_t i, int stufen, int &wenigste) {
        int beste = balken_[i].Stufe;
        for (int stufe = 0; stufe < stufen && !Müde(); stufe++) {
            balken_[i].Stufe = stufe;
            if (stufe == beste || !Frei(i, balken_.size())) continue;
            const int anzahl = Kreuzungen();
            if (anzahl >= wenigste) continue;
            wenigste = anzahl;
            beste = stufe;
        }
        balken_[i].Stufe = beste;
    }

    void Tauschen(std::size_t i, std::size_t j, int &wenigste) {
        if (balken_[i].Stufe == balken_[j].Stufe) return;
        std::swap(balken_[i].Stufe, balken_[j].Stufe);
        if (Frei(i, balken_.size()) && Frei(j, balken_.size())) {
            const int anzahl = Kreuzungen();
            if (anzahl < wenigste) {
                wenigste = anzahl;
                return;
            }
        }
        std::swap(balken_[i].Stufe, balken_[j].Stufe);
    }

    int Kreuzungen() {
        linien_.clear();
        for (const Balken &b : balken_) Linien(gerüst_, personen_, b.Familie, Höhe(b), halb_, linien_);
        verglichen_ += linien_.size() * linien_.size();
        return KreuzungenZählen(linien_).Alle;
    }
    bool Müde() const { return verglichen_ > Geduld; }

    const Gerüst &gerüst_;
    const std::vector<Punkt> &personen_;
    std::int64_t halb_, oben_, stufe_, raum_;
    std::vector<Balken> balken_;
    std::vector<Strecke> linien_;
    std::size_t verglichen_ = 0;
};

/// Bars back to where they are drawn, each that is below its row and above the next one, and lets nothing more cross.
void GezeichneteHöhen(const Gerüst &gerüst, const std::vector<Punkt> &personen,
                      const std::vector<std::int64_t> &zeilenhöhen, const Abstände &abstände,
                      std::vector<std::int64_t> &höhen) {
    const std::int64_t halb = Tausendstel(abstände.Symbol / 2);
    const std::int64_t luft = Tausendstel(Luft);
    std::vector<std::int64_t> gezeichnete = höhen;
    for (std::size_t f = 0; f < höhen.size(); f++) {
        const auto zeile = Z(gerüst.Balkenzeile[f]);
        if (gerüst.Balkenzeile[f] < 0 || !gerüst.Familien[f].Balken) continue;
        const std::int64_t y = Tausendstel(std::clamp(*gerüst.Familien[f].Balken, -Weitester, Weitester));
        const bool unter = y >= zeilenhöhen[zeile] + halb + luft;
        const bool über = zeile + 1 == zeilenhöhen.size() || y <= zeilenhöhen[zeile + 1] - halb - luft;
        if (unter && über) gezeichnete[f] = y;
    }
    if (gezeichnete == höhen) return;
    std::vector<Strecke> linien;
    const auto kreuzungen = [&](const std::vector<std::int64_t> &bei) {
        linien.clear();
        for (std::size_t f = 0; f < bei.size(); f++)
            if (gerüst.Balkenzeile[f] >= 0) Linien(gerüst, personen, static_cast<int>(f), bei[f], halb, linien);
        return KreuzungenZählen(linien).Störende();
    };
    int wenigste = kreuzungen(höhen);
    if (const int anzahl = kreuzungen(gezeichnete); anzahl <= wenigste) {
        höhen = gezeichnete;
        return;
    }
    for (std::size_t f = 0; f < höhen.size(); f++) {
        const std::int64_t vorher = std::exchange(höhen[f], gezeichnete[f]);
        if (vorher == höhen[f]) continue;
        const int anzahl = kreuzungen(höhen);
        if (anzahl <= wenigste) wenigste = anzahl;
        else höhen[f] = vorher;
    }
}

} // namespace

std::vector<std::int64_t> BalkenHängen(const Gerüst &gerüst, const std::vector<Punkt> &personen,
                                       const std::vector<std::int64_t> &zeilenhöhen, const Abstände &abstände) {
    std::vector<std::int64_t> höhen(gerüst.Familien.size(), 0);
    std::vector<std::vector<Balken>> zeilen(Z(gerüst.Zeilen));
    for (std::size_t f = 0; f < höhen.size(); f++) {
        if (gerüst.Balkenzeile[f] < 0) continue;
        const auto [l, r] = std::minmax(personen[Z(gerüst.Familien[f].Partner.front())].X,
                                        personen[Z(gerüst.Familien[f].Partner.back())].X);
        zeilen[Z(gerüst.Balkenzeile[f])].push_back({static_cast<int>(f), l, r});
    }
    for (std::size_t z = 0; z < zeilen.size(); z++) {
        std::vector<Balken> &zeile = zeilen[z];
        std::sort(zeile.begin(), zeile.end(),
                  [](const Balken &a, const Balken &b) { return a.L != b.L ? a.L < b.L : a.Familie < b.Familie; });
        const std::int64_t oben = zeilenhöhen[z] + Tausendstel(abstände.Balken);
        for (std::size_t i = 0; i < zeile.size();) {
            Balkengruppe gruppe(gerüst, personen, abstände, oben);
            std::int64_t rechts = zeile[i].R;
            for (gruppe.Hinzu(zeile[i++]); i < zeile.size() && zeile[i].L <= rechts; i++) {
                gruppe.Hinzu(zeile[i]);
                rechts = std::max(rechts, zeile[i].R);
            }
            gruppe.Hängen();
            for (const Balken &b : gruppe.Gehängt()) höhen[Z(b.Familie)] = gruppe.Höhe(b);
        }
    }
    GezeichneteHöhen(gerüst, personen, zeilenhöhen, abstände, höhen);
    return höhen;
}

} // namespace kw
