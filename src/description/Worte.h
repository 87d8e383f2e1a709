#pragma once

#include "platform/Sprache.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

// What sentences are put together from, in both languages.
namespace kw {

/// A thing that is counted.
struct Zählwort {
    Zweisprachig Eines;
    Zweisprachig Mehrere;
};

/// "2 Kinder".
std::string Gezählt(int anzahl, const Zählwort &wort, Sprache sprache);
/// "A, B und C"; nothing for none.
std::string Aufgezählt(const std::vector<std::string> &dinge, Sprache sprache);
/// The text with these in place of its "%"s, in their order. What is put in isn't looked at again.
std::string Eingesetzt(const Zweisprachig &vorlage, Sprache sprache, std::initializer_list<std::string_view> worte);
/// The pieces with `zwischen` between them; empty ones are left out.
std::string Verbunden(const std::vector<std::string> &teile, std::string_view zwischen);
/// With a capital at its beginning.
std::string GroßBegonnen(std::string text);
/// The same with a full stop; nothing for nothing.
std::string AlsSatz(std::string text);

} // namespace kw
