#include "dialogs/frmInfo.h"

#include "dialogs/Dialogumgebung.h"

namespace kw {

namespace {

constexpr Formularzeile Zeilen[] = {
    {"lblName", Art::Beschriftung, {"Kinwright", "Kinwright"}},
    {"lblVersion", Art::Beschriftung, {"Version ", "Version "}},
    {"lblBeschreibung",
     Art::Beschriftung,
     {"Zeichnet Genogramme: Familien, ihre Beziehungen und ihre Geschichte auf einer Seite.",
      "Draws genograms: families, their relationships and their history on one page."}},
    {"cmdOK", Art::Knopf, {"OK", "OK"}},
};
constexpr Formulartafel Tafel{"frmInfo", {"Über Kinwright", "About Kinwright"}, Zeilen, "cmdOK", "cmdOK"};

} // namespace

frmInfo::frmInfo(Dialogumgebung &umgebung, std::string_view version) : Formular(Tafel, umgebung.Sprache()) {
    constexpr double Namensgröße = 18; // points
    (*this)["lblName"].FontSize = Namensgröße;
    (*this)["lblName"].FontBold = true;
    (*this)["lblVersion"].Caption += version;
}

} // namespace kw
