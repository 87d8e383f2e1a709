#include "document/Importdaten.h"

#include "document/Codepage.h"
#include "document/Felder.h"
#include "document/Texte.h"
#include "document/Zahlen.h"
#include "document/saetze/Person.h"
#include "document/saetze/Textbox.h"

#include <algorithm>

namespace kw {

namespace {

constexpr double Spaltenabstand = 1.8; ///< cm; of a symbol of 1.2 and its label
constexpr double Zeilenabstand = 2.4;
constexpr double Textrand = 1.2;
constexpr double ErsteZeile = 6;
constexpr double Personengröße = 1.2;
constexpr int HöchstzahlZeilen = 32767; ///< rows are counted in 16 bits

/// A text as a field of a person, who has no stand-in for the mark between fields: it would begin another one.
std::string AlsFeld(std::string_view text) {
    std::string feld(text);
    std::replace(feld.begin(), feld.end(), '_', ' ');
    return feld;
}

// What a person has in a case's file, and in the list of persons.
namespace Fallfeld {
enum : int { Nachname, Vorname, Geschlecht, Geburtsdatum, IndexPerson, Sucht, Erkrankung, Sterbealter };
}
namespace Listenfeld {
enum : int { Nr, Vorname, Nachname, Geschlecht, Geburtsdatum, IndexPerson, Sucht, Erkrankung, Verstorben };
}

std::string Textbox(double y, std::string_view größe, std::string_view inhalt) {
    TextBau box;
    box.Ort(Textrand, y).Schriftart("Arial").Schriftgroesse(größe).Farbe("0").Fett("0").Kursiv("0");
    return box.Unterstrichen("0").Ausrichtung("0").Inhalt(inhalt).Text();
}

std::string Person(const std::string &nr, const Felder &feld, double x, double y) {
    const auto text = [&](int i) { return feld.OderLeer(i); };
    PersonBau person;
    person.Nr(nr).Symboltyp(text(Fallfeld::Geschlecht) == "f" ? TypWeiblich : TypMännlich).Ort(x, y);
    person.Groesse(Personengröße).IndexPerson(text(Fallfeld::IndexPerson)).Sterbealter(text(Fallfeld::Sterbealter));
    person.Sucht(text(Fallfeld::Sucht)).Erkrankung(text(Fallfeld::Erkrankung)).Vorname(text(Fallfeld::Vorname));
    return person.Nachname(text(Fallfeld::Nachname)).Geburtsdatum(text(Fallfeld::Geburtsdatum)).Text();
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
    return {Textbox(1.2, "14", wert("title")),
            Textbox(2.4, "9",
                    "Hilfebeginn:   " + wert("help_start") + "#Hilfeart:   " + wert("assistance_type") +
                        "#Hilfeumfang:   " + wert("hours_week") + "#Fachkraft:   " + wert("professional")),
            Textbox(16, "9", "Hilfeziele:#" + wert("aid_targets"))};
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
        // Counted from 0, as the keys are.
        personen.push_back(Person(Dreistellig(Ganzzahl16(ZahlLesen(nummer))), Felder(wert), x, y));
    }
    return personen;
}

Importperson ImportpersonAus(std::string_view zeile) {
    const Felder feld(zeile, ';');
    const auto text = [&](int i) { return AlsFeld(feld.OderLeer(i)); };
    const auto ja = [&](int i) { return feld.OderLeer(i) == "J"; };
    return {.Symboltyp = feld.OderLeer(Listenfeld::Geschlecht) == "W" ? TypWeiblich : TypMännlich,
            .Vorname = text(Listenfeld::Vorname),
            .Nachname = text(Listenfeld::Nachname),
            .Geburtsdatum = text(Listenfeld::Geburtsdatum),
            .Geschlecht = text(Listenfeld::Geschlecht),
            .IndexPerson = ja(Listenfeld::IndexPerson),
            .Sucht = ja(Listenfeld::Sucht),
            .Erkrankung = ja(Listenfeld::Erkrankung),
            .Verstorben = ja(Listenfeld::Verstorben)};
}

std::string ImportSatz(const Importperson &person, const std::string &nr, double x, double y, double größe) {
    const auto marke = [](bool gilt) { return gilt ? "1" : "0"; };
    PersonBau bau;
    bau.Nr(nr).Symboltyp(person.Symboltyp).Ort(x, y).Groesse(größe).IndexPerson(marke(person.IndexPerson));
    bau.Sterbealter(person.Verstorben ? "$" : "").Sucht(marke(person.Sucht)).Erkrankung(marke(person.Erkrankung));
    return bau.Vorname(person.Vorname).Nachname(person.Nachname).Geburtsdatum(person.Geburtsdatum).Text();
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
