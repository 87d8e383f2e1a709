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
constexpr Zweisprachig LadeText{"%1 konnte nicht geöffnet werden:\n%2\n\nGrund: %3.\n\nAn der Seite hat sich nichts "
                                "geändert.",
                                "%1 could not be opened:\n%2\n\nReason: %3.\n\nThe page has not changed."};
/// What is loaded: a file, or a version from the safety net.
constexpr Zweisprachig Geladene[] = {{"Die Datei", "The file"}, {"Die gesicherte Fassung", "The kept version"}};
constexpr Zweisprachig Fremd{"Sie enthält kein Kinwright-Projekt", "it does not hold a Kinwright project"};
constexpr Zweisprachig TeilText{"%1 ist beschädigt und konnte nur zum Teil gelesen werden:\n%2\n\n%3\n\n",
                                "%1 is damaged, and only a part of it could be read:\n%2\n\n%3\n\n"};
constexpr Zweisprachig Teilverbleib[] = {
    {"Sie bleibt unverändert, bis Sie speichern. Dann wird sie, wie sie ist, unter \"Gesicherte Fassungen\" "
     "aufgehoben.",
     "It stays as it is until you save. Then it is kept, as it is, among the \"Kept Versions\"."},
    {"Sie bleibt, wie sie ist, unter \"Gesicherte Fassungen\".", "It stays as it is among the \"Kept Versions\"."}};
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
    return Warnung(
        Eingesetzt(LadeText.In(sprache), std::string(Geladene[0].In(sprache)), datei, Grund(befund, sprache)));
}

Nachfrage KeinProjektGefunden(const std::string &datei, bool fassung, Sprache sprache) {
    const std::string was(Geladene[fassung].In(sprache));
    return Warnung(Eingesetzt(LadeText.In(sprache), was, datei, std::string(Fremd.In(sprache))));
}

Nachfrage NurZumTeilGeladen(const std::string &datei, const std::string &schaden, bool fassung, Sprache sprache) {
    const std::string was(Geladene[fassung].In(sprache));
    return Warnung(Eingesetzt(TeilText.In(sprache), was, datei, schaden).append(Teilverbleib[fassung].In(sprache)));
}

Nachfrage FremdeÄnderungsfrage(const std::string &datei, Sprache sprache) {
    return {"Kinwright", Eingesetzt(FremdText.In(sprache), datei), Knöpfe::JaNeinAbbrechen, Zeichen::Warnung};
}

} // namespace kw
