#include "app/Formulare.h"

#include "app/Programmversion.h"
#include "dialogs/frmBezLinien.h"
#include "dialogs/frmDrucken.h"
#include "dialogs/frmEinstellungen.h"
#include "dialogs/frmFassungen.h"
#include "dialogs/frmInfo.h"
#include "dialogs/frmKommentar.h"
#include "dialogs/frmLegende.h"
#include "dialogs/frmOhneNamen.h"
#include "dialogs/frmPLinien.h"
#include "dialogs/frmSchrift.h"
#include "dialogs/frmSeiteEinrichten.h"
#include "dialogs/frmStammbaum.h"
#include "dialogs/frmStammbaumExport.h"
#include "dialogs/frmStammbaumbericht.h"
#include "dialogs/frmSymbGlobal.h"
#include "dialogs/frmSymbol.h"
#include "platform/Befehlsnamen.h"

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
    {Name::frmSymbol, Bauen<frmSymbol>},
    {Name::frmPLinien, Bauen<frmPLinien>},
    {Name::frmBezLinien, Bauen<frmBezLinien>},
    {Name::frmKommentar, Bauen<frmKommentar>},
    {Name::frmSchrift, Bauen<frmSchrift>},
    {Name::frmSymbGlobal, Bauen<frmSymbGlobal>},
    {Name::frmLegende, Bauen<frmLegende>},
    {Name::frmDrucken, Bauen<frmDrucken>},
    {Name::frmSeiteEinrichten, Bauen<frmSeiteEinrichten>},
    {Name::frmEinstellungen, Bauen<frmEinstellungen>},
    {Name::frmFassungen, Bauen<frmFassungen>},
    {Name::frmStammbaumExport, Bauen<frmStammbaumExport>},
    {Name::frmOhneNamen, Bauen<frmOhneNamen>},
    {Name::frmStammbaum, Bauen<frmStammbaum>},
    {Name::frmStammbaumbericht, Bauen<frmStammbaumbericht>},
    {Name::frmInfo,
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
