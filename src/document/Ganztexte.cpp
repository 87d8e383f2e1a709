#include "document/Ganztexte.h"

#include "document/Dokument.h"
#include "document/Felder.h"
#include "document/Maskierung.h"
#include "document/saetze/Person.h"

#include <algorithm>
#include <charconv>
#include <unordered_map>
#include <unordered_set>

namespace kw {

namespace {

/// Far more than a page holds: what a file has beyond that would only fill the memory.
constexpr std::size_t Höchstzahl = std::size_t{1} << 20;

/// Whether a line gives that text back without a closer look, as it does nearly always: short, of the letters that the
/// code page has from Latin-1, no blank or quotation mark at its ends.
bool IstHarmlos(std::string_view wert) {
    if (wert.empty()) return true;
    const auto endetHarmlos = [](char c) { return static_cast<unsigned char>(c) > 0x7F || BleibtUnmaskiert(c); };
    if (wert.size() >= Profil::Lesepuffer || !endetHarmlos(wert.front()) || !endetHarmlos(wert.back())) return false;
    for (std::size_t i = 0; i < wert.size(); ++i) {
        const auto byte = static_cast<unsigned char>(wert[i]);
        if (byte >= ' ' && byte < 0x80) continue;
        if ((byte != 0xC2 && byte != 0xC3) || ++i == wert.size()) return false;
        if (!IstFortsetzung(wert[i]) || (byte == 0xC2 && static_cast<unsigned char>(wert[i]) < 0xA0)) return false;
    }
    return true;
}

/// A line of a section as it reads, however long.
struct Zeile {
    std::size_t Position = 0;
    std::string Wert;
    bool Vergeben = false;
};

using Textmerkmal = std::function<std::string(const Ganztext &)>;
using Zeilenmerkmal = std::function<std::string(const std::string &)>;
/// The record of a line that has a text's mark; nothing when they don't belong together after all.
using Verbindung = std::function<std::optional<std::string>(const Ganztext &, const std::string &)>;

/// Texts and lines that can still find each other.
struct Paarung {
    std::vector<Ganztext *> Texte;
    std::vector<Zeile *> Zeilen;
};

/// Gives each line the first text of its mark that is left, in order.
void Paaren(const Paarung &paarung, const Textmerkmal &textmerkmal, const Zeilenmerkmal &zeilenmerkmal,
            const Verbindung &verbinden, Ganztexte::Ganze &ganze) {
    struct Reihe {
        std::vector<Ganztext *> Texte;
        std::size_t Nächster = 0;
    };
    std::unordered_map<std::string, Reihe> reihen;
    for (auto *text : paarung.Texte) {
        if (!text->Vergeben) reihen[textmerkmal(*text)].Texte.push_back(text);
    }
    for (auto *zeile : paarung.Zeilen) {
        if (zeile->Vergeben) continue;
        const auto reihe = reihen.find(zeilenmerkmal(zeile->Wert));
        if (reihe == reihen.end() || reihe->second.Nächster == reihe->second.Texte.size()) continue;
        auto *text = reihe->second.Texte[reihe->second.Nächster];
        auto satz = verbinden(*text, zeile->Wert);
        if (!satz) continue;
        ++reihe->second.Nächster;
        text->Vergeben = zeile->Vergeben = true;
        ganze.emplace(zeile->Position, std::move(*satz));
    }
}

std::optional<std::string> GanzerText(const Ganztext &text, const std::string & /*zeile*/) { return text.Ganz; }
std::string Wortlaut(const std::string &zeile) { return zeile; }

/// Pairs what is the same in the file. A text that a line gives back stands here since the key list ended before it,
/// so its own line is one of those behind, unless one that reads like it was lost: then all of them stand here.
void GleichePaaren(const Paarung &paarung, std::size_t gelistet, Ganztexte::Ganze &ganze) {
    const auto abbild = [](const Ganztext &text) { return text.Abbild; };
    std::unordered_set<std::string> verlorene;
    for (const auto *text : paarung.Texte)
        if (text->Verlust) verlorene.insert(text->Abbild);
    Paarung hinten = paarung;
    std::erase_if(hinten.Texte, [&](const Ganztext *text) { return verlorene.contains(text->Abbild); });
    std::erase_if(hinten.Zeilen, [&](const Zeile *zeile) { return zeile->Position < gelistet; });
    Paaren(hinten, abbild, Wortlaut, GanzerText, ganze);
    Paaren(paarung, abbild, Wortlaut, GanzerText, ganze);
}

/// The line of a text that another program has read with the buffer and written back.
std::string Rest(const Ganztext &text) { return Profil::Abbild(Profil::Gekürzt(text.Abbild)); }

bool IstZuLang(const Ganztext &text) { return Profil::Gekürzt(text.Abbild) != text.Abbild; }

std::vector<std::string_view> Geteilt(std::string_view satz) {
    std::vector<std::string_view> felder;
    const auto trenner = static_cast<std::size_t>(std::count(satz.begin(), satz.end(), '_'));
    for (std::size_t i = 0; i <= trenner; ++i) felder.push_back(Abgetrennt(satz, '_'));
    return felder;
}

std::string Personennummer(const std::string &satz) { return satz.substr(0, satz.find('_')); }

/// The lines that the told reading fetches, and of those behind the ones that `kommtInFrage`.
template <typename Frage>
std::vector<Zeile> Zeilen(const Profil &profil, std::string_view abschnitt, std::size_t gelistet, Frage kommtInFrage) {
    std::vector<Zeile> zeilen;
    const auto anzahl = std::max(gelistet, profil.SchlüsselAnzahl(abschnitt));
    for (std::size_t i = 0; i < anzahl; ++i) {
        auto wert = profil.LesenUngekürzt(abschnitt, std::to_string(i));
        if (i < gelistet || (wert && kommtInFrage(*wert))) zeilen.push_back({i, std::move(wert).value_or("")});
    }
    return zeilen;
}

Paarung PaarungVon(std::vector<Ganztext> &texte, std::vector<Zeile> &zeilen) {
    Paarung paarung;
    for (auto &text : texte) paarung.Texte.push_back(&text);
    for (auto &zeile : zeilen) paarung.Zeilen.push_back(&zeile);
    return paarung;
}

} // namespace

bool Überlebt(std::string_view wert) { return IstHarmlos(wert) || Profil::Gekürzt(Profil::Abbild(wert)) == wert; }

std::string GanzLesen(const Profil &profil, std::string_view abschnitt, std::string_view schlüssel) {
    auto wert = profil.Lesen(abschnitt, schlüssel);
    const auto maskiert = profil.LesenUngekürzt(Ganzabschnitt, schlüssel);
    auto ganz = maskiert ? Demaskiert(*maskiert) : std::nullopt;
    return ganz && Profil::Gekürzt(Profil::Abbild(*ganz)) == wert ? std::move(*ganz) : std::move(wert);
}

void GanzSchreiben(Profil &profil, std::string_view abschnitt, std::string_view schlüssel, std::string_view wert) {
    profil.Schreiben(abschnitt, schlüssel, wert);
    const bool hatte = profil.LesenUngekürzt(Ganzabschnitt, schlüssel).has_value();
    if (!hatte && Überlebt(wert)) return;
    std::vector<std::pair<std::string, std::string>> andere;
    profil.FürAlleEinträge(Ganzabschnitt, [&](std::string_view name, std::string_view text) {
        if (name != schlüssel) andere.emplace_back(name, text);
    });
    profil.AbschnittLöschen(Ganzabschnitt);
    for (const auto &[name, text] : andere) profil.Schreiben(Ganzabschnitt, name, text);
    if (!Überlebt(wert)) profil.Schreiben(Ganzabschnitt, schlüssel, Maskiert(wert));
}

void Ganzschrift::Aufnehmen(std::string_view abschnitt, const std::vector<std::string> &werte) {
    std::vector<bool> nötig;
    std::unordered_set<std::string> verlorene;
    std::size_t liste = 0;   // what the names so far fill of it
    std::size_t ziffern = 1; // of a key
    std::size_t stelle = 10; // the first key that has more of them
    for (const auto &wert : werte) {
        if (nötig.size() == stelle) {
            ++ziffern;
            stelle *= 10;
        }
        liste += ziffern + 1;
        const bool überlebt = Überlebt(wert);
        if (!überlebt) verlorene.insert(Profil::Abbild(wert));
        nötig.push_back(!überlebt || liste > Profil::Listenplatz);
    }
    if (verlorene.empty() && liste <= Profil::Listenplatz) return;
    for (std::size_t i = 0; i < werte.size(); ++i) {
        if (nötig[i] || (!verlorene.empty() && verlorene.contains(werte[i])))
            texte_.emplace_back(std::string(abschnitt) + " " + std::to_string(i), werte[i]);
    }
}

void Ganzschrift::Eintragen(Profil &profil) const {
    profil.AbschnittLöschen(Ganzabschnitt);
    for (const auto &[schlüssel, text] : texte_) profil.Schreiben(Ganzabschnitt, schlüssel, Maskiert(text));
}

Ganztexte::Ganztexte(const Profil &profil) : profil_(profil) {
    if (!profil.HatAbschnitt(Ganzabschnitt)) return;
    verwaist_ = profil.AbschnittAnzahl(Ganzabschnitt) > 1 || profil.HatFremdeZeilen(Ganzabschnitt);
    profil.FürAlleEinträge(Ganzabschnitt,
                           [this](std::string_view schlüssel, std::string_view wert) { Aufnehmen(schlüssel, wert); });
    for (auto &[abschnitt, texte] : texte_)
        std::stable_sort(texte.begin(), texte.end(),
                         [](const Ganztext &a, const Ganztext &b) { return a.Position < b.Position; });
}

void Ganztexte::Aufnehmen(std::string_view schlüssel, std::string_view wert) {
    const auto lücke = schlüssel.find(' ');
    const auto abschnitt = schlüssel.substr(0, lücke);
    const auto zahl = lücke == std::string_view::npos ? std::string_view{} : schlüssel.substr(lücke + 1);
    const bool bekannt = std::any_of(SpeicherTabelle.begin(), SpeicherTabelle.end(),
                                     [&](const SpeicherZeile &zeile) { return zeile.Abschnitt == abschnitt; });
    Ganztext text;
    const auto [ende, fehler] = std::from_chars(zahl.data(), zahl.data() + zahl.size(), text.Position);
    const bool gezählt = !zahl.empty() && fehler == std::errc{} && ende == zahl.data() + zahl.size();
    auto ganz = Demaskiert(wert);
    if (!bekannt || !gezählt || !ganz || anzahl_ >= Höchstzahl) {
        verwaist_ = true;
        return;
    }
    ++anzahl_;
    text.Ganz = std::move(*ganz);
    text.Abbild = Profil::Abbild(text.Ganz);
    text.Verlust = !Überlebt(text.Ganz);
    Texte(abschnitt).push_back(std::move(text));
}

std::vector<Ganztext> &Ganztexte::Texte(std::string_view abschnitt) { return texte_[std::string(abschnitt)]; }

Ganztexte::Ganze Ganztexte::Zuordnen(std::string_view abschnitt, std::size_t gelistet) {
    Ganze ganze;
    if (!texte_.contains(abschnitt)) return ganze;
    auto &texte = Texte(abschnitt);
    std::unordered_set<std::string> gesucht;
    for (const auto &text : texte) {
        gesucht.insert(text.Abbild);
        if (IstZuLang(text)) gesucht.insert(Rest(text));
    }
    auto zeilen = Zeilen(profil_, abschnitt, gelistet, [&](const auto &wert) { return gesucht.contains(wert); });
    auto paarung = PaarungVon(texte, zeilen);
    GleichePaaren(paarung, gelistet, ganze);
    std::erase_if(paarung.Texte, [](const Ganztext *text) { return !IstZuLang(*text); });
    Paaren(paarung, Rest, Wortlaut, GanzerText, ganze);
    return ganze;
}

Ganztexte::Ganze Ganztexte::PersonenZuordnen(std::string_view abschnitt, std::size_t gelistet) {
    Ganze ganze;
    if (!texte_.contains(abschnitt)) return ganze;
    auto &texte = Texte(abschnitt);
    std::unordered_set<std::string> gesucht;
    for (const auto &text : texte) gesucht.insert(Personennummer(text.Abbild));
    auto zeilen =
        Zeilen(profil_, abschnitt, gelistet, [&](const auto &wert) { return gesucht.contains(Personennummer(wert)); });
    auto paarung = PaarungVon(texte, zeilen);
    std::erase_if(paarung.Texte, [](const Ganztext *text) {
        return std::count(text->Ganz.begin(), text->Ganz.end(), '_') != PersonSatz::Anzahl - 1;
    });
    GleichePaaren(paarung, gelistet, ganze);
    Paaren(
        paarung, [](const Ganztext &text) { return Personennummer(text.Abbild); }, Personennummer,
        [this](const Ganztext &text, const std::string &zeile) { return Person(text, zeile); }, ganze);
    return ganze;
}

/// A person whose line isn't the text's any more.
std::optional<std::string> Ganztexte::Person(const Ganztext &text, std::string_view zeile) {
    const auto ganz = Geteilt(text.Ganz);
    const auto alt = Geteilt(text.Abbild);
    const auto neu = Geteilt(zeile);
    const bool abgebrochen = neu.size() < ganz.size();
    if (abgebrochen && !(IstZuLang(text) && alt[neu.size() - 1].starts_with(neu.back()))) return {};
    std::string satz;
    for (std::size_t i = 0; i < ganz.size(); ++i) {
        const bool fehlt = abgebrochen && i + 1 >= neu.size(); // the last one may be there in part
        const bool gleich = fehlt || neu[i] == alt[i];
        if (!gleich && ganz[i] != alt[i]) verwaist_ = true;
        satz.append(i == 0 ? "" : "_").append(gleich ? ganz[i] : neu[i]);
    }
    return satz;
}

bool Ganztexte::Verwaist() const {
    return verwaist_ || std::any_of(texte_.begin(), texte_.end(), [](const auto &abschnitt) {
               return std::any_of(abschnitt.second.begin(), abschnitt.second.end(),
                                  [](const Ganztext &text) { return !text.Vergeben; });
           });
}

} // namespace kw
