#include "dialogs/frmDrucken.h"

#include "dialogs/Dialogumgebung.h"
#include "document/Texte.h"
#include "document/Zahlen.h"
#include "editing/Werkbank.h"
#include "platform/Benutzer.h"
#include "platform/Drucker.h"

#include <algorithm>

namespace kw {

namespace {

constexpr Formularzeile Zeilen[] = {
    {"Frame1", Art::Rahmen, {"Drucker", "Printer"}},
    {"cboDrucker", Art::Liste},
    {"Frame2", Art::Rahmen, {"Exemplare", "Copies"}},
    {"Label1", Art::Beschriftung, {"Anzahl:", "Number"}},
    {"txtCopies", Art::Textfeld},
    {"cmdDBBildUp", Art::Knopf, {"+", "+"}, {"Ein Exemplar mehr", "One copy more"}},
    {"cmdDBBildDown", Art::Knopf, {"−", "−"}, {"Ein Exemplar weniger", "One copy less"}},
    {"cmdOK", Art::Knopf, {"OK", "OK"}},
    {"cmdAbbrechen", Art::Knopf, {"Abbrechen", "Cancel"}},
};
constexpr Formulartafel Tafel{"frmDrucken", {"Drucken", "Print"}, Zeilen, "cmdOK", "cmdAbbrechen"};

constexpr Zweisprachig KeinDrucker{"Es wurde kein Drucker ausgewählt! ", "No printer was selected! "};
constexpr int HöchstzahlExemplare = 32767; ///< the number has 16 bits

} // namespace

frmDrucken::frmDrucken(Dialogumgebung &umgebung) : Formular(Tafel, umgebung.Sprache()), umgebung_(umgebung) {}

void frmDrucken::Laden() {
    ExemplareSetzen(1);
    auto &namen = (*this)["cboDrucker"].Einträge;
    namen = umgebung_.drucker.DeviceNames();
    const auto i = std::find(namen.begin(), namen.end(), umgebung_.drucker.DeviceName().value_or(""));
    IndexSetzen("cboDrucker", i == namen.end() ? -1 : static_cast<int>(i - namen.begin()));
}

bool frmDrucken::TasteErlaubt(std::string_view, std::string_view zeichen) const {
    return zeichen.size() == 1 && zeichen[0] >= '0' && zeichen[0] <= '9';
}

void frmDrucken::ExemplareSetzen(int anzahl) {
    TextSetzen("txtCopies", std::to_string(std::clamp(anzahl, 1, HöchstzahlExemplare)));
}

/// Whatever stands in the box, there is one copy at least.
void frmDrucken::Geändert(std::string_view name) {
    if (name != "txtCopies") return;
    const double zahl = std::clamp<double>(ZahlLesen((*this)["txtCopies"].Text), 1, HöchstzahlExemplare);
    exemplare_ = static_cast<int>(zahl);
}

void frmDrucken::Geklickt(std::string_view name) {
    if (name == "cmdDBBildUp") ExemplareSetzen(exemplare_ + 1);
    if (name == "cmdDBBildDown") ExemplareSetzen(exemplare_ - 1);
    if (name == "cmdOK") Bestätigen();
    if (name == "cmdAbbrechen") Schließen();
}

void frmDrucken::Bestätigen() {
    const std::string name = (*this)["cboDrucker"].Text;
    // A printer that has gone meanwhile is none: nothing must come out of one that nobody chose.
    if (Getrimmt(name).empty() || !umgebung_.drucker.Wählen(name)) {
        umgebung_.werkbank.benutzer.Fragen(
            {"Kinwright", std::string(KeinDrucker.In(umgebung_.Sprache())), Knöpfe::Ok, Zeichen::Warnung});
        return;
    }
    int gedruckt = 0;
    while (gedruckt < exemplare_ && umgebung_.dienste.GenogrammDrucken()) ++gedruckt;
    Schließen();
}

} // namespace kw
