#include "app/Projektmeldungen.h"

#include "output/Fehlertexte.h"

namespace kw {

namespace {

constexpr Zweisprachig SaveText{
    "Das Genogramm konnte nicht gespeichert werden:\n%1\n\nGrund: %2.\n\n%3\n"
    "Speichern Sie es unter einem anderen Namen oder in einem anderen Ordner (Datei, Speichern unter ...).",
    "The genogram could not be saved:\n%1\n\nReason: %2.\n\n%3\n"
    "Please save it under another name or in another folder (File, Save As ...)."};
/// By `Verbleib`.
constexpr Zweisprachig Verbleibtexte[] = {
    {"Das Genogramm steht unverändert auf der Seite.", "The genogram is unchanged on the page."},
    {"Nichts ist verloren: Ihre Änderungen stehen weiter auf der Seite. Sollte das Programm enden, bietet der nächste "
     "Start sie an.",
     "Nothing is lost: your changes are still on the page. Should the program end, the next start offers them."},
    {"Ihre Änderungen stehen weiter auf der Seite, aber in keiner Datei.",
     "Your changes are still on the page, but in no file."}};
constexpr Zweisprachig LadeText{"Die Datei konnte nicht geöffnet werden:\n%1\n\nGrund: %2.\n\nAn der Seite hat sich "
                                "nichts geändert.",
                                "The file could not be opened:\n%1\n\nReason: %2.\n\nThe page has not changed."};
constexpr Zweisprachig Fremd{"Sie enthält kein Kinwright-Projekt", "it does not hold a Kinwright project"};
constexpr Zweisprachig TeilText{
    "Die Datei ist beschädigt und konnte nur zum Teil gelesen werden:\n%1\n\n%2\n\n"
    "Sie bleibt unverändert, bis Sie speichern. Dann wird sie, wie sie ist, unter \"Gesicherte Fassungen\" aufgehoben.",
    "The file is damaged, and only a part of it could be read:\n%1\n\n%2\n\n"
    "It stays as it is until you save. Then it is kept, as it is, among the \"Kept Versions\"."};
constexpr Zweisprachig FremdText{
    "Die Datei enthält inzwischen eine andere Fassung:\n%1\n\nMöchten Sie sie ersetzen?\n\n"
    "Ja: Ihr Genogramm ersetzt sie; die andere Fassung wird unter \"Gesicherte Fassungen\" aufgehoben.\n"
    "Nein: Ihr Genogramm wird unter einem anderen Namen gespeichert.",
    "Meanwhile the file holds another version:\n%1\n\nDo you want to replace it?\n\n"
    "Yes: your genogram replaces it; the other version is kept among the \"Kept Versions\".\n"
    "No: your genogram is saved under another name."};

std::string Eingesetzt(std::string_view muster, const std::string &a, const std::string &b = {},
                       const std::string &c = {}) {
    std::string text;
    for (std::size_t i = 0; i < muster.size(); ++i) {
        if (muster[i] != '%') text += muster[i];
        else text += muster[++i] == '1' ? a : muster[i] == '2' ? b : c;
    }
    return text;
}

/// What the system says where nobody knows better.
std::string Grund(const Dateibefund &befund, Sprache sprache) {
    constexpr Zweisprachig System{"Das System meldet \"%1\"", "the system says \"%1\""};
    const std::string grund(Grundtext(befund.Grund).In(sprache));
    return grund.empty() ? Eingesetzt(System.In(sprache), befund.Meldung) : grund;
}

Nachfrage Warnung(std::string text) { return {"Kinwright", std::move(text), Knöpfe::Ok, Zeichen::Warnung}; }

} // namespace

Nachfrage SpeichernGescheitert(const std::string &datei, const Dateibefund &befund, Verbleib verbleib,
                               Sprache sprache) {
    const std::string sicher(Verbleibtexte[static_cast<int>(verbleib)].In(sprache));
    return Warnung(Eingesetzt(SaveText.In(sprache), datei, Grund(befund, sprache), sicher));
}

Nachfrage LadenGescheitert(const std::string &datei, const Dateibefund &befund, Sprache sprache) {
    return Warnung(Eingesetzt(LadeText.In(sprache), datei, Grund(befund, sprache)));
}

Nachfrage KeinProjektGefunden(const std::string &datei, Sprache sprache) {
    return Warnung(Eingesetzt(LadeText.In(sprache), datei, std::string(Fremd.In(sprache))));
}

Nachfrage NurZumTeilGeladen(const std::string &datei, const std::string &schaden, Sprache sprache) {
    return Warnung(Eingesetzt(TeilText.In(sprache), datei, schaden));
}

Nachfrage FremdeÄnderungsfrage(const std::string &datei, Sprache sprache) {
    return {"Kinwright", Eingesetzt(FremdText.In(sprache), datei), Knöpfe::JaNeinAbbrechen, Zeichen::Warnung};
}

} // namespace kw
