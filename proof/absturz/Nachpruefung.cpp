#include "absturz/Nachpruefung.h"

#include "app/Projekt.h"
#include "document/Dateien.h"
#include "document/Dokument.h"
#include "document/ProjektDatei.h"
#include "document/Sicherheitsnetz.h"
#include "replay/Programm.h"
#include "replay/Skript.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <sstream>

namespace kw {

namespace {

template <typename Liste, typename Wert> bool Enthält(const Liste &liste, const Wert &wert) {
    return std::find(liste.begin(), liste.end(), wert) != liste.end();
}

/// Follows a session's record and knows at each point what a kill may leave.
class Buch {
  public:
    void Lesen(const Eintrag &e) {
        using Art = Eintrag::Art;
        switch (e.Was) {
        case Art::Schritt: return Beginnen(e.Bytes);
        case Art::Fertig: return Abschließen(e.Stand);
        case Art::InsNetz:
            basis_.reset();
            möglich_.push_back(e.Stand.Projekt);
            return;
        case Art::AnSeinenOrt: return Speichern(e);
        case Art::AusDemNetz: return Loslassen(e.Stand);
        case Art::Zuende: return;
        }
    }
    Erwartung Ergebnis() && {
        if (pflichtig_) erwartung_.EinesVon = std::move(möglich_);
        return std::move(erwartung_);
    }

  private:
    /// A step that starts a program ends the one before, as the system would.
    void Beginnen(const std::string &zeilen) {
        schritt_ = zeilen;
        nein_ = nein_ || zeilen.find("answer no") != std::string::npos;
        if (!zeilen.starts_with("start")) return;
        if (pflichtig_) erwartung_.Ältere.push_back(möglich_);
        pflichtig_ = false;
    }
    void Abschließen(const Dokumentstand &stand) {
        letzter_ = stand.Projekt;
        if (!stand.Geändert) basis_ = letzter_;
        pflichtig_ = letzter_ != basis_;
        möglich_ = {letzter_};
        erwartung_.Gespeichert.clear();
        nein_ = false;
        for (auto &datei : erwartung_.Dateien) {
            datei.Bytes = {datei.Bytes.back()};
            datei.MussDaSein = true;
        }
    }
    void Speichern(const Eintrag &e) {
        auto &dateien = erwartung_.Dateien;
        auto datei = std::find_if(dateien.begin(), dateien.end(), [&](auto &d) { return d.Pfad == e.Pfad; });
        if (datei == dateien.end()) datei = dateien.insert(dateien.end(), {e.Pfad, {}});
        datei->Bytes.push_back(e.Bytes);
        if (e.Hält) erwartung_.Gespeichert.emplace_back(e.Pfad, e.Bytes);
    }
    void Loslassen(const Dokumentstand &stand) {
        if (pflichtig_ && erwartung_.Gespeichert.empty() && !nein_)
            erwartung_.Fehler = "the net let a document go that was neither saved nor given up: " + schritt_;
        basis_ = stand.Projekt;
        pflichtig_ = false;
    }

    Erwartung erwartung_;
    std::string schritt_;
    std::string letzter_;              ///< as it stood when the last event was over
    std::optional<std::string> basis_; ///< what needn't be kept: as it was loaded, saved or given up
    std::vector<std::string> möglich_; ///< `letzter_`, and what the event in progress has made of it
    bool pflichtig_ = false;
    bool nein_ = false; ///< the user has answered so since
};

std::string Projektdateifehler(const Erwartung &erwartung) {
    for (const auto &datei : erwartung.Dateien) {
        std::string bytes;
        const Dateibefund befund = DateiLesen(datei.Pfad, bytes);
        if (!befund.Gelungen() && datei.MussDaSein) return datei.Pfad + " is gone";
        if (befund.Gelungen() && !Enthält(datei.Bytes, bytes)) return datei.Pfad + " is none of those that were saved";
    }
    return {};
}

std::string Reste(const std::string &ordner) {
    for (const auto &datei : std::filesystem::directory_iterator(ordner))
        if (const std::string name = datei.path().filename(); name.starts_with(".kw-") || name.ends_with(".sperre"))
            return "stray after the next save: " + ordner + "/" + name;
    return {};
}

} // namespace

Erwartung ErwartungAus(const std::vector<Eintrag> &protokoll) {
    Buch buch;
    for (const auto &eintrag : protokoll) buch.Lesen(eintrag);
    return std::move(buch).Ergebnis();
}

Nachbefund Nachsehen(const Erwartung &erwartung, const std::string &netz) {
    if (!erwartung.Fehler.empty()) return {erwartung.Fehler};
    if (const std::string fehler = Projektdateifehler(erwartung); !fehler.empty()) return {fehler};
    const Sicherheitsnetz rest(netz);
    const auto köpfe = rest.Einträge();
    std::vector<std::string> inhalte;
    inhalte.reserve(köpfe.size());
    for (const auto &kopf : köpfe) inhalte.push_back(rest.Lesen(kopf.Name).value_or(Netzeintrag{}).Inhalt);
    const auto imNetz = [&](const std::string &stand) { return Enthält(inhalte, stand); };
    for (const auto &älterer : erwartung.Ältere)
        if (std::none_of(älterer.begin(), älterer.end(), imNetz)) return {"an earlier program's document is lost"};
    const auto kandidaten = erwartung.EinesVon;
    for (size_t i = 0; i < inhalte.size(); ++i)
        if (köpfe[i].Was == Netzkopf::Art::Stand && Enthält(kandidaten, inhalte[i]))
            return {"", static_cast<int>(i), inhalte[i]};
    if (kandidaten.empty()) return {};
    for (const auto &[pfad, bytes] : erwartung.Gespeichert)
        if (std::string steht; DateiLesen(pfad, steht).Gelungen() && steht == bytes) return {};
    return {"the document is lost: " + std::to_string(inhalte.size()) + " in the net"};
}

std::string AlsGeladen(const std::string &bytes) {
    Dokument dokument;
    ProjektLesen(Profil(bytes), dokument);
    Profil profil;
    ProjektEintragen(dokument, profil);
    return profil.Inhalt();
}

std::string Sätze(std::string projekt) {
    const auto legende = projekt.find("legende=");
    if (legende != std::string::npos) projekt.erase(legende, projekt.find('\n', legende) - legende);
    return projekt;
}

std::string Neustarten(const Nachbefund &befund, const std::string &netz) {
    std::ostringstream aus;
    Wiedergabe wiedergabe(aus);
    std::string skript = "start state=" + netz + "\n";
    if (befund.Platz >= 0)
        skript += "form frmFassungen\npick lstFassungen " + std::to_string(befund.Platz) + "\npress cmdÖffnen\nend\n";
    std::istringstream zeilen(skript + "wait 100\n");
    if (wiedergabe.Ausführen(zeilen) != 0) return "the restart doesn't offer it: " + aus.str();
    const Einblick &innen = wiedergabe.Läuft().innen;
    if (befund.Platz >= 0 && Sätze(StandVon(innen).Projekt) != Sätze(AlsGeladen(befund.Inhalt)))
        return "what is opened isn't what was kept";
    if (befund.Platz >= 0 && !innen.projekt.Geändert) return "what is opened counts as saved";
    for (const char *zeile : {"tool 1", "click 12 3", "save danach.kwp"}) wiedergabe.Zeile(zeile);
    if (!std::filesystem::exists("danach.kwp")) return "the next save fails: " + aus.str();
    wiedergabe.Zeile("crash"); // its own lock goes with it
    const std::string hier = Reste(".");
    return hier.empty() ? Reste(netz) : hier;
}

} // namespace kw
