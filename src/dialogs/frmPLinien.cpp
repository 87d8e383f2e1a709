#include "dialogs/frmPLinien.h"

#include "dialogs/Bildtext.h"
#include "dialogs/Dialogumgebung.h"
#include "document/Felder.h"
#include "document/Texte.h"
#include "document/saetze/Partnerschaft.h"
#include "editing/Linien.h"
#include "editing/Werkbank.h"
#include "rendering/Ebenen.h"

#include <algorithm>
#include <array>

namespace kw {

namespace {

constexpr Formularzeile Zeilen[] = {
    {"Option1", Art::Option, {"Nicht ehelich", "Unmarried"}},
    {"Label1", Art::Beschriftung, {"seit", "since"}},
    {"txtNichtEhelich", Art::Textfeld},
    {"Option2", Art::Option, {"Verheiratet", "Married"}},
    {"Label2", Art::Beschriftung, {"seit", "since"}},
    {"txtVerheiratet", Art::Textfeld},
    {"Option4", Art::Option, {"Getrennt", "Disconnected"}},
    {"Label3", Art::Beschriftung, {"seit", "since"}},
    {"txtGetrennt", Art::Textfeld},
    {"Option5", Art::Option, {"Geschieden", "Divorced"}},
    {"Label4", Art::Beschriftung, {"seit", "since"}},
    {"txtGeschieden", Art::Textfeld},
    {"Check1", Art::Ankreuzfeld, {"Distanziert", "Distant"}},
    {"Picture1", Art::Bild},
    {"imgLine", Art::Beschriftung, {}, {}, "Picture1"},
    {"imgStatus", Art::Beschriftung, {}, {}, "Picture1"},
    {"lblDatum", Art::Beschriftung, {}, {}, "Picture1"},
    {"Command1", Art::Knopf, {"&OK", "&OK"}},
    {"Command2", Art::Knopf, {"&Abbrechen", "Cancel"}},
};
constexpr Formulartafel Tafel{"frmPLinien", {"Partnerschaft", "Partnership"}, Zeilen, "Command1", "Command2"};

constexpr int FokusVerzögerung = 200; ///< ms; the option's click ends before the focus moves on

// The preview, in cm.
constexpr double Breite = 6;
constexpr double Höhe = 2;
constexpr double Balken = 1.4;
constexpr double Rand = 0.5; ///< of the line on three sides
constexpr double DatumÜberBalken = 0.38;

constexpr std::array<std::string_view, 4> Datumsfelder{"txtNichtEhelich", "txtGetrennt", "txtVerheiratet",
                                                       "txtGeschieden"}; ///< in the record's order

} // namespace

/// One state, in the form's order. Its mark stands left of the date and is `Markenbreite` wide, 0 for none. Drawing
/// begins a date by `Versatz` right of where it would be centred.
struct frmPLinien::Stand {
    std::string_view Option;
    std::string_view Status;
    std::string_view Datumsfeld;
    double Markenbreite;
    double Versatz;
};

// clang-format off
const frmPLinien::Stand frmPLinien::Stände[] = {
    {"Option1", "0", "txtNichtEhelich", 0,    0},
    {"Option2", "2", "txtVerheiratet",  0.38, 0.2},
    {"Option4", "1", "txtGetrennt",     0.3,  0.2},
    {"Option5", "3", "txtGeschieden",   0.4,  0.3},
};
// clang-format on

frmPLinien::frmPLinien(Dialogumgebung &umgebung) : Formular(Tafel, umgebung.Sprache()), umgebung_(umgebung) {
    Steuerelement &datum = (*this)["lblDatum"];
    datum.FontName = "Arial";
    datum.FontSize = 8;
    datum.Top = Balken - DatumÜberBalken;
}

void frmPLinien::Laden() {
    OptionSetzen("Option1"); // a new line has no state yet
    const Satzliste &linien = umgebung_.werkbank.dokument.cboPartnerschaftsLinien;
    const int i = umgebung_.werkbank.lage.PLinieAuswahl;
    if (!Gültig(linien, i)) return;
    const PartnerschaftSatz linie(linien.Satz(i), Lücken::Leer);
    for (const Stand &stand : Stände)
        if (linie.Status() == stand.Status) OptionSetzen(stand.Option);
    WertSetzen("Check1", linie.Distanziert());
    const Felder daten(linie.Daten(), '#');
    for (size_t d = 0; d < Datumsfelder.size(); ++d) TextSetzen(Datumsfelder[d], daten.OderLeer(static_cast<int>(d)));
}

const frmPLinien::Stand &frmPLinien::Gewählt() const {
    return *std::find_if(std::begin(Stände), std::end(Stände),
                         [this](const Stand &stand) { return Finden(stand.Option)->Value; });
}

void frmPLinien::StandZeigen() {
    const Stand &gewählt = Gewählt();
    Steuerelement &bild = (*this)["imgStatus"];
    bild.Visible = gewählt.Markenbreite > 0;
    bild.Width = gewählt.Markenbreite;
    DatumZeigen();
    for (const Stand &stand : Stände) {
        Steuerelement &feld = (*this)[stand.Datumsfeld];
        feld.Enabled = feld.Weiß = &stand == &gewählt;
    }
    ZeitgeberStellen("Timer1", FokusVerzögerung);
}

/// The date in the preview; it and the state's mark are centred as a pair.
void frmPLinien::DatumZeigen() {
    Steuerelement &datum = (*this)["lblDatum"];
    Steuerelement &bild = (*this)["imgStatus"];
    datum.Caption = (*this)[Gewählt().Datumsfeld].Text;
    datum.Width = Bildtextbreite(umgebung_.werkbank.picVorschau, datum);
    bild.Left = Breite / 2 - (bild.Width + datum.Width) / 2;
    datum.Left = bild.Left + bild.Width;
}

void frmPLinien::Zeitgeber(std::string_view name) {
    if (name == "Timer1") FokusGeben(Gewählt().Datumsfeld);
}

bool frmPLinien::TasteErlaubt(std::string_view, std::string_view zeichen) const {
    return zeichen != "#" && zeichen != "_";
}

void frmPLinien::Geändert(std::string_view name) {
    if (name == Gewählt().Datumsfeld) DatumZeigen();
}

void frmPLinien::Geklickt(std::string_view name) {
    if (name == "Command1") return Bestätigen();
    if (name == "Command2") return Schließen();
    if (name != "Check1") StandZeigen();
}

void frmPLinien::Bestätigen() {
    std::string daten = (*this)[Datumsfelder[0]].Text;
    for (size_t d = 1; d < Datumsfelder.size(); ++d) daten += "#" + (*this)[Datumsfelder[d]].Text;
    P_LinieAnpassen(umgebung_.werkbank, (*this)["Check1"].Value ? "1" : "0", Gewählt().Status, Ohne(daten, '_'));
    Schließen();
}

std::pair<double, double> frmPLinien::BildGröße(std::string_view) const { return {Breite, Höhe}; }

/// The line as the page draws it, without a state; then the mark, at its own place.
void frmPLinien::BildZeichnen(std::string_view, Zeichenfläche &f) {
    Werkbank &w = umgebung_.werkbank;
    Dokument muster;
    const double rechts = Breite - Rand;
    PartnerschaftBau linie;
    linie.Nr("001").PersNr1("001").PersNr2("002").BalkenX1(Rand).BalkenX2(rechts).BalkenY(Balken);
    linie.Anschluss1(Rand, Rand).Anschluss2(rechts, Rand).Distanziert((*this)["Check1"].Value ? "1" : "0");
    muster.cboPartnerschaftsLinien.Anhängen(linie.Text());
    f.DrawWidth = 1;
    PartnerschaftslinienZeichnen(f, {muster, w.ansicht, w.auswahl, w.lage, w.legende, umgebung_.uhr}, f.Faktor());
    const Stand &stand = Gewählt();
    if (stand.Markenbreite == 0) return;
    PartnerstandZeichnen(f, stand.Status, "", (*this)["lblDatum"].Left - stand.Versatz, Balken, f.Faktor());
}

} // namespace kw
