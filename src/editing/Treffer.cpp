#include "editing/Treffer.h"

#include "document/Felder.h"
#include "document/Zahlen.h"

#include <algorithm>
#include <cmath>

namespace kw {

namespace {

/// The first record of at least `felder` fields that `passt`.
template <typename Passt> int Erster(const Satzliste &speicher, int felder, Passt passt) {
    for (int i = 0; i < speicher.Anzahl(); ++i) {
        const Felder feld(speicher.Satz(i));
        if (feld.Anzahl() >= felder && passt(feld)) return i;
    }
    return -1;
}

} // namespace

int PersonBei(const Dokument &d, double x, double y) {
    return Erster(d.cboPersonen, PersonFeld::Anzahl, [&](const Felder &feld) {
        const double halb = ZahlLesen(feld[PersonFeld::Groesse]) / 2;
        return Kleiner(std::fabs(x - ZahlLesen(feld[PersonFeld::PosX])), halb) &&
               Kleiner(std::fabs(y - ZahlLesen(feld[PersonFeld::PosY])), halb);
    });
}

} // namespace kw
