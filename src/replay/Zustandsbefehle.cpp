#include "app/frmMain.h"
#include "commands/Menuetafel.h"
#include "description/Seitentext.h"
#include "document/Fensterplatz.h"
#include "document/Sicherheitsnetz.h"
#include "document/Texte.h"
#include "document/Zahlen.h"
#include "replay/Namen.h"
#include "replay/Programm.h"
#include "replay/Skriptbefehle.h"

#include <cmath>
#include <utility>

namespace kw {

namespace {

void Speichern(Projekt &projekt, const std::string &datei) { projekt.ProjektSchreiben(datei); }

void Ablegen(Programm &p, const Wörter &w) {
    const auto liste = p.namen->Listen.find(Wort(w, 1));
    if (liste == p.namen->Listen.end()) throw Skriptfehler("unknown store: " + w[1]);
    liste->second->Anhängen(Ab(w, 2));
}

void Setzen(Programm &p, const Wörter &w) {
    const auto variable = p.namen->Variablen.find(Wort(w, 1));
    if (variable == p.namen->Variablen.end() || !variable->second.Setzen)
        throw Skriptfehler("no variable to set: " + w[1]);
    variable->second.Setzen(w.size() > 2 ? Ab(w, 2) : "");
}

std::string Wert(const Programm &p, const std::string &name) {
    if (const auto v = p.namen->Variablen.find(name); v != p.namen->Variablen.end()) return v->second.Lesen();
    if (const auto l = p.namen->Listen.find(name); l != p.namen->Listen.end())
        return std::to_string(l->second->Anzahl());
    const auto &formulare = p.benutzer.Formularwerte_;
    if (const auto f = formulare.find(name); f != formulare.end()) return f->second;
    throw Skriptfehler("unknown name: " + name);
}

std::string Zustand(const Programm &p, const std::string &frage, const std::string &name) {
    if (const auto s = p.namen->Sichtbar.find(name); frage == "visible" && s != p.namen->Sichtbar.end())
        return std::to_string(s->second());
    const Bedienelement *element = p.innen.bedienung.Finden(name);
    if (!element) throw Skriptfehler("unknown element: " + name);
    if (frage == "caption") return element->Caption;
    if (frage == "tip") return element->Tipp;
    if (frage == "enabled") return std::to_string(element->Enabled);
    if (frage == "visible") return std::to_string(element->Visible);
    if (frage == "checked") return std::to_string(element->Checked);
    throw Skriptfehler("unknown word: " + frage);
}

void Erwarten(Wiedergabe &lauf, const std::string &zeile) {
    const size_t gleich = zeile.find(" = ");
    const bool leer = gleich == std::string::npos && zeile.ends_with(" =");
    if (gleich == std::string::npos && !leer) throw Skriptfehler("expect NAME = VALUE");
    const Wörter links = Zerlegt(zeile.substr(0, leer ? zeile.size() - 2 : gleich));
    std::string soll(leer ? "" : Getrimmt(std::string_view(zeile).substr(gleich + 3)));
    if (soll.size() > 1 && soll.starts_with('"') && soll.ends_with('"')) soll = Ab(Zerlegt(soll), 0);
    const Programm &p = lauf.Läuft();
    const std::string ist = links.size() > 2 ? Zustand(p, links[1], links[2]) : Wert(p, Wort(links, 1));
    if (ist != soll) lauf.Scheitern("expected " + Ab(links, 1) + " = " + soll + ", found " + ist);
}

std::string FormText(const Programm &p, const std::string &name) {
    const auto form = p.namen->Formen.find(name);
    if (form == p.namen->Formen.end()) throw Skriptfehler("unknown shape: " + name);
    return name + " " + form->second() + (p.namen->Sichtbar.at(name)() ? " visible" : " hidden");
}

/// What the safety net holds, but of programs that are running.
std::string NetzText(const Sicherheitsnetz &netz) {
    const auto einträge = netz.Einträge();
    std::string text = "net " + std::to_string(einträge.size()) + "\n";
    for (const Netzkopf &kopf : einträge)
        text +=
            "  " + (kopf.Projektdatei.empty() ? "-" : kopf.Projektdatei) + " " + std::to_string(kopf.Personen) + "\n";
    return text;
}

/// Where the window comes up.
std::string FensterText(const Programm &p) {
    const auto &zuletzt = p.haupt->DerAnblick().Fenster;
    if (!zuletzt) return "window none";
    const auto [f, maximiert] = AufSchirmen(*zuletzt, {&p.benutzer.Schirm, 1});
    return "window " + std::to_string(f.Left) + " " + std::to_string(f.Top) + " " + std::to_string(f.Width) + " " +
           std::to_string(f.Height) + (maximiert ? " maximized" : "");
}

/// The page in words, a row an element: kind, key, name, description, place in cm, whether it is selected.
std::string ElementeText(Programm &p) {
    Vorleser &vorleser = p.haupt->DerVorleser();
    vorleser.Zuhören();
    vorleser.Auffrischen();
    const Sprache sprache = p.innen.ansicht.Sprache;
    std::string text = "elements " + std::to_string(vorleser.Zeilen().size()) + "\n";
    for (const Elementzeile &z : vorleser.Zeilen()) {
        text += "  " + std::string(Artname(z.Element.Art)) + (z.Schlüssel.empty() ? "" : " ") + z.Schlüssel + " | ";
        text += z.Name + " | ";
        text += z.Zusatz(sprache) + " |";
        const Umgebung &u = z.Rahmen;
        for (const double maß : {u.Links, u.Oben, u.Rechts - u.Links, u.Unten - u.Oben})
            text += " " + ZahlSchreiben(OhneRauschen(maß));
        text += std::string(" | ") + (z.Gewählt ? "1" : "0") + "\n";
    }
    return text;
}

std::string SeiteInWorten(const Programm &p) {
    const Einblick &i = p.innen;
    return Seitentext({i.dokument, i.ansicht, i.auswahl, i.lage, i.legende, i.uhr});
}

void Drucken(Wiedergabe &lauf, const Wörter &w) {
    Programm &p = lauf.Läuft();
    const std::string &name = Wort(w, 1);
    if (name == "boxes") {
        lauf.aus << std::exchange(p.benutzer.Kästen, {});
        return;
    }
    if (name == "effects") {
        lauf.aus << std::exchange(p.wirkungen, {});
        return;
    }
    if (name == "elements") {
        lauf.aus << ElementeText(p);
        return;
    }
    if (name == "announcements") {
        lauf.aus << std::exchange(p.benutzer.Angesagtes, {});
        return;
    }
    if (name == "filters") {
        lauf.aus << "filters " << p.benutzer.Filter << "\n";
        return;
    }
    if (name == "net") {
        lauf.aus << NetzText(p.innen.netz);
        return;
    }
    if (name == "window") {
        lauf.aus << FensterText(p) << "\n";
        return;
    }
    if (name == "cursor") {
        lauf.aus << "cursor " << p.haupt->DerAnblick().cursor.Text(p.innen.dokument) << "\n";
        return;
    }
    if (name == "shape") {
        lauf.aus << FormText(p, Wort(w, 2)) << "\n";
        return;
    }
    if (w.size() > 2) { // caption|tip|enabled|visible|checked NAME
        const std::string zustand = Zustand(p, name, w[2]);
        lauf.aus << name << " " << w[2] << " = " << zustand << "\n";
        return;
    }
    if (const auto liste = p.namen->Listen.find(name); liste != p.namen->Listen.end()) {
        lauf.aus << name << " " << liste->second->Anzahl() << "\n";
        for (const auto &satz : *liste->second) lauf.aus << "  " << satz << "\n";
        return;
    }
    const std::string wert = Wert(p, name);
    lauf.aus << name << " = " << wert << "\n";
}

/// One print run, on a surface of the page's size.
std::string DruckText(const Einblick &h) {
    const Ansicht &a = h.ansicht;
    const auto twips = [](double cm) { return static_cast<int>(std::nearbyint(cm * TwipsJeCm)); };
    Aufzeichnung papier;
    papier.GrößeSetzen(twips(a.SeitenBreite), twips(a.SeitenHöhe));
    papier.PixelJeCm = DruckPixelJeCm;
    papier.Scale(a.SeitenBreite, a.SeitenHöhe, 1);
    papier.Schreibt = true;
    h.AufPapier(papier);
    return papier.Text;
}

std::string VorschauText(Programm &p) {
    p.leinwand.Text.clear();
    p.leinwand.Schreibt = true;
    p.innen.fenster.Vorschau();
    p.leinwand.Schreibt = false;
    return p.leinwand.Text;
}

void Zeichnen(Wiedergabe &lauf, const Wörter &w) {
    if (w.size() > 1 && w[1] != "printing") throw Skriptfehler("unknown word: " + w[1]);
    Programm &p = lauf.Läuft();
    lauf.aus << (w.size() > 1 ? DruckText(p.innen) : VorschauText(p));
}

/// Every row of the commands' table, as its name and its first caption in that language.
void Beschriftungen(std::ostream &aus, const std::string &sprache) {
    if (sprache != "de" && sprache != "en") throw Skriptfehler("unknown language: " + sprache);
    for (const Menüzeile &zeile : Menütafel())
        aus << zeile.Name << " " << zeile.Caption.In(SpracheAus(sprache)) << "\n";
}

constexpr Skriptbefehl Tabelle[] = {
    {"load", [](auto &lauf, auto &w, auto &) { lauf.Läuft().innen.projekt.Öffnen(Ab(w, 1)); }},
    {"save", [](auto &lauf, auto &w, auto &) { Speichern(lauf.Läuft().innen.projekt, Ab(w, 1)); }},
    {"store", [](auto &lauf, auto &w, auto &) { Ablegen(lauf.Läuft(), w); }},
    {"set", [](auto &lauf, auto &w, auto &) { Setzen(lauf.Läuft(), w); }},
    {"print", [](auto &lauf, auto &w, auto &) { Drucken(lauf, w); }},
    {"expect", [](auto &lauf, auto &, auto &zeile) { Erwarten(lauf, zeile); }},
    {"listen", [](auto &lauf, auto &, auto &) { lauf.Läuft().haupt->DerVorleser().Zuhören(); }},
    {"describe", [](auto &lauf, auto &, auto &) { lauf.aus << SeiteInWorten(lauf.Läuft()); }},
    {"draw", [](auto &lauf, auto &w, auto &) { Zeichnen(lauf, w); }},
    {"crash", [](auto &lauf, auto &, auto &) { lauf.Abstürzen(); }},
    {"say", [](auto &lauf, auto &w, auto &) { lauf.aus << Ab(w, 1) << "\n"; }},
    {"captions", [](auto &lauf, auto &w, auto &) { Beschriftungen(lauf.aus, Wort(w, 1)); }},
};

} // namespace

std::span<const Skriptbefehl> Zustandsbefehle() { return Tabelle; }

} // namespace kw
