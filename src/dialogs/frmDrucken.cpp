#include "dialogs/frmDrucken.h"

#include "document/Texte.h"
#include "document/Zahlen.h"

#include <algorithm>

namespace kw {

namespace {

constexpr int HöchstzahlExemplare = 32767; ///< the number has 16 bits

} // namespace

frmDrucken::frmDrucken(Dialogumgebung &umgebung) : Formular("frmDrucken", ""), umgebung_(umgebung) {
    const bool deutsch = umgebung.IstDeutsch();
    Caption = deutsch ? "Drucken" : "Print";
    Anlegen("Frame1", Art::Rahmen, deutsch ? "Drucker" : "Printer");
    Anlegen("cboDrucker", Art::Liste);
    Anlegen("Frame2", Art::Rahmen, deutsch ? "Exemplare" : "Copies");
    Anlegen("Label1", Art::Beschriftung, deutsch ? "Anzahl:" : "Number");
    Anlegen("txtCopies", Art::Textfeld);
    Anlegen("cmdDBBildUp", Art::Knopf, "+").Tip = deutsch ? "Ein Exemplar mehr" : "One copy more";
    Anlegen("cmdDBBildDown", Art::Knopf, "−").Tip = deutsch ? "Ein Exemplar weniger" : "One copy less";
    Anlegen("cmdOK", Art::Knopf, "OK");
    Anlegen("cmdAbbrechen", Art::Knopf, deutsch ? "Abbrechen" : "Cancel");
    Vorgabeknopf = "cmdOK";
    Abbruchknopf = "cmdAbbrechen";
}

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
            {"Kinwright", umgebung_.IstDeutsch() ? "Es wurde kein Drucker ausgewählt! " : "No printer was selected! ",
             Knöpfe::Ok, Zeichen::Warnung});
        return;
    }
    int gedruckt = 0;
    while (gedruckt < exemplare_ && umgebung_.dienste.GenogrammDrucken()) ++gedruckt;
    Schließen();
}

} // namespace kw
