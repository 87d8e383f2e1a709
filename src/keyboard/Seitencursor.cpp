#include "keyboard/Seitencursor.h"

#include "document/Dokument.h"
#include "document/Zahlen.h"

#include <algorithm>

namespace kw {

namespace {

/// The store of a kind whose records have no number; none of the others.
const Satzliste *OhneNummer(const Dokument &d, Elementart art) {
    switch (art) {
    case Elementart::Beziehung: return &d.cboBeziehungsLinien;
    case Elementart::Text: return &d.cboTextboxen;
    case Elementart::Pfeil: return &d.cboPfeile;
    case Elementart::Kreis: return &d.cboFreehandlines;
    default: return nullptr;
    }
}

std::ptrdiff_t Anzahl(const std::vector<Element> &alle, Elementart art) {
    return std::count_if(alle.begin(), alle.end(), [&](const Element &e) { return e.Art == art; });
}

} // namespace

Seitencursor::Kennung Seitencursor::KennungVon(const Dokument &d, kw::Element element) {
    const Satzliste *speicher = OhneNummer(d, element.Art);
    return {element.Art, speicher ? speicher->Satz(element.Position) : Elementschlüssel(d, element)};
}

void Seitencursor::Setzen(const Dokument &d, kw::Element element) {
    const auto alle = AlleElemente(d);
    const auto hier = std::find(alle.begin(), alle.end(), element);
    element_ = hier == alle.end() ? std::nullopt : std::optional(element);
    gang_.clear();
    for (auto i = hier; i != alle.end(); ++i) gang_.push_back(KennungVon(d, *i));
    anzahl_ = Anzahl(alle, element.Art);
}

std::optional<Element> Seitencursor::Wiedergefunden(const Dokument &d, const std::vector<kw::Element> &alle) const {
    const bool dort = std::find(alle.begin(), alle.end(), *element_) != alle.end();
    if (dort && KennungVon(d, *element_) == gang_.front()) return element_;
    // The record of one without a number is another when the element has been moved or edited.
    if (dort && OhneNummer(d, element_->Art) && Anzahl(alle, element_->Art) == anzahl_) return element_;
    for (const Kennung &kennung : gang_)
        for (const kw::Element &e : alle)
            if (e.Art == kennung.Art && KennungVon(d, e) == kennung) return e;
    return alle.empty() ? std::nullopt : std::optional(alle.back());
}

void Seitencursor::Nachführen(const Dokument &d) {
    if (!element_) return;
    const auto neu = Wiedergefunden(d, AlleElemente(d));
    if (neu) Setzen(d, *neu);
    else Vergessen();
}

std::string Seitencursor::Text(const Dokument &d) const {
    if (Ort) return "place " + ZahlSchreiben(Ort->X) + " " + ZahlSchreiben(Ort->Y);
    if (!element_) return "none";
    const std::string schlüssel = Elementschlüssel(d, *element_);
    return std::string(Artname(element_->Art)) + (schlüssel.empty() ? "" : " " + schlüssel);
}

} // namespace kw
