#include "document/Importdaten.h"

#include "document/Codepage.h"
#include "document/Felder.h"
#include "document/Texte.h"
#include "document/Zahlen.h"

#include <algorithm>

namespace kw {

namespace {

constexpr double Spaltenabstand = 1.8; ///< cm; of a symbol of 1.2 and its label
constexpr double Zeilenabstand = 2.4;
constexpr double ErsteZeile = 6;
constexpr double Personengröße = 1.2;
constexpr int HöchstzahlZeilen = 32767; ///< rows are counted in 16 bits

/// A text as a field of a person, who has no stand-in for the mark between fields: it would begin another one.
std::string AlsFeld(std::string_view text) {
    std::string feld(text);
    std::replace(feld.begin(), feld.end(), '_', ' ');
    return feld;
}

bool IstNummer(std::string_view name) {
    return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// The names of the keys that are numbers. A list that was cut ends in a part of a name, which is none.
std::vector<std::string> Nummern(const Profil &daten) {
    const std::string liste = daten.SchlüsselListe("OBJECT");
    std::vector<std::string> nummern;
    for (std::string_view rest = std::string_view(liste).substr(0, liste.rfind('\0') + 1); !rest.empty();)
        if (const auto name = Abgetrennt(rest, '\0'); IstNummer(name)) nummern.emplace_back(name);
    return nummern;
}

} // namespace

std::vector<std::string> ImportTexte(const Profil &daten) {
    const auto wert = [&](std::string_view schlüssel) { return MitAbsatzzeichen(daten.Lesen("INFO", schlüssel)); };
    return {"1.2_1.2_Arial_14_0_0_0_0_0_" + wert("title"),
            "1.2_2.4_Arial_9_0_0_0_0_0_Hilfebeginn:   " + wert("help_start") +
                "#Hilfeart:   " + wert("assistance_type") + "#Hilfeumfang:   " + wert("hours_week") +
                "#Fachkraft:   " + wert("professional"),
            "1.2_16_Arial_9_0_0_0_0_0_Hilfeziele:#" + wert("aid_targets")};
}

std::vector<std::string> ImportPersonen(const Profil &daten, double breite) {
    std::vector<std::string> personen;
    double x = 0;
    double y = ErsteZeile;
    for (const std::string &nummer : Nummern(daten)) {
        x = Gerundet(x + Spaltenabstand, 1);
        if (!Kleiner(x, breite - Spaltenabstand)) {
            x = Spaltenabstand;
            y = Gerundet(y + Zeilenabstand, 1);
        }
        const std::string wert = daten.Lesen("OBJECT", nummer);
        const Felder feld(wert);
        // Counted from 0, as the keys are.
        std::string satz = Dreistellig(Ganzzahl16(ZahlLesen(nummer)));
        for (const std::string &teil :
             {std::string(feld.OderLeer(2) == "f" ? "2" : "1"), ZahlSchreiben(x), ZahlSchreiben(y),
              ZahlSchreiben(Personengröße), std::string(feld.OderLeer(4)), std::string(feld.OderLeer(7)),
              std::string(feld.OderLeer(5)), std::string(feld.OderLeer(6)), std::string(feld.OderLeer(1)),
              std::string(feld.OderLeer(0)), std::string(feld.OderLeer(3))})
            satz += "_" + teil;
        personen.push_back(satz + "__");
    }
    return personen;
}

Importperson ImportpersonAus(std::string_view zeile) {
    const Felder feld(zeile, ';');
    const auto text = [&](int i) { return AlsFeld(feld.OderLeer(i)); };
    const auto ja = [&](int i) { return feld.OderLeer(i) == "J"; };
    return {feld.OderLeer(3) == "W" ? 2 : 1, text(1), text(2), text(4), text(3), ja(5), ja(6), ja(7), ja(8)};
}

std::string ImportSatz(const Importperson &person, const std::string &nr, double x, double y, double größe) {
    const auto marke = [](bool gilt) { return gilt ? "_1" : "_0"; };
    return nr + "_" + std::to_string(person.Symboltyp) + "_" + ZahlSchreiben(x) + "_" + ZahlSchreiben(y) + "_" +
           ZahlSchreiben(größe) + marke(person.IndexPerson) + (person.Verstorben ? "_$" : "_") + marke(person.Sucht) +
           marke(person.Erkrankung) + "_" + person.Vorname + "_" + person.Nachname + "_" + person.Geburtsdatum + "__";
}

Satzliste Importzeilen(std::string_view inhalt) {
    Satzliste zeilen;
    const std::string text = NachUtf8(inhalt);
    for (std::string_view rest = text; !rest.empty() && zeilen.Anzahl() < HöchstzahlZeilen;) {
        std::string_view zeile = Abgetrennt(rest, '\n');
        if (zeile.ends_with('\r')) zeile.remove_suffix(1);
        if (!Getrimmt(zeile).empty()) zeilen.Anhängen(std::string(zeile));
    }
    return zeilen;
}

} // namespace kw
