#pragma once

#include "platform/Sprache.h"

#include <string>

// What is told of a family tree's page before there is one.
namespace kw {

struct Seitenwunsch;
struct Stammbaumseite;

/// How many they are, and which sheet holds them; or what it would need.
std::string Seitenbefund(const Stammbaumseite &seite, Sprache sprache);

/// What `ausweg` has otherwise than `wunsch`: "ohne Tanten und Onkel, kleinere Symbole".
std::string Auswegtext(const Seitenwunsch &wunsch, const Seitenwunsch &ausweg, Sprache sprache);

} // namespace kw
