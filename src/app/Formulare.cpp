#include "app/Formulare.h"

#include "app/Programmversion.h"
#include "dialogs/frmBezLinien.h"
#include "dialogs/frmDrucken.h"
#include "dialogs/frmEinstellungen.h"
#include "dialogs/frmInfo.h"
#include "dialogs/frmKommentar.h"
#include "dialogs/frmLegende.h"
#include "dialogs/frmPLinien.h"
#include "dialogs/frmSchrift.h"
#include "dialogs/frmSeiteEinrichten.h"
#include "dialogs/frmSymbGlobal.h"
#include "dialogs/frmSymbol.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace kw {

namespace {

template <typename Form> std::unique_ptr<Formular> Bauen(Dialogumgebung &umgebung) {
    return std::make_unique<Form>(umgebung);
}

struct Bauplan {
    std::string_view Name;
    std::unique_ptr<Formular> (*Bauen)(Dialogumgebung &);
};

constexpr Bauplan Baupläne[] = {
    {"frmSymbol", Bauen<frmSymbol>},
    {"frmPLinien", Bauen<frmPLinien>},
    {"frmBezLinien", Bauen<frmBezLinien>},
    {"frmKommentar", Bauen<frmKommentar>},
    {"frmSchrift", Bauen<frmSchrift>},
    {"frmSymbGlobal", Bauen<frmSymbGlobal>},
    {"frmLegende", Bauen<frmLegende>},
    {"frmDrucken", Bauen<frmDrucken>},
    {"frmSeiteEinrichten", Bauen<frmSeiteEinrichten>},
    {"frmEinstellungen", Bauen<frmEinstellungen>},
    {"frmInfo",
     [](Dialogumgebung &u) -> std::unique_ptr<Formular> { return std::make_unique<frmInfo>(u, Programmversion); }},
};

} // namespace

std::unique_ptr<Formular> FormularErzeugen(std::string_view name, Dialogumgebung &umgebung) {
    const auto *plan =
        std::find_if(std::begin(Baupläne), std::end(Baupläne), [&](const Bauplan &b) { return b.Name == name; });
    if (plan == std::end(Baupläne)) throw std::out_of_range("no form " + std::string(name));
    return plan->Bauen(umgebung);
}

} // namespace kw
