#include "dialogs/frmStammbaumExport.h"

#include "dialogs/Dialogumgebung.h"
#include "editing/Werkbank.h"
#include "platform/Befehlsnamen.h"

namespace kw {

namespace {

constexpr Formularzeile Zeilen[] = {
    {"Frame1", Art::Rahmen, {"Format", "Format"}},
    {"Option1", Art::Option, {"GEDCOM &7.0", "GEDCOM &7.0"}},
    {"Option2", Art::Option, {"GEDCOM &5.5.1, für ältere Programme", "GEDCOM &5.5.1, for older programs"}},
    {"chkGesundheit",
     Art::Ankreuzfeld,
     {"Kennzeichen von &Sucht und Erkrankung gehen mit", "&Marks of addiction and illness go along"},
     {"Angaben zur Gesundheit gehen sonst nie mit", "Otherwise facts of health never go along"}},
    {"chkBeziehungen", Art::Ankreuzfeld, {"&Beziehungslinien gehen mit", "&Relationship lines go along"}},
    {"lblPersonen", Art::Beschriftung},
    {"lblVerluste", Art::Beschriftung, {"&Was nicht oder anders mitgeht:", "&What can't go along, or not as it is:"}},
    {"lstVerluste", Art::Listenfeld},
    {"cmdOK", Art::Knopf, {"OK", "OK"}},
    {"cmdAbbrechen", Art::Knopf, {"Abbrechen", "Cancel"}},
};
constexpr Formulartafel Tafel{
    Name::frmStammbaumExport.Text, {"Stammbaum exportieren", "Export Family Tree"}, Zeilen, "cmdOK", "cmdAbbrechen"};

constexpr Zweisprachig EinePerson{"1 Person geht mit, ", "1 person goes along, "};
constexpr Zweisprachig Personen{" Personen gehen mit, ", " persons go along, "};
constexpr Zweisprachig OhneOrt{"ihr Ort auf der Seite nicht.", "their places on the page don't."};
constexpr Zweisprachig Nichts{"nichts", "nothing"};

} // namespace

frmStammbaumExport::frmStammbaumExport(Dialogumgebung &umgebung)
    : Formular(Tafel, umgebung.Sprache()), umgebung_(umgebung) {}

void frmStammbaumExport::Laden() {
    OptionSetzen("Option1");
    Zeigen();
}

Übergabewünsche frmStammbaumExport::Wünsche() const {
    const auto fassung = Finden("Option2")->Value ? Stammbaumfassung::Gedcom551 : Stammbaumfassung::Gedcom70;
    return {fassung, Finden("chkGesundheit")->Value, Finden("chkBeziehungen")->Value};
}

void frmStammbaumExport::Zeigen() {
    const Sprache sprache = umgebung_.Sprache();
    stammbaum_ = Übergeben(umgebung_.werkbank.dokument, umgebung_.uhr, Wünsche());
    const auto personen = stammbaum_.Personen == 1
                              ? std::string(EinePerson.In(sprache))
                              : std::to_string(stammbaum_.Personen) + std::string(Personen.In(sprache));
    (*this)["lblPersonen"].Caption = personen + std::string(OhneOrt.In(sprache));
    auto &liste = (*this)["lstVerluste"];
    liste.Einträge = Berichtszeilen(stammbaum_.Bericht, sprache);
    if (liste.Einträge.empty()) liste.Einträge.emplace_back(Nichts.In(sprache));
    liste.ListIndex = 0;
    liste.Text = liste.Einträge.front();
}

void frmStammbaumExport::Geklickt(std::string_view name) {
    if (name == "cmdAbbrechen") return Schließen();
    if (name != "cmdOK") return name == "lstVerluste" ? void() : Zeigen();
    if (umgebung_.dienste.StammbaumSpeichern(stammbaum_.Text)) Schließen();
}

} // namespace kw
