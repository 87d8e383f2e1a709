#pragma once

#include "platform/Sprache.h"

#include <functional>
#include <optional>
#include <string>

// What the user is told when something that he asked for doesn't come out.
namespace kw {

class Benutzer;
enum class Ursache;

/// Why, in plain words that go on a sentence behind a colon, without a stop. Empty where nobody knows.
Zweisprachig Grundtext(Ursache grund);

/// Does what can fail, for want of memory too. Why it did, as above; nothing when it didn't.
std::optional<Zweisprachig> Fehlgrund(const std::function<Ursache()> &ausgabe);

/// Says in a box that file `datei` couldn't be written, why, and that the project is as it was.
void NichtGeschriebenMelden(Benutzer &benutzer, Sprache sprache, const std::string &datei, const Zweisprachig &grund);

/// The same of anything else: `satz` says what has failed, without a stop.
void FehlschlagMelden(Benutzer &benutzer, Sprache sprache, std::string satz, const Zweisprachig &grund);

} // namespace kw
