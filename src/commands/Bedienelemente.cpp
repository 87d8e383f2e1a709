#include "commands/Bedienelemente.h"

namespace kw {

namespace {

struct Zeile {
    const char *Name;
    const char *Deutsch;
    const char *Englisch;
    bool Enabled = true;
    bool Visible = true;
};

constexpr Zeile Tabelle[] = {
    {"mnuDatei", "Datei", "File"},
    {"mnuÖffnen", "&Öffnen...", "Open..."},
    {"mnuSpeichern", "&Speichern", "Save"},
    {"mnuSichernUnter", "Speichern unter ...", "Save As ..."},
    {"mnuZuletztGeöffnet", "Zuletzt geöffnete Dateien ...", "Last Open Files ...", false, false},
    {"mnuStr3", "-", "-", true, false},
    {"mnuRecent(1)", "", "", true, false},
    {"mnuRecent(2)", "", "", true, false},
    {"mnuRecent(3)", "", "", true, false},
    {"mnuRecent(4)", "", "", true, false},
    {"mnuBeenden", "Beenden", "Exit"},
    {"mnuRückgängig", "Rückgängig", "Undo      ", false},
    {"mnuWiederholen", "Wiederherstellen", "Redo", false},
    {"mnuWerkzeugleiste", "Werkzeugleiste ausblenden", "Hide Toolbar"},
    {"mnuLegendeAktualisieren", "Legende aktualisieren", "Update Legend"},
    {"mnuLegendeAnzeigen", "Legende einblenden", "Show Legend"},
    {"mnuSchwarzWeiß", "Schwarz / Weiß", "Black / White"},
    {"mnuGraustufen", "Graustufen", "Grayscale"},
    {"mnuFarbig", "Farbig", "Colored"},
    {"btnÖffnen", "Öffnen ...", "Open..."},
    {"btnSpeichern", "Speichern", "Save"},
    {"btnUndo", "Rückgängig", "Undo", false},
    {"btnRedo", "Wiederherstellen", "Redo", false},
    {"btnHochformat", "Hochformat", "Portrait"},
    {"btnQuerformat", "Querformat", "Landscape"},
    {"btnPapier", "Papierformat", "Paper Size"},
    {"keyDINA4", "DIN A4", "DIN A4"},
    {"keyDINA5", "DIN A5", "DIN A5"},
    {"keyUSLetter", "US Letter", "US Letter"},
    {"btnZoom", "", ""},
    {"btnBildGrößer", "Vergrößern", "Zoom In"},
    {"btnBildKleiner", "Verkleinern", "Zoom Out"},
    {"btnLegende", "Legende anzeigen", "Show Legend"},
    {"keySchwarzweiß", "Monochrom", "Monochrome"},
    {"keyGraustufen", "Graustufen", "Grayscale"},
    {"keyFarbig", "Farbig", "Colored"},
};

} // namespace

Bedienelemente::Bedienelemente() {
    for (const Zeile &z : Tabelle) elemente_[z.Name] = {z.Englisch, z.Enabled, z.Visible, false};
    for (int zoom = 80; zoom <= 250; zoom += 10)
        elemente_["keyZoom" + std::to_string(zoom)].Caption = std::to_string(zoom) + "%";
}

void Bedienelemente::Beschriften(std::string_view sprache) {
    for (const Zeile &z : Tabelle) elemente_[z.Name].Caption = sprache == "de" ? z.Deutsch : z.Englisch;
}

const Bedienelement *Bedienelemente::Finden(std::string_view name) const {
    const auto i = elemente_.find(std::string(name));
    return i == elemente_.end() ? nullptr : &i->second;
}

void Bedienelemente::NurAnkreuzen(std::string_view gruppe, std::string_view name) {
    for (auto &[eigenerName, element] : elemente_)
        if (eigenerName.starts_with(gruppe)) element.Checked = eigenerName == name;
}

} // namespace kw
