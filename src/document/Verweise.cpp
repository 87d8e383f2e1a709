#include "document/Verweise.h"

#include "document/Dokument.h"
#include "document/Nachschlagen.h"
#include "document/saetze/Beziehung.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"

#include <algorithm>
#include <functional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace kw {

namespace {

/// Removes the undamaged records that `passt`.
template <typename Satz, typename Passt> void Entfernen(Satzliste &speicher, Passt passt) {
    speicher.EntfernenWenn([&](const std::string &text) {
        const Satz satz(text);
        return satz.Vollständig() && passt(satz);
    });
}

/// Numbers of records that go. Numbers of another length than three, which no whole record has, are compared by value:
/// "2" is "002".
class Nummernmenge {
  public:
    void Aufnehmen(std::string_view nr) {
        nummern_.emplace(nr);
        werte_.insert(ZahlLesen(nr));
    }
    bool Enthält(std::string_view nr) const {
        constexpr size_t Üblich = 3;
        return nummern_.contains(nr) || (nr.size() != Üblich && werte_.contains(ZahlLesen(nr)));
    }
    template <typename Satz> bool EinEnde(const Satz &linie) const {
        return Enthält(linie.PersNr1()) || Enthält(linie.PersNr2());
    }

  private:
    struct Streuung : std::hash<std::string_view> {
        using is_transparent = void;
    };
    std::unordered_set<std::string, Streuung, std::equal_to<>> nummern_;
    std::unordered_set<double> werte_;
};

void PositionenEntfernen(Satzliste &speicher, const std::vector<int> &positionen) {
    std::vector<bool> weg(static_cast<size_t>(speicher.Anzahl()));
    for (const int i : positionen) weg[static_cast<size_t>(i)] = true;
    size_t i = 0;
    speicher.EntfernenWenn([&](const std::string &) { return weg[i++]; });
}

void ZwillingsmarkeLöschen(Dokument &d, std::string_view nr) {
    const int person = nr.empty() ? -1 : PersonMitNr(d, nr);
    if (person >= 0) d.cboPersonen.Ersetzen(person, PersonBau(d.cboPersonen.Satz(person)).Zwilling("").Text());
}

/// The persons whose parents were those lines have none any more; nor the relationship records that join a pair of
/// identical twins.
void KinderFreigeben(Dokument &d, const Nummernmenge &linien) {
    for (int i = 0; i < d.cboPersonen.Anzahl(); ++i) {
        const PersonSatz kind(d.cboPersonen.Satz(i), Lücken::Leer);
        if (kind.ElternLinie().empty() || !linien.Enthält(kind.ElternLinie())) continue;
        if (kind.Eineiig())
            Entfernen<BeziehungSatz>(d.cboBeziehungsLinien, [&](const BeziehungSatz &linie) {
                return linie.Verbindet(kind.Nr(), kind.ZwillingNr());
            });
        const std::string zwilling(kind.ZwillingNr());
        d.cboPersonen.Ersetzen(i, PersonBau(d.cboPersonen.Satz(i)).ElternLinie("").Zwilling("").Text());
        ZwillingsmarkeLöschen(d, zwilling); // one with other parents too: a mark is of both or of none
    }
}

/// Removes the partnership lines at those positions with their children's lines. Their numbers become free in the
/// order given.
void LinienEntfernen(Dokument &d, const std::vector<int> &positionen) {
    if (positionen.empty()) return;
    Nummernmenge linien;
    for (const int i : positionen) {
        linien.Aufnehmen(Nummer(d.cboPartnerschaftsLinien.Satz(i)));
        d.lstGelöschtePLinien.Anhängen(std::string(Nummer(d.cboPartnerschaftsLinien.Satz(i))));
    }
    Entfernen<KindSatz>(d.cboKindlinien, [&](const KindSatz &linie) { return linien.Enthält(linie.PLinie()); });
    KinderFreigeben(d, linien);
    PositionenEntfernen(d.cboPartnerschaftsLinien, positionen);
}

/// Positions of the lines of those who go: person by person, from the last line on.
std::vector<int> LinienDerPersonen(const Dokument &d, const std::vector<std::string> &nummern,
                                   const Nummernmenge &menge) {
    std::unordered_map<std::string_view, int> rang;
    for (const auto &nr : nummern) rang.try_emplace(nr, static_cast<int>(rang.size()));
    std::vector<std::pair<int, int>> linien;
    for (int i = 0; i < d.cboPartnerschaftsLinien.Anzahl(); ++i) {
        const PartnerschaftSatz linie(d.cboPartnerschaftsLinien.Satz(i));
        if (!linie.Vollständig() || !menge.EinEnde(linie)) continue;
        int erster = static_cast<int>(nummern.size());
        for (const auto nr : {linie.PersNr1(), linie.PersNr2()})
            if (const auto r = rang.find(nr); r != rang.end()) erster = std::min(erster, r->second);
        linien.emplace_back(erster, -i);
    }
    std::sort(linien.begin(), linien.end());
    std::vector<int> positionen;
    positionen.reserve(linien.size());
    for (const auto &[erster, position] : linien) positionen.push_back(-position);
    return positionen;
}

} // namespace

bool PersonenEntfernen(Dokument &d, const std::vector<std::string> &nummern) {
    const Nummernverzeichnis verzeichnis(d.cboPersonen);
    Nummernmenge menge;
    std::vector<int> positionen;
    std::vector<std::string> zwillinge;
    std::vector<bool> schon(static_cast<size_t>(d.cboPersonen.Anzahl()));
    for (const auto &nr : nummern) {
        const int i = verzeichnis.Position(Nummer(nr));
        if (i < 0 || schon[static_cast<size_t>(i)]) continue;
        schon[static_cast<size_t>(i)] = true;
        positionen.push_back(i);
        menge.Aufnehmen(nr);
        zwillinge.emplace_back(PersonSatz(d.cboPersonen.Satz(i), Lücken::Leer).ZwillingNr());
        d.lstGelöschtePersNr.Anhängen(nr);
    }
    if (positionen.empty()) return false;
    Entfernen<BeziehungSatz>(d.cboBeziehungsLinien, [&](const BeziehungSatz &linie) { return menge.EinEnde(linie); });
    LinienEntfernen(d, LinienDerPersonen(d, nummern, menge));
    Entfernen<KindSatz>(d.cboKindlinien, [&](const KindSatz &linie) { return menge.Enthält(linie.KindNr()); });
    PositionenEntfernen(d.cboPersonen, positionen);
    for (const auto &zwilling : zwillinge) ZwillingsmarkeLöschen(d, zwilling);
    return true;
}

void PartnerschaftEntfernen(Dokument &d, int position) { LinienEntfernen(d, {position}); }

void KindlinieEntfernen(Dokument &d, int position) {
    const int kind = PersonMitNr(d, d.cboKindlinien.Satz(position));
    if (kind >= 0) {
        const std::string zwilling(PersonSatz(d.cboPersonen.Satz(kind), Lücken::Leer).ZwillingNr());
        d.cboPersonen.Ersetzen(kind, PersonBau(d.cboPersonen.Satz(kind)).ElternLinie("").Zwilling("").Text());
        ZwillingsmarkeLöschen(d, zwilling); // it keeps its parents
    }
    d.cboKindlinien.Entfernen(position);
}

int Satzzahl(const Dokument &d) {
    int summe = 0;
    for (const SpeicherZeile &zeile : SpeicherTabelle) summe += (d.*zeile.Liste).Anzahl();
    return summe;
}

} // namespace kw
