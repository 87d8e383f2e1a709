#pragma once

#include "document/Nachschlagen.h"

#include <string_view>

// Child lines, and twins.
namespace kw {

struct Dokument;
struct Ereignis;
struct Gruppenzug;
struct Leinwandlage;
struct Werkbank;

/// Whether the child line of that record is under the point. The lines end half of `auswahlGröße` above the child's
/// centre. That is the size of the person last hit, whoever that was, not of the child. Meant.
bool KindLinieGetroffen(std::string_view satz, double x, double y, double auswahlGröße);
/// Position of the first child line under the point, -1 none.
int KindLinieBei(const Dokument &dokument, double x, double y, double auswahlGröße);

/// A press on one selects it. Says whether the event ends with it.
bool KindLinieTreffer(Werkbank &w, double x, double y);
/// What that does with the line at `position`, whatever lies over it.
void KindLinieFassen(Werkbank &w, int position);
/// The release leaves it selected, ready to be deleted.
void KindLinieLoslassen(Werkbank &w, const Ereignis &e);

/// Whether the selected person may become a child: it has no parents yet.
bool KannKindWerden(const Dokument &dokument, const Leinwandlage &lage);
/// Whether the couple of that partnership can be the parents of the person: they neither are it nor come from it.
bool KannKindSein(const Dokument &dokument, int plinie, int person);
/// Starts the link gesture of a child: its line follows the pointer to a bar, where a press hangs it up.
void mnuKindVon(Werkbank &w);
void KindLinkZiehen(Werkbank &w, const Ereignis &e);
/// The same for one who names the bar instead of pointing at it, whatever lies over it at `e`.
void KindLinkZeigen(Werkbank &w, int plinie, const Ereignis &e);
bool KindLinkBeenden(Werkbank &w, const Ereignis &e);

/// Kind of the selected child line: "A" adopted, "P" foster child, anything else natural.
void KindArtSetzen(Werkbank &w, std::string_view art);
/// Removes the selected child line: the child loses parents and twin, the twin only its mark.
void KindLinieEntfernen(Werkbank &w);

/// Puts the child lines of that partnership on its bar.
void KinderAnpassen(Dokument &dokument, const Bezüge &bezüge, std::string_view partnerschaft);
/// Carries the child lines along of a group whose persons and partnership lines have moved already.
void KinderMitbewegen(Dokument &dokument, const Gruppenzug &zug);
/// Lets the child line of person `nr`, and its twin's, follow the person to (x, y), cm.
void KindlinieNachziehen(Dokument &dokument, const Bezüge &bezüge, std::string_view nr, double x, double y);

// Twins (Zwillinge.cpp).

/// A twin command: `art` 1 to 6 from the twins' menus. New twins come under the two selected parents, who get a
/// partnership line if they have none; a message when not exactly two persons are selected.
void ZwillingeEinfügen(Werkbank &w, int art);
/// When two are selected: offers to make twins of exactly two siblings that have no twin yet.
void ZwillingeBereit(Werkbank &w);
/// Makes twins of the siblings in `Zwillingspaar`; `mark` is "1E" or "2E". Unlike new identical twins they get no
/// relationship records. Meant.
void ZwillingeErklären(Werkbank &w, std::string_view mark);
/// The palette's button for twins: opens `mnuZwillinge`.
void cmdZwillinge(Werkbank &w);

} // namespace kw
