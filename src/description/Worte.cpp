#include "description/Worte.h"

#include <utility>

namespace kw {

std::string Gezählt(int anzahl, const Zählwort &wort, Sprache sprache) {
    return std::to_string(anzahl) + ' ' + std::string((anzahl == 1 ? wort.Eines : wort.Mehrere).In(sprache));
}

std::string Aufgezählt(const std::vector<std::string> &dinge, Sprache sprache) {
    static constexpr Zweisprachig Und{" und ", " and "};
    if (dinge.size() < 2) return dinge.empty() ? std::string() : dinge.front();
    const std::vector<std::string> vordere(dinge.begin(), dinge.end() - 1);
    return Verbunden(vordere, ", ") + std::string(Und.In(sprache)) + dinge.back();
}

std::string Eingesetzt(const Zweisprachig &vorlage, Sprache sprache, std::initializer_list<std::string_view> worte) {
    std::string text;
    const auto *wort = worte.begin();
    for (const char zeichen : vorlage.In(sprache)) {
        if (zeichen == '%' && wort != worte.end()) text += *wort++;
        else text += zeichen;
    }
    return text;
}

std::string Verbunden(const std::vector<std::string> &teile, std::string_view zwischen) {
    std::string text;
    for (const std::string &teil : teile) {
        if (teil.empty()) continue;
        if (!text.empty()) text += zwischen;
        text += teil;
    }
    return text;
}

std::string GroßBegonnen(std::string text) {
    const bool klein = !text.empty() && text.front() >= 'a' && text.front() <= 'z';
    if (klein) text.front() = static_cast<char>(text.front() - 'a' + 'A');
    return text;
}

std::string AlsSatz(std::string text) {
    if (text.empty()) return text;
    const char ende = text.back();
    text = GroßBegonnen(text);
    if (ende != '.' && ende != '!' && ende != '?') text += '.';
    return text;
}

} // namespace kw
