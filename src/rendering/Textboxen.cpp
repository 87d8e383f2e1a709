#include "document/Nachschlagen.h"
#include "document/saetze/Textbox.h"
#include "rendering/Ebenen.h"

#include <algorithm>

namespace kw {

namespace {

constexpr double KleinstesMaß = 0.35; ///< cm

struct Maße {
    double Breite, Höhe;
};

double MitMindestmaß(double maß) { return maß <= KleinstesMaß ? KleinstesMaß : maß; }

double Zeilenanfang(std::string_view ausrichtung, double textX, double boxBreite, double breite) {
    if (ausrichtung == "1") return textX + boxBreite - breite;
    if (ausrichtung == "2") return textX + boxBreite / 2 - breite / 2;
    return textX;
}

void SchriftSetzen(Zeichenfläche &f, const Ansicht &ansicht, const TextSatz &box, double faktor) {
    f.FontName = box.Schriftart();
    f.FontSize = box.Schriftgroesse() * faktor;
    const double farbe = box.Farbe();
    const bool farbig = ansicht.Farbschema == SchemaFarbig && farbe >= 0 && farbe <= 0xFFFFFF;
    f.ForeColor = farbig ? static_cast<Farbe>(farbe) : Schwarz;
    f.FontBold = box.Fett();
    f.FontItalic = box.Kursiv();
    f.FontUnderline = box.Unterstrichen();
}

/// Draws the lines of a box and gives its measures as drawn, at least 0.35 each.
Maße BoxZeichnen(Zeichenfläche &f, const Ansicht &ansicht, const TextSatz &box, double faktor) {
    f.CurrentY = box.TextY();
    SchriftSetzen(f, ansicht, box, faktor);
    const double textX = box.TextX();
    const double boxBreite = box.TextBreite();
    std::string_view rest = box.Inhalt();
    const auto zeilen = rest.empty() ? 0 : 1 + std::count(rest.begin(), rest.end(), '#');
    double breite = 0;
    for (auto i = zeilen; i > 0; --i) {
        const std::string zeile = OhneAbsatzzeichen(Abgetrennt(rest, '#'));
        const double w = f.TextWidth(zeile);
        f.CurrentX = Zeilenanfang(box.Ausrichtung(), textX, boxBreite, w);
        f.Print(zeile);
        breite = std::max(breite, w);
    }
    return {MitMindestmaß(breite), MitMindestmaß(static_cast<double>(zeilen) * f.TextHeight())};
}

/// A record that lacks more than its measures is damaged and stays as it is.
bool Ungemessen(const TextSatz &box) { return box.HatText() && (box.BreiteFehlt() || box.HöheFehlt()); }

/// As a record keeps it: two decimals, in single precision.
double Gespeichert(double maß) { return ZahlLesen(ZahlSchreiben(Gerundet(maß, 2))); }

/// The measures of box `i`, just found or from its record.
Maße MaßeVon(const TextSatz &box, int i, const std::vector<Textmaße> &gemessen) {
    for (const Textmaße &neu : gemessen)
        if (neu.Position == i) return {MitMindestmaß(neu.Breite), MitMindestmaß(neu.Höhe)};
    return {MitMindestmaß(box.TextBreite()), MitMindestmaß(box.TextHoehe())};
}

void AuswahlRahmen(Zeichenfläche &f, const Zeichnung &z, Textbefund &befund) {
    const Satzliste &boxen = z.dokument.cboTextboxen;
    for (const auto &eintrag : z.auswahl.lstMovedText) {
        const int i = PositionAus(eintrag, boxen, 0);
        if (i < 0) continue;
        const TextSatz box(boxen.Satz(i), Lücken::Leer);
        const auto [w, h] = MaßeVon(box, i, befund.Gemessen);
        const double x = box.TextX();
        const double y = box.TextY();
        f.DrawWidth = 2;
        f.FillStyle = Durchsichtig;
        f.Line(KastenFarbig, x - 0.1, y, x + 0.1 + w, y + h + 0.1, Rot);
        befund.RahmenEnde = h + 0.1;
        f.DrawWidth = 1;
    }
}

} // namespace

bool HatUngemesseneTextboxen(const Dokument &dokument) {
    const auto &boxen = dokument.cboTextboxen;
    return std::any_of(boxen.begin(), boxen.end(),
                       [](const std::string &satz) { return Ungemessen(TextSatz(satz, Lücken::Leer)); });
}

Textbefund TextboxenZeichnen(Zeichenfläche &f, const Zeichnung &z, double faktor) {
    Textbefund befund;
    befund.GesteBeendet = z.geste.Aktion == Aktion::TextGesetzt;
    const Satzliste &boxen = z.dokument.cboTextboxen;
    for (int i = 0; i < boxen.Anzahl(); ++i) {
        const TextSatz box(boxen.Satz(i), Lücken::Leer);
        const Maße maße = BoxZeichnen(f, z.ansicht, box, faktor);
        if (!Ungemessen(box)) continue;
        befund.Gemessen.push_back({i, Gespeichert(maße.Breite), Gespeichert(maße.Höhe)});
        // A box that was just written or placed is measured like any other; the gesture ends with it.
        if (z.geste.Aktion == Aktion::TextDialog && !box.HatBreite()) befund.GesteBeendet = true;
    }
    if (!z.Druck) AuswahlRahmen(f, z, befund);
    return befund;
}

} // namespace kw
