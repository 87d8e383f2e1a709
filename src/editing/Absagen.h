#pragma once

#include "platform/Sprache.h"

/// Why nothing came of a gesture or a command: what `Leinwandlage::Hinweis` points to, and the status row tells until
/// the next one.
namespace kw::Absage {

// Links.
inline constexpr Zweisprachig Niemand{"Nicht verknüpft: Dort steht niemand.", "Not linked: nobody is there."};
inline constexpr Zweisprachig MitSichSelbst{"Nicht verknüpft: Eine Linie braucht zwei Personen.",
                                            "Not linked: a line needs two persons."};
inline constexpr Zweisprachig SchonVerknüpft{"Die beiden haben schon eine solche Linie.",
                                             "The two have such a line already."};
inline constexpr Zweisprachig KeineEltern{"Nicht verknüpft: Dort ist keine Partnerschaftslinie.",
                                          "Not linked: there is no partnership line."};
inline constexpr Zweisprachig KeinKreis{
    "Nicht verknüpft: Niemand kann Kind von sich selbst oder von eigenen Nachkommen sein.",
    "Not linked: nobody can be a child of themselves or of their own descendants."};
inline constexpr Zweisprachig OhnePerson{"Erst die Person anklicken, von der die Linie ausgehen soll.",
                                         "First click the person that the line starts from."};
inline constexpr Zweisprachig HatEltern{"Die ausgewählte Person hat schon Eltern.",
                                        "The selected person has parents already."};
inline constexpr Zweisprachig KeinPaar{"Zwillinge brauchen ein Paar im Rahmen.", "Twins need a couple in the frame."};

// What goes out.
inline constexpr Zweisprachig KeinStammbaum{"Auf der Seite steht niemand, der in einen Stammbaum gehört.",
                                            "Nobody stands on the page who belongs in a family tree."};

// What is drawn or placed.
inline constexpr Zweisprachig KurzerPfeil{"Kein Pfeil: Er muss länger als 5 mm sein.",
                                          "No arrow: it has to be longer than 5 mm."};
inline constexpr Zweisprachig KeinStrich{"Keine Kreislinie: mit gedrückter Taste um die Personen herumfahren.",
                                         "No circle line: go round the persons with the button held down."};
inline constexpr Zweisprachig KleinesBild{"Kein Bild: Der Rahmen muss breiter und höher als 12 mm sein.",
                                          "No picture: the frame has to be wider and higher than 12 mm."};
inline constexpr Zweisprachig KreisImWeg{"Dort ist eine Kreislinie: Sie ist jetzt ausgewählt, sonst geschah nichts.",
                                         "There is a circle line: it is selected now, and nothing else was done."};
inline constexpr Zweisprachig LegendeImWeg{"Dort steht die Legende: Es geschah nichts.",
                                           "The legend stands there: nothing was done."};
inline constexpr Zweisprachig Daneben{"Neben der Seite geht das nicht: auf das weiße Blatt klicken.",
                                      "That can't be done beside the page: click the white sheet."};

// Selecting and moving.
inline constexpr Zweisprachig LeererRahmen{"Im Rahmen ist nichts.", "There is nothing in the frame."};
inline constexpr Zweisprachig NurBalken{"Partnerschaftslinien gehen nur mit ihren Personen mit.",
                                        "Partnership lines only go with their persons."};
inline constexpr Zweisprachig NurSenkrecht{"Partnerschaftslinien lassen sich nur nach oben und unten ziehen.",
                                           "Partnership lines can only be dragged up and down."};
inline constexpr Zweisprachig KurzerWeg{"Nicht verschoben: weniger als ein Rasterschritt.",
                                        "Not moved: less than one step of the grid."};
inline constexpr Zweisprachig OhneFormular{"Pfeile und Kreislinien haben kein Formular.",
                                           "Arrows and circle lines have no form."};

// Commands.
inline constexpr Zweisprachig NiemandVerbunden{"Nichts angeordnet: Niemand ist durch Linien verbunden.",
                                               "Nothing arranged: nobody is joined by lines."};
inline constexpr Zweisprachig PaarNurHalbGewählt{
    "Nichts angeordnet: Von den Paaren und den Eltern müssen immer beide ausgewählt sein.",
    "Nothing arranged: of couples and of parents, both have to be selected."};
inline constexpr Zweisprachig SchonGeordnet{"Es steht schon alles so.", "Everything stands like that already."};
inline constexpr Zweisprachig KreisImWegDerOrdnung{
    "Nichts angeordnet: Eine Kreislinie könnte dann nicht mehr dieselben Personen umschließen.",
    "Nothing arranged: a circle line couldn't go round the same persons any more."};
inline constexpr Zweisprachig NichtsGewählt{"Es ist nichts ausgewählt.", "Nothing is selected."};
inline constexpr Zweisprachig KeinePersonGewählt{"Es ist keine Person ausgewählt.", "No person is selected."};
inline constexpr Zweisprachig GrößtesSymbol{"Größer wird das Symbol nicht.", "The symbol gets no larger."};
inline constexpr Zweisprachig KleinstesSymbol{"Kleiner wird das Symbol nicht.", "The symbol gets no smaller."};
inline constexpr Zweisprachig GrößterZoom{"Größer wird die Seite nicht gezeigt.", "The page is shown no larger."};
inline constexpr Zweisprachig KleinsterZoom{"Kleiner wird die Seite nicht gezeigt.", "The page is shown no smaller."};
inline constexpr Zweisprachig NichtsZurück{"Es gibt nichts rückgängig zu machen.", "There is nothing to undo."};
inline constexpr Zweisprachig NichtsWieder{"Es gibt nichts wiederherzustellen.", "There is nothing to redo."};
inline constexpr Zweisprachig LeereAblage{"Es gibt nichts einzufügen: erst im Genogramm etwas kopieren.",
                                          "There is nothing to paste: copy something of the genogram first."};
inline constexpr Zweisprachig NurFremdes{"Texte und Bilder aus anderen Programmen lassen sich nicht einfügen.",
                                         "Texts and pictures from other programs can't be pasted."};
inline constexpr Zweisprachig NichtsDa{"Auf der Seite ist noch nichts.", "There is nothing on the page yet."};
inline constexpr Zweisprachig KeinProgramm{"Dieses Programm ist hier nicht installiert.",
                                           "That program isn't installed here."};
inline constexpr Zweisprachig KeinAnzeiger{"Die Anleitung ließ sich nicht öffnen.", "The manual could not be opened."};

} // namespace kw::Absage
