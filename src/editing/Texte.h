#pragma once

#include "editing/Gruppenart.h"

// Text boxes.
namespace kw {

struct Ansicht;
struct Dokument;
struct Ereignis;
struct Werkbank;

/// Position of the first text box under the point, -1 none. A record without measures keeps those of the record before
/// it. Meant.
int TextboxBei(const Dokument &dokument, double x, double y);
/// Selects the text box at `position`, with marker and drag mask. The lists are emptied; `Aktion` is the caller's.
void TextboxAuswählen(Werkbank &w, int position);

/// Brings the text box that was placed last, and has been measured, with its centre onto the page.
void NeuenTextAufSeite(Dokument &dokument, const Ansicht &ansicht);

// A press: with the tool in hand; with a box in hand whose release got lost; on a box. Each says whether the event ends
// with it.
bool TextSetzen(Werkbank &w, const Ereignis &e);
bool TextWarGefasst(Werkbank &w, const Ereignis &e);
bool TextTreffen(Werkbank &w, const Ereignis &e);
/// What the press on the box at `position` does, whatever lies over it.
void TextFassen(Werkbank &w, int position, const Ereignis &e);

// What is in hand follows the pointer as a mask; the release stores the place, snapped, or opens the menu.
void TextZiehen(Werkbank &w, const Ereignis &e);
void TextLoslassen(Werkbank &w, const Ereignis &e);

/// The selected box. One snapshot.
void TextLöschen(Werkbank &w);
/// The box that was selected last, however: what deleting does while `ElementArt` says "Textbox".
void LetzteTextboxLöschen(Werkbank &w);

/// Text boxes as a part of marquees, groups and the clipboard: measured ones only in a marquee.
extern const Gruppenart TexteInGruppen;

} // namespace kw
