#include "rendering/Sinnbilder.h"

#include "rendering/Ebenen.h"

#include <array>
#include <string>

namespace kw {

namespace {

/// One record of an icon. The cutout of its tool is square.
struct Bildteil {
    int Werkzeug;
    Satzliste Dokument::*Speicher;
    std::string_view Satz;
};

constexpr auto Person = &Dokument::cboPersonen;
constexpr auto Balken = &Dokument::cboPartnerschaftsLinien;
constexpr auto Kind = &Dokument::cboKindlinien;

// Persons with a symbol alone: the fields behind the size follow by themselves.
constexpr Bildteil Bildteile[] = {
    {1, Person, "001_1_0.8_0.8_1.2"},
    {2, Person, "001_2_0.8_0.8_1.2"},
    {3, Person, "001_3_0.45_0.45_0.6"},
    {4, Person, "001_4_0.45_0.45_0.5"},
    {5, Person, "001_5_0.45_0.45_0.6"},
    {6, Person, "001_6_0.45_0.45_0.6"},
    {7, Person, "001_7_0.45_0.45_0.6"},
    {8, Person, "001_1_0.4_1.25_0.6"},
    {8, Person, "002_2_1.2_1.25_0.6"},
    {8, Kind, "001_0_001_0.4_0.8_1.25_0.15"},
    {8, Kind, "002_0_001_1.2_0.8_1.25_0.15"},
    {9, &Dokument::cboFreehandlines, "0.1^0.9_0.4^0.3_1.1^0.1_1.5^0.6_1.3^1.3_0.6^1.5"},
    {10, &Dokument::cboTextboxen, "0_0.05_Arial_36_0_1_0_0_2_T_1.6_1.2"},
    {11, Person, "001_1_0.35_0.35_0.6"},
    {11, Person, "002_2_1.25_0.35_0.6"},
    {11, Person, "003_4_0.8_1.4_0.3"},
    {11, Balken, "001__0.35_0.95_1.25_0.95_001_002_0.65_0.65_0.35_1.25_0_"},
    {11, Kind, "003_0_001_0.8_0.8_1.4_0.95"},
    {12, Person, "001_2_0.35_1.25_0.6"},
    {12, Person, "002_1_1.25_0.35_0.6"},
    {12, &Dokument::cboBeziehungsLinien, "_0_0.35_1.25_1.25_0.35_001_002"},
    {13, Person, "001_1_0.35_0.5_0.6"},
    {13, Person, "002_2_1.25_0.5_0.6"},
    {13, Balken, "001__0.35_1.25_1.25_1.25_001_002_0.8_0.8_0.35_1.25_0_"},
    {14, Person, "001_2_0.8_1.2_0.7"},
    {14, Balken, "001__0.1_0.3_1.5_0.3_001_002_0.1_0.1_0.1_1.5_0_"},
    {14, Kind, "001_0_001_0.8_0.8_1.2_0.3"},
    {15, &Dokument::cboPfeile, "1_0.1_0.75_0.75_0.1"},
    {16, &Dokument::cboPfeile, "2_0.1_0.75_0.75_0.1"},
    {17, Person, "001_9_0.8_0.8_1.2"},
    {18, Person, "001_10_0.8_0.8_1.2"},
    {19, Person, "001_11_0.8_0.8_1.2"},
    {20, Person, "001_12_0.8_0.8_1.2"},
};

constexpr double Normalkante = 1.6;   ///< shows a symbol of 1.2 cm with some room
constexpr double Kleinkante = 0.9;    ///< of the unborn: smaller than persons, but not lost
constexpr double Merkmalkante = 0.75; ///< so close that the second ring of an index person stands free
constexpr double Pfeilkante = 0.85;   ///< close to the arrow, whose head has a fixed size

double Kante(int werkzeug) {
    if (werkzeug >= 3 && werkzeug <= 7) return Kleinkante;
    return werkzeug == 15 || werkzeug == 16 ? Pfeilkante : Normalkante;
}

constexpr std::string_view OhneMerkmale = "_0__0_0_____";

constexpr std::array<std::string_view, MerkmalAnzahl> Merkmale{
    "_1__0_0_____",
    "_0_$_0_0_____",
    "_0__1_0_____",
    "_0__0_1_____",
};

Sinnbild MitMerkmalen(int symboltyp, std::string_view merkmale) {
    Sinnbild bild{.dokument = {}, .Kante = Merkmalkante};
    bild.dokument.cboPersonen.Anhängen("001_" + std::to_string(symboltyp) + "_0.375_0.375_0.6" + std::string(merkmale));
    return bild;
}

} // namespace

Sinnbild WerkzeugSinnbild(int nummer) {
    Sinnbild bild{.dokument = {}, .Kante = Kante(nummer)};
    for (const Bildteil &teil : Bildteile) {
        if (teil.Werkzeug != nummer) continue;
        std::string satz(teil.Satz);
        if (teil.Speicher == Person) satz += OhneMerkmale;
        (bild.dokument.*teil.Speicher).Anhängen(std::move(satz));
    }
    return bild;
}

Sinnbild MerkmalSinnbild(Merkmal merkmal) { return MitMerkmalen(2, Merkmale[static_cast<size_t>(merkmal)]); }

Sinnbild ImportSinnbild(const Importperson &person) {
    if (person.Geschlecht != "M" && person.Geschlecht != "W") return {.dokument = {}, .Kante = Merkmalkante};
    return MitMerkmalen(person.Symboltyp,
                        std::string(person.IndexPerson ? "_1" : "_0") + (person.Verstorben ? "_$" : "_") + "_0_0_____");
}

void SinnbildZeichnen(Zeichenfläche &f, const Sinnbild &bild, const Uhr &uhr) {
    Ansicht ansicht;
    ansicht.Linienfarben = LinienfarbenFür(ansicht.Farbschema);
    ansicht.Pfeilfarbe = PfeilfarbeFür(ansicht.Farbschema);
    const Auswahl auswahl;
    const Gestenlage geste;
    const Legendenblatt legende;
    const Zeichnung z{bild.dokument, ansicht, auswahl, geste, legende, uhr};
    LinienEbene(f, z, f.Faktor());
    KreislinienEbene(f, z);
    PfeilEbene(f, z);
    PersonenEbene(f, z, f.Faktor());
}

} // namespace kw
