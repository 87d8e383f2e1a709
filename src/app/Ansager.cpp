#include "app/Ansager.h"

#include "description/Vorleser.h"
#include "description/Zeilenvergleich.h"
#include "editing/Werkzeuge.h"
#include "keyboard/Tastatur.h"
#include "output/Arbeitsbereich.h"
#include "platform/Bedienelemente.h"
#include "platform/Befehlsnamen.h"
#include "platform/Benutzer.h"
#include "rendering/Ansicht.h"

#include <utility>

namespace kw {

void Ansager::NachEreignis() {
    const auto &größen = z_.bereich.cboBildGröße;
    const bool gezoomt = std::exchange(zoom_, größen.ListIndex) != größen.ListIndex;
    if (!z_.vorleser.HörtZu()) return;
    if (const std::string text = z_.vorleser.NachEreignis(); !text.empty()) hörer_.Ansagen(text);
    const auto &ort = z_.tastatur.Cursor().Ort;
    if (std::exchange(ort_, ort) != ort && ort) hörer_.Ansagen(Ortstext(ort->X, ort->Y, z_.ansicht.Sprache));
    if (gezoomt) hörer_.Ansagen("Zoom " + größen.Text());
    const Zweisprachig *warum = z_.lage.Hinweis;
    if (std::exchange(warum_, warum) != warum && warum) hörer_.Ansagen(warum->In(z_.ansicht.Sprache));
    const bool inHand = !warum && (IstBereit(z_.lage) || IstLink(z_.lage.Aktion)); // a tool tells what comes next
    const std::string schritt = inHand ? z_.bedienung[Name::lblStatus].Caption : std::string();
    if (std::exchange(schritt_, schritt) != schritt && inHand) hörer_.Ansagen(schritt);
}

} // namespace kw
