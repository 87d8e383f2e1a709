#pragma once

#include "document/Dateien.h"
#include "document/Dokument.h"
#include "document/Zahlen.h"
#include "document/saetze/Kind.h"
#include "document/saetze/Partnerschaft.h"
#include "document/saetze/Person.h"
#include "familytree/Uebergabe.h"
#include "familytree/Uebernahme.h"
#include "replay/Plattform.h"

#include <algorithm>
#include <numeric>
#include <set>
#include <string>
#include <vector>

// From a family tree's file to records, and what of both must be equal.
namespace kw {

/// All of a file, brought over.
inline Übernahme Übernommen(std::string bytes, const Übernahmeregeln &regeln = {}) {
    const auto baum = StammbaumLesen(std::move(bytes));
    std::vector<std::uint32_t> alle(baum.Personen.size());
    std::iota(alle.begin(), alle.end(), 0U);
    return Übertragen(baum, Verwandtschaft(baum), alle, regeln);
}

/// Its records, everybody beside everybody.
inline Dokument DokumentAus(const Übernahme &ü) {
    Dokument d;
    const auto nr = [](std::uint32_t stelle) { return Dreistellig(static_cast<int>(stelle) + 1); };
    for (std::uint32_t i = 0; i < ü.Personen.size(); ++i) {
        const auto &p = ü.Personen[i];
        PersonBau bau;
        bau.Nr(nr(i)).Symboltyp(p.Angaben.Symboltyp).Ort(i, 1).Groesse(1).IndexPerson(i == 0 ? "1" : "0");
        bau.Vorname(p.Angaben.Vorname).Nachname(p.Angaben.Nachname).Geburtsdatum(p.Angaben.Geburtsdatum);
        bau.Sterbealter(p.Angaben.Sterbealter).ElternLinie(p.Paar == Keine ? "" : nr(p.Paar));
        if (p.Zwilling != Keine) bau.Zwilling((p.Eineiig ? "1E" : "2E") + nr(p.Zwilling));
        d.cboPersonen.Anhängen(bau.Text());
    }
    for (std::uint32_t i = 0; i < ü.Paare.size(); ++i) {
        const auto &paar = ü.Paare[i];
        const auto &daten = paar.Angaben.Daten;
        PartnerschaftBau bau;
        bau.Nr(nr(i)).Status(paar.Angaben.Status).PersNr1(nr(paar.Erster)).PersNr2(nr(paar.Zweiter));
        bau.Daten(daten[0] + "#" + daten[1] + "#" + daten[2] + "#" + daten[3]);
        d.cboPartnerschaftsLinien.Anhängen(bau.Text());
        for (const auto kind : paar.Kinder) {
            KindBau linie;
            linie.KindNr(nr(kind)).Kindart(std::to_string(ü.Personen[kind].Kindart)).PLinie(nr(i));
            d.cboKindlinien.Anhängen(linie.Text());
        }
    }
    return d;
}

/// What survives a way through a file and back, a line a fact. Persons are told by their places.
inline std::multiset<std::string> Kern(const Übernahme &ü) {
    std::multiset<std::string> kern;
    for (std::size_t i = 0; i < ü.Personen.size(); ++i) {
        const auto &p = ü.Personen[i];
        const auto &a = p.Angaben;
        const bool totgeboren = a.Symboltyp == TypTotgeburtMännlich || a.Symboltyp == TypTotgeburtWeiblich;
        std::string zeile = std::to_string(i) + " " + std::to_string(a.Symboltyp) + "|" + a.Vorname + "|" + a.Nachname;
        zeile += "|" + a.Geburtsdatum + "|" + (totgeboren ? "" : a.Sterbealter) + "|" + std::to_string(p.Kindart);
        if (p.Zwilling != Keine) zeile += (p.Eineiig ? "|1E" : "|2E") + std::to_string(p.Zwilling);
        kern.insert(zeile);
    }
    for (const auto &paar : ü.Paare) {
        const auto [eine, andere] = std::minmax(paar.Erster, paar.Zweiter);
        std::string zeile = std::to_string(eine) + "+" + std::to_string(andere) + " " + paar.Angaben.Status;
        for (const auto &datum : paar.Angaben.Daten) zeile += "|" + datum;
        auto kinder = paar.Kinder;
        std::sort(kinder.begin(), kinder.end());
        for (const auto kind : kinder) zeile += " " + std::to_string(kind);
        kern.insert(zeile);
    }
    return kern;
}

inline Übergabe Geschrieben(const Dokument &dokument, const Übergabewünsche &wünsche = {}) {
    return Übergeben(dokument, DrehbuchUhr(), wünsche);
}

} // namespace kw
