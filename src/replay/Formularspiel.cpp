#include "replay/Formularspiel.h"

#include "document/Texte.h"
#include "replay/Skript.h"

#include <algorithm>

namespace kw {

namespace {

/// What a control shows, as one text.
std::string Inhalt(const Steuerelement &element) {
    switch (element.Kind) {
    case Art::Ankreuzfeld:
    case Art::Option:
    case Art::Umschalter: return std::to_string(element.Value);
    case Art::Farbfeld: return std::to_string(element.Farbwert);
    case Art::Textfeld:
    case Art::Textblock:
    case Art::Liste:
    case Art::Listenfeld:
    case Art::Kombination: return element.Text;
    default: return element.Caption;
    }
}

/// The characters of a text; "\n" and "\b" written out are Enter and Backspace.
std::vector<std::string> Tasten(std::string_view text) {
    std::vector<std::string> tasten;
    for (size_t i = 0; i < text.size();) {
        if (text[i] == '\\' && i + 1 < text.size() && (text[i + 1] == 'n' || text[i + 1] == 'b')) {
            tasten.emplace_back(text[i + 1] == 'n' ? "\n" : "\b");
            i += 2;
            continue;
        }
        size_t länge = 1;
        while (i + länge < text.size() && IstFortsetzung(text[i + länge])) ++länge;
        tasten.emplace_back(text.substr(i, länge));
        i += länge;
    }
    return tasten;
}

} // namespace

std::string Formularwert(const Formular &form, const std::string &frage) {
    if (frage == "caption") return form.Caption;
    const size_t punkt = frage.rfind('.');
    const std::string name = frage.substr(0, punkt);
    const Steuerelement *element = form.Finden(name);
    if (!element) throw Skriptfehler("unknown control: " + frage);
    const std::string was = punkt == std::string::npos ? "" : frage.substr(punkt + 1);
    if (was.empty()) return EineZeile(Inhalt(*element));
    if (was == "visible") return std::to_string(element->Visible);
    if (was == "enabled") return std::to_string(element->Enabled);
    if (was == "index") return std::to_string(element->ListIndex);
    if (was == "caption") return element->Caption;
    if (was == "tip") return EineZeile(element->Tip);
    throw Skriptfehler("unknown word: " + was);
}

std::map<std::string, std::string> Formularwerte(const Formular &form) {
    std::map<std::string, std::string> werte;
    for (const auto &name : form.Reihenfolge())
        for (const char *was : {"", ".visible", ".enabled", ".index", ".caption"})
            werte[form.Name() + "." + name + was] = Formularwert(form, name + was);
    return werte;
}

void Formularspiel::Spielen(const std::vector<std::string> &zeilen) {
    form_.Wirt = this;
    form_.Laden();
    for (const auto &zeile : zeilen) Zeile(zeile);
    if (form_.Offen()) form_.Schließkreuz();
    form_.Wirt = nullptr;
    form_.Entladen();
}

void Formularspiel::ZeitgeberStellen(std::string_view name, int ms) {
    std::erase_if(zeitgeber_, [&](const auto &z) { return z.first == name; });
    if (ms > 0) zeitgeber_.emplace_back(name, jetzt_ + ms);
}

void Formularspiel::FokusGeben(std::string_view steuerelement) {
    if (fokus_ == steuerelement) return;
    if (!fokus_.empty()) form_.Verlassen(std::exchange(fokus_, {}));
    fokus_ = steuerelement;
    form_.FokusErhalten(steuerelement);
}

void Formularspiel::Warten(int ms) {
    const int ende = jetzt_ + ms;
    while (form_.Offen()) {
        const auto nächster = std::min_element(zeitgeber_.begin(), zeitgeber_.end(),
                                               [](const auto &x, const auto &y) { return x.second < y.second; });
        if (nächster == zeitgeber_.end() || nächster->second > ende) break;
        jetzt_ = nächster->second;
        const std::string name = nächster->first;
        zeitgeber_.erase(nächster);
        form_.Zeitgeber(name);
    }
    jetzt_ = ende;
}

bool Formularspiel::Erreichbar(const std::string &name) {
    const Steuerelement *element = form_.Finden(name);
    if (!element) throw Skriptfehler("unknown control: " + name);
    if (element->Enabled && element->Visible) return true;
    lauf_.aus << "disabled " << name << "\n";
    return false;
}

void Formularspiel::Zeile(const std::string &zeile) {
    const Wörter w = Zerlegt(zeile);
    if (w.empty() || zeile.starts_with('#')) return;
    const std::string &befehl = w[0];
    if (befehl == "print") {
        lauf_.aus << Wort(w, 1) << " = " << Formularwert(form_, w[1]) << "\n";
        return;
    }
    if (befehl == "expect") {
        const std::string ist = Formularwert(form_, Wort(w, 1));
        const std::string soll = w.size() > 3 ? Ab(w, 3) : "";
        if (Wort(w, 2) != "=") throw Skriptfehler("expect NAME = VALUE");
        if (ist != soll) lauf_.Scheitern("expected " + form_.Name() + "." + w[1] + " = " + soll + ", found " + ist);
        return;
    }
    if (!form_.Offen()) throw Skriptfehler("the form is closed: " + zeile);
    if (befehl == "wait") return Warten(Zahl(Wort(w, 1)));
    const std::string &name = Wort(w, 1);
    if (befehl == "leave") {
        if (!form_.Finden(name)) throw Skriptfehler("unknown control: " + name);
        fokus_.clear();
        return form_.Verlassen(name);
    }
    if (!Erreichbar(name)) return;
    const std::string text = w.size() > 2 ? Ab(w, 2) : "";
    if (befehl != "pick") FokusGeben(name);
    const Art art = form_.Finden(name)->Kind;
    const bool schaltbar = art == Art::Ankreuzfeld || art == Art::Option || art == Art::Umschalter;
    if (befehl == "type") {
        for (const auto &taste : Tasten(text)) form_.Tippen(name, taste);
    } else if (befehl == "clear") {
        form_.TextEingeben(name, "");
    } else if (befehl == "set" && schaltbar) {
        if (form_.Finden(name)->Value != (text == "1")) form_.Drücken(name);
    } else if (befehl == "set") {
        form_.TextEingeben(name, Ersetzt(text, "\\n", "\n"));
    } else if (befehl == "pick") {
        form_.Wählen(name, Zahl(text));
    } else if (befehl == "press") {
        form_.Drücken(name);
    } else {
        throw Skriptfehler("unknown word in a form: " + befehl);
    }
}

} // namespace kw
