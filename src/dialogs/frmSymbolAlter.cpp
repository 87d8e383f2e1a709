#include "dialogs/Dialogumgebung.h"
#include "dialogs/frmSymbol.h"
#include "document/Felder.h"
#include "document/Texte.h"
#include "document/Zahlen.h"
#include "document/saetze/Person.h"
#include "platform/Uhr.h"

// The date of birth and the age: the one that has the focus sets the other.
namespace kw {

namespace {

constexpr int HöchstesAlter = 120;

bool Zwischen(std::string_view zahl, int von, int bis) {
    const int wert = Ganzzahl16(ZahlLesen(zahl));
    return wert >= von && wert <= bis;
}

/// Whether a date in three numbers is one that the form takes for exact; looser than the calendar, which has
/// been asked before.
bool IstMöglich(const Felder &teile) {
    return Zwischen(teile[0], 1, 31) && Zwischen(teile[1], 1, 12) && Zwischen(teile[2], 1800, 3000);
}

} // namespace

void frmSymbol::GeburtsdatumGeändert() {
    if (AktivesDatumsfeld == Feld::Alter) return;
    const std::string &datum = Text("txtGeburtsdatum");
    Das("shpFalsch").Visible = false;
    if (Zeichenzahl(datum) < 4) TextSetzen("txtAlter", "");
    else AlterAnzeigen();
    if (datum.empty()) {
        Das("shpFalsch").Visible = false;
        AlterBeschriften("");
        Das("lblGebDat").Caption.clear();
    }
    const bool zukunft = ZahlLesen(Text("txtAlter")) < -1;
    Das("shpFalsch2").Visible = zukunft;
    if (zukunft) AlterUnbekannt();
}

void frmSymbol::AlterGeändert() {
    if (PersonEingabeGesperrt || AktivesDatumsfeld == Feld::Geburtsdatum) return;
    const double alter = ZahlLesen(Text("txtAlter"));
    const bool bekannt = !Text("txtAlter").empty();
    // The record's own date is exacter than the year that an age tells.
    const bool wieImSatz = bekannt && !alterImSatz_.empty() && alter == ZahlLesen(alterImSatz_);
    const bool zuAlt = !wieImSatz && alter > HöchstesAlter;
    Das("shpFalsch2").Visible = zuAlt;
    if (zuAlt || !bekannt) {
        TextSetzen("txtGeburtsdatum", "");
        return AlterUnbekannt();
    }
    const std::string jahr = std::to_string(umgebung_.uhr.Heute().Jahr - Ganzzahl16(alter));
    TextSetzen("txtGeburtsdatum", wieImSatz ? PersonSatz(satz_, Lücken::Leer).Geburtsdatum() : jahr);
    AlterAnzeigen();
}

void frmSymbol::AlterAnzeigen() {
    if (Getrimmt(Text("txtGeburtsdatum")).empty()) { // the calculation leaves what it had
        alter_.strAlterText.clear();
        alter_.strGebJahrText.clear();
    }
    alter_.AlterAusDatum(Text("txtGeburtsdatum"));
    AlterBeschriften(alter_.strAlterText);
    TextSetzen("txtAlter", alter_.strAlterText);
    Das("lblGebDat").Caption = AlterAusAngabe(Text("txtGeburtsdatum")) ? "" : "* " + alter_.strGebJahrText;
    Das("shpFalsch").Visible = alter_.bDatumUngueltig;
    if (!alter_.bDatumUngueltig) return DatumsgenauigkeitAnzeigen();
    AlterUnbekannt();
    TextSetzen("txtAlter", "");
}

void frmSymbol::DatumsgenauigkeitAnzeigen() {
    Steuerelement &vergleich = Das("imgVergleich");
    vergleich.Caption = "~";
    const Felder teile(Text("txtGeburtsdatum"), '.');
    if (teile.Anzahl() != 3) return; // accepted, but not for exact
    const bool möglich = IstMöglich(teile);
    Das("shpFalsch").Visible = !möglich;
    if (möglich) vergleich.Caption = "=";
}

/// Whether OK has to wait. A refused date is refused once: its box is emptied, and empty it can be stored. Too high an
/// age waits until it is mended.
bool frmSymbol::DatumAblehnen() {
    Steuerelement &falsch = Das("shpFalsch");
    Steuerelement &unmöglich = Das("shpFalsch2");
    const bool datum = !Text("txtGeburtsdatum").empty();
    if (unmöglich.Visible && !datum) return true;
    const bool gerahmt = datum && (falsch.Visible || unmöglich.Visible);
    if (!alter_.bDatumUngueltig && !gerahmt) return false;
    TextSetzen("txtGeburtsdatum", "");
    TextSetzen("txtAlter", "");
    alter_.bDatumUngueltig = unmöglich.Visible = false;
    return falsch.Visible = true; // tells why nothing happens
}

void frmSymbol::AlterBeschriften(std::string_view text) {
    Das("lblAlter").Caption = text;
    Das("imgVergleich").Visible = text != "?";
}

void frmSymbol::AlterUnbekannt() {
    AlterBeschriften("?");
    Das("lblGebDat").Caption.clear();
}

} // namespace kw
