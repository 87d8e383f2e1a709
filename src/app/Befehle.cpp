#include "app/Befehle.h"

#include "app/frmMain.h"

#include <algorithm>

namespace kw {

const std::vector<Befehl> &BefehlsTabelle() {
    static const std::vector<Befehl> Tabelle{
        {"mnuÖffnen", "mnuDatei", "Ctrl+O", [](frmMain &h) { h.projekt.mnuÖffnen(); }},
        {"mnuSpeichern", "mnuDatei", "Ctrl+S", [](frmMain &h) { h.projekt.Speichern(); }},
        {"mnuSichernUnter", "mnuDatei", "", [](frmMain &h) { h.projekt.SpeichernUnter(); }},
        {"mnuBeenden", "mnuDatei", "", [](frmMain &h) { h.plattform.benutzer.FensterSchließen(); }},
        {"mnuSchwarzWeiß", "", "", [](frmMain &h) { h.FarbschemaWählen(SchemaSchwarzWeiß); }},
        {"mnuGraustufen", "", "", [](frmMain &h) { h.FarbschemaWählen(SchemaGraustufen); }},
        {"mnuFarbig", "", "", [](frmMain &h) { h.FarbschemaWählen(SchemaFarbig); }},
        {"mnuWerkzeugleiste", "", "", [](frmMain &h) { h.WerkzeugleisteUmschalten(); }},
        {"mnuLegendeAktualisieren", "", "",
         [](frmMain &h) {
             LegendeAufbauen(h.dokument, h.legende);
             h.Vorschau();
         }},
        {"mnuLegendeAnzeigen", "", "",
         [](frmMain &h) {
             h.bedienung["btnLegende"].Checked = !h.bedienung["btnLegende"].Checked;
             h.Legende();
         }},
        {"btnBildGrößer", "", "", [](frmMain &h) { h.bereich.Vergrößern(); }},
        {"btnBildKleiner", "", "", [](frmMain &h) { h.bereich.Verkleinern(); }},
    };
    return Tabelle;
}

const Befehl *BefehlFinden(std::string_view name) {
    const auto &tabelle = BefehlsTabelle();
    const auto i = std::find_if(tabelle.begin(), tabelle.end(), [&](const Befehl &b) { return b.Name == name; });
    return i == tabelle.end() ? nullptr : &*i;
}

} // namespace kw
