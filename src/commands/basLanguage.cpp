#include "commands/basLanguage.h"

#include "commands/Menuetafel.h"
#include "platform/Bedienelemente.h"
#include "platform/Befehlsnamen.h"

#include <string>

namespace kw {

namespace {

constexpr Befehlsname Rändertipp = Name::btnBlattränder;

} // namespace

void MenuesBeschriften(Bedienelemente &elemente, Sprache sprache, std::string_view deviceName) {
    for (const Menüzeile &zeile : Menütafel()) {
        Bedienelement &element = elemente.Mit(zeile.Name);
        element.Caption = zeile.Caption.In(sprache);
        element.Tipp = zeile.Menü == Werkzeugband ? element.Caption : "";
    }
    RänderknopfBeschriften(elemente, sprache, deviceName);
}

void RänderknopfBeschriften(Bedienelemente &elemente, Sprache sprache, std::string_view deviceName) {
    Bedienelement &ränder = elemente[Rändertipp];
    ränder.Caption = MenüzeileFinden(Rändertipp)->Caption.In(sprache);
    ränder.Tipp = ränder.Caption.append(deviceName);
}

} // namespace kw
