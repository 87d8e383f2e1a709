#include "document/ProjektDatei.h"

#include "document/Doppelnummern.h"
#include "document/Felder.h"
#include "document/Papier.h"
#include "document/Zahlen.h"
#include "document/saetze/Person.h"

#include <algorithm>
#include <array>

namespace kw {

namespace {

constexpr std::string_view Vorgaben = "DEFAULT";

struct Symbolcode {
    std::string_view ImSpeicher;
    std::string_view InDatei;
};

/// Codes that the file writes so that a reader which takes only the integer part sees male or female.
constexpr std::array<Symbolcode, 3> Symbolcodes{{{"10", "1.1"}, {"11", "2.1"}, {"12", "1.2"}}};

std::string_view CodeImSpeicher(std::string_view code) {
    const auto *const zeile =
        std::find_if(Symbolcodes.begin(), Symbolcodes.end(), [code](const Symbolcode &c) { return c.InDatei == code; });
    return zeile == Symbolcodes.end() ? code : zeile->ImSpeicher;
}

std::string_view CodeInDatei(std::string_view code) {
    const auto *const zeile = std::find_if(Symbolcodes.begin(), Symbolcodes.end(),
                                           [code](const Symbolcode &c) { return c.ImSpeicher == code; });
    return zeile == Symbolcodes.end() ? code : zeile->InDatei;
}

/// The person with another code, and without fields that have no meaning.
std::string PersonMitCode(std::string_view satz, std::string_view code) {
    return PersonBau(satz).Symboltyp(code).Text();
}

std::string PersonAusDatei(std::string_view wert) {
    return PersonMitCode(wert, CodeImSpeicher(PersonSatz(wert).Symboltyp()));
}

/// Missing fields are written empty.
std::string PersonInDatei(std::string_view satz) {
    return PersonMitCode(satz, CodeInDatei(PersonSatz(satz, Lücken::Leer).Symboltyp()));
}

std::string OhneBlanks(std::string satz) {
    std::erase(satz, ' ');
    return satz;
}

/// How many records a load fetches: the whole names in the section's key list. A name that the buffer cut
/// has no NUL and does not count.
int SatzAnzahl(const Profil &profil, std::string_view abschnitt) {
    const auto liste = profil.SchlüsselListe(abschnitt);
    return static_cast<int>(std::count(liste.begin(), liste.end(), '\0'));
}

/// False when a person is too short: what was read before it stays.
bool AbschnittLesen(const Profil &profil, const SpeicherZeile &zeile, Dokument &dokument) {
    const bool personen = zeile.Liste == &Dokument::cboPersonen;
    const int anzahl = SatzAnzahl(profil, zeile.Abschnitt);
    for (int i = 0; i < anzahl; ++i) {
        auto wert = profil.Lesen(zeile.Abschnitt, std::to_string(i));
        if (personen && !PersonSatz(wert).Vollständig()) return false;
        (dokument.*zeile.Liste).Anhängen(personen ? PersonAusDatei(wert) : std::move(wert));
    }
    return true;
}

const char *Flagge(bool wert) { return wert ? "1" : "0"; }

/// What the file tells of the legend. The last one is written and never read back: meant.
namespace LegendeFeld {
enum : int { Sichtbar, X, Y, Quer, MitStandardsymbolen };
}

std::string LegendeSatz(const Dokument &d) {
    return std::string(Flagge(d.LegendeSichtbar)) + "_" + ZahlSchreiben(d.LegendeX) + "_" + ZahlSchreiben(d.LegendeY) +
           "_" + Flagge(d.LegendeQuer) + "_" + Flagge(!d.OhneStandardsymbole);
}

void AbschnittSchreiben(const Dokument &dokument, const SpeicherZeile &zeile, Profil &profil) {
    const bool personen = zeile.Liste == &Dokument::cboPersonen;
    const bool kreislinien = zeile.Liste == &Dokument::cboFreehandlines;
    int position = 0;
    for (const auto &satz : dokument.*zeile.Liste) {
        const auto wert = personen ? PersonInDatei(satz) : kreislinien ? OhneBlanks(satz) : satz;
        profil.Schreiben(zeile.Abschnitt, std::to_string(position++), wert);
    }
}

const SpeicherZeile &ZeileVon(std::string_view abschnitt) {
    return *std::find_if(SpeicherTabelle.begin(), SpeicherTabelle.end(),
                         [abschnitt](const SpeicherZeile &zeile) { return zeile.Abschnitt == abschnitt; });
}

std::string_view Satzart(std::string_view abschnitt) {
    static constexpr std::array<std::array<std::string_view, 2>, 7> Arten{{{"OBJECTS", "a person"},
                                                                           {"TEXT", "a text box"},
                                                                           {"LINEA", "a relationship line"},
                                                                           {"LINEB", "a partnership line"},
                                                                           {"LINEC", "a child line"},
                                                                           {"LINED", "a circle line"},
                                                                           {"LINEE", "an arrow"}}};
    for (const auto &[name, art] : Arten) {
        if (name == abschnitt) return art;
    }
    return "a record";
}

/// What is wrong with one record as the file has it; empty when nothing is.
std::string Satzschaden(const Profil &profil, const SpeicherZeile &zeile, int position) {
    const auto schlüssel = std::to_string(position);
    const auto wert = profil.Lesen(zeile.Abschnitt, schlüssel);
    const auto ort = std::string(zeile.Abschnitt) + " " + schlüssel + ": ";
    const auto art = std::string(Satzart(zeile.Abschnitt));
    if (profil.WirdGekürzt(zeile.Abschnitt, schlüssel)) {
        return ort + art + " has at most " + std::to_string(Profil::Lesepuffer - 1) + " characters, the rest is lost";
    }
    if (zeile.Liste == &Dokument::cboFreehandlines) {
        return wert.find('^') == std::string::npos ? ort + art + " needs a point, has none" : "";
    }
    const int anzahl = wert.empty() ? 0 : Felder(wert).Anzahl();
    if (anzahl >= zeile.Pflichtfelder) return {};
    return ort + art + " needs " + std::to_string(zeile.Pflichtfelder) + " fields, has " +
           (anzahl == 0 ? "none" : std::to_string(anzahl));
}

std::string Abschnittschaden(const Profil &profil, const SpeicherZeile &zeile) {
    const int anzahl = SatzAnzahl(profil, zeile.Abschnitt);
    for (int i = 0; i < anzahl; ++i) {
        if (auto schaden = Satzschaden(profil, zeile, i); !schaden.empty()) return schaden;
    }
    const auto abschnitt = std::string(zeile.Abschnitt);
    if (profil.SchlüsselAnzahl(abschnitt) > static_cast<size_t>(anzahl)) {
        return abschnitt + ": more records than can be read, the first is " + abschnitt + " " + std::to_string(anzahl);
    }
    if (profil.HatFremdeZeilen(abschnitt)) return abschnitt + ": a line that is no record isn't read";
    if (profil.AbschnittAnzahl(abschnitt) > 1) return abschnitt + ": only the first section of this name is read";
    return {};
}

std::string Legendenschaden(const Profil &profil) {
    constexpr int Gelesen = LegendeFeld::MitStandardsymbolen;
    const auto wert = profil.Lesen(Vorgaben, "legende");
    const int anzahl = Felder(wert).Anzahl();
    if (wert.empty() || anzahl >= Gelesen) return {};
    return "DEFAULT legende: the legend needs " + std::to_string(Gelesen) + " fields, has " + std::to_string(anzahl);
}

std::string ErsterSchaden(const Profil &profil) {
    if (profil.HatVorspann()) return "text before the first section isn't read";
    for (const auto &zeile : SpeicherTabelle) {
        if (auto schaden = Abschnittschaden(profil, zeile); !schaden.empty()) return schaden;
    }
    return Legendenschaden(profil);
}

} // namespace

void SeiteLesen(const Profil &profil, Dokument &dokument) {
    dokument.Papiercode = PapiercodeAus(profil.Lesen(Vorgaben, "papersize")).value_or(dokument.Papiercode);
    const int lage = Ganzzahl16(ZahlLesen(profil.Lesen(Vorgaben, "orientation")));
    constexpr int GrößterByte = 255;
    dokument.Seitenlage = lage < 1 || lage > GrößterByte ? 2 : lage;
}

void SpeicherLesen(const Profil &profil, Dokument &dokument) {
    dokument.SpeicherLeeren();
    const bool ganz = std::all_of(SpeicherTabelle.begin(), SpeicherTabelle.end(),
                                  [&](const SpeicherZeile &zeile) { return AbschnittLesen(profil, zeile, dokument); });
    DoppelnummernAuflösen(dokument); // also of what was read before a damage
    if (!ganz) throw FeldFehlt();
}

void LegendeLesen(const Profil &profil, Dokument &dokument) {
    const auto wert = profil.Lesen(Vorgaben, "legende");
    const Felder felder(wert);
    dokument.LegendeX = ZahlLesen(felder[LegendeFeld::X]);
    dokument.LegendeY = ZahlLesen(felder[LegendeFeld::Y]);
    dokument.LegendeQuer = felder[LegendeFeld::Quer] == "1";
    dokument.LegendeSichtbar = felder[LegendeFeld::Sichtbar] == "1";
}

void ProjektEintragen(const Dokument &dokument, Profil &profil) {
    // The order in which a new file has its sections, which is not that of the loading.
    static constexpr std::array<std::string_view, 7> Reihenfolge{"OBJECTS", "LINEA", "LINEB", "LINEC",
                                                                 "LINED",   "LINEE", "TEXT"};
    for (const auto abschnitt : Reihenfolge) profil.AbschnittLöschen(abschnitt);
    profil.Schreiben(Vorgaben, "orientation", std::to_string(dokument.Seitenlage));
    profil.Schreiben(Vorgaben, "papersize", std::to_string(dokument.Papiercode));
    for (const auto abschnitt : Reihenfolge) AbschnittSchreiben(dokument, ZeileVon(abschnitt), profil);
    profil.Schreiben(Vorgaben, "legende", LegendeSatz(dokument));
}

std::string Ladeprüfung(const Profil &profil, const Dokument &dokument) {
    bool bekannt = profil.HatAbschnitt(Vorgaben);
    size_t vorhanden = 0;
    size_t gelesen = 0;
    for (const auto &zeile : SpeicherTabelle) {
        bekannt = bekannt || profil.HatAbschnitt(zeile.Abschnitt);
        vorhanden += profil.SchlüsselAnzahl(zeile.Abschnitt);
        gelesen += static_cast<size_t>((dokument.*zeile.Liste).Anzahl());
    }
    if (!bekannt) return std::string(KeinProjekt);
    const auto schaden = ErsterSchaden(profil);
    if (schaden.empty() || gelesen >= vorhanden) return schaden;
    return schaden + "; " + std::to_string(gelesen) + " of " + std::to_string(vorhanden) + " records read";
}

Ladebefund ProjektLesen(const Profil &profil, Dokument &dokument) {
    Ladebefund b;
    SeiteLesen(profil, dokument);
    try {
        SpeicherLesen(profil, dokument);
        LegendeLesen(profil, dokument);
        b.BisZumEnde = true;
    } catch (const FeldFehlt &) {
    }
    const auto text = Ladeprüfung(profil, dokument);
    b.IstProjekt = text != KeinProjekt;
    if (!text.empty()) b.Schaden = Ladeschaden{};
    return b;
}

} // namespace kw
