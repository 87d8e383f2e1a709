#include "output/Zieldatei.h"

#include "document/Dateien.h"
#include "platform/Benutzer.h"

namespace kw {

std::optional<std::string> ZieldateiWählen(Benutzer &benutzer, const Dateiwahl &wahl, Sprache sprache,
                                           const Zweisprachig &frage,
                                           const std::function<bool(const std::string &)> &zulässig) {
    while (true) {
        const auto datei = benutzer.DateiSpeichern(wahl);
        if (datei && zulässig && !zulässig(*datei)) continue;
        if (!datei || !DateiVorhanden(*datei)) return datei;
        const std::string besteht = Dateisatz(sprache, *datei, {" besteht bereits. \n", " already exists. \n"});
        const std::string text = besteht + std::string(frage.In(sprache));
        if (benutzer.Fragen({"Kinwright", text, Knöpfe::JaNein, Zeichen::Warnung}) == Antwort::Ja) return datei;
    }
}

std::string Dateisatz(Sprache sprache, std::string_view name, const Zweisprachig &rest) {
    std::string satz(Zweisprachig{"Die Datei ", "The file "}.In(sprache));
    return satz.append(name).append(rest.In(sprache));
}

std::string Ausgabeordner(const Benutzer &benutzer, const std::string &projektdatei) {
    const std::string ordner = Pfad(projektdatei);
    return ordner.empty() ? benutzer.Desktopordner() : ordner;
}

std::string Drucktitel(const std::string &projektdatei) {
    const std::string name = NameOhneKennung(DateiName(projektdatei));
    return name.empty() ? "Kinwright" : name;
}

} // namespace kw
