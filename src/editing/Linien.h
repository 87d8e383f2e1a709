#pragma once

#include "document/Nachschlagen.h"

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <utility>

// Partnership and relationship lines. Lines hold their own ends, so they are rewritten whenever a person moves.
namespace kw {

struct Ansicht;
struct Auswahlkasten;
struct Dokument;
struct Ereignis;
struct Werkbank;

/// Whether the line of that record is under the point; a damaged one never.
bool BezLinieGetroffen(std::string_view satz, double x, double y);
/// The same for the bar of a partnership; one that isn't level or upright is never hit.
bool PLinieGetroffen(std::string_view satz, double x, double y);
/// Position of the first relationship line under the point, -1 none.
int BezLinieBei(const Dokument &dokument, double x, double y);
/// The same for bars of partnerships.
int PLinieBei(const Dokument &dokument, double x, double y);
/// Whether a marquee takes the bar of that record in; a damaged one never.
bool BalkenImKasten(std::string_view satz, const Auswahlkasten &kasten);

// A press on one selects it; each says whether the event ends with it. In a link gesture of a child a bar that is
// touched is taken in hand without ending the gesture.
bool BezLinieTreffer(Werkbank &w, double x, double y);
bool PLinieTreffer(Werkbank &w, double x, double y);
// What these do with the line at `position`, whatever lies over it.
void BezLinieFassen(Werkbank &w, int position);
void PLinieFassen(Werkbank &w, int position);

/// A bar follows the pointer, up and down only; released, it and its children's lines take that height.
void BalkenZiehen(Werkbank &w, const Ereignis &e);
void BalkenLoslassen(Werkbank &w, const Ereignis &e);
/// The release of the right button opens the menu of a relationship line.
void BezLinieLoslassen(Werkbank &w, const Ereignis &e);

// How they are made (Linienzug.cpp): by a link gesture from the selected person to another.

/// Finds the selected person's centre, from which a rubber line starts.
void RubberStart(Werkbank &w);
/// Each starts a link gesture from the selected person.
void mnuPartnerschaftsLinie(Werkbank &w);
void mnuBeziehungErstellen2(Werkbank &w);
/// The pointer is at (x, y), over the person at that position or over none (-1): sets `ZielPerson`, the rubber line and
/// the marks on the target.
void LinkZiehen(Werkbank &w, int person, double x, double y);
/// Whether that gesture can end at the person at that position: another one, and not joined so already.
bool KannZielSein(const Werkbank &w, int person);
/// A press ends the gesture at the person under the last move. Says whether the event ends with it.
bool LinkBeenden(Werkbank &w, const Ereignis &e);
/// Two persons, as positions in their store.
using Paar = std::pair<int, int>;
/// A partnership line between the two. False, and none made, when the same pair has one, in the same order, or is none.
/// No snapshot.
bool PartnerschaftAnlegen(Werkbank &w, Paar paar);
/// A couple's line, whose bar hangs as far below the lower partner as every new one, and on the page. Takes a number.
void PaarVerbinden(Dokument &dokument, const Ansicht &ansicht, Paar paar);
/// Takes the relationship line away again whose form has been left without OK, while `BeziehungZiehen` tells that it is
/// new. No snapshot: there was none of it. A line that was there before stays.
void BezLAbbrechen(Werkbank &w);

// Moving along.

/// Lets all lines of person `nr` end at (x, y), cm; `raster` is the snap step. Bars keep their height.
void LinienNachziehen(Dokument &dokument, const Bezüge &bezüge, std::string_view nr, double x, double y, double raster);
/// A group that goes as one: whom it takes along, and its way, cm. What lies between two of them goes the same way,
/// unsnapped, so that all keep their places to each other; of what leads out of the group the one end follows.
struct Gruppenzug {
    std::set<std::string, std::less<>> Personen; ///< their numbers
    double DeltaX, DeltaY;

    bool Nimmt(std::string_view nr) const { return Personen.contains(nr); }
};
/// Carries the lines along of persons who stand at their new places already.
void LinienMitbewegen(Dokument &dokument, const Gruppenzug &zug);

/// Writes a form's values into the line that it was opened for; one snapshot.
void Bez_LinieAnpassen(Werkbank &w, std::string_view beziehungsart);
void P_LinieAnpassen(Werkbank &w, std::string_view distanziert, std::string_view status, std::string_view daten);

/// The selected bar with its children's lines; the children stay. One snapshot.
void PLinieLöschen(Werkbank &w);
/// The selected relationship line. One snapshot.
void BezLinieLöschen(Werkbank &w);

} // namespace kw
