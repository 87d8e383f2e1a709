#include "app/Stammbaumaufruf.h"
#include "app/Stammbaumdatei.h"
#include "document/Codepage.h"
#include "document/Dateien.h"
#include "document/Profil.h"
#include "layout/Familienlage.h"
#include "replay/Familiendatei.h"
#include "replay/Programm.h"
#include "replay/Skriptbefehle.h"
#include "replay/Stammbaumausgabe.h"

#include <algorithm>
#include <cmath>

namespace kw {

namespace {

void AlterBerechnen(Wiedergabe &lauf, const std::string &text) {
    Altersberechnung &alter = lauf.Läuft().alter;
    alter.AlterAusDatum(text);
    lauf.aus << alter.strGebDatumText << "\n"
             << alter.strAlterText << "\n"
             << alter.strGebJahrText << "\n"
             << alter.bDatumUngueltig << "\n";
}

void Profilaufruf(std::ostream &aus, const std::string &datei, const std::string &zeile) {
    const auto zeigen = [&](char art, std::string text) {
        const size_t länge = NachCodepage(text).size();
        std::replace(text.begin(), text.end(), '\0', '|');
        aus << art << " " << länge << " [" << text << "]\n";
    };
    const Wörter t = Geteilt(zeile, '\t');
    const std::string &abschnitt = Wort(t, 1);
    if (t[0] == "W") aus << "W " << ProfilSchreiben(datei, abschnitt, Wort(t, 2), t.size() > 3 ? t[3] : "") << "\n";
    else if (t[0] == "D") aus << "D " << ProfilSchreiben(datei, abschnitt, std::nullopt, "") << "\n";
    else if (t[0] == "R") zeigen('R', ProfilLesen(datei, abschnitt, Wort(t, 2)));
    else if (t[0] == "K") zeigen('K', ProfilLesen(datei, abschnitt, std::nullopt));
    else throw Skriptfehler("unknown call: " + t[0]);
}

void Profilaufrufe(Wiedergabe &lauf, const std::string &datei) {
    std::string zeile;
    while (lauf.NächsteZeile(zeile)) {
        if (zeile == "end") return;
        if (!zeile.empty()) Profilaufruf(lauf.aus, datei, zeile);
    }
    throw Skriptfehler("profil without end");
}

void Stammbaumfakten(std::ostream &aus, const std::string &pfad) {
    std::string bytes;
    const auto befund = StammbaumdateiLesen(pfad, bytes);
    if (!befund.Gelungen()) throw Skriptfehler(pfad + ": " + befund.Text(Sprache::Englisch));
    StammbaumZeigen(aus, StammbaumLesen(std::move(bytes)));
}

/// Centimetres to the thousandth, the same in every locale.
std::string Zentimeter(double wert) {
    const auto tausendstel = static_cast<long>(std::lround(wert * 1000));
    const std::string bruch = std::to_string(1000 + tausendstel % 1000).substr(1);
    return std::to_string(tausendstel / 1000) + "." + bruch;
}

void Familienaufruf(std::ostream &aus, const std::string &datei) {
    std::string text;
    const Dateibefund gelesen = DateiLesen(datei, text);
    if (!gelesen.Gelungen()) throw Skriptfehler(datei + ": " + gelesen.Meldung);
    const Familiendatei familie = FamilieLesen(text);
    const Familienlage lage = FamilieAnordnen(familie.Graph);
    for (size_t i = 0; i < familie.Personen.size(); i++)
        aus << familie.Personen[i] << " " << Zentimeter(lage.Personen[i].X) << " " << Zentimeter(lage.Personen[i].Y)
            << "\n";
    for (size_t i = 0; i < familie.Familien.size(); i++)
        if (!familie.Graph.Familien[i].Partner.empty())
            aus << familie.Familien[i] << " = " << Zentimeter(lage.Balken[i]) << "\n";
}

/// What the command line would do, and tell: `genogram OUT FILE [person WHO] [up N] [down N] [all] [small] [de]`.
void Genogrammaufruf(Wiedergabe &lauf, const Wörter &w) {
    Stammbaumaufruf aufruf;
    aufruf.Ziel = Wort(w, 1);
    aufruf.Datei = Wort(w, 2);
    for (size_t i = 3; i < w.size(); ++i) {
        if (w[i] == "all") aufruf.Alle = true;
        else if (w[i] == "small") aufruf.Kleiner = true;
        else if (w[i] == "de") aufruf.Sprache = Sprache::Deutsch;
        else if (w[i] == "person") aufruf.Person = Wort(w, ++i);
        else if (w[i] == "up") aufruf.Hinauf = Zahl(Wort(w, ++i));
        else if (w[i] == "down") aufruf.Hinunter = Zahl(Wort(w, ++i));
        else throw Skriptfehler("unknown word: " + w[i]);
    }
    aufruf.Jahr = DrehbuchUhr().Heute().Jahr;
    Aufzeichnung maß;
    const Stammbaumausgang ausgang = StammbaumSchreiben(aufruf, maß);
    lauf.aus << "exit " << ausgang.Ergebnis << "\n";
    if (!ausgang.Meldung.empty()) lauf.aus << ausgang.Meldung << "\n";
    lauf.aus << ausgang.Bericht;
}

constexpr Skriptbefehl Tabelle[] = {
    {"age", [](auto &lauf, auto &w, auto &) { AlterBerechnen(lauf, w.size() > 1 ? Ab(w, 1) : ""); }},
    {"familytree", [](auto &lauf, auto &w, auto &) { Wort(w, 1), Stammbaumfakten(lauf.aus, Ab(w, 1)); }},
    {"genogram", [](auto &lauf, auto &w, auto &) { Genogrammaufruf(lauf, w); }},
    {"layout", [](auto &lauf, auto &w, auto &) { Wort(w, 1), Familienaufruf(lauf.aus, Ab(w, 1)); }},
    {"profil", [](auto &lauf, auto &w, auto &) { Profilaufrufe(lauf, Ab(w, 1)); }},
};

} // namespace

std::span<const Skriptbefehl> Einzelaufrufe() { return Tabelle; }

} // namespace kw
