#include "output/Fehlertexte.h"

#include "document/Dateien.h"
#include "output/Zieldatei.h"
#include "platform/Benutzer.h"

#include <new>
#include <utility>

namespace kw {

namespace {

constexpr Zweisprachig Nichtgeschrieben{" konnte nicht geschrieben werden", " could not be written"};
constexpr Zweisprachig Projektheil{".\nDas Projekt ist davon nicht betroffen.", ".\nThe project is not affected."};

constexpr Zweisprachig KeinSpeicher{"Der Arbeitsspeicher reicht nicht aus", "there is not enough memory"};

constexpr std::pair<Ursache, Zweisprachig> Gründe[] = {
    {Ursache::KeinPlatz, {"Auf dem Datenträger ist kein Platz mehr", "there is no space left on the disk"}},
    {Ursache::Schreibgeschützt,
     {"Die Datei oder ihr Ordner ist schreibgeschützt", "the file or its folder is write-protected"}},
    {Ursache::FehltDatei, {"Die Datei gibt es nicht", "the file does not exist"}},
    {Ursache::OrdnerFehlt, {"Den Ordner gibt es nicht", "the folder does not exist"}},
    {Ursache::ZuGroß, {"Sie ist größer, als es hier erlaubt ist", "it is larger than is allowed here"}},
    {Ursache::Lesegeschützt, {"Sie dürfen die Datei nicht lesen", "you may not read the file"}},
    {Ursache::KeineDatei,
     {"Unter diesem Namen steht keine gewöhnliche Datei", "what has that name is no ordinary file"}},
    {Ursache::NichtGesichert,
     {"Die bisherige Fassung ließ sich nicht sichern", "the version that was there could not be kept"}},
};

} // namespace

Zweisprachig Grundtext(Ursache grund) {
    for (const auto &[ursache, text] : Gründe)
        if (ursache == grund) return text;
    return {};
}

std::optional<Zweisprachig> Fehlgrund(const std::function<Ursache()> &ausgabe) {
    try {
        const Ursache grund = ausgabe();
        return grund == Ursache::Keine ? std::nullopt : std::optional(Grundtext(grund));
    } catch (const std::bad_alloc &) {
        return KeinSpeicher;
    }
}

void FehlschlagMelden(Benutzer &benutzer, Sprache sprache, std::string satz, const Zweisprachig &grund) {
    if (const auto text = grund.In(sprache); !text.empty()) satz.append(": ").append(text);
    satz.append(Projektheil.In(sprache));
    benutzer.Fragen({"Kinwright", std::move(satz), Knöpfe::Ok, Zeichen::Warnung});
}

void NichtGeschriebenMelden(Benutzer &benutzer, Sprache sprache, const std::string &datei, const Zweisprachig &grund) {
    FehlschlagMelden(benutzer, sprache, Dateisatz(sprache, datei, Nichtgeschrieben), grund);
}

} // namespace kw
