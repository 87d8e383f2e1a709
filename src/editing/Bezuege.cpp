#include "editing/Bezuege.h"

#include "document/Felder.h"

namespace kw {

namespace {

/// The first three characters: the number that a record begins with.
std::string_view Nummer(std::string_view satz) { return satz.substr(0, 3); }

} // namespace

Bezüge::Bezüge(const Dokument &d) {
    const auto nummerieren = [](const Satzliste &speicher, Verzeichnis<int> &verzeichnis) {
        int position = 0;
        for (const auto &satz : speicher) verzeichnis.try_emplace(std::string(Nummer(satz)), position++);
    };
    nummerieren(d.cboPersonen, personen_);
    nummerieren(d.cboPartnerschaftsLinien, plinien_);
    nummerieren(d.cboKindlinien, kindlinien_);

    const auto paare = [](const Satzliste &speicher, int felder, int eins, int zwei,
                          Verzeichnis<Positionen> &verzeichnis) {
        for (int i = 0; i < speicher.Anzahl(); ++i) {
            const Felder feld(speicher.Satz(i));
            if (feld.Anzahl() < felder) continue; // damaged: stays as it is
            verzeichnis[std::string(feld[eins])].push_back(i);
            if (feld[zwei] != feld[eins]) verzeichnis[std::string(feld[zwei])].push_back(i);
        }
    };
    paare(d.cboPartnerschaftsLinien, PLinieFeld::Anzahl, PLinieFeld::PersNr1, PLinieFeld::PersNr2, partnerschaften_);
    paare(d.cboBeziehungsLinien, BezFeld::Anzahl, BezFeld::PersNr1, BezFeld::PersNr2, beziehungen_);
    for (int i = 0; i < d.cboKindlinien.Anzahl(); ++i) {
        const Felder feld(d.cboKindlinien.Satz(i));
        if (feld.Anzahl() >= KindFeld::Anzahl) kinder_[std::string(feld[KindFeld::PLinie])].push_back(i);
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
