#include "document/Dokument.h"

#include "document/saetze/Beziehung.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "document/saetze/Pfeil.h"
#include "document/saetze/Textbox.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <unordered_set>

namespace kw {

const std::array<SpeicherZeile, 7> SpeicherTabelle{{
    {"cboPersonen", "OBJECTS", &Dokument::cboPersonen, PersonSatz::Anzahl},
    {"cboTextboxen", "TEXT", &Dokument::cboTextboxen, TextSatz::AnzahlUngemessen},
    {"cboBeziehungsLinien", "LINEA", &Dokument::cboBeziehungsLinien, BeziehungSatz::Anzahl},
    {"cboPartnerschaftsLinien", "LINEB", &Dokument::cboPartnerschaftsLinien, PartnerschaftSatz::Anzahl},
    {"cboKindlinien", "LINEC", &Dokument::cboKindlinien, KindSatz::Anzahl},
    {"cboFreehandlines", "LINED", &Dokument::cboFreehandlines, 1},
    {"cboPfeile", "LINEE", &Dokument::cboPfeile, PfeilSatz::Anzahl},
}};

namespace {

double NummerAmAnfang(const std::string &satz) { return ZahlLesen(Nummer(satz)); }

void FreieAufbauen(const Satzliste &speicher, Satzliste &freie) {
    freie.Leeren();
    if (speicher.Leer()) return;
    std::unordered_set<double> vergeben;
    for (const auto &satz : speicher) vergeben.insert(NummerAmAnfang(satz));
    // The last record's number bounds the scan, not the highest one in the store. Meant: those between are found when
    // they are needed.
    const int letzte = static_cast<int>(std::floor(NummerAmAnfang(speicher.Letzter())));
    for (int nummer = 1; nummer <= letzte; ++nummer) {
        if (!vergeben.contains(nummer)) freie.Anhängen(Dreistellig(nummer));
    }
}

} // namespace

bool Dokument::GleicheSätze(const Dokument &anderes) const {
    return std::all_of(SpeicherTabelle.begin(), SpeicherTabelle.end(),
                       [&](const SpeicherZeile &z) { return this->*z.Liste == anderes.*z.Liste; });
}

bool Dokument::GleicherStand(const Dokument &anderes) const {
    const auto rest = [](const Dokument &d) {
        return std::tie(d.Papiercode, d.Seitenlage, d.LegendeSichtbar, d.LegendeX, d.LegendeY, d.LegendeQuer,
                        d.OhneStandardsymbole);
    };
    return rest(*this) == rest(anderes) && GleicheSätze(anderes);
}

void Dokument::SpeicherLeeren() {
    for (const auto &zeile : SpeicherTabelle) (this->*zeile.Liste).Leeren();
}

Nummernvergabe Dokument::PersNummern() { return {cboPersonen, lstGelöschtePersNr, cboPersonen.Anzahl()}; }

Nummernvergabe Dokument::PLinienNummern() {
    return {cboPartnerschaftsLinien, lstGelöschtePLinien, cboPartnerschaftsLinien.Anzahl()};
}

void Dokument::FreieNummernAufbauen() {
    FreieAufbauen(cboPersonen, lstGelöschtePersNr);
    FreieAufbauen(cboPartnerschaftsLinien, lstGelöschtePLinien);
}

} // namespace kw
