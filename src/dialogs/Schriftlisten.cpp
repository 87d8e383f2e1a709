#include "dialogs/Schriftlisten.h"

#include "document/Texte.h"
#include "document/Zahlen.h"

#include <algorithm>

namespace kw {

namespace {

constexpr double GrößteProbe = 100; ///< points

} // namespace

std::vector<std::string> AngeboteneSchriftarten() {
    return {"Arial",          "Calibri",  "Courier New", "Franklin Gothic Medium", "Georgia", "Impact",
            "Lucida Console", "Segoe UI", "Tahoma",      "Times New Roman",        "Verdana"};
}

std::vector<std::string> AngeboteneSchriftgrößen() {
    return {"8", "9", "10", "11", "12", "14", "16", "18", "20", "22", "24", "26", "28", "36"};
}

std::string GültigeSchriftart(std::string_view schriftart) {
    return std::string(Getrimmt(schriftart).empty() ? Standardschrift : schriftart);
}

std::string GültigeSchriftgröße(std::string_view größe) {
    std::string punkte(Getrimmt(größe));
    std::replace(punkte.begin(), punkte.end(), ',', '.');
    return ZahlLesen(punkte) > 0 ? punkte : std::string(KleinsteSchrift);
}

void SchriftZeigen(Steuerelement &probe, std::string_view schriftart, std::string_view größe) {
    probe.FontName = schriftart;
    const double punkte = ZahlLesen(größe);
    if (punkte > 0) probe.FontSize = std::min(punkte, GrößteProbe);
}

} // namespace kw
