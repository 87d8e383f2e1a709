#include "output/Zieldatei.h"

#include "document/Dateien.h"

namespace kw {

std::optional<std::string> ZieldateiWählen(Benutzer &benutzer, const Dateiwahl &wahl, bool deutsch,
                                           const std::string &frageEnglisch) {
    while (true) {
        const auto datei = benutzer.DateiSpeichern(wahl);
        if (!datei || !DateiVorhanden(*datei)) return datei;
        const std::string frage = deutsch ? "Die Datei " + *datei + " besteht bereits. \nMöchten Sie sie ersetzen ?"
                                          : "The file " + *datei + " already exists. \n" + frageEnglisch;
        if (benutzer.Fragen({"Kinwright", frage, Knöpfe::JaNein, Zeichen::Warnung}) == Antwort::Ja) return datei;
    }
}

std::string Ausgabeordner(const Benutzer &benutzer, const std::string &projektdatei) {
    const std::string ordner = Pfad(projektdatei);
    return ordner.empty() ? benutzer.Desktopordner() : ordner;
}

} // namespace kw
