#include "dialogs/frmSymbol.h"

#include "dialogs/Dialogumgebung.h"
#include "dialogs/Personenbild.h"
#include "document/Nachschlagen.h"
#include "document/Texte.h"
#include "document/saetze/Person.h"
#include "editing/Abwahl.h"
#include "editing/Gruppe.h"
#include "editing/Marker.h"
#include "editing/Werkbank.h"

#include <algorithm>
#include <array>

namespace kw {

namespace {

constexpr int ErsterKleiner = 5; ///< list position; kinds from here on are small and have no properties

/// The list of kinds, in its order, which isn't that of the numbers.
struct Symboltyp {
    int Kennzahl;
    Zweisprachig Name;
};
constexpr std::array<Symboltyp, 10> Symboltypen{{
    {1, {"Männlich", "Male"}},
    {2, {"Weiblich", "Female"}},
    {10, {"Transgender - weiblich zu männlich", "Transgender - Female to Male"}},
    {11, {"Transgender - männlich zu weiblich", "Transgender - Male to Female"}},
    {12, {"Divers", "Gender Nonconforming"}},
    {3, {"Schwangerschaft", "Pregnancy"}},
    {4, {"Fehlgeburt", "Miscarriage"}},
    {5, {"Totgeburt männlich", "Stillbirth Male"}},
    {6, {"Totgeburt weiblich", "Stillbirth Female"}},
    {7, {"Abtreibung", "Abortion"}},
}};

// What the frames say. Each of the dates is read whatever order of day and month the locale has.
constexpr Zweisprachig LesbareDaten{"Lesbar sind zum Beispiel 31.12.1975, 31-12-1975, 31/12/1975\n"
                                    "oder nur das Jahr, 1975: von 1800 bis zum nächsten Jahr.\n"
                                    "Ist nichts bekannt, bleibt das Feld leer.",
                                    "Dates that can be read are, for example, 31.12.1975,\n"
                                    "31-12-1975, 31/12/1975 or the year alone, 1975:\n"
                                    "from 1800 to next year. When nothing is known, the field stays empty."};
constexpr Zweisprachig MöglicheAlter{"Höchstens 120 Jahre, und geboren spätestens im nächsten Jahr",
                                     "120 years at most, and born next year at the latest"};

constexpr Formularzeile Zeilen[] = {
    {"Label1", Art::Beschriftung, {"Vorname", "First Name"}},
    {"txtVorname", Art::Textfeld},
    {"Label2", Art::Beschriftung, {"Nachname", "Family Name"}},
    {"txtNachname", Art::Textfeld},
    {"Label3", Art::Beschriftung, {"Symboltyp", "Icon Type"}},
    {"cboSymbol", Art::Liste},
    {"Label4", Art::Beschriftung, {"Geboren", "Born"}},
    {"txtGeburtsdatum", Art::Textfeld},
    {"shpFalsch", Art::Warnrahmen, {}, LesbareDaten, "txtGeburtsdatum"},
    {"Label6", Art::Beschriftung, {"Aktuelles Alter", "Current Age"}},
    {"imgVergleich", Art::Beschriftung},
    {"txtAlter", Art::Textfeld},
    {"shpFalsch2", Art::Warnrahmen, {}, MöglicheAlter, "txtAlter"},
    {"chkVerstorben", Art::Ankreuzfeld, {"verstorben", "Deceased"}},
    {"Label5", Art::Beschriftung, {"Gestorben", "Died"}},
    {"txtSterbealter", Art::Textfeld},
    {"chkIndexPerson", Art::Ankreuzfeld, {"Indexperson", "Index Person"}},
    {"chkSucht", Art::Ankreuzfeld, {"Alkohol- oder Drogensucht", "Alcohol or Drug Addiction"}},
    {"chkErkrankung", Art::Ankreuzfeld, {"Körperliche oder psychische Erkrankung", "Physical or Mental Illness"}},
    {"Label8", Art::Beschriftung, {"Institution / Einrichtung / Behörde etc.", "Institution / Facility / Authority"}},
    {"txtInstitution", Art::Textfeld},
    {"Label9", Art::Beschriftung, {"Institution / Einrichtung / Behörde etc.", "Institution / Facility / Authority"}},
    {"Label7", Art::Beschriftung, {"Vorschau", "Preview"}},
    {"picBack", Art::Bild},
    {"lblVorname", Art::Beschriftung, {}, {}, "picBack"},
    {"lblNachname", Art::Beschriftung, {}, {}, "picBack"},
    {"lblAlter", Art::Beschriftung, {}, {}, "picBack"},
    {"lblGebDat", Art::Beschriftung, {}, {}, "picBack"},
    {"lblGestorben", Art::Beschriftung, {}, {}, "picBack"},
    {"picBack2", Art::Bild},
    {"lblInstitution", Art::Beschriftung, {}, {}, "picBack2"},
    {"cmdOK", Art::Knopf, {"OK", "OK"}},
    {"CancelButton", Art::Knopf, {"Abbrechen", "Cancel"}},
    {"cmdLöschen", Art::Knopf, {"Löschen", "Delete"}},
};
constexpr Formulartafel Tafel{
    "frmSymbol", {"Person > Eigenschaften", "Person > Characteristics"}, Zeilen, "cmdOK", "CancelButton"};

// The form has two faces. What stands in neither list belongs to a person's.
constexpr std::string_view NurInstitution[] = {"Label8", "txtInstitution", "Label9", "picBack2", "lblInstitution"};
constexpr std::string_view AufBeiden[] = {"Label7", "cmdOK", "CancelButton", "cmdLöschen"};

/// What is open for living kinds only.
constexpr std::string_view Eigenschaften[] = {"chkIndexPerson",  "chkErkrankung", "chkSucht",
                                              "chkVerstorben",   "txtVorname",    "txtNachname",
                                              "txtGeburtsdatum", "txtAlter",      "txtSterbealter"};

/// The labels of the pictures. Names are as bold as on the page.
struct Bildtext {
    std::string_view Name;
    double Punkt;
    bool Fett;
};
constexpr Bildtext Bildtexte[] = {
    {"lblVorname", 8, true}, {"lblNachname", 8, true},   {"lblAlter", 11, false},
    {"lblGebDat", 8, false}, {"lblGestorben", 8, false}, {"lblInstitution", 8, true},
};

constexpr std::string_view Namensfelder[] = {"txtVorname", "txtNachname", "txtInstitution"};

struct Tastenfilter {
    std::string_view Feld;
    std::string_view Erlaubt;
};
constexpr Tastenfilter Ziffernfelder[] = {
    {"txtGeburtsdatum", "0123456789.-/"},
    {"txtAlter", "0123456789"},
    {"txtSterbealter", "0123456789."},
};

int ListenplatzVon(int kennzahl) {
    const auto i = std::find_if(Symboltypen.begin(), Symboltypen.end(),
                                [&](const Symboltyp &typ) { return typ.Kennzahl == kennzahl; });
    return i == Symboltypen.end() ? -1 : static_cast<int>(i - Symboltypen.begin());
}

template <typename Liste> bool Enthält(const Liste &namen, std::string_view name) {
    return std::find(std::begin(namen), std::end(namen), name) != std::end(namen);
}

} // namespace

frmSymbol::frmSymbol(Dialogumgebung &umgebung)
    : Formular(Tafel, umgebung.Sprache()), umgebung_(umgebung), alter_(umgebung.uhr) {
    for (const Symboltyp &typ : Symboltypen) Das("cboSymbol").Einträge.emplace_back(typ.Name.In(umgebung.Sprache()));
    for (const Bildtext &text : Bildtexte) {
        Steuerelement &label = Das(text.Name);
        label.Width = frmSymbol::BildGröße(label.Bei).first;
        label.Alignment = 2;
        label.FontName = "Arial";
        label.FontSize = text.Punkt;
        label.FontBold = text.Fett;
    }
    Das("lblInstitution").Top = InstitutionZeile();
}

void frmSymbol::Laden() {
    const Leinwandlage &lage = umgebung_.werkbank.lage;
    const Satzliste &personen = umgebung_.werkbank.dokument.cboPersonen;
    satz_ = lage.PersRecord;
    position_ = lage.PersAuswahl - 1;
    // The record may have been rewritten since the person was selected: by a link, or by this form.
    const bool dieselbe = Gültig(personen, position_) && Nummer(personen.Satz(position_)) == Nummer(satz_);
    if (dieselbe) satz_ = personen.Satz(position_);
    typ_ = SymbolKennzahl(PersonSatz(satz_, Lücken::Leer).Symboltyp());
    institution_ = typ_ == TypInstitution;
    GesichtZeigen();
    ZeitgeberStellen("Timer2", 100);
    if (institution_) {
        TextSetzen("txtInstitution", PersonSatz(satz_, Lücken::Leer).Vorname());
        return;
    }
    PersonLaden();
    ZeitgeberStellen("Timer1", 60);
    AlterAnzeigen();
    if (!alter_.bDatumUngueltig) alterImSatz_ = alter_.strAlterText;
}

void frmSymbol::GesichtZeigen() {
    for (const auto &name : Reihenfolge())
        Das(name).Visible = Enthält(AufBeiden, name) || Enthält(NurInstitution, name) == institution_;
    // Label9 says the same as Label8: one of them is seen.
    for (const char *name : {"shpFalsch", "shpFalsch2", "Label5", "Label9", "lblGestorben"}) Das(name).Visible = false;
    if (!institution_) BildOrdnen();
}

void frmSymbol::PersonLaden() {
    const PersonSatz person(satz_, Lücken::Leer);
    TextSetzen("txtVorname", person.Vorname());
    TextSetzen("txtNachname", person.Nachname());
    TextSetzen("txtGeburtsdatum", person.Geburtsdatum());
    WertSetzen("chkIndexPerson", person.IndexPerson() == "1");
    WertSetzen("chkVerstorben", person.Verstorben());
    TextSetzen("txtSterbealter", Ohne(person.Sterbealter(), '$'));
    WertSetzen("chkSucht", person.Sucht());
    WertSetzen("chkErkrankung", person.Erkrankung());
    SterbealterÖffnen();
}

void frmSymbol::Entladen() {
    MarkierungsListBoxenLöschen(umgebung_.werkbank.auswahl, umgebung_.werkbank.lage);
    KeineAktion(umgebung_.werkbank);
    umgebung_.werkbank.lage.Angebot.Löschen = false;
}

void frmSymbol::Zeitgeber(std::string_view name) {
    if (name == "Timer1") IndexSetzen("cboSymbol", ListenplatzVon(typ_));
    if (name == "Timer2") {
        PersonEingabeGesperrt = false;
        // An old record with a refused date opens without a frame.
        Das("shpFalsch").Visible = Das("shpFalsch2").Visible = false;
        if (institution_) ZeitgeberStellen("Timer4", 300);
    }
    if (name == "Timer3") {
        TextSetzen("txtGeburtsdatum", "");
        TextSetzen("txtAlter", "");
        Das("shpFalsch").Visible = Das("shpFalsch2").Visible = false; // nothing is left that they could stand for
    }
    if (name == "Timer4") FokusGeben("txtInstitution");
}

// What the user does.

bool frmSymbol::TasteErlaubt(std::string_view name, std::string_view zeichen) const {
    if (Enthält(Namensfelder, name)) return zeichen != "_"; // it parts the fields of the record
    for (const Tastenfilter &filter : Ziffernfelder)
        if (filter.Feld == name) return filter.Erlaubt.find(zeichen) != std::string_view::npos;
    return true;
}

void frmSymbol::Geändert(std::string_view name) {
    if (name == "txtVorname") Das("lblVorname").Caption = Text(name);
    if (name == "txtNachname") Das("lblNachname").Caption = Text(name);
    if (name == "txtInstitution") Das("lblInstitution").Caption = Das("lblVorname").Caption = Text(name);
    if (name == "txtSterbealter") SterbealterGeändert();
    if (name == "txtGeburtsdatum") GeburtsdatumGeändert();
    if (name == "txtAlter") AlterGeändert();
}

void frmSymbol::Geklickt(std::string_view name) {
    if (name == "cmdOK") return Übernehmen();
    if (name == "CancelButton") return Schließen();
    if (name == "cmdLöschen") return Löschen();
    if (name == "cboSymbol") return TypGewählt();
    if (name == "chkVerstorben") return VerstorbenGewählt();
    if (name.starts_with("chk")) BildOrdnen();
}

void frmSymbol::MausGedrückt(std::string_view name) {
    const bool datum = name == "txtGeburtsdatum" || name == "txtAlter";
    if (datum && Getrimmt(Text(name)).empty()) ZeitgeberStellen("Timer3", 60); // a box of stray blanks cleans itself
}

void frmSymbol::Fokussiert(std::string_view name) {
    if (name == "txtGeburtsdatum") AktivesDatumsfeld = Feld::Geburtsdatum;
    if (name == "txtAlter") AktivesDatumsfeld = Feld::Alter;
}

void frmSymbol::FokusVerloren(std::string_view name) {
    if (name == "txtAlter" && Text(name).empty()) AlterUnbekannt();
}

/// Small kinds keep the values of their boxes, and OK writes them.
void frmSymbol::TypGewählt() {
    BildOrdnen();
    const bool offen = !IstKlein();
    for (const auto name : Eigenschaften) Das(name).Enabled = Das(name).Weiß = offen;
    SterbealterÖffnen();
    Das("lblVorname").Visible = Das("lblNachname").Visible = offen;
    if (!offen)
        for (const char *name : {"lblAlter", "lblGebDat", "lblGestorben"}) Das(name).Visible = false;
    if (!Getrimmt(Text("txtGeburtsdatum")).empty()) return;
    AlterBeschriften("");
    Das("lblGebDat").Caption.clear();
}

void frmSymbol::VerstorbenGewählt() {
    SterbealterÖffnen();
    BildOrdnen();
}

/// The box is open exactly while the tick is set, for those who have been born; its text stays when the tick goes.
void frmSymbol::SterbealterÖffnen() {
    const bool offen = Das("chkVerstorben").Value && !IstKlein();
    Das("txtSterbealter").Enabled = Das("txtSterbealter").Weiß = offen;
    Das("Label5").Visible = offen;
}

void frmSymbol::SterbealterGeändert() {
    const std::string &text = Text("txtSterbealter");
    Steuerelement &label = Das("lblGestorben");
    label.Visible = !Getrimmt(text).empty();
    label.Caption =
        label.Visible ? "+ " + text + (Zeichenzahl(text) == 2 ? "    " : "") : ""; // keeps two digits aligned
}

// The preview.

/// Puts the labels in their places; the picture itself is drawn whenever it is shown.
void frmSymbol::BildOrdnen() {
    const bool verstorben = Das("chkVerstorben").Value;
    const Bildzeilen zeilen = BildzeilenFür(umgebung_.werkbank.ansicht.Altersanzeige, verstorben);
    Das("lblVorname").Top = zeilen.Vorname;
    Das("lblNachname").Top = zeilen.Nachname;
    Das("lblGestorben").Top = zeilen.Gestorben;
    Das("lblGestorben").Visible = verstorben;
    for (const auto &[name, oben] : {std::pair{"lblAlter", zeilen.Alter}, std::pair{"lblGebDat", zeilen.GebDat}}) {
        Das(name).Visible = oben != Bildzeilen::Nirgends;
        Das(name).Top = oben;
    }
}

std::pair<double, double> frmSymbol::BildGröße(std::string_view name) const {
    return name == "picBack2" ? InstitutionsbildGröße() : PersonenbildGröße();
}

void frmSymbol::BildZeichnen(std::string_view name, Zeichenfläche &fläche) {
    if (name == "picBack2") return InstitutionsbildZeichnen(fläche);
    const Marken marken{Ja("chkIndexPerson"), Das("chkVerstorben").Value, Das("chkSucht").Value,
                        Das("chkErkrankung").Value};
    PersonenbildZeichnen(fläche, Symbolkennzahl(), marken, umgebung_.werkbank.ansicht.Farbschema);
}

/// By the list, and as opened until the list shows it.
bool frmSymbol::IstKlein() {
    const int index = Das("cboSymbol").ListIndex;
    return (index < 0 ? ListenplatzVon(typ_) : index) >= ErsterKleiner;
}

int frmSymbol::Symbolkennzahl() {
    const int index = Das("cboSymbol").ListIndex;
    return index < 0 ? 0 : Symboltypen[static_cast<size_t>(index)].Kennzahl;
}

// The ends.

void frmSymbol::Übernehmen() {
    if (Text("txtAlter").empty()) { // an age removed by hand removes the date, and what was wrong with it
        TextSetzen("txtGeburtsdatum", "");
        Das("shpFalsch").Visible = false;
    }
    if (DatumAblehnen()) return;
    Werkbank &w = umgebung_.werkbank;
    Satzliste &personen = w.dokument.cboPersonen;
    if (Gültig(personen, position_)) {
        personen.Ersetzen(position_, NeuerSatz());
        w.fenster.Sichern();
        w.fenster.Vorschau();
    }
    Schließen();
}

std::string frmSymbol::NeuerSatz() {
    PersonBau person(satz_);
    person.Groesse(person.Stand().Groesse());
    if (institution_) return person.Institution(Ohne(Text("txtInstitution"), '_')).Text();
    const int kennzahl = Symbolkennzahl(); // none while the list is empty: kind and size stay
    if (kennzahl != 0) person.Symboltyp(kennzahl);
    if (kennzahl != 0 && kennzahl != typ_)
        person.Groesse(Das("cboSymbol").ListIndex < ErsterKleiner ? GrößeNormal : GrößeKlein);
    // The mark is the tick's alone, however it came into the box.
    const std::string sterbealter(Getrimmt(Ohne(Ohne(Text("txtSterbealter"), '_'), '$')));
    person.IndexPerson(Ja("chkIndexPerson")).Sterbealter((Das("chkVerstorben").Value ? "$" : "") + sterbealter);
    person.Sucht(Ja("chkSucht")).Erkrankung(Ja("chkErkrankung"));
    person.Vorname(Ohne(Text("txtVorname"), '_')).Nachname(Ohne(Text("txtNachname"), '_'));
    return person.Geburtsdatum(Ohne(Text("txtGeburtsdatum"), '_')).Text();
}

/// The snapshot comes before, so that it holds the person whatever the deletion itself keeps.
void frmSymbol::Löschen() {
    Werkbank &w = umgebung_.werkbank;
    w.fenster.Sichern();
    w.lage.Aktion = Aktion::Nichts; // no group: the deletion takes its own snapshot behind it
    mnuSymbolLöschen(w);
    KeineAktion(w);
    Schließen();
}

} // namespace kw
