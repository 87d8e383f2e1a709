#pragma once

#include "platform/Sprache.h"

#include <string>

namespace kw {

class Einstellungsablage;
enum class Lebenszeit;
struct Einstellungen;
struct Werkbank;
class Drucker;
class Sicherheitsnetz;
class Uhr;
struct Dokument;
struct Stammbaumvorlage;

/// What forms ask of the main window beside `Fensterdienste`.
class Dialogdienste {
  public:
    virtual ~Dialogdienste() = default;
    /// Puts the legend button into that state, rebuilds the legend and shows or hides it.
    virtual void LegendeZeigen(bool sichtbar) = 0;
    /// The document's paper, orientation or margins' frame have changed: toolbar and page follow.
    virtual void SeiteAnwenden() = 0;
    /// One print run on the current printer. False when no further copy is wanted.
    virtual bool GenogrammDrucken() = 0;
    /// Opens that version of the safety net, behind the question about unsaved changes. False when it didn't come.
    virtual bool FassungÖffnen(const std::string &name) = 0;
    /// Writes a family tree to a file that the user names; a failure is told. False when nothing was written.
    virtual bool StammbaumSpeichern(const std::string &inhalt) = 0;
    /// Asks for a file and exports page or project without names. False when nothing was written, which was told.
    virtual bool OhneNamenExportieren(Lebenszeit zeit) = 0;
    /// Makes that page, of the file `stammbaum`, a new project, which isn't saved yet, behind the question about
    /// unsaved changes; one step back leads to an empty page. False, and nothing changed, when the question is
    /// cancelled.
    virtual bool NeuesProjekt(const Dokument &seite, const std::string &stammbaum) = 0;
    /// Writes a text of lines to a file that the user names, `titel` if he says nothing else; prints it. Failures are
    /// told.
    virtual void TextSpeichern(const std::string &titel, const std::string &text) = 0;
    virtual void TextDrucken(const std::string &titel, const std::string &text) = 0;
};

/// All that the forms work on.
struct Dialogumgebung {
    Werkbank &werkbank;
    Einstellungen &einstellungen;
    Einstellungsablage &ablage;
    const Uhr &uhr;
    Drucker &drucker;
    Dialogdienste &dienste;
    Sicherheitsnetz &netz;
    Stammbaumvorlage *stammbaum = nullptr; ///< while one is imported

    kw::Sprache Sprache() const;
};

} // namespace kw
