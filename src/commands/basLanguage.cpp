#include "commands/basLanguage.h"

#include "commands/Menuetafel.h"

#include <string>

namespace kw {

namespace {

constexpr std::string_view Rändertipp = "btnBlattränder";

void Beschriften(Bedienelemente &elemente, std::string_view Menüzeile::*sprache, std::string_view deviceName) {
    for (const Menüzeile &zeile : Menütafel()) {
        Bedienelement &element = elemente[zeile.Name];
        element.Caption = zeile.*sprache;
        element.Tipp = zeile.Menü == Werkzeugband ? zeile.*sprache : std::string_view();
    }
    Bedienelement &ränder = elemente[Rändertipp];
    ränder.Tipp = ränder.Caption.append(deviceName);
}

} // namespace

void MenuesDeutsch(Bedienelemente &elemente, std::string_view deviceName) {
    Beschriften(elemente, &Menüzeile::Deutsch, deviceName);
}

void MenuesEnglisch(Bedienelemente &elemente, std::string_view deviceName) {
    Beschriften(elemente, &Menüzeile::Englisch, deviceName);
}

void MenuesBeschriften(Bedienelemente &elemente, Sprache sprache, std::string_view deviceName) {
    if (sprache == Sprache::Deutsch) MenuesDeutsch(elemente, deviceName);
    else MenuesEnglisch(elemente, deviceName);
}

void RänderknopfBeschriften(Bedienelemente &elemente, Sprache sprache, std::string_view deviceName) {
    const Menüzeile &zeile = *MenüzeileFinden(Rändertipp);
    Bedienelement &ränder = elemente[Rändertipp];
    ränder.Caption = sprache == Sprache::Deutsch ? zeile.Deutsch : zeile.Englisch;
    ränder.Tipp = ränder.Caption.append(deviceName);
}

} // namespace kw
