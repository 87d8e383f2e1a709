#include "dialogs/Formular.h"

#include "document/Texte.h"

namespace kw {

Formular::Formular(const Formulartafel &tafel, Sprache sprache)
    : Caption(tafel.Titel.In(sprache)), Vorgabeknopf(tafel.Vorgabeknopf), Abbruchknopf(tafel.Abbruchknopf),
      name_(tafel.Name) {
    for (const Formularzeile &zeile : tafel.Zeilen) {
        reihenfolge_.emplace_back(zeile.Name);
        Steuerelement &element = elemente_[reihenfolge_.back()];
        element.Kind = zeile.Kind;
        element.Caption = zeile.Caption.In(sprache);
        element.Tip = zeile.Tip.In(sprache);
        element.Bei = zeile.Bei;
    }
}

Steuerelement &Formular::operator[](std::string_view name) {
    const auto i = elemente_.find(name);
    return i == elemente_.end() ? elemente_.at(std::string(name)) : i->second;
}

const Steuerelement *Formular::Finden(std::string_view name) const {
    const auto i = elemente_.find(name);
    return i == elemente_.end() ? nullptr : &i->second;
}

void Formular::TextSetzen(std::string_view name, std::string_view text) {
    Steuerelement &element = (*this)[name];
    if (element.Text == text) return;
    element.Text = text;
    Geändert(name);
}

void Formular::WertSetzen(std::string_view name, bool wert) {
    Steuerelement &element = (*this)[name];
    if (element.Value == wert) return;
    element.Value = wert;
    Geklickt(name);
}

void Formular::IndexSetzen(std::string_view name, int index) {
    Steuerelement &element = (*this)[name];
    element.ListIndex = index;
    const auto platz = static_cast<size_t>(index);
    const std::string text = index >= 0 && platz < element.Einträge.size() ? element.Einträge[platz] : "";
    if (element.Kind == Art::Kombination) TextSetzen(name, text);
    else element.Text = text;
    Geklickt(name);
}

void Formular::OptionSetzen(std::string_view name) {
    Steuerelement &gewählt = (*this)[name];
    for (auto &[anderer, element] : elemente_)
        if (element.Kind == Art::Option && element.Gruppe == gewählt.Gruppe) element.Value = false;
    gewählt.Value = true;
    Geklickt(name);
}

void Formular::TextEingeben(std::string_view name, std::string_view text) {
    TextSetzen(name, (*this)[name].Kind == Art::Textblock ? text : text.substr(0, text.find_first_of("\r\n")));
}

void Formular::Tippen(std::string_view name, std::string_view zeichen) {
    const Steuerelement &element = (*this)[name];
    if (!element.Enabled || !element.Visible) return;
    std::string text = element.Text;
    if (zeichen == "\b") {
        while (!text.empty() && IstFortsetzung(text.back())) text.pop_back();
        if (!text.empty()) text.pop_back();
    } else {
        if (!TasteErlaubt(name, zeichen)) return;
        if (zeichen == "\n" && element.Kind != Art::Textblock) return;
        text += zeichen;
    }
    TextSetzen(name, text);
}

void Formular::Drücken(std::string_view name) {
    Steuerelement &element = (*this)[name];
    if (!element.Enabled || !element.Visible) return;
    switch (element.Kind) {
    case Art::Textfeld:
    case Art::Textblock:
    case Art::Kombination: MausGedrückt(name); break;
    case Art::Option: OptionSetzen(name); break;
    case Art::Ankreuzfeld:
    case Art::Umschalter: WertSetzen(name, !element.Value); break;
    case Art::Knopf:
    case Art::Farbfeld: Geklickt(name); break;
    default: break;
    }
}

void Formular::Wählen(std::string_view name, int index) {
    const Steuerelement &element = (*this)[name];
    if (!element.Enabled || !element.Visible) return;
    if (index >= 0 && static_cast<size_t>(index) < element.Einträge.size()) IndexSetzen(name, index);
}

} // namespace kw
