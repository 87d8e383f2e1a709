#include "document/Nachschlagen.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Person.h"
#include "rendering/Ebenen.h"

#include <cmath>

namespace kw {

namespace {

constexpr double Strichperiode = 0.2;
constexpr int HöchstSchritte = 32767; ///< the counter has 16 bits; longer lines are damage

struct Kindlinie {
    std::string_view Kindart;
    double LinieX, LinieY; ///< on the parents' bar
    double KindX, KindY;   ///< top of the child's symbol
};

/// The end at the child is the top of its symbol. Throws FeldFehlt when line or child lack fields.
Kindlinie Gelesen(const KindSatz &satz, const PersonSatz &kind) {
    return {satz.Kindart(), satz.LinieX(), satz.LinieY(), satz.KindX(), satz.KindY() - kind.Groesse() / 2};
}

void Gestrichelt(Zeichenfläche &f, const Kindlinie &k, Farbe farbe) {
    const double a = k.KindX - k.LinieX;
    const double b = k.KindY - k.LinieY;
    const double striche = Gerundet(std::sqrt(a * a + b * b) / Strichperiode, 0);
    if (!(striche >= 1 && striche <= HöchstSchritte)) return;
    for (int i = 0; i < striche; ++i) {
        const double x = k.LinieX + i * a / striche;
        const double y = k.LinieY + i * b / striche;
        f.Line(LinieFarbig, x, y, x + a / striche / 2, y + b / striche / 2, farbe);
    }
}

bool AngenommenOderPflege(const Kindlinie &k) { return k.Kindart == "1" || k.Kindart == "2"; }

void Strich(Zeichenfläche &f, const Kindlinie &k, Farbe farbe) {
    f.ForeColor = farbe;
    if (k.Kindart == "0") f.Line(Linie, k.LinieX, k.LinieY, k.KindX, k.KindY);
    if (AngenommenOderPflege(k)) Gestrichelt(f, k, farbe);
}

void Buchstabe(Zeichenfläche &f, const Kindlinie &k, double faktor) {
    if (!AngenommenOderPflege(k)) return;
    f.FontName = "Arial"; // whatever the redraw before ended with
    f.FontBold = f.FontItalic = f.FontUnderline = false;
    f.FontSize = 7 * faktor;
    f.CurrentX = k.KindX + 0.08;
    f.CurrentY = k.KindY - 0.3;
    f.Print(k.Kindart == "1" ? "A" : "P");
}

} // namespace

void KindlinienZeichnen(Zeichenfläche &f, const Zeichnung &z, double faktor) {
    const auto &speicher = z.dokument.cboKindlinien;
    const auto &personen = z.dokument.cboPersonen;
    const Nummernverzeichnis nummern(personen);
    const auto linie = [&](int i) {
        const std::string &satz = speicher.Satz(i);
        const int kind = nummern.Position(Nummer(satz));
        if (kind < 0) throw FeldFehlt();
        return Gelesen(KindSatz(satz), PersonSatz(personen.Satz(kind)));
    };
    for (int i = 0; i < speicher.Anzahl(); ++i) {
        f.DrawWidth = z.Strichbreite();
        f.ForeColor = Schwarz;
        try {
            const Kindlinie k = linie(i);
            Strich(f, k, Schwarz);
            Buchstabe(f, k, faktor);
        } catch (const FeldFehlt &) { // no such child, or a damaged record: nothing to draw
        }
    }
    if (z.Druck || z.geste.Aktion != Aktion::KindlinieGewählt) return;
    const int i = z.geste.KindAuswahl;
    if (i < 0 || i >= speicher.Anzahl()) return;
    f.DrawWidth = 3;
    try {
        Strich(f, linie(i), z.ansicht.Markierfarbe);
    } catch (const FeldFehlt &) {
    }
    f.DrawWidth = z.Strichbreite();
    f.ForeColor = Schwarz;
}

} // namespace kw
