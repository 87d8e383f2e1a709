#include "replay/Plattform.h"

#include <algorithm>

namespace kw {

namespace {

std::string EineZeile(std::string text) {
    for (size_t i = text.find('\n'); i != std::string::npos; i = text.find('\n', i)) text.replace(i, 1, "\\n");
    return text;
}

const char *KnopfText(Knöpfe knöpfe) {
    switch (knöpfe) {
    case Knöpfe::JaNein: return "yes no";
    case Knöpfe::JaNeinAbbrechen: return "yes no cancel";
    default: return "ok";
    }
}

const char *ZeichenText(Zeichen zeichen) {
    switch (zeichen) {
    case Zeichen::Frage: return "question";
    case Zeichen::Warnung: return "warning";
    case Zeichen::Information: return "information";
    case Zeichen::Halt: return "stop";
    default: return "none";
    }
}

} // namespace

std::optional<DrehbuchBenutzer::Vorbereitet> DrehbuchBenutzer::Nächste(bool datei, const std::string &titel) {
    if (Antworten.empty() || Antworten.front().Datei != datei) {
        aus_ << "unanswered " << titel << "\n";
        return std::nullopt;
    }
    const Vorbereitet antwort = Antworten.front();
    Antworten.pop_front();
    return antwort;
}

Antwort DrehbuchBenutzer::Fragen(const Nachfrage &n) {
    Kästen += "box " + n.Titel + " | " + EineZeile(n.Text) + " | " + KnopfText(n.Auswahl) + " | " + ZeichenText(n.Bild) + "\n";
    const auto antwort = Nächste(false, n.Titel);
    return antwort ? antwort->Knopf : Antwort::Abbrechen;
}

std::optional<std::string> DrehbuchBenutzer::DateiWählen(const Dateiwahl &w) {
    Kästen += "file " + w.Titel + " | " + w.Vorschlag + " | " + w.Filter + " | " + w.Ordner + "\n";
    const auto antwort = Nächste(true, w.Titel);
    if (!antwort || antwort->Abgebrochen) return std::nullopt;
    return antwort->Pfad;
}

void DrehbuchBenutzer::ZeitgeberStarten(std::string_view name, int ms) {
    std::erase_if(ZeitgeberListe, [&](const Zeitgeber &z) { return z.Name == name; });
    ZeitgeberListe.push_back({std::string(name), Jetzt + ms});
}

} // namespace kw
