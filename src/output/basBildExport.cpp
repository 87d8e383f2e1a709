#include "output/basBildExport.h"

#include "document/Dateien.h"
#include "output/Arbeitsbereich.h"
#include "output/Fehlertexte.h"
#include "output/Zieldatei.h"
#include "platform/Benutzer.h"
#include "platform/Bilder.h"
#include "rendering/Ansicht.h"
#include "rendering/Zeichenflaeche.h"

namespace kw {

namespace {

constexpr unsigned char BesteQualität = 100;

constexpr Zweisprachig Seitentitel{"Genogramm als Bilddatei speichern unter ...",
                                   "Export genogram as image file as ..."};
constexpr Zweisprachig Auswahltitel{"Auswahl als Bilddatei speichern", "Export selection as image file"};
constexpr Zweisprachig Kopiert{"Der gewählte Bildausschnitt wurde in die Zwischnablage kopiert!",
                               "The selected image section has been copied to the clipboard!"};

constexpr Zweisprachig NichtKopiert{"Der Bildausschnitt konnte nicht in die Zwischenablage kopiert werden",
                                    "The image section could not be copied to the clipboard"};

} // namespace

std::optional<std::string> Bildexport::DateiWählen(const Zweisprachig &titel, const std::string &projektdatei) {
    const Dateiwahl wahl{std::string(titel.In(ansicht_.Sprache)), NameOhneKennung(DateiName(projektdatei)),
                         "Bitmap  (*.bmp)|*.bmp", Ausgabeordner(benutzer_, projektdatei), Dateiwahl::Kennungen::Alle};
    return ZieldateiWählen(benutzer_, wahl, ansicht_.Sprache);
}

void Bildexport::SeiteExportieren(const std::string &projektdatei) {
    const auto datei = DateiWählen(Seitentitel, projektdatei);
    if (!datei) return;
    abwählen_();
    const int zoom = bereich_.cboBildGröße.ListIndex;
    const auto grund = Fehlgrund([&] {
        bereich_.ZoomWählen(bereich_.cboBildGröße.Anzahl() - 1);
        return SeiteSchreiben(*datei);
    });
    bereich_.ZoomWählen(zoom);
    if (grund) NichtGeschriebenMelden(benutzer_, ansicht_.Sprache, *datei, *grund);
}

Ursache Bildexport::SeiteSchreiben(const std::string &datei) {
    if (Kennung(DateiName(datei)) == "bmp") return bilder_.SavePicture(datei, std::nullopt);
    return bilder_.AlsJpeg(datei, BesteQualität);
}

Bildausschnitt Bildexport::InTwips(const Bildausschnitt &cm) const {
    const double twips = ansicht_.Skalierung * TwipsJeCm;
    return {cm.Left * twips, cm.Top * twips, cm.Width * twips, cm.Height * twips};
}

void Bildexport::AuswahlAlsBildSpeichern(const Bildausschnitt &cm, const std::string &projektdatei) {
    const auto datei = DateiWählen(Auswahltitel, projektdatei);
    if (!datei) return;
    const auto grund = Fehlgrund([&] { return bilder_.SavePicture(*datei, InTwips(cm)); });
    if (grund) NichtGeschriebenMelden(benutzer_, ansicht_.Sprache, *datei, *grund);
}

void Bildexport::AusschnittKopieren(const Bildausschnitt &cm) {
    const Sprache sprache = ansicht_.Sprache;
    const auto grund = Fehlgrund([&] { return bilder_.InZwischenablage(InTwips(cm)), Ursache::Keine; });
    if (grund) FehlschlagMelden(benutzer_, sprache, std::string(NichtKopiert.In(sprache)), *grund);
    else benutzer_.Fragen({"Info", std::string(Kopiert.In(sprache)), Knöpfe::Ok, Zeichen::Information});
}

} // namespace kw
