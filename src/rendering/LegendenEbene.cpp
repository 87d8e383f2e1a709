#include "document/Zahlen.h"
#include "rendering/Ebenen.h"
#include "rendering/Legende.h"
#include "rendering/Symbole.h"

#include <algorithm>
#include <array>

namespace kw {

namespace {

// All lengths in cm.
constexpr double Spaltenbreite = 4.7;
constexpr double Zeilenhöhe = 0.5;
constexpr int ZeilenQuer = 5;
constexpr int SpaltenQuer = 5; ///< entries from index 25 on fall on the first column's rule
constexpr double HöheQuer = 2.75;
constexpr double Seitenrand = 0.6;
constexpr double Symbolgröße = 0.4;
constexpr double Schriftgröße = 7.5;

struct Zelle {
    double x, y; ///< top left corner of the entry
};

/// One entry's drawing: the surface with what its miniatures need.
struct Miniaturen {
    Zeichenfläche &f;
    const Zeichnung &zeichnung;
    double faktor;
    const Ansicht &a = zeichnung.ansicht;

    void Person(Zelle z, int kennzahl) const {
        f.FillColor = SymbolFüllfarbe(a.Farbschema);
        const double mitte = Symbolgröße / 2;
        Symbol(f, {z.x, z.y, z.x + mitte, z.y + mitte, Symbolgröße}, zeichnung.PixelJeCm(faktor),
               zeichnung.Symbolstrich(), a.Farbschema)
            .Zeichnen(kennzahl, {}, {.Druck = true});
    }

    /// A male symbol with one mark.
    void Marke(Zelle z, const std::string &code) const {
        f.FillColor = SymbolFüllfarbe(a.Farbschema);
        const Marken marken{.Verstorben = code == "29", .Sucht = code == "25", .Erkrankung = code == "27"};
        const double mitte = Symbolgröße / 2;
        Symbol(f, {z.x, z.y, z.x + mitte, z.y + mitte, Symbolgröße}, zeichnung.PixelJeCm(faktor),
               zeichnung.Symbolstrich(), a.Farbschema)
            .Zeichnen(1, marken, {.Druck = true});
        if (code == "20") f.Line(Kasten, z.x + 0.05, z.y + 0.05, z.x + Symbolgröße - 0.05, z.y + Symbolgröße - 0.05);
    }

    void Zwillinge(Zelle z, const std::string &code) const {
        f.FillStyle = Gefüllt;
        f.FillColor = SymbolFüllfarbe(a.Farbschema);
        f.DrawWidth = zeichnung.Symbolstrich();
        const double oben = z.y + 0.2;
        f.Line(Linie, z.x + 0.12, oben, z.x + 0.3, z.y);
        f.Line(Linie, z.x + 0.48, oben, z.x + 0.3, z.y);
        if (code == "36") f.Line(Linie, z.x + 0.2, oben + 0.1, z.x + 0.4, oben + 0.1);
        f.Line(Kasten, z.x, oben, z.x + 0.2, oben + 0.2);
        f.Line(Kasten, z.x + 0.4, oben, z.x + 0.6, oben + 0.2);
    }

    void Beziehung(Zelle z, const std::string &code) const {
        f.DrawWidth = zeichnung.Symbolstrich();
        const double y = z.y + 0.13;
        if (code == "41") {
            f.Line(LinieFarbig, z.x, y, z.x + 1, y, a.Linienfarben[EngeFarbe]);
            f.Line(LinieFarbig, z.x, z.y + 0.24, z.x + 1, z.y + 0.24, a.Linienfarben[EngeFarbe]);
            return;
        }
        char basis = ' ';
        BeziehungZeichnen(f, a.Linienfarben, code.substr(1), basis, z.x, y, z.x + 1, y);
    }

    void Partnerschaft(Zelle z, const std::string &code) const {
        f.DrawWidth = zeichnung.Symbolstrich();
        const double balken = z.y + 0.24;
        f.Line(Linie, z.x, balken, z.x + 1, balken);
        for (const double x : {z.x, z.x + 1}) f.Line(Linie, x, z.y + 0.08, x, balken);
        constexpr double Schräge = 0.13; // shorter than on the page: the mark of the row below is near
        if (code != "54") PartnerstandZeichnen(f, code.substr(1), "", z.x + 0.5, balken, faktor, Schräge);
    }

    /// The row leaves room for a short piece of the dashed line only; its letter stands beside the box.
    void Kind(Zelle z, const std::string &code) const {
        constexpr double Größe = 0.3; // clears the line of the row below
        f.DrawWidth = zeichnung.Symbolstrich();
        const double mitte = z.x + 0.5;
        const double oben = z.y + 0.1;
        f.FillStyle = Gefüllt;
        f.FillColor = Rgb(249, 249, 249);
        f.Line(Linie, mitte, z.y, mitte, oben);
        f.Line(Kasten, mitte - Größe / 2, oben, mitte + Größe / 2, oben + Größe);
        f.FontSize = 7 * faktor;
        f.CurrentX = mitte + Größe / 2 + 0.08;
        f.CurrentY = oben;
        f.Print(code == "60" ? "A" : "P");
    }
};

using Miniatur = void (*)(const Miniaturen &, Zelle, const std::string &code);

struct Eintrag {
    std::string_view Code;
    Miniatur Zeichnen;
    Zweisprachig Text;
};

template <int kennzahl> void Person(const Miniaturen &m, Zelle z, const std::string &) { m.Person(z, kennzahl); }
template <void (Miniaturen::*routine)(Zelle, const std::string &) const>
void Zeile(const Miniaturen &m, Zelle z, const std::string &code) {
    (m.*routine)(z, code);
}

// "Eheähnlich" differs from the dialog's "Nicht ehelich" on purpose. No source produces "54".
constexpr auto Mark = &Zeile<&Miniaturen::Marke>;
constexpr auto Zwil = &Zeile<&Miniaturen::Zwillinge>;
constexpr auto Bez = &Zeile<&Miniaturen::Beziehung>;
constexpr auto Part = &Zeile<&Miniaturen::Partnerschaft>;
constexpr auto Kind = &Zeile<&Miniaturen::Kind>;
constexpr std::array<Eintrag, 32> Einträge{{
    {"01", Person<1>, {"Männlich", "Male"}},
    {"02", Person<2>, {"Weiblich", "Female"}},
    {"03", Person<3>, {"Schwangerschaft", "Pregnancy"}},
    {"04", Person<4>, {"Fehlgeburt", "Miscarriage"}},
    {"05", Person<5>, {"Totgeburt männlich", "Stillbirth Male"}},
    {"06", Person<6>, {"Totgeburt weiblich", "Stillbirth Female"}},
    {"07", Person<7>, {"Abtreibung", "Abortion"}},
    {"09", Person<9>, {"Institution, Einrichtung etc.", "Institution"}},
    {"021", Person<10>, {"Transgender - weibl. zu männl.", "Transgender - Female to Male"}},
    {"022", Person<11>, {"Transgender - männl. zu weibl.", "Transgender - Male to Female"}},
    {"023", Person<12>, {"Divers", "Gender Nonconforming"}},
    {"20", Mark, {"Indexperson", "Index Person"}},
    {"25", Mark, {"Alkohol- / Drogensucht", "Alcohol- or Drug Addiction"}},
    {"27", Mark, {"Körperl. / psych. Erkrankung", "Physical or Mental Illness"}},
    {"29", Mark, {"Verstorben", "Deceased"}},
    {"35", Zwil, {"Zweieiige Zwillinge", "Dizygotic Twins"}},
    {"36", Zwil, {"Eineiige Zwillinge", "Monozygotic Twins"}},
    {"40", Bez, {"Gute Beziehung", "Good Relationship"}},
    {"41", Bez, {"Enge Beziehung", "Close Relationship"}},
    {"42", Bez, {"Verschmolzen", "Fused Relationship"}},
    {"43", Bez, {"Distanziert", "Distant"}},
    {"44", Bez, {"Beziehungsabbruch", "Cutoff"}},
    {"45", Bez, {"Konflikthaft", "Conflict / Hostile"}},
    {"46", Bez, {"Konflikthaft Eng", "Conflict / Close"}},
    {"47", Bez, {"Konfl. Verschmolzen", "Conflict / Fused"}},
    {"50", Part, {"Eheähnlich", "Unmarried"}},
    {"51", Part, {"Getrennt", "Disconnected"}},
    {"52", Part, {"Verheiratet", "Married"}},
    {"53", Part, {"Geschieden", "Divorced"}},
    {"54", Part, {"", ""}},
    {"60", Kind, {"Adoptiert", "Adopted Child"}},
    {"61", Kind, {"Pflegekind", "Foster Child"}},
}};

const Eintrag *EintragMit(std::string_view code) {
    const auto *e = std::find_if(Einträge.begin(), Einträge.end(), [&](const Eintrag &x) { return x.Code == code; });
    return e == Einträge.end() ? nullptr : e;
}

/// Symbols and marks of persons have their labels close by, lines leave room for a sample.
bool IstPersonEintrag(std::string_view code) { return code < "30"; }

/// Kept on the page, then on the raster, if there is one.
double AufDerSeite(double ort, double größe, double seite, double raster) {
    ort = std::min(ort, seite - Seitenrand - größe);
    ort = std::max(ort, Seitenrand);
    return Gerastert(ort, raster);
}

Legendenkasten KastenFür(const Zeichnung &z) {
    const Dokument &d = z.dokument;
    const int n = z.legende.lstLegende.Anzahl();
    const double breite = d.LegendeQuer ? Spaltenbreite * ((n + ZeilenQuer - 1) / ZeilenQuer) : Spaltenbreite;
    const double höhe = d.LegendeQuer ? HöheQuer : Zeilenhöhe * n + 0.25;
    // A click on it, which redraws while it is held, doesn't move it.
    const double raster = z.geste.Aktion == Aktion::LegendeGefasst ? 0 : z.ansicht.Rasterweite;
    return {AufDerSeite(d.LegendeX, breite, z.ansicht.SeitenBreite, raster),
            AufDerSeite(d.LegendeY, höhe, z.ansicht.SeitenHöhe, raster), breite, höhe};
}

void RahmenZeichnen(Zeichenfläche &f, const Legendenkasten &k) {
    const double rechts = k.X + k.Breite;
    const double unten = k.Y + k.Höhe;
    f.FillStyle = Gefüllt;
    f.FillColor = Rgb(200, 200, 200);
    f.Line(KastenFarbig, k.X + 0.1, k.Y + 0.11, rechts + 0.1, unten + 0.11, Rgb(230, 230, 230));
    f.FillColor = Weiß;
    f.Line(KastenFarbig, k.X, k.Y, rechts, unten, Schwarz);
    f.FillStyle = Durchsichtig;
}

Zelle ZelleFür(const Legendenkasten &k, bool quer, int i) {
    const int spalte = quer && i < ZeilenQuer * SpaltenQuer ? i / ZeilenQuer : 0;
    return {k.X + 0.2 + Spaltenbreite * spalte, k.Y + 0.2 + Zeilenhöhe * (i - ZeilenQuer * spalte)};
}

void SchriftSetzen(Zeichenfläche &f, double faktor) {
    f.FontName = "Arial";
    f.FontSize = Schriftgröße * faktor;
    f.FontBold = f.FontItalic = f.FontUnderline = false;
}

} // namespace

std::string_view Legendeneintrag(std::string_view code, Sprache sprache) {
    const Eintrag *eintrag = EintragMit(code);
    return eintrag ? eintrag->Text.In(sprache) : std::string_view();
}

Legendenkasten LegendenEbene(Zeichenfläche &f, const Zeichnung &z, double faktor) {
    f.Ebene("legende");
    const Satzliste &codes = z.legende.lstLegende;
    if (codes.Leer()) return {z.dokument.LegendeX, z.dokument.LegendeY, 0, 0};
    const Legendenkasten kasten = KastenFür(z);
    f.DrawWidth = z.Symbolstrich();
    RahmenZeichnen(f, kasten);
    SchriftSetzen(f, faktor);
    f.FillStyle = Gefüllt;

    const Miniaturen miniaturen{f, z, faktor};
    for (int i = 0; i < codes.Anzahl(); ++i) {
        const std::string &code = codes.Satz(i);
        const Eintrag *eintrag = EintragMit(code);
        if (!eintrag) continue;
        const Zelle zelle = ZelleFür(kasten, z.dokument.LegendeQuer, i);
        f.ForeColor = Schwarz;
        eintrag->Zeichnen(miniaturen, zelle, code);
        f.ForeColor = Schwarz;
        SchriftSetzen(f, faktor);
        const bool person = IstPersonEintrag(code);
        f.CurrentX = zelle.x + (person ? 0.6 : 1.2);
        f.CurrentY = zelle.y + (person ? 0.05 : 0);
        f.Print(eintrag->Text.In(z.ansicht.Sprache));
    }
    return kasten;
}

} // namespace kw
