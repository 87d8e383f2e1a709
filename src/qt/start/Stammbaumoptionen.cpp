#include "document/Codepage.h"
#include "qt/start/Aufruf.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <system_error>

namespace kw {

namespace {

/// An option with a value, each at most once.
struct Wertoption {
    std::string_view Name;
    /// False when the value can't be read.
    bool (*Lesen)(const std::string &wert, Aufruf &a);
    std::string_view Fehler;
};

bool GenerationenLesen(const std::string &text, int &zahl) {
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), zahl);
    return fehler == std::errc() && ende == text.data() + text.size() && zahl >= 0 && zahl <= HöchstzahlGenerationen;
}

constexpr Wertoption Wertoptionen[] = {
    {"--familytree",
     [](const std::string &wert, Aufruf &a) {
         a.Stammbaum.Datei = wert;
         return !wert.empty();
     },
     "--familytree needs one file to read"},
    {"--person",
     [](const std::string &wert, Aufruf &a) {
         a.Stammbaum.Person = wert;
         return !wert.empty();
     },
     "--person needs one name"},
    {"--up", [](const std::string &wert, Aufruf &a) { return GenerationenLesen(wert, a.Stammbaum.Hinauf); },
     "--up needs one whole number of generations from 0 to 99"},
    {"--down", [](const std::string &wert, Aufruf &a) { return GenerationenLesen(wert, a.Stammbaum.Hinunter); },
     "--down needs one whole number of generations from 0 to 99"},
    {"--language",
     [](const std::string &wert, Aufruf &a) {
         if (wert == "de" || wert == "en") a.InSprache = SpracheAus(wert);
         return a.InSprache.has_value();
     },
     "--language is de or en"},
};

/// Empty when the call can be run.
std::string Einwand(const Stammbaumaufruf &b) {
    std::error_code fehler; // a file that isn't there yet is no other
    if (b.Datei.empty() || b.Ziel.empty()) return "--familytree needs a file to read and one to write";
    if (!Kleingeschrieben(b.Ziel).ends_with(".kwp")) return "cannot write " + b.Ziel + ": its name must end in .kwp";
    if (std::filesystem::equivalent(b.Datei, b.Ziel, fehler)) return "the project would replace the family tree";
    return "";
}

} // namespace

Aufruf StammbaumoptionenLesen(const std::vector<std::string> &worte) {
    Aufruf a;
    a.Was = Aufruf::Art::Stammbaum;
    const auto falsch = [&](std::string fehler) {
        a.Was = Aufruf::Art::Falsch;
        a.Fehler = std::move(fehler);
        return a;
    };
    std::vector<std::string_view> gelesene;
    bool optionen = true;
    for (std::size_t i = 0; i < worte.size(); ++i) {
        const std::string &wort = worte[i];
        const auto *option = std::find_if(std::begin(Wertoptionen), std::end(Wertoptionen),
                                          [&](const Wertoption &o) { return optionen && o.Name == wort; });
        if (option != std::end(Wertoptionen)) {
            const bool schon = std::find(gelesene.begin(), gelesene.end(), option->Name) != gelesene.end();
            if (schon || i + 1 == worte.size() || !option->Lesen(worte[++i], a))
                return falsch(std::string(option->Fehler));
            gelesene.push_back(option->Name);
        } else if (!optionen || !wort.starts_with('-') || wort == "-") {
            if (!a.Stammbaum.Ziel.empty()) return falsch("more than one file to write: " + wort);
            a.Stammbaum.Ziel = wort;
        } else if (wort == "--") {
            optionen = false;
        } else if (wort == "--all") {
            a.Stammbaum.Alle = true;
        } else if (wort == "--small") {
            a.Stammbaum.Kleiner = true;
        } else if (wort == "--help" || wort == "-h") {
            a.Was = Aufruf::Art::Hilfe;
            return a;
        } else {
            return falsch("--familytree goes not with " + wort);
        }
    }
    const std::string einwand = Einwand(a.Stammbaum);
    return einwand.empty() ? a : falsch(einwand);
}

} // namespace kw
