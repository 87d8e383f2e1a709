#pragma once

#include "platform/Sprache.h"

#include <string>
#include <vector>

// A text of lines that leaves the program: a report.
namespace kw {

class Benutzer;
class Zeichenfläche;

/// Writes it to a file that the user names, `titel` if he says nothing else. A failure is told in a box.
void TextSpeichern(Benutzer &benutzer, Sprache sprache, const std::string &titel, const std::string &text);

/// The lines of a sheet each, broken where they are too long; at least one sheet.
std::vector<std::vector<std::string>> Textblätter(const std::string &text);
/// One of them on paper, upright, under a line of its own.
void TextblattZeichnen(Zeichenfläche &papier, const std::string &kopf, const std::vector<std::string> &zeilen);

} // namespace kw
