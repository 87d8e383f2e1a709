#include "Verlustpruefung.h"

#include "Satzregeln.h"

#include "document/Dateien.h"
#include "document/ProjektDatei.h"
#include "document/Sicherheitsnetz.h"
#include "document/saetze/Satz.h"
#include "replay/Einblick.h"

#include <algorithm>
#include <filesystem>

namespace kw {

namespace {

namespace fs = std::filesystem;

bool Hat(const std::string &text, std::string_view wort) { return text.find(wort) != text.npos; }

std::string AlsProjekt(const Dokument &dokument) {
    Profil profil;
    ProjektEintragen(dokument, profil);
    return profil.Inhalt();
}

/// The document that a project's bytes hold, without what drawing adds to its records, and the legend's place.
std::string Sätze(const std::string &bytes) {
    Dokument dokument;
    ProjektLesen(Profil(bytes), dokument);
    std::string text;
    for (const auto &zeile : SpeicherTabelle) {
        const int felder = zeile.Liste == &Dokument::cboFreehandlines ? 0 : zeile.Pflichtfelder;
        text.append(zeile.Name) += '\n';
        for (const std::string &satz : dokument.*zeile.Liste)
            text.append(felder > 0 ? Satzbau(satz, felder).Text() : satz) += '\n';
    }
    return text;
}

bool IstProjekt(const std::string &bytes) {
    Dokument dokument;
    return ProjektLesen(Profil(bytes), dokument).IstProjekt;
}

/// A save over these bytes would lose something of them.
bool IstBeschädigt(const std::string &bytes) {
    Dokument dokument;
    return ProjektLesen(Profil(bytes), dokument).SpeichernVerliert();
}

/// All that is in the net but for living programs' documents, as project files.
std::vector<std::string> Versionen(const Sicherheitsnetz &netz) {
    std::vector<std::string> versionen;
    for (const auto &kopf : netz.Einträge())
        if (auto eintrag = netz.Lesen(kopf.Name)) versionen.push_back(std::move(eintrag->Inhalt));
    return versionen;
}

bool Enthält(const std::vector<std::string> &liste, const std::string &wert) {
    return std::find(liste.begin(), liste.end(), wert) != liste.end();
}

/// Its folder belongs to nobody else.
bool IstNetz(const fs::directory_entry &eintrag) {
    constexpr auto Andere = fs::perms::group_all | fs::perms::others_all;
    std::error_code fehler;
    return eintrag.is_directory(fehler) && (eintrag.status(fehler).permissions() & Andere) == fs::perms::none;
}

/// What reaches into the program past its events, and a zoom that draws what came so: the next event takes it along.
bool IstEreignis(const std::string &zeile) {
    constexpr std::string_view Keine[] = {"store", "pick", "wheel", "disk", "profil", "#"};
    return std::none_of(std::begin(Keine), std::end(Keine), [&](auto wort) { return zeile.starts_with(wort); });
}

} // namespace

Verlustprüfung::Dateien Verlustprüfung::Projekte() {
    Dateien dateien;
    std::error_code fehler;
    for (fs::recursive_directory_iterator i(".", fehler), ende; !fehler && i != ende; i.increment(fehler)) {
        const std::string pfad = i->path().lexically_relative(".").string();
        if (IstNetz(*i)) i.disable_recursion_pending();
        else if (i->is_regular_file(fehler)) DateiLesen(pfad, dateien[pfad]);
    }
    return dateien;
}

void Verlustprüfung::Vorher(const std::string &zeile, const Einblick &innen) {
    angeboten_.clear();
    if (Hat(zeile, "frmFassungen")) angeboten_ = Versionen(innen.netz);
}

/// Whether that document is in the net or in a project file.
bool Verlustprüfung::Steht(const std::string &dokument, const Sicherheitsnetz &netz) const {
    if (Enthält(Versionen(netz), dokument)) return true;
    return std::any_of(dateien_.begin(), dateien_.end(),
                       [soll = Sätze(dokument)](const auto &datei) { return Sätze(datei.second) == soll; });
}

std::string Verlustprüfung::Nachher(const std::string &zeile, const Stand &alt, const Stand &neu, bool gedrückt,
                                    const Einblick &innen) {
    std::string fehler = Fremdfehler(zeile, neu, innen.netz);
    if (fehler.empty()) fehler = Angebotsfehler(zeile, alt, neu, innen.netz);
    if (fehler.empty()) fehler = Speicherfehler(alt, neu);
    return fehler.empty() ? Dokumentfehler(zeile, neu, gedrückt, innen) : fehler;
}

/// A save that fails changes nothing, and stops what it stood before.
std::string Verlustprüfung::Speicherfehler(const Stand &alt, const Stand &neu) const {
    const bool gescheitert =
        Hat(neu.kästen, "could not be saved") || Hat(neu.kästen, "konnte nicht gespeichert werden");
    if (!gescheitert || !angeboten_.empty()) return ""; // in that form the user can try again
    if (alt.geändert && !neu.geändert) return "counts as saved though the save failed";
    if (alt.projektdatei != neu.projektdatei) return "has another name though the save failed";
    const bool inRuhe = !alt.lage.Gedrückt && alt.lage.Aktion == Aktion::Nichts; // else the command ends a gesture
    return inRuhe && AlsProjekt(alt.dokument) != AlsProjekt(neu.dokument) ? "changed by a save that failed" : "";
}

/// What somebody else wrote is in its file, or kept when the program writes there. What he overwrites himself is his.
std::string Verlustprüfung::Fremdfehler(const std::string &zeile, const Stand &neu, const Sicherheitsnetz &netz) {
    const Dateien vorher = std::exchange(dateien_, Projekte());
    const bool fremd = zeile.starts_with("disk") || zeile.starts_with("profil");
    for (const auto &[pfad, bytes] : vorher) {
        const auto jetzt = dateien_.find(pfad);
        if (jetzt != dateien_.end() && jetzt->second == bytes) continue;
        const bool warFremd = fremde_.contains(pfad) && fremde_.at(pfad) == bytes;
        fremde_.erase(pfad);
        const bool istBild = jetzt != dateien_.end() && !IstProjekt(jetzt->second); // chosen by its name, and confirmed
        if (!fremd && warFremd && !istBild && bytes != herkunft_ && !Enthält(Versionen(netz), bytes))
            return "somebody else's version is lost: " + pfad;
    }
    for (const auto &[pfad, bytes] : dateien_) {
        const auto war = vorher.find(pfad);
        if (war != vorher.end() && war->second == bytes) continue;
        if (!fremd) eigene_[pfad].insert(bytes);
        else if (!eigene_[pfad].contains(bytes)) fremde_[pfad] = bytes;
    }
    const auto datei = dateien_.find(neu.projektdatei);
    if (fremd || neu.geändert || datei == dateien_.end() || IstBeschädigt(datei->second) ||
        Sätze(datei->second) != Sätze(AlsProjekt(neu.dokument)))
        return "";
    // Loaded or saved, whole: from now on it is this program's.
    herkunft_ = datei->second;
    eigene_[datei->first].insert(datei->second);
    fremde_.erase(datei->first);
    return "";
}

/// The form of kept versions: only what the user deletes goes, and what he opens is on the page.
std::string Verlustprüfung::Angebotsfehler(const std::string &zeile, const Stand &alt, const Stand &neu,
                                           const Sicherheitsnetz &netz) const {
    if (angeboten_.empty()) return "";
    const std::string dokument = Sätze(AlsProjekt(neu.dokument));
    const auto istDieses = [&](const std::string &version) { return Sätze(version) == dokument; };
    const bool geöffnet = Hat(zeile, "cmdÖffnen") && neu.geändert;
    const bool gewechselt = AlsProjekt(alt.dokument) != AlsProjekt(neu.dokument); // an empty one may look the same
    if (geöffnet && gewechselt && std::none_of(angeboten_.begin(), angeboten_.end(), istDieses))
        return "what was opened isn't what was kept";
    long gelöscht = 0;
    for (size_t i = zeile.find("cmdLöschen"); i != zeile.npos; i = zeile.find("cmdLöschen", i + 1)) ++gelöscht;
    const auto jetzt = Versionen(netz);
    const auto fort = std::count_if(angeboten_.begin(), angeboten_.end(), [&](const std::string &version) {
        return !Enthält(jetzt, version) && !(geöffnet && istDieses(version));
    });
    return fort > gelöscht ? "a kept version is gone" : "";
}

/// The document as it stood before this step, when it isn't on the page any more.
std::string Verlustprüfung::Dokumentfehler(const std::string &zeile, const Stand &neu, bool gedrückt,
                                           const Einblick &innen) {
    const std::string dokument = AlsProjekt(neu.dokument);
    const bool start = Hat(zeile, "start ");
    const bool aufgegeben = Hat(zeile, "answer no\n") || zeile.starts_with("load");
    const bool gehalten = innen.netz.Hält(neu.dokument);
    if (!letzte_.empty() && !aufgegeben && (start || (!gehalten && !neu.geändert)) &&
        std::none_of(letzte_.begin(), letzte_.end(), [&](const auto &letztes) { return Steht(letztes, innen.netz); }))
        return start ? "the document is lost by the program's end" : "the document is lost";
    if (start || !neu.geändert || (aufgegeben && !gehalten)) {
        letzte_.clear();
        grund_ = dokument;
    } else if (!IstEreignis(zeile) || gedrückt) {
        if (!letzte_.empty()) letzte_.push_back(dokument);
    } else if (dokument == grund_) {
        letzte_.clear();
    } else {
        letzte_ = {dokument};
        grund_.reset(); // from now on all that follows is in the net, what stood before too
    }
    return "";
}

} // namespace kw
