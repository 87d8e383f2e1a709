#pragma once

#include "document/Dateien.h"
#include "platform/Benutzer.h"
#include "platform/Sprache.h"

#include <string>

// What the user is told when a project couldn't be saved, or not be loaded as it was.
namespace kw {

/// Where a document is that couldn't be saved: nothing of it was unsaved, the safety net has it too, or nobody else
/// has.
enum class Verbleib { Unverändert, ImNetz, NurAufDerSeite };

Nachfrage SpeichernGescheitert(const std::string &datei, const Dateibefund &befund, Verbleib verbleib, Sprache sprache);

/// The file couldn't be read, and nothing has changed.
Nachfrage LadenGescheitert(const std::string &datei, const Dateibefund &befund, Sprache sprache);

/// The same for a file that is none of ours; `fassung`: a version of that file from the safety net.
Nachfrage KeinProjektGefunden(const std::string &datei, bool fassung, Sprache sprache);

/// `schaden`: the first place that couldn't be read, and how much came, in that language.
Nachfrage NurZumTeilGeladen(const std::string &datei, const std::string &schaden, bool fassung, Sprache sprache);

/// Somebody else has written the file: Yes replaces that, No saves under another name.
Nachfrage FremdeÄnderungsfrage(const std::string &datei, Sprache sprache);

} // namespace kw
