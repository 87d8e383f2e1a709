#include "arrangement/Seitenplatz.h"

#include "document/Zahlen.h"

#include <algorithm>
#include <cmath>

namespace kw {

namespace {

constexpr double Nichts = 1e-6; ///< what touches doesn't overlap, cm
constexpr double Feinheit = 10000;
constexpr int MeisteFreie = 3000; ///< places that are looked at for one without flaws

bool Versetzt(const Umgebung &a, const Umgebung &b, Ort weg) {
    return a.Links + weg.X < b.Rechts - Nichts && b.Links < a.Rechts + weg.X - Nichts &&
           a.Oben + weg.Y < b.Unten - Nichts && b.Oben < a.Unten + weg.Y - Nichts;
}

bool IstFrei(const Platzwunsch &w, Ort weg) {
    const auto liegtAuf = [&](const Umgebung &kasten, const std::vector<Umgebung> &hindernisse) {
        return std::any_of(hindernisse.begin(), hindernisse.end(),
                           [&](const Umgebung &anderes) { return Versetzt(kasten, anderes, weg); });
    };
    const auto symbole = w.Kästen.begin() + static_cast<std::ptrdiff_t>(w.Linien);
    return std::none_of(symbole, w.Kästen.end(), [&](const Umgebung &k) { return liegtAuf(k, w.Kreuzbare); }) &&
           std::none_of(w.Kästen.begin(), w.Kästen.end(),
                        [&](const Umgebung &k) { return liegtAuf(k, w.Hindernisse); });
}

/// The steps between two bounds, in whole ones; none when the first is beyond the last.
struct Spanne {
    int Von, Bis;
};

Spanne Spielraum(double vonCm, double bisCm, double raster) {
    return {static_cast<int>(std::ceil((vonCm - Nichts) / raster)),
            static_cast<int>(std::floor((bisCm + Nichts) / raster))};
}

} // namespace

Abstände MaßeFür(double symbol, double raster, const Luft &luft) {
    const auto aufRaster = [&](double cm) { return std::ceil(cm / raster - 1e-9) * raster; };
    Abstände a;
    a.Symbol = symbol;
    a.Raster = raster;
    a.Personen = aufRaster(symbol + luft.Personen);
    a.Generationen = aufRaster(symbol + luft.Generationen);
    a.Balken = aufRaster(symbol / 2 + luft.Balken);
    a.Balkenstufe = luft.Balkenstufe;
    return a;
}

void Anhängen(std::vector<Umgebung> &kästen, const std::vector<Umgebung> &weitere) {
    kästen.insert(kästen.end(), weitere.begin(), weitere.end());
}

Umgebung UmAlle(const std::vector<Umgebung> &kästen) {
    Umgebung alle;
    for (const Umgebung &k : kästen) alle.Aufnehmen(k.Links, k.Oben, k.Rechts - k.Links, k.Unten - k.Oben);
    return alle;
}

bool LiegenAufeinander(const Umgebung &a, const Umgebung &b) { return Versetzt(a, b, {}); }

std::optional<Ort> PlatzFinden(const Platzwunsch &w) {
    const Umgebung alle = UmAlle(w.Kästen);
    const Spanne x = Spielraum(w.Seite.Links - alle.Links, w.Seite.Rechts - alle.Rechts, w.Raster);
    const Spanne y = Spielraum(w.Seite.Oben - alle.Oben, w.Seite.Unten - alle.Unten, w.Raster);
    struct Versuch {
        Ort Weg;
        long long Ferne; ///< thousandths of a millimetre: equally far is equally good on every machine
    };
    std::vector<Versuch> versuche;
    for (int i = x.Von; i <= x.Bis; ++i)
        for (int k = y.Von; k <= y.Bis; ++k) {
            const Ort weg{i * w.Raster, k * w.Raster};
            const double ferne = std::hypot(alle.MitteX() + weg.X - w.Ziel.X, alle.MitteY() + weg.Y - w.Ziel.Y);
            versuche.push_back({weg, std::llround(ferne * Feinheit)});
        }
    std::stable_sort(versuche.begin(), versuche.end(),
                     [](const Versuch &a, const Versuch &b) { return a.Ferne < b.Ferne; });
    std::optional<Ort> bester;
    double kosten = HUGE_VAL;
    int freie = 0;
    for (const Versuch &v : versuche) {
        const double ferne = static_cast<double>(v.Ferne) / Feinheit;
        if (ferne >= kosten || freie == MeisteFreie) break;
        if (!IstFrei(w, v.Weg)) continue;
        ++freie;
        const double hier = ferne + (w.Mängel ? w.Mängel(v.Weg) : 0);
        if (hier >= kosten) continue;
        bester = v.Weg;
        kosten = hier;
    }
    return bester;
}

std::string Maßangabe(double breite, double höhe, Sprache sprache) {
    const auto cm = [&](double wert) {
        std::string text = ZahlSchreiben(Gerundet(wert, 1));
        if (sprache == Sprache::Deutsch) std::replace(text.begin(), text.end(), '.', ',');
        return text;
    };
    return cm(breite) + " × " + cm(höhe) + " cm";
}

} // namespace kw
