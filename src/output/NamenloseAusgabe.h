#pragma once

#include "anonymity/OhneNamen.h"

#include <string>

namespace kw {

class Benutzer;
class Bilder;
struct Ansicht;

/// What an export without names asks and writes by.
struct Ausgabewege {
    Benutzer &benutzer;
    Bilder &bilder;
    const Uhr &uhr;
};

/// Asks for a file and writes the page there, or the project, or its family tree, without names; the ending says which:
/// .pdf, .png, .svg, .kwp, .ged. The project itself isn't touched, no name of it goes into the file, and it isn't
/// proposed as the file's. False when nothing was written: given up, or told in a box.
bool OhneNamenAusgeben(const Ausgabewege &wege, const Dokument &dokument, const Ansicht &ansicht, Lebenszeit zeit,
                       const std::string &projektdatei);

} // namespace kw
