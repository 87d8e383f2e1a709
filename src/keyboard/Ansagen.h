#pragma once

#include "editing/Elemente.h"
#include "keyboard/Wege.h"
#include "platform/Sprache.h"

// What is said when a key leads to nothing.
namespace kw {

inline constexpr Zweisprachig AmSeitenrand{"Hier endet die Seite.", "The page ends here."};
inline constexpr Zweisprachig HierLiegtEinPunkt{"Hier liegt der letzte Punkt; der erste schließt die Linie.",
                                                "The last point is here; the first one closes the line."};
inline constexpr Zweisprachig PunktGesetzt{"Punkt gesetzt; der erste schließt die Linie.",
                                           "Point set; the first one closes the line."};
inline constexpr Zweisprachig GanzerPfeil{"Der ganze Pfeil: Alt und Pfeiltasten verschieben ihn.",
                                          "The whole arrow: Alt and arrow keys move it."};
inline constexpr Zweisprachig ErstesEnde{"Anfang des Pfeils: Alt und Pfeiltasten verschieben ihn.",
                                         "Start of the arrow: Alt and arrow keys move it."};
inline constexpr Zweisprachig ZweitesEnde{"Ende des Pfeils: Alt und Pfeiltasten verschieben es.",
                                          "End of the arrow: Alt and arrow keys move it."};
inline constexpr Zweisprachig NichtsDort{"Dort ist nichts.", "Nothing there."};
inline constexpr Zweisprachig NichtsGewählt{"Zuerst mit Tab zu einem Element gehen.",
                                            "Go to an element first, with Tab."};
inline constexpr Zweisprachig LeereSeite{"Die Seite ist leer.", "The page is empty."};
inline constexpr Zweisprachig KeineGruppe{"Kindlinien, Beziehungslinien und die Legende gehören zu keiner Gruppe.",
                                          "Child lines, relationship lines and the legend belong to no group."};
inline constexpr Zweisprachig LegendeOhneMarke{"Die Legende wird nicht markiert; Alt und Pfeiltasten verschieben sie.",
                                               "The legend can't be selected; Alt and arrow keys move it."};
inline constexpr Zweisprachig GehtNichtWeiter{"Weiter geht es in dieser Richtung nicht.",
                                              "It can't go further that way."};
inline constexpr Zweisprachig LinienFolgen{"Diese Linie folgt ihren Personen.", "This line follows its persons."};
inline constexpr Zweisprachig KeinZiel{"Kein mögliches Ziel.", "No possible target."};
inline constexpr Zweisprachig ZielWählen{"Zuerst mit Tab ein Ziel wählen.", "Choose a target first, with Tab."};
inline constexpr Zweisprachig NiemandNamens{"Niemand heißt so.", "Nobody has that name."};

/// Why a way along the family or by place led nowhere.
const Zweisprachig &KeinWeg(Elementart von, Richtung richtung);

} // namespace kw
