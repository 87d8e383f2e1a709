#include "output/basBildExport.h"

#include "document/Dateien.h"
#include "output/Arbeitsbereich.h"
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

} // namespace

void JpegSpeichern(Bilder &bilder, const std::string &datei, unsigned char quality) {
    if (const int status = bilder.AlsJpeg(datei, quality); status != 0)
        throw Bildfehler("Speicherung des Bildes fehlgeschlagen. GDI+ Error:" + std::to_string(status));
}

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
    bereich_.ZoomWählen(bereich_.cboBildGröße.Anzahl() - 1);
    try {
        if (Kennung(DateiName(*datei)) != "bmp") JpegSpeichern(bilder_, *datei, BesteQualität);
        else if (!bilder_.SavePicture(*datei, std::nullopt)) return;
    } catch (const Bildfehler &) {
        return;
    }
    bereich_.ZoomWählen(zoom);
}

Bildausschnitt Bildexport::InTwips(const Bildausschnitt &cm) const {
    const double twips = ansicht_.Skalierung * TwipsJeCm;
    return {cm.Left * twips, cm.Top * twips, cm.Width * twips, cm.Height * twips};
}

void Bildexport::AuswahlAlsBildSpeichern(const Bildausschnitt &cm, const std::string &projektdatei) {
    const auto datei = DateiWählen(Auswahltitel, projektdatei);
    if (datei) bilder_.SavePicture(*datei, InTwips(cm));
}

void Bildexport::AusschnittKopieren(const Bildausschnitt &cm) {
    bilder_.InZwischenablage(InTwips(cm));
    benutzer_.Fragen({"Info", std::string(Kopiert.In(ansicht_.Sprache)), Knöpfe::Ok, Zeichen::Information});
}

} // namespace kw
