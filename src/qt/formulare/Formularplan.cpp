#include "qt/formulare/Formularplan.h"

#include "dialogs/Formular.h"

#include <algorithm>
#include <iterator>

namespace kw {

namespace {

constexpr int Abstand = Formularabstand;
constexpr int Knopflücke = 2;

constexpr Baustein Feld(std::string_view name) { return {Bau::Feld, name}; }
constexpr Baustein Schild(std::string_view name, std::string_view box) { return Feld(name).Mit(&Baustein::Box, box); }
constexpr Baustein Spalte(int maß = -1) { return {Bau::Spalte, {}, maß}; }
constexpr Baustein Reihe(int maß = -1) { return {Bau::Reihe, {}, maß}; }
constexpr Baustein Lücke(int maß) { return {Bau::Lücke, {}, maß}; }
constexpr Baustein Spaltendehnung(int spalte, int anteil) {
    return Baustein{Bau::Spaltendehnung}.An(0, spalte).Gedehnt(anteil);
}
constexpr Baustein Zeilendehnung(int zeile) { return Baustein{Bau::Zeilendehnung}.An(zeile, 0).Gedehnt(); }
constexpr Baustein Tafel{Bau::Tafel};
constexpr Baustein Rest{Bau::Rest};
constexpr Baustein Ende{Bau::Ende};

constexpr Baustein Person[] = {
    Reihe(Abstand),
    Tafel.Gedehnt(),
    Schild("Label1", "txtVorname").An(0, 0).Platzhaltend(),
    Feld("txtVorname").An(0, 1, 1, 4),
    Schild("Label2", "txtNachname").An(1, 0).Platzhaltend(),
    Feld("txtNachname").An(1, 1, 1, 4),
    Schild("Label3", "cboSymbol").An(2, 0).Platzhaltend(),
    Feld("cboSymbol").An(2, 1, 1, 4),
    Schild("Label4", "txtGeburtsdatum").An(3, 0).Platzhaltend(),
    Feld("txtGeburtsdatum").An(3, 1).Mindestens(14),
    Feld("imgVergleich").An(3, 2).Mindestens(2).Platzhaltend().InDerMitte(), // date and age: exact or about
    Schild("Label6", "txtAlter").An(3, 3).Platzhaltend(),
    Feld("txtAlter").An(3, 4).Mindestens(8),
    Feld("chkVerstorben").An(4, 1),
    Schild("Label5", "txtSterbealter").An(4, 3).Platzhaltend(),
    Feld("txtSterbealter").An(4, 4).Mindestens(8),
    Feld("chkIndexPerson").An(5, 1, 1, 4),
    Feld("chkSucht").An(6, 1, 1, 4),
    Feld("chkErkrankung").An(7, 1, 1, 4),
    Spaltendehnung(1, 2),
    Spaltendehnung(4, 1),
    Zeilendehnung(8),
    Ende,
    Spalte(Zeilenabstand / 2),
    Schild("Label7", "picBack"),
    Feld("picBack"),
    Rest,
};

constexpr Baustein Institution[] = {
    Reihe(Abstand),
    Tafel.Gedehnt(),
    Schild("Label8", "txtInstitution").An(0, 0),
    Feld("txtInstitution").An(1, 0).Mindestens(40),
    Zeilendehnung(2),
    Ende,
    Spalte(Zeilenabstand / 2),
    Schild("Label7", "picBack2"),
    Feld("picBack2"),
    Rest,
};

// The labels in front of the dates all read alike.
constexpr Baustein Partnerschaft[] = {
    Tafel,
    Feld("Option1").An(0, 0),
    Schild("Label1", "txtNichtEhelich").An(0, 1),
    Feld("txtNichtEhelich").An(0, 2).Mindestens(18).ErklärtVon("Option1"),
    Feld("Option2").An(1, 0),
    Schild("Label2", "txtVerheiratet").An(1, 1),
    Feld("txtVerheiratet").An(1, 2).Mindestens(18).ErklärtVon("Option2"),
    Feld("Option4").An(2, 0),
    Schild("Label3", "txtGetrennt").An(2, 1),
    Feld("txtGetrennt").An(2, 2).Mindestens(18).ErklärtVon("Option4"),
    Feld("Option5").An(3, 0),
    Schild("Label4", "txtGeschieden").An(3, 1),
    Feld("txtGeschieden").An(3, 2).Mindestens(18).ErklärtVon("Option5"),
    Spaltendehnung(2, 1),
    Ende,
    Feld("Check1"),
    Feld("Picture1").InDerMitte(),
};

// Plain kinds on the left, those with a conflict on the right. The last caption's second line stands close below its
// first.
constexpr Baustein Beziehung[] = {
    Tafel,
    Feld("optNormal").An(0, 0),
    Feld("optEng").An(1, 0),
    Feld("optVerschmolzen").An(2, 0),
    Feld("optDistanziert").An(3, 0),
    Feld("optAbbruch").An(4, 0),
    Feld("optKonflikthaft").An(0, 1),
    Feld("optEng_Konflikt").An(1, 1),
    Spalte(0).An(2, 1, 3, 1),
    Feld("optVerschm_Konflikthaft").ErklärtVon("Label1"),
    Feld("Label1").UnterOption(),
    Rest,
    Ende,
    Ende,
    Feld("Picture1").InDerMitte(),
};

constexpr Baustein Kommentar[] = {
    Reihe(),
    Schild("lblSchriftart", "cboSchriftart"),
    Feld("cboSchriftart").Gedehnt(),
    Lücke(Abstand / 2),
    Schild("lblFontSize", "cboFontSize"),
    Feld("cboFontSize"),
    Ende,
    Reihe(),
    Reihe(Knopflücke),
    Feld("btnSchriftgr_e(0)").InSchriftgrad(0.75),
    Feld("btnSchriftgr_e(1)"),
    Feld("btnSchriftgr_e(2)").InSchriftgrad(1.3),
    Ende,
    Lücke(Abstand / 2),
    Reihe(Knopflücke),
    Feld("imgColor"),
    Feld("lblColor"),
    Ende,
    Lücke(Abstand / 2),
    Reihe(Knopflücke),
    Feld("btnStyle(0)"),
    Feld("btnStyle(1)"),
    Feld("btnStyle(2)"),
    Ende,
    Lücke(Abstand / 2),
    Reihe(Knopflücke),
    Feld("btnLeft"),
    Feld("btnMid"),
    Feld("btnRight"),
    Ende,
    Lücke(Abstand / 2),
    Rest,
    Feld("cmdEigenschaften"),
    Ende,
    Feld("Text1").Mindestens(48, 6).Gedehnt(),
};

// Samples are as large as they will be; whoever takes a huge size scrolls.
constexpr Baustein Schrift[] = {
    Tafel,
    Schild("lblSchriftart", "cboSchriftart").An(0, 0),
    Feld("cboSchriftart").An(0, 1),
    Schild("lblFontsize1", "cboFontsize1").An(1, 0),
    Feld("cboFontsize1").An(1, 1).Höchstens(14),
    Schild("lblFontsize2", "cboFontsize2").An(2, 0),
    Feld("cboFontsize2").An(2, 1).Höchstens(14),
    Schild("lblFontsize3", "cboFontsize3").An(3, 0),
    Feld("cboFontsize3").An(3, 1).Höchstens(14),
    Spaltendehnung(1, 1),
    Ende,
    Baustein{Bau::Blatt}.Mindestens(50, 8).Gedehnt(),
    Feld("lblBeispiel1"),
    Feld("lblBeispiel2"),
    Feld("lblBeispiel3"),
    Rest,
};

constexpr Baustein Altersangabe[] = {
    Feld("lblHinweis").AlsAbsatz(44),
    Reihe(),
    Spalte().Gedehnt(),
    Feld("optAltersanzeige(0)"),
    Feld("optAltersanzeige(1)"),
    Feld("optAltersanzeige(2)"),
    Rest,
    Ende,
    Spalte(Zeilenabstand / 2),
    Schild("lblVorschau", "picAltersanzeige"),
    Feld("picAltersanzeige"),
    Rest,
};

constexpr Baustein Legende[] = {
    Feld("chkLegendeAnzeigen"),          Feld("chkAlleSymbole"), Reihe(), Feld("optHoch"), Feld("optQuer"), Rest, Ende,
    Feld("imgAusrichtung").InDerMitte(),
};

constexpr Baustein Drucken[] = {
    {Bau::Rahmenspalte, "Frame1"},
    Feld("cboDrucker").Mindestens(40),
    Ende,
    {Bau::Rahmenreihe, "Frame2"},
    Schild("Label1", "txtCopies"),
    Feld("txtCopies").Höchstens(10),
    Feld("cmdDBBildUp"),
    Feld("cmdDBBildDown"),
    Rest,
};

constexpr Baustein Seite[] = {
    {Bau::Rahmenspalte, "Frame1"},
    Feld("cboPapierformat").Mindestens(30),
    Ende,
    {Bau::Rahmenreihe, "Frame2"},
    Feld("Option1"),
    Feld("Option2"),
    Rest,
    Ende,
    Feld("Check1"),
};

constexpr Baustein Spracheinstellung[] = {
    Reihe(),
    Schild("Label1", "Combo1"),
    Feld("Combo1").Mindestens(20).Gedehnt(),
};

constexpr Baustein Info[] = {
    Feld("lblName"),
    Feld("lblVersion"),
    Lücke(Abstand / 2),
    Feld("lblBeschreibung").AlsAbsatz(44),
};

constexpr Baustein Fassungen[] = {
    Feld("lblErklärung").AlsAbsatz(60),
    Reihe(Abstand),
    Feld("lstFassungen").Mindestens(50, 10).Gedehnt(),
    Feld("picSeite"),
    Ende,
    Feld("lblOrt").AlsAbsatz(60),
};

constexpr Baustein Stammbaumexport[] = {
    {Bau::Rahmenspalte, "Frame1"},
    Feld("Option1"),
    Feld("Option2"),
    Ende,
    Spalte(),
    Feld("chkGesundheit"),
    Feld("chkBeziehungen"),
    Ende,
    Feld("lblPersonen"),
    Spalte(Zeilenabstand / 2).Gedehnt(),
    Schild("lblVerluste", "lstVerluste"),
    Feld("lstVerluste").Mindestens(52, 8).Gedehnt(),
};

constexpr Baustein OhneNamen[] = {
    Feld("lblErklärung").AlsAbsatz(60),
    Feld("lblGeburt"),
    Feld("optAlter"),
    Feld("optJahr"),
    Feld("lblFehlt").AlsAbsatz(60),
    Feld("picSeite").InDerMitte(),
};

// Whom to take on the left, what comes of it on the right.
constexpr Baustein Stammbaum[] = {
    Reihe(Abstand),
    Spalte().Gedehnt(),
    Reihe(),
    Schild("lblPerson", "txtSuche"),
    Feld("txtSuche").Mindestens(16).Gedehnt(),
    Feld("lblTreffer"),
    Ende,
    Feld("lstPersonen").Mindestens(40, 4).Gedehnt(),
    Reihe(),
    Schild("lblHinauf", "cboHinauf"),
    Feld("cboHinauf"),
    Lücke(Abstand / 2),
    Schild("lblHinunter", "cboHinunter"),
    Feld("cboHinunter"),
    Rest,
    Ende,
    Tafel,
    Feld("chkGeschwister").An(0, 0),
    Feld("chkNeffen").An(0, 1),
    Feld("chkTanten").An(1, 0),
    Feld("chkCousins").An(1, 1),
    Feld("chkPartner").An(2, 0),
    Feld("chkKleiner").An(2, 1),
    Spaltendehnung(1, 1),
    Ende,
    Ende,
    Spalte(),
    Feld("picSeite"),
    Rest,
    Ende,
    Ende,
    Feld("lblErgebnis").AlsAbsatz(80),
    Feld("cmdWeg(1)"),
    Feld("cmdWeg(2)"),
    {Bau::Rahmenspalte, "Frame1"},
    Tafel,
    Schild("lblHeirat", "cboHeirat").An(0, 0),
    Feld("cboHeirat").An(0, 1).Mindestens(22),
    Schild("lblGeschlecht", "cboGeschlecht").An(0, 2),
    Feld("cboGeschlecht").An(0, 3).Mindestens(22),
    Schild("lblZwillinge", "cboZwillinge").An(1, 0),
    Feld("cboZwillinge").An(1, 1).Mindestens(22),
    Schild("lblEltern", "cboEltern").An(1, 2),
    Feld("cboEltern").An(1, 3).Mindestens(22),
    Spaltendehnung(1, 1),
    Spaltendehnung(3, 1),
    Ende,
    Ende,
    Feld("lblBericht"),
};

constexpr Baustein Stammbaumbericht[] = {
    Feld("lblDatei"),
    Feld("lstBericht").Mindestens(90, 18).Gedehnt(),
};

constexpr Formularplan Pläne[] = {
    {"frmSymbol", Person, false, "picBack"},
    {"frmSymbol", Institution, false, "picBack2"},
    {"frmPLinien", Partnerschaft},
    {"frmBezLinien", Beziehung},
    {"frmKommentar", Kommentar, true},
    {"frmSchrift", Schrift, true},
    {"frmSymbGlobal", Altersangabe},
    {"frmLegende", Legende},
    {"frmDrucken", Drucken},
    {"frmSeiteEinrichten", Seite},
    {"frmEinstellungen", Spracheinstellung},
    {"frmInfo", Info},
    {"frmFassungen", Fassungen, true},
    {"frmStammbaumExport", Stammbaumexport, true},
    {"frmOhneNamen", OhneNamen},
    {"frmStammbaum", Stammbaum, true},
    {"frmStammbaumbericht", Stammbaumbericht, true},
};

} // namespace

const Formularplan *PlanFür(const Formular &form) {
    const auto *plan = std::find_if(std::begin(Pläne), std::end(Pläne), [&](const Formularplan &p) {
        return p.Form == form.Name() && (p.Gesicht.empty() || form.Finden(p.Gesicht)->Visible);
    });
    return plan == std::end(Pläne) ? nullptr : plan;
}

} // namespace kw
