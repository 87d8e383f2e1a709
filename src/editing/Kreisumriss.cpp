#include "editing/Kreisumriss.h"

#include "document/Zahlen.h"
#include "rendering/Ebenen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <deque>
#include <numbers>
#include <utility>

namespace kw {

namespace {

constexpr double Abstand = 0.6;      ///< of a circle line from what it is laid round, cm
constexpr double Eckenradius = 1.0;  ///< the same line's
constexpr double Punktabstand = 1.5; ///< the same line's points are no further apart on a straight side

constexpr double Eckenschritt = 0.6; ///< between the points of a line with many corners, cm

constexpr double Zelle = 0.3;       ///< of the net in which a way is sought, cm
constexpr double LuftDrinnen = 0.3; ///< between a box and the stroke round it, cm
constexpr double LuftDraußen = 0.15;
constexpr int Bucht = 8; ///< free cells between two held ones that are held too, so that the stroke runs smoothly

constexpr std::pair<int, int> Himmelsrichtungen[] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}}; ///< clockwise

/// The page as a net of cells, and which of them a stroke is to hold.
class Zellennetz {
  public:
    Zellennetz(double breite, double höhe)
        : spalten_(static_cast<int>(std::ceil(breite / Zelle))), zeilen_(static_cast<int>(std::ceil(höhe / Zelle))),
          zellen_(static_cast<size_t>(spalten_) * static_cast<size_t>(zeilen_), Frei) {}

    void Füllen(const Umgebung &kasten, bool drinnen) {
        const double luft = drinnen ? LuftDrinnen : LuftDraußen;
        const auto stelle = [](double cm, int anzahl) {
            return std::clamp(static_cast<int>(std::floor(cm / Zelle)), 0, anzahl - 1);
        };
        for (int y = stelle(kasten.Oben - luft, zeilen_); y <= stelle(kasten.Unten + luft, zeilen_); ++y)
            for (int x = stelle(kasten.Links - luft, spalten_); x <= stelle(kasten.Rechts + luft, spalten_); ++x)
                if (char &zelle = zellen_[Platz(x, y)]; zelle != Gesperrt) zelle = drinnen ? Gehalten : Gesperrt;
    }

    /// Joins everything that is held by ways over free cells. False where there is none.
    bool Verbinden() {
        for (;;) {
            const auto ziel = NächstesGetrenntes();
            if (!ziel) return !getrennt_;
            for (size_t z = woher_[*ziel]; zellen_[z] == Frei; z = woher_[z]) zellen_[z] = Gehalten;
        }
    }

    /// Holds what lies between held cells, across or down, until nothing more does.
    void Glätten() {
        for (bool weiter = true; weiter;) {
            weiter = false;
            for (int y = 0; y < zeilen_; ++y)
                for (int x = 0; x < spalten_; ++x)
                    for (const auto &[dx, dy] : {Himmelsrichtungen[0], Himmelsrichtungen[1]})
                        weiter |= BuchtFüllen(x, y, dx, dy);
        }
    }

    /// The corners of what is held, clockwise, in cells; its outer edge alone.
    std::vector<std::pair<int, int>> Ecken() const {
        const auto anfang = static_cast<int>(std::find(zellen_.begin(), zellen_.end(), Gehalten) - zellen_.begin());
        if (anfang == spalten_ * zeilen_) return {};
        std::vector<std::pair<int, int>> ecken;
        const std::pair von{anfang % spalten_, anfang / spalten_}; // the topmost, and of these the leftmost one
        int x = von.first, y = von.second;
        int richtung = 0; // along its upper edge
        do {
            const int dx = Himmelsrichtungen[richtung].first, dy = Himmelsrichtungen[richtung].second;
            x += dx;
            y += dy;
            // What is held lies to the right of the way: the cells ahead on both sides tell where it goes on.
            const auto hält = [&](int seite) {
                const auto [sx, sy] = Himmelsrichtungen[(richtung + seite) % 4];
                return Hält(x + (dx + sx - 1) / 2, y + (dy + sy - 1) / 2);
            };
            const bool rechts = hält(1);
            const bool links = hält(3);
            const int biegung = !rechts ? 1 : links ? 3 : 0;
            if (biegung != 0) ecken.emplace_back(x, y);
            richtung = (richtung + biegung) % 4;
        } while (std::pair(x, y) != von || richtung != 0);
        return ecken;
    }

  private:
    enum : char { Frei, Gesperrt, Gehalten };
    static constexpr size_t Unerreicht = static_cast<size_t>(-1);

    size_t Platz(int x, int y) const {
        return static_cast<size_t>(y) * static_cast<size_t>(spalten_) + static_cast<size_t>(x);
    }
    bool IstDa(int x, int y) const { return x >= 0 && y >= 0 && x < spalten_ && y < zeilen_; }
    bool Hält(int x, int y) const { return IstDa(x, y) && zellen_[Platz(x, y)] == Gehalten; }

    /// From a held cell over free ones to the next held one, if that isn't far.
    bool BuchtFüllen(int x, int y, int dx, int dy) {
        if (!Hält(x, y)) return false;
        int weite = 1;
        while (weite <= Bucht && IstDa(x + weite * dx, y + weite * dy) &&
               zellen_[Platz(x + weite * dx, y + weite * dy)] == Frei)
            ++weite;
        if (weite == 1 || !Hält(x + weite * dx, y + weite * dy)) return false;
        for (int i = 1; i < weite; ++i) zellen_[Platz(x + i * dx, y + i * dy)] = Gehalten;
        return true;
    }

    /// Goes out from the first held cell, over all that touch it before any free ones, to the nearest held cell that
    /// doesn't. `woher_` has the way back.
    std::optional<size_t> NächstesGetrenntes() {
        woher_.assign(zellen_.size(), Unerreicht);
        std::deque<size_t> zusammen{
            static_cast<size_t>(std::find(zellen_.begin(), zellen_.end(), Gehalten) - zellen_.begin())};
        std::deque<size_t> frei;
        woher_[zusammen.front()] = zusammen.front();
        while (!zusammen.empty() || !frei.empty()) {
            std::deque<size_t> &reihe = zusammen.empty() ? frei : zusammen;
            const size_t hier = reihe.front();
            reihe.pop_front();
            for (const auto &[dx, dy] : Himmelsrichtungen) {
                const int x = static_cast<int>(hier) % spalten_ + dx;
                const int y = static_cast<int>(hier) / spalten_ + dy;
                if (!IstDa(x, y) || woher_[Platz(x, y)] != Unerreicht || zellen_[Platz(x, y)] == Gesperrt) continue;
                woher_[Platz(x, y)] = hier;
                const bool gehalten = zellen_[Platz(x, y)] == Gehalten;
                if (gehalten && zellen_[hier] == Frei) return Platz(x, y);
                (gehalten ? zusammen : frei).push_back(Platz(x, y));
            }
        }
        getrennt_ = false;
        for (size_t z = 0; z < zellen_.size(); ++z) getrennt_ |= zellen_[z] == Gehalten && woher_[z] == Unerreicht;
        return std::nullopt;
    }

    int spalten_, zeilen_;
    std::vector<char> zellen_;
    std::vector<size_t> woher_;
    bool getrennt_ = false;
};

} // namespace

std::vector<Kreispunkt> KreisUm(const Umgebung &u) {
    const double links = u.Links - Abstand;
    const double oben = u.Oben - Abstand;
    const double rechts = u.Rechts + Abstand;
    const double unten = u.Unten + Abstand;
    const double r = std::min({Eckenradius, (rechts - links) / 2, (unten - oben) / 2});
    const std::array<Kreispunkt, 4> ecken{
        {{rechts - r, oben + r}, {rechts - r, unten - r}, {links + r, unten - r}, {links + r, oben + r}}};
    std::vector<Kreispunkt> punkte;
    const auto dazu = [&](double x, double y) { punkte.push_back({Gerundet(x, 2), Gerundet(y, 2)}); };
    dazu(links + r, oben);
    for (size_t i = 0; i < ecken.size(); ++i) {
        const double winkel = (static_cast<double>(i) - 1) * std::numbers::pi / 2; // the corner begins upwards
        const auto ort = [&](double w) {
            return Kreispunkt{ecken[i].X + r * std::cos(w), ecken[i].Y + r * std::sin(w)};
        };
        const Kreispunkt von = punkte.back();
        const Kreispunkt bis = ort(winkel);
        const int teile = static_cast<int>(std::hypot(bis.X - von.X, bis.Y - von.Y) / Punktabstand);
        for (int t = 1; t <= teile; ++t)
            dazu(std::lerp(von.X, bis.X, t / (teile + 1.0)), std::lerp(von.Y, bis.Y, t / (teile + 1.0)));
        for (int viertel = 0; viertel <= 2; ++viertel) {
            const Kreispunkt p = ort(winkel + viertel * std::numbers::pi / 4);
            if (i + 1 < ecken.size() || viertel < 2) dazu(p.X, p.Y); // the last one is the first again
        }
    }
    punkte.erase(std::unique(punkte.begin(), punkte.end()), punkte.end());
    return punkte;
}

std::vector<Kreispunkt> KreisUmAlle(const std::vector<Umgebung> &drinnen, const std::vector<Umgebung> &draußen,
                                    double seitenBreite, double seitenHöhe) {
    if (drinnen.empty()) return {};
    Zellennetz netz(seitenBreite, seitenHöhe);
    for (const Umgebung &kasten : draußen) netz.Füllen(kasten, false);
    for (const Umgebung &kasten : drinnen) netz.Füllen(kasten, true);
    if (!netz.Verbinden()) return {};
    netz.Glätten();
    const auto ecken = netz.Ecken();
    std::vector<Kreispunkt> punkte;
    for (size_t i = 0; i < ecken.size(); ++i) {
        const auto [x1, y1] = ecken[i];
        const auto [x2, y2] = ecken[(i + 1) % ecken.size()];
        const double länge = Zelle * (std::abs(x2 - x1) + std::abs(y2 - y1));
        // Corners are cut, and all steps much the same: the curve would swing beyond them.
        const int teile = std::max(1, static_cast<int>(std::lround(länge / Eckenschritt)));
        for (int t = 0; t < teile; ++t)
            punkte.push_back({Gerundet(std::clamp(Zelle * std::lerp(x1, x2, (t + 0.5) / teile), 0.0, seitenBreite), 2),
                              Gerundet(std::clamp(Zelle * std::lerp(y1, y2, (t + 0.5) / teile), 0.0, seitenHöhe), 2)});
    }
    return punkte;
}

Kreisinneres::Kreisinneres(std::string_view kreis, int glättungsgrad) : zug_(Kreiszug(kreis, glättungsgrad)) {}

bool Kreisinneres::Hält(double x, double y) const {
    bool drin = false;
    for (size_t i = 0; i < zug_.size(); ++i) {
        const auto &a = zug_[i];
        const auto &b = zug_[(i + 1) % zug_.size()];
        if ((a.Y > y) != (b.Y > y) && x < a.X + (y - a.Y) / (b.Y - a.Y) * (b.X - a.X)) drin = !drin;
    }
    return drin;
}

Kreislage Kreisinneres::Lage(const Umgebung &kasten) const {
    for (size_t i = 0; i < zug_.size(); ++i) {
        const auto &b = zug_[(i + 1) % zug_.size()];
        if (StreckeTrifft(zug_[i].X, zug_[i].Y, b.X, b.Y, kasten)) return Kreislage::AufDemStrich;
    }
    return Hält(kasten.MitteX(), kasten.MitteY()) ? Kreislage::Drinnen : Kreislage::Draußen;
}

bool Umschließt(std::string_view kreis, int glättungsgrad, double x, double y) {
    return Kreisinneres(kreis, glättungsgrad).Hält(x, y);
}

} // namespace kw
