#include "layout/Strecken.h"

#include <algorithm>
#include <cmath>

namespace kw {

namespace {

/// Two families of one person leave it on the same line.
bool GemeinsamesBein(const Strecke &a, const Strecke &b) {
    return a.Was == Strecke::Art::Bein && b.Was == Strecke::Art::Bein && a.A.X == b.A.X;
}

bool AmEnde(const Strecke &bein, const Strecke &balken) {
    return bein.Was == Strecke::Art::Bein && balken.Was == Strecke::Art::Balken &&
           (bein.A.X == balken.A.X || bein.A.X == balken.B.X);
}

} // namespace

Kreuzungszahl KreuzungenZählen(std::vector<Strecke> &linien) {
    const auto links = [](const Strecke &s) { return std::min(s.A.X, s.B.X); };
    std::sort(linien.begin(), linien.end(), [&](const Strecke &a, const Strecke &b) { return links(a) < links(b); });
    Kreuzungszahl anzahl;
    for (std::size_t i = 0; i < linien.size(); i++) {
        const std::int64_t rechts = std::max(linien[i].A.X, linien[i].B.X);
        for (std::size_t j = i + 1; j < linien.size() && links(linien[j]) <= rechts; j++)
            if (linien[i].Familie != linien[j].Familie && Kreuzen(linien[i], linien[j]) &&
                !GemeinsamesBein(linien[i], linien[j])) {
                anzahl.Alle++;
                anzahl.AmBein += AmEnde(linien[i], linien[j]) || AmEnde(linien[j], linien[i]) ? 1 : 0;
            }
    }
    return anzahl;
}

namespace {

bool Gehört(const Familie &familie, int person) {
    const auto in = [&](const std::vector<int> &liste) {
        return std::find(liste.begin(), liste.end(), person) != liste.end();
    };
    return in(familie.Partner) || in(familie.Kinder);
}

bool Zusammen(const Gerüst &gerüst, const std::vector<Punkt> &personen, const Familie &familie) {
    const int a = familie.Partner[0];
    const int b = familie.Partner[1];
    const auto [l, r] = std::minmax(personen[Z(a)].X, personen[Z(b)].X);
    for (std::size_t i = 0; i < personen.size(); i++) {
        if (personen[i].Y != personen[Z(a)].Y || personen[i].X <= l || personen[i].X >= r) continue;
        const auto mit = [&](int einer) {
            const std::vector<int> &partner = gerüst.Partner[Z(einer)];
            return std::find(partner.begin(), partner.end(), static_cast<int>(i)) != partner.end();
        };
        if (!mit(a) && !mit(b)) return false;
    }
    return true;
}

void Paare(const Gerüst &gerüst, const std::vector<Punkt> &personen, Lagebefund &befund) {
    for (const Familie &familie : gerüst.Familien) {
        for (std::size_t j = 0; j < familie.Kinder.size(); j++)
            for (std::size_t i = 0; i < j; i++)
                befund.Verkehrt += personen[Z(familie.Kinder[i])].X > personen[Z(familie.Kinder[j])].X ? 1 : 0;
        if (familie.Partner.size() < 2) continue;
        if (personen[Z(familie.Partner[0])].Y != personen[Z(familie.Partner[1])].Y) befund.Ungleich++;
        else if (!Zusammen(gerüst, personen, familie)) befund.Getrennt++;
    }
}

/// Child lines that begin on another bar than their own: where two bars of a partner of both meet, or beyond.
int AnFremdemBalken(const Gerüst &gerüst, const std::vector<Strecke> &linien) {
    int anzahl = 0;
    for (const Strecke &kind : linien) {
        if (kind.Was != Strecke::Art::Kindlinie) continue;
        anzahl += std::any_of(linien.begin(), linien.end(), [&](const Strecke &s) {
            return s.Was == Strecke::Art::Balken && s.Familie != kind.Familie && s.A.Y == kind.A.Y &&
                   s.A.X <= kind.A.X && kind.A.X <= s.B.X && !Gehört(gerüst.Familien[Z(s.Familie)], kind.Person);
        });
    }
    return anzahl;
}

} // namespace

Lagebefund Befinden(const Gerüst &gerüst, const Lageplan &plan, const Abstände &abstände) {
    const std::int64_t halb = Tausendstel(abstände.Symbol / 2);
    const std::vector<Punkt> &personen = plan.Personen;
    std::vector<Strecke> linien;
    for (std::size_t f = 0; f < gerüst.Familien.size(); f++)
        if (gerüst.Balkenzeile[f] >= 0) Linien(gerüst, personen, static_cast<int>(f), plan.Balken[f], halb, linien);
    Lagebefund befund;
    Paare(gerüst, personen, befund);
    for (std::size_t j = 0; j < personen.size(); j++)
        for (std::size_t i = 0; i < j; i++)
            befund.Überlagert += std::abs(personen[i].Y - personen[j].Y) < 2 * halb &&
                                         std::abs(personen[i].X - personen[j].X) < Tausendstel(abstände.Personen)
                                     ? 1
                                     : 0;
    std::int64_t länge = 0;
    for (const Strecke &s : linien) {
        const std::int64_t x = s.A.X - s.B.X;
        const std::int64_t y = s.A.Y - s.B.Y;
        länge += std::llround(std::sqrt(static_cast<double>(x * x + y * y))); // exact, unlike std::hypot
        for (std::size_t i = 0; i < personen.size(); i++)
            if (Durchquert(s, personen[i], halb) && !Gehört(gerüst.Familien[Z(s.Familie)], static_cast<int>(i)))
                befund.Durchquert++;
    }
    befund.Länge = static_cast<double>(länge) / 1000;
    befund.AnFremdem = AnFremdemBalken(gerüst, linien);
    const Kreuzungszahl kreuzungen = KreuzungenZählen(linien);
    befund.Kreuzungen = kreuzungen.Alle;
    befund.Störende = kreuzungen.Störende();
    return befund;
}

} // namespace kw
