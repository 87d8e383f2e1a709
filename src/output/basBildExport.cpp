#include "output/basBildExport.h"

#include "document/Dateien.h"
#include "output/Arbeitsbereich.h"
#include "output/Fehlertexte.h"
#include "output/Zieldatei.h"
#include "platform/Benutzer.h"
#include "platform/Bilder.h"
#include "platform/Drucker.h"
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

/// Beside the bitmap.
constexpr std::string_view Seitenfilter = "JPEG  (*.jpg)|*.jpg|PNG  (*.png)|*.png|SVG  (*.svg)|*.svg";
constexpr std::string_view Auswahlfilter = "PNG  (*.png)|*.png";

/// What is no copy of the canvas.
bool WirdGedruckt(const std::string &datei) { return HatKennung(datei, "png") || HatKennung(datei, "svg"); }

} // namespace

std::optional<std::string> Bildexport::DateiWählen(const Zweisprachig &titel, std::string_view weitere,
                                                   const std::string &projektdatei) {
    const Dateiwahl wahl{std::string(titel.In(ansicht_.Sprache)),
                         NameOhneKennung(DateiName(projektdatei)),
                         "Bitmap  (*.bmp)|*.bmp",
                         Ausgabeordner(benutzer_, projektdatei),
                         Dateiwahl::Kennungen::Alle,
                         std::string(weitere)};
    return ZieldateiWählen(benutzer_, wahl, ansicht_.Sprache);
}

void Bildexport::Melden(const std::string &datei, const std::function<Ursache()> &schreiben) {
    if (const auto grund = Fehlgrund(schreiben)) NichtGeschriebenMelden(benutzer_, ansicht_.Sprache, datei, *grund);
}

void Bildexport::SeiteExportieren(const std::string &projektdatei) {
    const auto datei = DateiWählen(Seitentitel, Seitenfilter, projektdatei);
    if (!datei) return;
    if (WirdGedruckt(*datei)) Melden(*datei, [&] { return SeiteDrucken(*datei, projektdatei); });
    else SeiteFotografieren(*datei);
}

Ursache Bildexport::SeiteDrucken(const std::string &datei, const std::string &projektdatei) {
    return bilder_.SeiteAls(
        datei, {Drucktitel(projektdatei), true, ansicht_.SeitenBreite, ansicht_.SeitenHöhe, rückrufe_.AufPapier, {}});
}

void Bildexport::SeiteFotografieren(const std::string &datei) {
    rückrufe_.Abwählen();
    const int zoom = bereich_.cboBildGröße.ListIndex;
    const auto schreiben = [&] {
        bereich_.ZoomWählen(bereich_.cboBildGröße.Anzahl() - 1);
        if (Kennung(DateiName(datei)) == "bmp") return bilder_.SavePicture(datei, std::nullopt);
        return bilder_.AlsJpeg(datei, BesteQualität);
    };
    const auto grund = Fehlgrund(schreiben);
    bereich_.ZoomWählen(zoom);
    if (grund) NichtGeschriebenMelden(benutzer_, ansicht_.Sprache, datei, *grund);
}

Bildausschnitt Bildexport::InTwips(const Bildausschnitt &cm) const {
    const double twips = ansicht_.Skalierung * TwipsJeCm;
    return {cm.Left * twips, cm.Top * twips, cm.Width * twips, cm.Height * twips};
}

void Bildexport::AuswahlAlsBildSpeichern(const Bildausschnitt &cm, const std::string &projektdatei) {
    const auto datei = DateiWählen(Auswahltitel, Auswahlfilter, projektdatei);
    if (!datei) return;
    Melden(*datei, [&] {
        if (HatKennung(*datei, "png")) return bilder_.AlsPng(*datei, InTwips(cm));
        return bilder_.SavePicture(*datei, InTwips(cm));
    });
}

void Bildexport::AusschnittKopieren(const Bildausschnitt &cm) {
    const Sprache sprache = ansicht_.Sprache;
    const auto grund = Fehlgrund([&] { return bilder_.InZwischenablage(InTwips(cm)), Ursache::Keine; });
    if (grund) FehlschlagMelden(benutzer_, sprache, std::string(NichtKopiert.In(sprache)), *grund);
    else benutzer_.Fragen({"Info", std::string(Kopiert.In(sprache)), Knöpfe::Ok, Zeichen::Information});
}

} // namespace kw
