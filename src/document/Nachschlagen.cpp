#include "document/Nachschlagen.h"

#include "document/Dokument.h"
#include "document/saetze/Beziehung.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"

namespace kw {

namespace {

int MitAnfang(const Satzliste &speicher, std::string_view nr) {
    const std::string_view gesucht = Nummer(nr);
    if (gesucht.empty()) return -1;
    return ErsterSatz(speicher, [&](const std::string &satz) { return Nummer(satz) == gesucht; });
}

/// Enters the two persons that each line of a store names.
template <typename Satz, typename Verzeichnis>
void PaareEintragen(const Satzliste &speicher, Verzeichnis &verzeichnis) {
    for (int i = 0; i < speicher.Anzahl(); ++i) {
        const Satz linie(speicher.Satz(i));
        if (!linie.Vollständig()) continue;
        verzeichnis[std::string(linie.PersNr1())].push_back(i);
        if (linie.PersNr2() != linie.PersNr1()) verzeichnis[std::string(linie.PersNr2())].push_back(i);
    }
}

} // namespace

int PersonMitNr(const Dokument &dokument, std::string_view nr) { return MitAnfang(dokument.cboPersonen, nr); }

int PLinieMitNr(const Dokument &dokument, std::string_view nr) {
    return MitAnfang(dokument.cboPartnerschaftsLinien, nr);
}

int PLinieVonNach(const Dokument &dokument, std::string_view nr1, std::string_view nr2) {
    return ErsterSatz(dokument.cboPartnerschaftsLinien, [&](const std::string &satz) {
        const PartnerschaftSatz linie(satz, Lücken::Leer);
        return linie.PersNr1() == nr1 && linie.PersNr2() == nr2;
    });
}

int PLinieZwischen(const Dokument &dokument, std::string_view nr1, std::string_view nr2) {
    return ErsterSatz(dokument.cboPartnerschaftsLinien, [&](const std::string &satz) {
        return PartnerschaftSatz(satz, Lücken::Leer).Verbindet(nr1, nr2);
    });
}

int KindLinieVon(const Dokument &dokument, std::string_view nr) { return MitAnfang(dokument.cboKindlinien, nr); }

int PositionAus(std::string_view eintrag, const Satzliste &speicher, int erste) {
    const int i = Ganzzahl16(ZahlLesen(eintrag)) - erste;
    return Gültig(speicher, i) ? i : -1;
}

std::unordered_set<int> PositionenAus(const Satzliste &liste, const Satzliste &speicher, int erste) {
    std::unordered_set<int> positionen;
    for (const auto &eintrag : liste) positionen.insert(PositionAus(eintrag, speicher, erste));
    return positionen;
}

std::set<std::string, std::less<>> NummernIn(const Satzliste &liste) {
    std::set<std::string, std::less<>> nummern;
    for (const auto &satz : liste) nummern.emplace(Nummer(satz));
    return nummern;
}

Nummernverzeichnis::Nummernverzeichnis(const Satzliste &speicher) {
    positionen_.reserve(static_cast<size_t>(speicher.Anzahl()));
    int position = 0;
    for (const auto &satz : speicher) positionen_.try_emplace(Nummer(satz), position++);
}

int Nummernverzeichnis::Position(std::string_view nr) const {
    const auto gefunden = positionen_.find(nr);
    return gefunden == positionen_.end() ? -1 : gefunden->second;
}

Bezüge::Bezüge(const Dokument &d) {
    const auto nummerieren = [](const Satzliste &speicher, Verzeichnis<int> &verzeichnis) {
        int position = 0;
        for (const auto &satz : speicher) verzeichnis.try_emplace(std::string(Nummer(satz)), position++);
    };
    nummerieren(d.cboPersonen, personen_);
    nummerieren(d.cboPartnerschaftsLinien, plinien_);
    nummerieren(d.cboKindlinien, kindlinien_);

    PaareEintragen<PartnerschaftSatz>(d.cboPartnerschaftsLinien, partnerschaften_);
    PaareEintragen<BeziehungSatz>(d.cboBeziehungsLinien, beziehungen_);
    for (int i = 0; i < d.cboKindlinien.Anzahl(); ++i) {
        const KindSatz linie(d.cboKindlinien.Satz(i));
        if (linie.Vollständig()) kinder_[std::string(linie.PLinie())].push_back(i);
    }
}

int Bezüge::Erste(const Verzeichnis<int> &verzeichnis, std::string_view nr) {
    const auto i = verzeichnis.find(Nummer(nr));
    return i == verzeichnis.end() ? -1 : i->second;
}

const Bezüge::Positionen &Bezüge::Alle(const Verzeichnis<Positionen> &verzeichnis, std::string_view nr) {
    static const Positionen Keine;
    const auto i = verzeichnis.find(nr);
    return i == verzeichnis.end() ? Keine : i->second;
}

} // namespace kw
