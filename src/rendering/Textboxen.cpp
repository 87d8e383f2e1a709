#include "document/Felder.h"
#include "document/Texte.h"
#include "document/Zahlen.h"
#include "rendering/Ebenen.h"

#include <algorithm>

namespace kw {

namespace {

constexpr double KleinstesMaß = 0.35; ///< cm

struct Maße {
    double Breite = KleinstesMaß;
    double Höhe = KleinstesMaß;
};

double MitMindestmaß(double maß) { return maß <= KleinstesMaß ? KleinstesMaß : maß; }

double Zeilenanfang(std::string_view ausrichtung, double textX, double boxBreite, double breite) {
    if (ausrichtung == "1") return textX + boxBreite - breite;
    if (ausrichtung == "2") return textX + boxBreite / 2 - breite / 2;
    return textX;
}

void SchriftSetzen(Zeichenfläche &f, const Ansicht &ansicht, const Felder &feld, double faktor) {
    f.FontName = feld.OderLeer(TextFeld::Schriftart);
    f.FontSize = ZahlLesen(feld.OderLeer(TextFeld::Schriftgroesse)) * faktor;
    const double farbe = ZahlLesen(feld.OderLeer(TextFeld::Farbe));
    const bool farbig = ansicht.Farbschema == SchemaFarbig && farbe >= 0 && farbe <= 0xFFFFFF;
    f.ForeColor = farbig ? static_cast<Farbe>(farbe) : Schwarz;
    f.FontBold = feld.OderLeer(TextFeld::Fett) == "1";
    f.FontItalic = feld.OderLeer(TextFeld::Kursiv) == "1";
    f.FontUnderline = feld.OderLeer(TextFeld::Unterstrichen) == "1";
}

/// Draws the lines of a box and gives its measures as drawn, at least 0.35 each.
Maße BoxZeichnen(Zeichenfläche &f, const Ansicht &ansicht, const Felder &feld, double faktor) {
    f.CurrentY = ZahlLesen(feld.OderLeer(TextFeld::TextY));
    SchriftSetzen(f, ansicht, feld, faktor);
    const double textX = ZahlLesen(feld.OderLeer(TextFeld::TextX));
    const double boxBreite = ZahlLesen(feld.OderLeer(TextFeld::TextBreite));
    std::string_view rest = feld.OderLeer(TextFeld::Text);
    const auto zeilen = rest.empty() ? 0 : 1 + std::count(rest.begin(), rest.end(), '#');
    double breite = 0;
    for (auto i = zeilen; i > 0; --i) {
        const std::string zeile = OhneAbsatzzeichen(Abgetrennt(rest, '#'));
        const double w = f.TextWidth(zeile);
        f.CurrentX = Zeilenanfang(feld.OderLeer(TextFeld::Ausrichtung), textX, boxBreite, w);
        f.Print(zeile);
        breite = std::max(breite, w);
    }
    return {MitMindestmaß(breite), MitMindestmaß(static_cast<double>(zeilen) * f.TextHeight())};
}

/// Twelve fields in all: the first ten as they stand, then the measures.
std::string MitMaßen(const Felder &feld, const Maße &maße) {
    std::string satz;
    for (int i = 0; i < TextFeld::AnzahlUngemessen; ++i) satz.append(feld[i]).append("_");
    return satz + ZahlSchreiben(Gerundet(maße.Breite, 2)) + "_" + ZahlSchreiben(Gerundet(maße.Höhe, 2));
}

/// A record that lacks more than its measures is damaged and stays as it is.
bool Ungemessen(const Felder &feld) {
    return feld.Anzahl() >= TextFeld::AnzahlUngemessen && (Getrimmt(feld.OderLeer(TextFeld::TextBreite)).empty() ||
                                                           Getrimmt(feld.OderLeer(TextFeld::TextHoehe)).empty());
}

void AuswahlRahmen(Zeichenfläche &f, Zeichnung &z) {
    const Satzliste &boxen = z.dokument.cboTextboxen;
    for (const auto &eintrag : z.auswahl.lstMovedText) {
        const int i = Ganzzahl16(ZahlLesen(eintrag));
        if (i < 0 || i >= boxen.Anzahl()) continue;
        const Felder feld(boxen.Satz(i));
        const double w = MitMindestmaß(ZahlLesen(feld.OderLeer(TextFeld::TextBreite)));
        const double h = MitMindestmaß(ZahlLesen(feld.OderLeer(TextFeld::TextHoehe)));
        const double x = ZahlLesen(feld.OderLeer(TextFeld::TextX));
        const double y = ZahlLesen(feld.OderLeer(TextFeld::TextY));
        f.DrawWidth = 2;
        f.FillStyle = Durchsichtig;
        f.Line(KastenFarbig, x - 0.1, y, x + 0.1 + w, y + h + 0.1, Rot);
        z.geste.TextRahmenUnten = h + 0.1;
        f.DrawWidth = 1;
    }
}

} // namespace

bool HatUngemesseneTextboxen(const Dokument &dokument) {
    const auto &boxen = dokument.cboTextboxen;
    return std::any_of(boxen.begin(), boxen.end(), [](const std::string &satz) { return Ungemessen(Felder(satz)); });
}

void TextboxenZeichnen(Zeichenfläche &f, Zeichnung &z, double faktor) {
    Satzliste &boxen = z.dokument.cboTextboxen;
    for (int i = 0; i < boxen.Anzahl(); ++i) {
        const Felder feld(boxen.Satz(i));
        const Maße maße = BoxZeichnen(f, z.ansicht, feld, faktor);
        if (!Ungemessen(feld)) continue;
        // A box that was just written or placed is measured like any other; the gesture ends with it.
        if (z.geste.Aktion == Aktion::TextDialog && feld.Anzahl() <= TextFeld::TextBreite)
            z.geste.Aktion = Aktion::Nichts;
        boxen.Ersetzen(i, MitMaßen(feld, maße));
    }
    if (!z.Druck) AuswahlRahmen(f, z);
    if (z.geste.Aktion == Aktion::TextGesetzt) z.geste.Aktion = Aktion::Nichts;
}

} // namespace kw
