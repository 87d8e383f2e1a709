#include "arrangement/Stammbaumworte.h"

#include "arrangement/Seitenplatz.h"
#include "arrangement/Stammbaumseite.h"

#include <string_view>

namespace kw {

namespace {

constexpr Zweisprachig EinePerson{"1 Person", "1 person"};
constexpr Zweisprachig Personen{" Personen", " persons"};
constexpr Zweisprachig Paare{" Paare", " couples"};
constexpr Zweisprachig EineGeneration{", 1 Generation", ", 1 generation"};
constexpr Zweisprachig Generationen{" Generationen", " generations"};
constexpr Zweisprachig Reihe{", breiteste Reihe ", ", widest row "};
constexpr Zweisprachig PasstAuf{": passt auf ", ": fits "};
constexpr Zweisprachig Hoch{" hoch", " portrait"};
constexpr Zweisprachig Quer{" quer", " landscape"};
constexpr Zweisprachig Verkleinert{", mit Symbolen von 9 mm", ", with symbols of 9 mm"};
constexpr Zweisprachig Braucht{": braucht ", ": needs "};
constexpr Zweisprachig KeinPapier{", mehr als jedes Papier hat", ", more than any of the papers"};
constexpr Zweisprachig Höchstens{". Ein Projekt fasst höchstens 999.", ". A project holds 999 at most."};
constexpr Zweisprachig Niemand{"Niemand ist ausgewählt.", "Nobody is chosen."};
constexpr Zweisprachig Hinauf{" Generationen hinauf", " generations up"};
constexpr Zweisprachig EineHinauf{"1 Generation hinauf", "1 generation up"};
constexpr Zweisprachig Hinunter{" Generationen hinunter", " generations down"};
constexpr Zweisprachig EineHinunter{"1 Generation hinunter", "1 generation down"};
constexpr Zweisprachig OhneWen{"ohne ", "without "};
constexpr Zweisprachig KleinereSymbole{"kleinere Symbole", "smaller symbols"};

struct Wahlwort {
    bool Sippenwahl::*Wer;
    Zweisprachig Text;
};
constexpr Wahlwort Wahlworte[] = {
    {&Sippenwahl::Cousins, {"Cousins und Cousinen", "cousins"}},
    {&Sippenwahl::NichtenNeffen, {"Nichten und Neffen", "nieces and nephews"}},
    {&Sippenwahl::TantenOnkel, {"Tanten und Onkel", "aunts and uncles"}},
    {&Sippenwahl::Geschwister, {"Geschwister", "siblings"}},
    {&Sippenwahl::Partner, {"Partner", "partners"}},
};

std::string Anzahl(std::size_t anzahl, const Zweisprachig &eine, const Zweisprachig &mehrere, Sprache s) {
    return anzahl == 1 ? std::string(eine.In(s)) : std::to_string(anzahl) + std::string(mehrere.In(s));
}

std::string Blattname(const Blattwahl &blatt, Sprache s) {
    return std::string(PapierMit(blatt.Papiercode).Name) + std::string((blatt.Seitenlage == 1 ? Hoch : Quer).In(s));
}

} // namespace

std::string Seitenbefund(const Stammbaumseite &seite, Sprache s) {
    if (seite.Personen == 0) return std::string(Niemand.In(s));
    std::string text = Anzahl(seite.Personen, EinePerson, Personen, s);
    const bool zuViele = seite.Ausgang == Seitenausgang::ZuVielePersonen;
    if (zuViele && seite.Paare > HöchstzahlPaare) text += ", " + std::to_string(seite.Paare) + std::string(Paare.In(s));
    if (zuViele) return text + std::string(Höchstens.In(s));
    const Stammblatt &b = seite.Blatt;
    if (b.Generationen == 1) text += EineGeneration.In(s);
    else text += ", " + std::to_string(b.Generationen) + std::string(Generationen.In(s));
    text += std::string(Reihe.In(s)) + std::to_string(b.BreitesteReihe);
    const std::string bedarf = std::string(Braucht.In(s)) + Maßangabe(b.Breite, b.Höhe, s);
    if (!b.Blatt || b.LiegtDarüber) return text + bedarf + std::string(KeinPapier.In(s));
    text += std::string(PasstAuf.In(s)) + Blattname(*b.Blatt, s);
    return b.Blatt->Symbol > KleinstesSymbol ? text : text + std::string(Verkleinert.In(s));
}

std::string Auswegtext(const Seitenwunsch &wunsch, const Seitenwunsch &ausweg, Sprache s) {
    std::string text;
    const auto dazu = [&](const std::string &wort) { text += (text.empty() ? "" : ", ") + wort; };
    const Sippenwahl &alt = wunsch.Wahl;
    const Sippenwahl &neu = ausweg.Wahl;
    if (alt.Hinauf != neu.Hinauf) dazu(Anzahl(static_cast<std::size_t>(neu.Hinauf), EineHinauf, Hinauf, s));
    if (alt.Hinunter != neu.Hinunter) dazu(Anzahl(static_cast<std::size_t>(neu.Hinunter), EineHinunter, Hinunter, s));
    for (const Wahlwort &wort : Wahlworte)
        if (alt.*wort.Wer && !(neu.*wort.Wer)) dazu(std::string(OhneWen.In(s)) + std::string(wort.Text.In(s)));
    if (!wunsch.Blatt.Kleiner && ausweg.Blatt.Kleiner) dazu(std::string(KleinereSymbole.In(s)));
    return text;
}

} // namespace kw
