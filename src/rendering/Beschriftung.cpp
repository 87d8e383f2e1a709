#include "rendering/Beschriftung.h"

#include "document/Dokument.h"
#include "document/Texte.h"
#include "document/Zahlen.h"
#include "document/saetze/Person.h"

#include <algorithm>

namespace kw {

namespace {

constexpr double Klein = 8; ///< points
constexpr double Groß = 11;

void Zentriert(Zeichenfläche &f, std::string_view text, double x, double y) {
    f.CurrentX = x - f.TextWidth(text) / 2;
    f.CurrentY = y;
    f.Print(text);
}

/// Birth line and age at death. Without a birth line the age at death is centred, with one it starts
/// where that starts. Display 2 prints no second line without an age at death; the others print an
/// empty one, which shows nothing either.
void LebensjahreZeichnen(Zeichenfläche &f, const Lebensdaten &d, double x, double y, double größe) {
    Zentriert(f, d.GebText, x, y - größe / 3 + 0.1);
    if (Getrimmt(d.TodText).empty()) return;
    const std::string tod = "+ " + d.TodText;
    f.CurrentX = x - f.TextWidth(d.GebText.empty() ? tod : d.GebText) / 2;
    f.CurrentY = y;
    f.Print(tod);
}

void AlterZeichnen(Zeichenfläche &f, const Lebensdaten &d, double x, double y, double faktor) {
    if (d.AlterText.empty()) return;
    f.FontSize = Groß * faktor;
    Zentriert(f, d.AlterText, x, y - 0.2);
}

/// The age is placed by its width in the small size and printed in the large one: that is the look of
/// the two-line form.
void AlterUndJahrZeichnen(Zeichenfläche &f, const Lebensdaten &d, double x, double y, double faktor) {
    if (!d.AlterText.empty()) {
        f.CurrentX = x - f.TextWidth(d.AlterText) / 2 - 0.04;
        f.CurrentY = y - 0.38;
        f.FontSize = Groß * faktor;
        f.Print(d.AlterText);
    }
    f.FontSize = Klein * faktor;
    Zentriert(f, d.GebText, x, y + 0.08);
}

void NamensschriftSetzen(Zeichenfläche &f, double faktor) {
    f.FontName = "Arial";
    f.FontBold = true;
    f.FontItalic = f.FontUnderline = false;
    f.FontSize = Klein * faktor;
}

Lebensdaten Ermittelt(Altersberechnung &alter, const PersonSatz &person) {
    Lebensdaten d;
    alter.strAlterText.clear();
    d.Verstorben = person.Verstorben();
    alter.AlterAusDatum(person.Geburtsdatum());
    d.AlterText = Getrimmt(alter.strAlterText);
    if (!alter.strGebJahrText.empty()) d.GebText = "* " + alter.strGebJahrText;
    if (d.Verstorben) {
        d.TodText = person.Sterbealter();
        std::erase(d.TodText, '$');
    }
    return d;
}

} // namespace

bool ZeigtNamen(const PersonSatz &person) {
    const int kennzahl = SymbolKennzahl(person.Symboltyp());
    const double typ = kennzahl > 0 ? kennzahl : ZahlLesen(person.Symboltyp());
    return typ < TypSchwangerschaft || typ >= TypInstitution;
}

double Namensbreite(Zeichenfläche &f, const PersonSatz &person) {
    if (!ZeigtNamen(person)) return 0;
    NamensschriftSetzen(f, f.Faktor());
    return std::max(f.TextWidth(person.Vorname()), f.TextWidth(person.Nachname()));
}

void LebensdatenZeichnen(Zeichenfläche &f, int altersanzeige, const Lebensdaten &d, double x, double y, double größe,
                         double faktor) {
    if (altersanzeige < 0 || altersanzeige > 2) return;
    if (d.Verstorben) return LebensjahreZeichnen(f, d, x, y, größe);
    if (altersanzeige == 0) return AlterZeichnen(f, d, x, y, faktor);
    if (altersanzeige == 2) return AlterUndJahrZeichnen(f, d, x, y, faktor);
    f.CurrentX = x - f.TextWidth(d.GebText) / 2.4; // not the middle: the look of the one-line form
    f.CurrentY = y - 0.15;
    f.Print(d.GebText);
}

void PersonBeschriften(Zeichenfläche &f, const Ansicht &ansicht, Altersberechnung &alter, const PersonSatz &person,
                       double x, double y, double oben, double größe, double faktor) {
    const Lebensdaten daten = Ermittelt(alter, person);

    // The names blot out the lines that run behind them, and are upright whatever was drawn before.
    f.FontTransparent = false;
    NamensschriftSetzen(f, faktor);
    f.ForeColor = Schwarz;
    const std::string_view vorname = person.Vorname();
    Zentriert(f, vorname, x, oben + größe + 0.03);
    Zentriert(f, person.Nachname(), x, oben + größe + (Getrimmt(vorname).empty() ? 0.03 : 0.35));
    f.FontTransparent = true;
    f.FontBold = false;

    LebensdatenZeichnen(f, ansicht.Altersanzeige, daten, x, y, größe, faktor);

    alter.strGebJahrText.clear();
    f.FontBold = false;
    f.FontSize = 9 * faktor;
    f.ForeColor = Schwarz;
}

} // namespace kw
