#include "document/Verweise.h"

#include "document/Dokument.h"
#include "document/Nachschlagen.h"
#include "document/saetze/Beziehung.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"

namespace kw {

namespace {

/// Removes, from the end, the undamaged records that `passt`.
template <typename Satz, typename Passt> void Entfernen(Satzliste &speicher, Passt passt) {
    for (int i = speicher.Anzahl() - 1; i >= 0; --i) {
        const Satz satz(speicher.Satz(i));
        if (satz.Vollständig() && passt(satz)) speicher.Entfernen(i);
    }
}

/// Equal in value: "002" is "2". Three digits, as nearly all numbers are, need no reading.
bool NummernGleich(std::string_view a, std::string_view b) {
    constexpr size_t Üblich = 3;
    return a == b || ((a.size() != Üblich || b.size() != Üblich) && ZahlLesen(a) == ZahlLesen(b));
}

void KinderlinienEntfernen(Dokument &d, std::string_view plinie) {
    Entfernen<KindSatz>(d.cboKindlinien, [&](const KindSatz &linie) { return linie.PLinie() == plinie; });
}

/// The persons whose parents were that line have none any more; nor the relationship records that join a pair of
/// identical twins.
void KinderFreigeben(Dokument &d, std::string_view plinie) {
    for (int i = 0; i < d.cboPersonen.Anzahl(); ++i) {
        if (d.cboPersonen.Satz(i).find(plinie) == std::string::npos) continue; // spares splitting nearly all of them
        const PersonSatz kind(d.cboPersonen.Satz(i), Lücken::Leer);
        if (kind.ElternLinie() != plinie) continue;
        if (kind.Eineiig())
            Entfernen<BeziehungSatz>(d.cboBeziehungsLinien, [&](const BeziehungSatz &linie) {
                return linie.Verbindet(kind.Nr(), kind.ZwillingNr());
            });
        d.cboPersonen.Ersetzen(i, PersonBau(d.cboPersonen.Satz(i)).ElternLinie("").Zwilling("").Text());
    }
}

void ZwillingsmarkeLöschen(Dokument &d, std::string_view nr) {
    const int person = nr.empty() ? -1 : PersonMitNr(d, nr);
    if (person >= 0) d.cboPersonen.Ersetzen(person, PersonBau(d.cboPersonen.Satz(person)).Zwilling("").Text());
}

} // namespace

bool PersonEntfernen(Dokument &d, std::string_view nr) {
    const int person = PersonMitNr(d, nr);
    if (person < 0) return false; // its number must not become free twice
    const auto genannt = [&](const auto &linie) {
        return NummernGleich(linie.PersNr1(), nr) || NummernGleich(linie.PersNr2(), nr);
    };
    Entfernen<BeziehungSatz>(d.cboBeziehungsLinien, genannt);
    for (int i = d.cboPartnerschaftsLinien.Anzahl() - 1; i >= 0; --i) {
        const PartnerschaftSatz linie(d.cboPartnerschaftsLinien.Satz(i));
        if (linie.Vollständig() && genannt(linie)) PartnerschaftEntfernen(d, i);
    }
    Entfernen<KindSatz>(d.cboKindlinien, [&](const KindSatz &linie) { return NummernGleich(linie.KindNr(), nr); });
    d.lstGelöschtePersNr.Anhängen(std::string(nr));

    const std::string zwilling(PersonSatz(d.cboPersonen.Satz(person), Lücken::Leer).ZwillingNr());
    d.cboPersonen.Entfernen(person);
    ZwillingsmarkeLöschen(d, zwilling);
    return true;
}

void PartnerschaftEntfernen(Dokument &d, int position) {
    const std::string nr(Nummer(d.cboPartnerschaftsLinien.Satz(position)));
    KinderlinienEntfernen(d, nr);
    KinderFreigeben(d, nr);
    d.cboPartnerschaftsLinien.Entfernen(position);
    d.lstGelöschtePLinien.Anhängen(nr);
}

void KindlinieEntfernen(Dokument &d, int position) {
    const int kind = PersonMitNr(d, d.cboKindlinien.Satz(position));
    if (kind >= 0) {
        const std::string zwilling(PersonSatz(d.cboPersonen.Satz(kind), Lücken::Leer).ZwillingNr());
        d.cboPersonen.Ersetzen(kind, PersonBau(d.cboPersonen.Satz(kind)).ElternLinie("").Zwilling("").Text());
        ZwillingsmarkeLöschen(d, zwilling); // it keeps its parents
    }
    d.cboKindlinien.Entfernen(position);
}

void PartnerschaftAlleinEntfernen(Dokument &d, std::string_view nr) {
    const int position = PLinieMitNr(d, nr);
    if (position >= 0) d.cboPartnerschaftsLinien.Entfernen(position);
    KinderlinienEntfernen(d, nr);
}

int Satzzahl(const Dokument &d) {
    int summe = 0;
    for (const SpeicherZeile &zeile : SpeicherTabelle) summe += (d.*zeile.Liste).Anzahl();
    return summe;
}

} // namespace kw
