#pragma once

#include "editing/Elemente.h"
#include "editing/Gesten.h"
#include "keyboard/Seitencursor.h"

#include <vector>

// Elements taken by name instead of by a place that the pointer hits: overlapped ones too. What follows are the
// gestures' own routines, so that everything comes out as by mouse.
namespace kw {

/// The place of an element where a press would take it: a person's centre, the middle of a bar.
Seitenort Greifort(const Werkbank &w, Element element);

/// What a press at `e` on that element does, as if nothing else were there or selected: it is selected and in hand. Of
/// an arrow whose end is in hand that end again.
void Fassen(Werkbank &w, Element element, const Ereignis &e);
/// The element is selected alone, as after a click.
void Auswählen(Werkbank &w, Element element);

/// What is selected, in the order of the walk round the page.
std::vector<Element> Gewählte(const Werkbank &w);
/// Whether the element can be one of several that are selected.
bool KannInGruppe(Element element);
/// Exactly these are selected: one as after a click, two or more as a group in the smallest frame round them. Of
/// several those that can't be in a group are left out.
void AuswahlSetzen(Werkbank &w, const std::vector<Element> &elemente);

/// The form of that element, as a double click opens it; of an arrow that is selected already Enter takes another part:
/// its second end, its first, the whole. What has no form has its menu.
void Öffnen(Werkbank &w, Element element);
/// The menu of that element, of the group that it is in; of the page without one. It opens at once.
void KontextmenüÖffnen(Werkbank &w, std::optional<Element> element);

} // namespace kw
