#include "dialogs/frmEinstellungen.h"

#include "dialogs/Dialogumgebung.h"
#include "document/Einstellungsablage.h"
#include "editing/Werkbank.h"
#include "platform/Benutzer.h"

#include <iterator>

namespace kw {

namespace {

constexpr Formularzeile Zeilen[] = {
    {"Label1", Art::Beschriftung, {"Sprache / Language", "Language"}},
    {"Combo1", Art::Liste},
    {"cmdOK", Art::Knopf, {"OK", "OK"}},
    {"cmdAbbrechen", Art::Knopf, {"Abbrechen", "Cancel"}},
};
constexpr Formulartafel Tafel{"frmEinstellungen", {"Einstellungen", "Settings"}, Zeilen, "cmdOK", "cmdAbbrechen"};

/// An entry of the list: a language, in itself.
struct Sprachwahl {
    Sprache Gewählt;
    std::string_view Name;
};
constexpr Sprachwahl Sprachen[] = {{Sprache::Deutsch, "Deutsch"}, {Sprache::Englisch, "English"}};

constexpr Zweisprachig Neustart{"Bitte starten Sie Kinwright neu um die Sprache zu wechseln",
                                "Please restart Kinwright to change the language"};

} // namespace

frmEinstellungen::frmEinstellungen(Dialogumgebung &umgebung, bool ersterStart)
    : Formular(Tafel, umgebung.Sprache()), umgebung_(umgebung), ersterStart_(ersterStart) {
    if (ersterStart) Caption = "Please choose your language ...";
    for (const Sprachwahl &wahl : Sprachen) (*this)["Combo1"].Einträge.emplace_back(wahl.Name);
}

void frmEinstellungen::Laden() {
    const Sprache gewählt = ersterStart_ ? Sprache::Englisch : umgebung_.Sprache();
    for (size_t i = 0; i < std::size(Sprachen); ++i)
        if (Sprachen[i].Gewählt == gewählt) IndexSetzen("Combo1", static_cast<int>(i));
}

void frmEinstellungen::Geklickt(std::string_view name) {
    if (name == "cmdOK") Bestätigen();
    if (name == "cmdAbbrechen") Schließen();
}

void frmEinstellungen::Bestätigen() {
    if (const int i = (*this)["Combo1"].ListIndex; i >= 0) {
        gewählt_ = Sprachen[i].Gewählt;
        umgebung_.ablage.Festhalten("language", std::string(Kürzel(*gewählt_)));
    }
    Schließen();
}

/// The box comes when the form has gone, and speaks the language that was chosen.
void frmEinstellungen::Entladen() {
    if (!gewählt_) return;
    umgebung_.werkbank.benutzer.Fragen(
        {"Kinwright Information", std::string(Neustart.In(*gewählt_)), Knöpfe::Ok, Zeichen::Information});
}

} // namespace kw
