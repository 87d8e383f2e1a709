#include "app/Stammbaumaufruf.h"

#include "app/Stammbaumdatei.h"
#include "arrangement/Stammbaumseite.h"
#include "arrangement/Stammbaumworte.h"
#include "document/Dateien.h"
#include "document/ProjektDatei.h"
#include "familytree/Personensuche.h"

#include <algorithm>
#include <set>
#include <vector>

namespace kw {

namespace {

constexpr std::size_t Genannte = 20; ///< of several persons of a name

std::string Auswahltext(const Personensuche &suche, const Personensuche::Treffer &treffer, const std::string &person) {
    std::string text = std::to_string(treffer.Anzahl) + " persons match " + person + ":";
    for (const std::uint32_t wer : treffer.Personen) text += "\n  " + suche.Zeile(wer);
    if (treffer.Anzahl > treffer.Personen.size())
        text += "\n  and " + std::to_string(treffer.Anzahl - treffer.Personen.size()) + " more";
    return text;
}

constexpr Zweisprachig Darüber{"Was über das Blatt reicht, ist auf der Seite nicht zu sehen.\n",
                               "What lies beyond the sheet doesn't show on the page.\n"};

/// The options that make it so.
std::string Optionen(const Seitenwunsch &wunsch) {
    std::string text = "--up " + std::to_string(wunsch.Wahl.Hinauf) + " --down " + std::to_string(wunsch.Wahl.Hinunter);
    return wunsch.Blatt.Kleiner ? text + " --small" : text;
}

/// What a command line can ask for and takes fewer generations, the fewest less first.
std::vector<Seitenwunsch> Kürzere(const Seitenwunsch &wunsch) {
    constexpr int Genug = 9; // generations
    const int hinauf = std::min(wunsch.Wahl.Hinauf, Genug);
    const int hinunter = std::min(wunsch.Wahl.Hinunter, Genug);
    std::vector<Seitenwunsch> kürzere;
    for (int weniger = 0; weniger <= hinauf + hinunter; ++weniger)
        for (int oben = std::max(0, weniger - hinunter); oben <= std::min(weniger, hinauf); ++oben)
            for (const bool kleiner : {wunsch.Blatt.Kleiner, true}) {
                auto &neu = kürzere.emplace_back(wunsch);
                neu.Alle = neu.Blatt.AuchDarüber = false;
                neu.Wahl.Hinauf = hinauf - oben;
                neu.Wahl.Hinunter = hinunter - (weniger - oben);
                neu.Blatt.Kleiner = kleiner;
            }
    return kürzere;
}

/// Two of them that fit, with different numbers of persons.
std::string Ratschlag(Sippschaft alle, const Seitenwunsch &wunsch, Zeichenfläche &fläche) {
    std::string text;
    std::set<std::size_t> genannte;
    for (const Seitenwunsch &ausweg : Kürzere(wunsch)) {
        const Stammbaumseite seite = SeiteAus(alle, ausweg, fläche);
        if (seite.Ausgang != Seitenausgang::Passt || !genannte.insert(seite.Personen).second) continue;
        text += "\n  " + Optionen(ausweg) + ": " + Seitenbefund(seite, Sprache::Englisch);
        if (genannte.size() == 2) break;
    }
    return text;
}

/// Whoever is meant; nobody, and why, where that isn't one.
std::uint32_t Gemeinter(const Personensuche &suche, const std::string &person, Stammbaumausgang &ausgang) {
    if (person.empty()) return suche.Vorschlag();
    const auto treffer = suche.Gemeint(person, Genannte);
    if (treffer.Anzahl == 1) return treffer.Personen.front();
    ausgang.Ergebnis = 2;
    ausgang.Meldung = treffer.Anzahl == 0 ? "nobody matches " + person : Auswahltext(suche, treffer, person);
    return Keine;
}

Dateibefund ProjektAblegen(const Dokument &dokument, const std::string &ziel) {
    Profil profil;
    ProjektEintragen(dokument, profil);
    return DateiSchreiben(ziel, profil.Inhalt());
}

} // namespace

Stammbaumausgang StammbaumSchreiben(const Stammbaumaufruf &aufruf, Zeichenfläche &fläche) {
    Stammbaumausgang ausgang;
    const auto gescheitert = [&](const std::string &meldung) {
        ausgang.Ergebnis = 1;
        ausgang.Meldung = meldung;
        return ausgang;
    };
    std::string bytes;
    const Stammbaumbefund gelesen = StammbaumdateiLesen(aufruf.Datei, bytes);
    if (!gelesen.Gelungen()) return gescheitert(aufruf.Datei + ": " + gelesen.Text(Sprache::Englisch));
    const Stammbaum baum = StammbaumLesen(std::move(bytes));
    if (baum.Personen.empty()) return gescheitert(aufruf.Datei + ": no family tree: it has no persons");
    const Verwandtschaft verwandte(baum);
    const Personensuche suche(baum);
    Seitenwunsch wunsch;
    wunsch.Proband = Gemeinter(suche, aufruf.Person, ausgang);
    if (ausgang.Ergebnis != 0) return ausgang;
    wunsch.Alle = aufruf.Alle;
    wunsch.Wahl.Hinauf = aufruf.Hinauf;
    wunsch.Wahl.Hinunter = aufruf.Hinunter;
    wunsch.Regeln.Textsprache = aufruf.Sprache;
    wunsch.Regeln.Jahr = aufruf.Jahr;
    wunsch.Blatt.Kleiner = aufruf.Kleiner;
    wunsch.Blatt.AuchDarüber = aufruf.Alle;
    const Stammbaumseite seite = SeiteAus({baum, verwandte}, wunsch, fläche);
    if (seite.Ausgang != Seitenausgang::Passt) {
        const std::string rat = Ratschlag({baum, verwandte}, wunsch, fläche);
        return gescheitert(aufruf.Datei + ": " + Seitenbefund(seite, Sprache::Englisch) +
                           (rat.empty() ? "" : "\nThis fits:" + rat));
    }
    const Dateibefund geschrieben = ProjektAblegen(seite.Seite, aufruf.Ziel);
    if (!geschrieben.Gelungen()) return gescheitert(aufruf.Ziel + ": " + geschrieben.Meldung);
    ausgang.Bericht = Seitenbefund(seite, aufruf.Sprache) + "\n" +
                      (seite.Blatt.LiegtDarüber ? std::string(Darüber.In(aufruf.Sprache)) : "") +
                      Berichtstext(seite.Übernommen.Bericht, baum.Warnliste, aufruf.Sprache);
    return ausgang;
}

} // namespace kw
