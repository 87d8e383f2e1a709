#include "output/Druckwerk.h"

#include "document/Dateien.h"
#include "document/Dokument.h"
#include "document/Papier.h"
#include "document/Zahlen.h"
#include "output/Fehlertexte.h"
#include "output/Textausgabe.h"
#include "output/Zieldatei.h"
#include "platform/Benutzer.h"
#include "platform/Drucker.h"
#include "rendering/Zeichnung.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace kw {

namespace {

constexpr Zweisprachig Programmname{"Kinwright", "Kinwright"};
constexpr Zweisprachig Zieltitel{"Druckausgabe speichern unter", "Save Print Output As"};
constexpr Zweisprachig DerDrucker{"Der Drucker ", "The printer "};
constexpr Zweisprachig NichtErreicht{" ist nicht erreichbar", " cannot be reached"};
constexpr Zweisprachig NichtAngenommen{" hat den Druckauftrag nicht angenommen", " did not accept the print job"};
constexpr Zweisprachig NichtGedruckt{"Das Genogramm konnte nicht gedruckt werden", "The genogram could not be printed"};
constexpr Zweisprachig KeineRänder{
    "Der bedruckbare Bereich kann nicht angezeigt werden,\n"
    "da keine Druckerinformationen vorliegen.\n"
    "Stellen Sie sicher, dass der Drucker \n"
    "richtig installiert ist.\n"
    "\n"
    "Evtl. wurde noch gar kein Drucker installiert.",
    "The printable area cannot be displayed because there is no printer information.\n"
    "Make sure the printer is installed correctly. A printer may not have been installed yet."};
constexpr Zweisprachig KeinPdfTitel{"PDF kann nicht erstellt werden", "PDF cannot be created"};
constexpr Zweisprachig KeinPdf{
    "Microsoft Print to PDF konnte nicht initialisiert werden. Microsoft Print to PDF ist eine integrierte Funktion in "
    "Windows 10/11. Die Funktion ist möglicherweise deaktiviert. Sofern Sie ein PDF-Programm auf ihrem Rechner "
    "installiert haben, lassen sich Genogramme auch über die Drucken-Funktion als PDF erstellen. Wählen Sie hierzu im "
    "Drucken-Dialog das entsprechende PDF-Programm als virtuellen Drucker aus. ",
    "Microsoft Print to PDF could not be initialized. Microsoft Print to PDF is an integrated function in Windows "
    "10/11. The function may be deactivated. If you have a PDF program installed on your computer, genograms can also "
    "be created as a PDF using the print function. To do this, select the corresponding PDF program as a virtual "
    "printer in the print dialog."};

/// "4.00 mm"; below one there is no zero before the point.
std::string InMillimetern(double cm) {
    const long hundertstel = std::lround(OhneRauschen(cm * 1000));
    const long ganze = std::labs(hundertstel) / 100;
    char text[32];
    std::snprintf(text, sizeof text, ".%02ld mm", std::labs(hundertstel) % 100);
    return (hundertstel < 0 ? "-" : "") + (ganze ? std::to_string(ganze) : "") + text;
}

} // namespace

void Druckwerk::Warnen(const Zweisprachig &titel, const Zweisprachig &text) {
    const Sprache sprache = ansicht_.Sprache;
    benutzer_.Fragen({std::string(titel.In(sprache)), std::string(text.In(sprache)), Knöpfe::Ok, Zeichen::Warnung});
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
        Warnen(Programmname, KeineRänder);
        return false;
    }
    ansicht_.bDruckrandAnzeigen = !ansicht_.bDruckrandAnzeigen;
    return true;
}

void Druckwerk::DruckrandBericht() {
    if (!DruckerVorhanden) return Warnen(Programmname, KeineRänder);
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
    const bool farbig = ansicht_.Farbschema == SchemaFarbig;
    return Drucken(
        {Drucktitel(projektdatei), farbig, ansicht_.SeitenBreite, ansicht_.SeitenHöhe, std::move(zeichnen), {}},
        dokument_.Seitenlage == 1 ? 1 : 2, projektdatei);
}

void Druckwerk::TextDrucken(const std::string &titel, const std::string &text) {
    const Papier &papier = PapierMit(DinA4);
    const int lage = drucker_.Orientation(); // the page's, which forms show
    const auto blätter = Textblätter(text);
    std::vector<std::function<void(Zeichenfläche &)>> zeichnen;
    for (std::size_t i = 0; i < blätter.size(); ++i)
        zeichnen.emplace_back([&, i](Zeichenfläche &f) {
            const std::string nummer = std::to_string(i + 1) + "/" + std::to_string(blätter.size());
            TextblattZeichnen(f, blätter.size() == 1 ? titel : titel + ", " + nummer, blätter[i]);
        });
    Druckauftrag auftrag{titel, false, papier.Breite, papier.Höhe, zeichnen.front(), {}};
    auftrag.WeitereBlätter.assign(zeichnen.begin() + 1, zeichnen.end());
    Drucken(auftrag, 1, {});
    drucker_.OrientationSetzen(lage);
}

/// One job, turned that way; a failure is told.
bool Druckwerk::Drucken(const Druckauftrag &auftrag, int lage, const std::string &projektdatei) {
    std::string ziel;
    const auto zielWählen = [&] {
        const Dateiwahl wahl{std::string(Zieltitel.In(ansicht_.Sprache)), auftrag.Titel, "PDF  (*.pdf)|*.pdf",
                             Ausgabeordner(benutzer_, projektdatei)};
        const auto datei = ZieldateiWählen(benutzer_, wahl, ansicht_.Sprache);
        ziel = datei.value_or("");
        return datei;
    };
    Druckbefund befund{Druckbefund::Art::NichtAngenommen};
    const auto grund = Fehlgrund([&] {
        drucker_.OrientationSetzen(lage);
        Druckauftrag mitZiel = auftrag;
        mitZiel.Zieldatei = zielWählen;
        befund = drucker_.Drucken(mitZiel);
        return befund.Grund;
    });
    if (befund.Ende != Druckbefund::Art::Erledigt) FehlerMelden(befund, ziel, grund.value_or(Zweisprachig{}));
    return befund.Ende == Druckbefund::Art::Erledigt;
}

void Druckwerk::FehlerMelden(const Druckbefund &befund, const std::string &ziel, const Zweisprachig &grund) {
    const Sprache sprache = ansicht_.Sprache;
    if (befund.Ende == Druckbefund::Art::Aufgegeben) return;
    if (!ziel.empty()) return NichtGeschriebenMelden(benutzer_, sprache, ziel, grund);
    std::string satz(NichtGedruckt.In(sprache));
    if (!befund.Drucker.empty()) {
        satz = std::string(DerDrucker.In(sprache)) + befund.Drucker;
        satz += (befund.Ende == Druckbefund::Art::NichtErreicht ? NichtErreicht : NichtAngenommen).In(sprache);
    }
    FehlschlagMelden(benutzer_, sprache, std::move(satz), grund);
}

bool Druckwerk::PdfDruckerWählen() {
    bool gefunden = false;
    for (const std::string &name : drucker_.DeviceNames())
        if (name == PdfDruckerName) gefunden = drucker_.Wählen(name);
    if (!gefunden) Warnen(KeinPdfTitel, KeinPdf);
    return gefunden;
}

} // namespace kw
