#include "replay/Programm.h"

#include "app/frmMain.h"
#include "replay/Namen.h"

namespace kw {

Programm::Programm(std::ostream &aus, const Startangaben &start)
    : benutzer(aus, wirkungen),
      haupt(std::make_unique<frmMain>(Plattform{benutzer, drucker, bilder, uhr}, leinwand, start)), innen(*haupt) {
    benutzer.bedienung = &innen.bedienung;
}

Programm::~Programm() = default;

void Programm::Laden() {
    haupt->Laden();
    namen = std::make_unique<Namen>(innen, benutzer);
}

} // namespace kw
