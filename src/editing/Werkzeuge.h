#pragma once

#include "editing/Werkbank.h"

#include <array>
#include <string>

namespace kw {

/// The palette's buttons count from 1; the number is also the tool's code.
constexpr int WerkzeugAnzahl = 20;
enum : int {
    WerkzeugZwillinge = 8,
    WerkzeugKreislinie = 9,
    WerkzeugText = 10,
    WerkzeugEltern = 11,
    WerkzeugBeziehung = 12,
    WerkzeugPartnerschaft = 13,
    WerkzeugKind = 14,
    WerkzeugPfeil = 15,
    WerkzeugDoppelpfeil = 16
};

/// Name of the button of tool `nummer`: "cmdSymb(7)".
std::string WerkzeugName(int nummer);

/// A press on button `nummer` of the palette, 1 to 20; menus press the same buttons. What was selected or armed
/// before ends. Tools that need a selected person arm nothing without one.
void WerkzeugDrücken(Werkbank &w, int nummer);

/// Whether the tool would do something: links start from a selected person.
bool WerkzeugBrauchbar(int nummer, const Dokument &dokument, const Auswahl &auswahl, const Leinwandlage &lage);
/// Whether a tool is in hand that makes something where it is put; no link.
bool IstBereit(const Leinwandlage &lage);
/// Whether it is in hand.
bool WerkzeugGedrückt(int nummer, const Leinwandlage &lage);

} // namespace kw
