#include "output/Druckwerk.h"

#include "document/Dateien.h"
#include "output/Zieldatei.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace kw {

namespace {

constexpr const char *KeineRänderDeutsch = "Der bedruckbare Bereich kann nicht angezeigt werden,\n"
                                           "da keine Druckerinformationen vorliegen.\n"
                                           "Stellen Sie sicher, dass der Drucker \n"
                                           "richtig installiert ist.\n"
                                           "\n"
                                           "Evtl. wurde noch gar kein Drucker installiert.";
constexpr const char *KeineRänderEnglisch =
    "The printable area cannot be displayed because there is no printer information.\n"
    "Make sure the printer is installed correctly. A printer may not have been installed yet.";
constexpr const char *KeinPdfDeutsch =
    "Microsoft Print to PDF konnte nicht initialisiert werden. Microsoft Print to PDF ist eine integrierte Funktion in "
    "Windows 10/11. Die Funktion ist möglicherweise deaktiviert. Sofern Sie ein PDF-Programm auf ihrem Rechner "
    "installiert haben, lassen sich Genogramme auch über die Drucken-Funktion als PDF erstellen. Wählen Sie hierzu im "
    "Drucken-Dialog das entsprechende PDF-Programm als virtuellen Drucker aus. ";
constexpr const char *KeinPdfEnglisch =
    "Microsoft Print to PDF could not be initialized. Microsoft Print to PDF is an integrated function in Windows "
    "10/11. The function may be deactivated. If you have a PDF program installed on your computer, genograms can also "
    "be created as a PDF using the print function. To do this, select the corresponding PDF program as a virtual "
    "printer in the print dialog.";

/// "4.00 mm"; below one there is no zero before the point.
std::string InMillimetern(double cm) {
    const long hundertstel = std::lround(cm * 1000);
    const long ganze = std::labs(hundertstel) / 100;
    char text[32];
    std::snprintf(text, sizeof text, ".%02ld mm", std::labs(hundertstel) % 100);
    return (hundertstel < 0 ? "-" : "") + (ganze ? std::to_string(ganze) : "") + text;
}

} // namespace

void Druckwerk::Warnen(const std::string &titel, const std::string &text) {
    benutzer_.Fragen({titel, text, Knöpfe::Ok, Zeichen::Warnung});
}

bool Druckwerk::Ermitteln() {
    const Druckervorgabe vorgabe = drucker_.Vorgabe();
    if (!vorgabe.Beantwortet) return false;
    DefaultPrinter = vorgabe.Name;
    DruckerVorhanden = !vorgabe.Name.empty();
    if (DruckerVorhanden) Druck_Raender(vorgabe.Ränder);
    return true;
}

void Druckwerk::Druck_Raender(const Druckränder &ränder) {
    ansicht_.DruckrandLinks = ränder.Links;
    ansicht_.DruckrandRechts = ränder.Rechts;
    ansicht_.DruckrandOben = ränder.Oben;
    ansicht_.DruckrandUnten = ränder.Unten;
}

bool Druckwerk::RänderUmschalten() {
    if (!DruckerVorhanden) {
        Warnen("Kinwright", IstDeutsch() ? KeineRänderDeutsch : KeineRänderEnglisch);
        return false;
    }
    ansicht_.bDruckrandAnzeigen = !ansicht_.bDruckrandAnzeigen;
    bedienung_["btnBlattränder"].Checked = ansicht_.bDruckrandAnzeigen;
    return true;
}

void Druckwerk::DruckrandBericht() {
    if (!DruckerVorhanden) return Warnen("Kinwright", IstDeutsch() ? KeineRänderDeutsch : KeineRänderEnglisch);
    const std::string text = "Nicht bedruckbare Bereiche (Druckränder): \n"
                             "Links:       " +
                             InMillimetern(ansicht_.DruckrandLinks) + "\n" +
                             "Rechts:    " + InMillimetern(ansicht_.DruckrandRechts) + "\n" +
                             "Oben:       " + InMillimetern(ansicht_.DruckrandOben) + "\n" +
                             "Unten:      " + InMillimetern(ansicht_.DruckrandUnten);
    benutzer_.Fragen({"Druckränder beim " + DefaultPrinter, text, Knöpfe::Ok, Zeichen::Information});
    benutzer_.FokusAufLeinwand();
}

/// The page's orientation overrules the printer's own; its paper stays what the printer is set to.
bool Druckwerk::GenogrammDrucken(std::function<void(Zeichenfläche &)> zeichnen, const std::string &projektdatei) {
    const std::string name = NameOhneKennung(DateiName(projektdatei));
    const std::string titel = name.empty() ? "Kinwright" : name;
    std::string ziel;
    const auto zielWählen = [&] {
        const auto datei = ZieldateiWählen(benutzer_,
                                           {IstDeutsch() ? "Druckausgabe speichern unter" : "Save Print Output As",
                                            titel, "PDF  (*.pdf)|*.pdf", Ausgabeordner(benutzer_, projektdatei)},
                                           IstDeutsch());
        ziel = DateiName(datei.value_or(""));
        return datei;
    };
    drucker_.OrientationSetzen(bedienung_["btnQuerformat"].Checked ? 2 : 1);
    const Druckende ende = drucker_.Drucken({titel, ansicht_.Farbschema == SchemaFarbig, ansicht_.SeitenBreite,
                                             ansicht_.SeitenHöhe, std::move(zeichnen), zielWählen});
    if (ende == Druckende::NichtGeschrieben)
        Warnen("Kinwright", IstDeutsch() ? "Die Datei " + ziel + " konnte nicht geschrieben werden."
                                         : "The file " + ziel + " could not be written.");
    return ende == Druckende::Erledigt;
}

bool Druckwerk::PdfDruckerWählen() {
    bool gefunden = false;
    for (const std::string &name : drucker_.DeviceNames())
        if (name == PdfDruckerName) gefunden = drucker_.Wählen(name);
    if (!gefunden)
        Warnen(IstDeutsch() ? "PDF kann nicht erstellt werden" : "PDF cannot be created",
               IstDeutsch() ? KeinPdfDeutsch : KeinPdfEnglisch);
    return gefunden;
}

} // namespace kw
