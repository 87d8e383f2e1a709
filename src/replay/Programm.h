#pragma once

#include "document/basAltersberechnung.h"
#include "replay/Aufzeichnung.h"
#include "replay/Einblick.h"
#include "replay/Plattform.h"

#include <memory>
#include <ostream>
#include <string>

namespace kw {

struct Namen;

/// One start of the program, with the platform that the script speaks for.
struct Programm {
    Programm(std::ostream &aus, const Startangaben &start);
    ~Programm();
    Programm(const Programm &) = delete;
    Programm &operator=(const Programm &) = delete;
    void Laden();

    std::string wirkungen; ///< what went outside since it was last asked for, a line each
    DrehbuchBenutzer benutzer;
    DrehbuchDrucker drucker{wirkungen};
    DrehbuchUhr uhr;
    Aufzeichnung leinwand;
    DrehbuchBilder bilder{leinwand, wirkungen};
    const std::unique_ptr<frmMain> haupt;
    const Einblick innen;
    std::unique_ptr<Namen> namen; ///< when the program has started
    Altersberechnung alter{uhr};
    int Taste = 0; ///< the mouse button that is down, or none
};

} // namespace kw
