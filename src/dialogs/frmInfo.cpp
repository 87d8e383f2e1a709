#include "dialogs/frmInfo.h"

namespace kw {

frmInfo::frmInfo(Dialogumgebung &umgebung, std::string_view version) : Formular("frmInfo", "") {
    constexpr double Namensgröße = 18; // points
    const bool deutsch = umgebung.IstDeutsch();
    Caption = deutsch ? "Über Kinwright" : "About Kinwright";
    Steuerelement &name = Anlegen("lblName", Art::Beschriftung, "Kinwright");
    name.FontSize = Namensgröße;
    name.FontBold = true;
    Anlegen("lblVersion", Art::Beschriftung, "Version " + std::string(version));
    Anlegen("lblBeschreibung", Art::Beschriftung,
            deutsch ? "Zeichnet Genogramme: Familien, ihre Beziehungen und ihre Geschichte auf einer Seite."
                    : "Draws genograms: families, their relationships and their history on one page.");
    Anlegen("cmdOK", Art::Knopf, "OK");
    Vorgabeknopf = Abbruchknopf = "cmdOK";
}

} // namespace kw
