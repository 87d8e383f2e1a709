#include "document/ProjektDatei.h"

#include "document/Doppelnummern.h"
#include "document/Felder.h"
#include "document/Ganztexte.h"
#include "document/Papier.h"
#include "document/Zahlen.h"
#include "document/saetze/Person.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

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
size_t SatzAnzahl(const Profil &profil, std::string_view abschnitt) {
    const auto liste = profil.SchlüsselListe(abschnitt);
    return static_cast<size_t>(std::count(liste.begin(), liste.end(), '\0'));
}

/// What is wrong with one record.
std::optional<Ladeschaden> Satzschaden(const SpeicherZeile &zeile, size_t position, std::string_view wert) {
    if (zeile.Liste == &Dokument::cboFreehandlines) {
        if (wert.find('^') != std::string_view::npos) return {};
        return Ladeschaden{Schadensart::OhnePunkt, zeile.Abschnitt, position};
    }
    const int anzahl = wert.empty() ? 0 : 1 + static_cast<int>(std::count(wert.begin(), wert.end(), '_'));
    if (anzahl >= zeile.Pflichtfelder) return {};
    return Ladeschaden{Schadensart::FelderFehlen, zeile.Abschnitt, position, zeile.Pflichtfelder, anzahl};
}

/// The reading of the stores: what came, what is missing, and the first place that is damaged.
class Ladevorgang {
  public:
    Ladevorgang(const Profil &profil, Dokument &dokument) : profil_(profil), dokument_(dokument), ganztexte_(profil) {}

    /// Ends at a person who is too short: what was read before stays.
    Ladebefund Lesen() {
        befund_.IstProjekt = profil_.HatAbschnitt(Vorgaben);
        if (profil_.HatVorspann()) Beanstanden(Ladeschaden{Schadensart::Vorspann});
        dokument_.SpeicherLeeren();
        befund_.BisZumEnde = std::all_of(SpeicherTabelle.begin(), SpeicherTabelle.end(),
                                         [this](const SpeicherZeile &zeile) { return AbschnittLesen(zeile); });
        for (const auto &zeile : SpeicherTabelle) {
            befund_.IstProjekt = befund_.IstProjekt || profil_.HatAbschnitt(zeile.Abschnitt);
            befund_.Vorhanden += profil_.SchlüsselAnzahl(zeile.Abschnitt);
            befund_.Gelesen += static_cast<size_t>((dokument_.*zeile.Liste).Anzahl());
        }
        befund_.Verwaist = ganztexte_.Verwaist();
        DoppelnummernAuflösen(dokument_); // also of what was read before a damage
        return befund_;
    }

  private:
    void Beanstanden(const std::optional<Ladeschaden> &schaden) {
        if (!befund_.Schaden) befund_.Schaden = schaden;
    }

    bool AbschnittLesen(const SpeicherZeile &zeile) {
        const bool personen = zeile.Liste == &Dokument::cboPersonen;
        const size_t anzahl = SatzAnzahl(profil_, zeile.Abschnitt);
        auto ganze = personen ? ganztexte_.PersonenZuordnen(zeile.Abschnitt, anzahl)
                              : ganztexte_.Zuordnen(zeile.Abschnitt, anzahl);
        for (size_t i = 0; i < anzahl; ++i) {
            const auto ganz = ganze.find(i);
            if (!Aufnehmen(zeile, i, ganz == ganze.end() ? Zeilenwert(zeile, i) : std::move(ganz->second)))
                return false;
        }
        size_t unbekannt = anzahl;
        for (auto hinten = ganze.lower_bound(anzahl); hinten != ganze.end(); ++hinten) {
            unbekannt += hinten->first == unbekannt ? 1 : 0;
            Aufnehmen(zeile, hinten->first, std::move(hinten->second));
        }
        AbschnittPrüfen(zeile, unbekannt);
        return true;
    }

    std::string Zeilenwert(const SpeicherZeile &zeile, size_t position) {
        const auto schlüssel = std::to_string(position);
        auto wert = profil_.Lesen(zeile.Abschnitt, schlüssel);
        if (wert.size() + 1 >= Profil::Lesepuffer && profil_.WirdGekürzt(zeile.Abschnitt, schlüssel))
            Beanstanden(Ladeschaden{Schadensart::Gekürzt, zeile.Abschnitt, position});
        return wert;
    }

    /// Only a person can be too short to be taken.
    bool Aufnehmen(const SpeicherZeile &zeile, size_t position, std::string wert) {
        if (!befund_.Schaden) befund_.Schaden = Satzschaden(zeile, position, wert);
        if (zeile.Liste != &Dokument::cboPersonen) {
            (dokument_.*zeile.Liste).Anhängen(std::move(wert));
            return true;
        }
        if (!PersonSatz(wert).Vollständig()) return false;
        dokument_.cboPersonen.Anhängen(PersonAusDatei(wert));
        return true;
    }

    /// `unbekannt`: the first key that nobody has read.
    void AbschnittPrüfen(const SpeicherZeile &zeile, size_t unbekannt) {
        if (befund_.Schaden) return;
        const auto gelesen = static_cast<size_t>((dokument_.*zeile.Liste).Anzahl());
        if (profil_.SchlüsselAnzahl(zeile.Abschnitt) > gelesen)
            Beanstanden(Ladeschaden{Schadensart::ZuViele, zeile.Abschnitt, unbekannt});
        if (profil_.HatFremdeZeilen(zeile.Abschnitt))
            Beanstanden(Ladeschaden{Schadensart::FremdeZeile, zeile.Abschnitt});
        if (profil_.AbschnittAnzahl(zeile.Abschnitt) > 1)
            Beanstanden(Ladeschaden{Schadensart::ZweiterGleiche, zeile.Abschnitt});
    }

    const Profil &profil_;
    Dokument &dokument_;
    Ganztexte ganztexte_;
    Ladebefund befund_;
};

const char *Flagge(bool wert) { return wert ? "1" : "0"; }

/// What the file tells of the legend. The last one is written and never read back: meant.
namespace LegendeFeld {
enum : int { Sichtbar, X, Y, Quer, MitStandardsymbolen };
}

std::string LegendeSatz(const Dokument &d) {
    return std::string(Flagge(d.LegendeSichtbar)) + "_" + ZahlSchreiben(d.LegendeX) + "_" + ZahlSchreiben(d.LegendeY) +
           "_" + Flagge(d.LegendeQuer) + "_" + Flagge(!d.OhneStandardsymbole);
}

void AbschnittSchreiben(const Dokument &dokument, const SpeicherZeile &zeile, Profil &profil, Ganzschrift &ganze) {
    const bool personen = zeile.Liste == &Dokument::cboPersonen;
    const bool kreislinien = zeile.Liste == &Dokument::cboFreehandlines;
    std::vector<std::string> werte;
    werte.reserve(static_cast<size_t>((dokument.*zeile.Liste).Anzahl()));
    for (const auto &satz : dokument.*zeile.Liste) {
        werte.push_back(personen ? PersonInDatei(satz) : kreislinien ? OhneBlanks(satz) : satz);
        profil.Schreiben(zeile.Abschnitt, std::to_string(werte.size() - 1), werte.back());
    }
    ganze.Aufnehmen(zeile.Abschnitt, werte);
}

const SpeicherZeile &ZeileVon(std::string_view abschnitt) {
    return *std::find_if(SpeicherTabelle.begin(), SpeicherTabelle.end(),
                         [abschnitt](const SpeicherZeile &zeile) { return zeile.Abschnitt == abschnitt; });
}

std::optional<Ladeschaden> Legendenschaden(const Profil &profil) {
    constexpr int Gelesen = LegendeFeld::MitStandardsymbolen;
    const auto wert = profil.Lesen(Vorgaben, "legende");
    const int anzahl = Felder(wert).Anzahl();
    if (wert.empty() || anzahl >= Gelesen) return {};
    return Ladeschaden{Schadensart::FelderFehlen, Vorgaben, 0, Gelesen, anzahl};
}

void SeiteLesen(const Profil &profil, Dokument &dokument) {
    dokument.Papiercode = PapiercodeAus(profil.Lesen(Vorgaben, "papersize")).value_or(dokument.Papiercode);
    const int lage = Ganzzahl16(ZahlLesen(profil.Lesen(Vorgaben, "orientation")));
    constexpr int GrößterByte = 255;
    dokument.Seitenlage = lage < 1 || lage > GrößterByte ? 2 : lage;
}

/// Throws when a field is missing; what was set before that stays.
void LegendeLesen(const Profil &profil, Dokument &dokument) {
    const auto wert = profil.Lesen(Vorgaben, "legende");
    const Felder felder(wert);
    dokument.LegendeX = ZahlLesen(felder[LegendeFeld::X]);
    dokument.LegendeY = ZahlLesen(felder[LegendeFeld::Y]);
    dokument.LegendeQuer = felder[LegendeFeld::Quer] == "1";
    dokument.LegendeSichtbar = felder[LegendeFeld::Sichtbar] == "1";
}

} // namespace

Ladebefund ProjektLesen(const Profil &profil, Dokument &dokument) {
    SeiteLesen(profil, dokument);
    auto befund = Ladevorgang(profil, dokument).Lesen();
    if (!befund.Schaden) befund.Schaden = Legendenschaden(profil);
    if (!befund.BisZumEnde) return befund;
    try {
        LegendeLesen(profil, dokument);
    } catch (const FeldFehlt &) { // a damaged one, or an old file without
        befund.BisZumEnde = false;
    }
    return befund;
}

bool OhneStandardsymboleLesen(const Profil &profil) {
    const auto wert = profil.Lesen(Vorgaben, "legende");
    const Felder felder(wert);
    return felder.Anzahl() > LegendeFeld::MitStandardsymbolen && felder[LegendeFeld::MitStandardsymbolen] == "0";
}

void ProjektEintragen(const Dokument &dokument, Profil &profil) {
    // The order in which a new file has its sections, which is not that of the loading.
    static constexpr std::array<std::string_view, 7> Reihenfolge{"OBJECTS", "LINEA", "LINEB", "LINEC",
                                                                 "LINED",   "LINEE", "TEXT"};
    profil.VorspannLöschen(); // of a file that was no project: nobody reads it, and it may be another client's
    for (const auto abschnitt : Reihenfolge) profil.AbschnittLöschen(abschnitt);
    profil.Schreiben(Vorgaben, "orientation", std::to_string(dokument.Seitenlage));
    profil.Schreiben(Vorgaben, "papersize", std::to_string(dokument.Papiercode));
    Ganzschrift ganze;
    for (const auto abschnitt : Reihenfolge) AbschnittSchreiben(dokument, ZeileVon(abschnitt), profil, ganze);
    profil.Schreiben(Vorgaben, "legende", LegendeSatz(dokument));
    ganze.Eintragen(profil);
}

std::string ProjektInhalt(const Dokument &dokument) {
    Profil profil;
    ProjektEintragen(dokument, profil);
    return profil.Inhalt();
}

} // namespace kw
