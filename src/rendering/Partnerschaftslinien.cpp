#include "document/saetze/Partnerschaft.h"
#include "rendering/Ebenen.h"

#include <algorithm>
#include <optional>

namespace kw {

namespace {

constexpr double Strichlänge = 0.2;
constexpr double Strichperiode = 0.35;
constexpr int HöchstSchritte = 32767; ///< the counter has 16 bits; longer paths are damage and end there

/// A straight, level or upright path, walked along its axis.
struct Pfadstück {
    bool Waagrecht;
    double Quer; ///< the coordinate that stays
    void Zeichnen(Zeichenfläche &f, double von, double bis) const {
        if (Waagrecht) f.Line(Linie, von, Quer, bis, Quer);
        else f.Line(Linie, Quer, von, Quer, bis);
    }
};

/// Dashes of 0.2 every 0.35 from `von` toward `bis`; the last one runs to the end. The first comes once
/// more by itself, so a path under 0.2 shows two dashes that overlap.
void Gestrichelt(Zeichenfläche &f, const Pfadstück &pfad, double von, double bis) {
    const double sinn = bis >= von ? 1 : -1;
    double s = von;
    double e = s + sinn * Strichlänge;
    pfad.Zeichnen(f, s, e);
    for (int i = 0; i < HöchstSchritte && OhneRauschen(sinn * (bis - sinn * Strichlänge - e)) >= 0; ++i) {
        pfad.Zeichnen(f, s, e);
        s += sinn * Strichperiode;
        e = s + sinn * Strichlänge;
    }
    pfad.Zeichnen(f, s, bis);
}

/// One of the four states; a new line has none yet.
bool HatMarke(std::string_view status) { return status.size() == 1 && status[0] >= '0' && status[0] <= '3'; }

struct Partnerschaft {
    double L, R, Y1, Y2; ///< the bar, left end first
    double AX1, AY1, AX2, AY2;
};

void Durchgezogen(Zeichenfläche &f, const Partnerschaft &p) {
    f.Line(Linie, p.L, p.Y1, p.R, p.Y2);
    f.Line(Linie, p.AX1, p.Y1, p.AX1, p.AY1);
    f.Line(Linie, p.AX2, p.Y1, p.AX2, p.AY2);
}

void Distanziert(Zeichenfläche &f, const Partnerschaft &p) {
    Gestrichelt(f, {true, p.Y1}, p.L, p.R);
    Gestrichelt(f, {false, p.AX1}, p.Y1, p.AY1);
    Gestrichelt(f, {false, p.AX2}, p.Y1, p.AY2);
}

/// Element `i` of the dates; nothing when there are too few (an empty field has none).
std::optional<std::string_view> Datum(std::string_view daten, int i) {
    if (daten.empty()) return std::nullopt;
    const Felder teile(daten, '#');
    if (i >= teile.Anzahl()) return std::nullopt;
    return teile[i];
}

void PartnerschaftZeichnen(Zeichenfläche &f, const PartnerschaftSatz &satz, double faktor) {
    const double x1 = satz.BalkenX1();
    const double x2 = satz.BalkenX2();
    const Partnerschaft p{std::min(x1, x2),   std::max(x1, x2),   satz.BalkenY1(),    satz.BalkenY2(),
                          satz.AnschlussX1(), satz.AnschlussY1(), satz.AnschlussX2(), satz.AnschlussY2()};
    if (satz.Distanziert()) Distanziert(f, p);
    else Durchgezogen(f, p);

    f.FillStyle = Durchsichtig;
    f.FontName = "Arial";
    f.FontItalic = f.FontUnderline = f.FontBold = false;
    f.FontSize = 6 * faktor;
    const auto status = satz.Status();
    if (!HatMarke(status)) return;
    // An element missing from the dates leaves the state without mark and text, the bar stands.
    if (const auto datum = Datum(satz.Daten(), status[0] - '0'))
        PartnerstandZeichnen(f, status, *datum, (x1 + x2) / 2, p.Y1, faktor);
}

} // namespace

void PartnerstandZeichnen(Zeichenfläche &f, std::string_view status, std::string_view datum, double mitte,
                          double balkenY, double faktor, double schräge) {
    if (!HatMarke(status)) return;
    constexpr double Versatz[] = {0, 0.2, 0.2, 0.3}; // by state: room for the mark left of the text
    const double x = mitte - f.TextWidth(datum) / 2 + Versatz[status[0] - '0'];
    f.CurrentX = x;
    f.CurrentY = balkenY - 0.3;
    f.Print(datum);
    if (status == "2") { // two rings that overlap
        f.FontName = "Arial";
        f.FontBold = false;
        f.FontSize = 8 * faktor;
        for (const double ring : {0.3, 0.38}) {
            f.CurrentX = x - ring;
            f.CurrentY = balkenY - 0.36;
            f.Print("o");
        }
    }
    const auto strich = [&](double fuß) {
        f.Line(Linie, fuß + schräge / 2, balkenY - schräge, fuß - schräge / 2, balkenY + schräge);
    };
    if (status == "1" || status == "3") strich(x - 0.2);
    if (status == "3") strich(x - 0.3);
}

void PartnerschaftslinienZeichnen(Zeichenfläche &f, const Zeichnung &z, double faktor) {
    f.DrawStyle = StilDurchgezogen;
    f.ForeColor = Schwarz;
    f.FontUnderline = false;
    for (const auto &text : z.dokument.cboPartnerschaftsLinien) {
        const PartnerschaftSatz satz(text);
        if (satz.Vollständig()) PartnerschaftZeichnen(f, satz, faktor);
    }
}

} // namespace kw
