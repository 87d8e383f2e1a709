#include "document/Fehlertexte.h"

namespace kw {

namespace {

struct Grundtext {
    Ursache Grund;
    Zweisprachig Text;
};
constexpr Grundtext Texte[] = {
    {Ursache::KeinPlatz, {"Auf dem Datenträger ist kein Platz mehr", "There is no space left on the disk"}},
    {Ursache::Schreibgeschützt,
     {"Die Datei oder ihr Ordner ist schreibgeschützt", "The file or its folder is write-protected"}},
    {Ursache::Lesegeschützt, {"Sie dürfen die Datei nicht lesen", "You may not read the file"}},
    {Ursache::FehltDatei, {"Die Datei gibt es nicht", "The file does not exist"}},
    {Ursache::OrdnerFehlt, {"Den Ordner gibt es nicht mehr", "The folder does not exist any more"}},
    {Ursache::ZuGroß, {"Die Datei ist zu groß", "The file is too large"}},
    {Ursache::NichtGesichert,
     {"Was die Datei bisher enthält, konnte nicht zuvor gesichert werden; sie blieb unverändert",
      "What the file holds now could not be kept first; it was left as it is"}},
};

} // namespace

std::string Fehlertext(const Dateibefund &befund, Sprache sprache) {
    for (const auto &zeile : Texte)
        if (zeile.Grund == befund.Grund) return std::string(zeile.Text.In(sprache));
    constexpr Zweisprachig Sonstiges{"Das System meldet \"", "The system says \""};
    return std::string(Sonstiges.In(sprache)) + befund.Meldung + "\"";
}

} // namespace kw
