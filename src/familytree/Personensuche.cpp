#include "familytree/Personensuche.h"

#include "document/Texte.h"
#include "familytree/Personenangaben.h"
#include "familytree/Stammdatum.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <memory>
#include <utf8proc.h>
#include <utility>

namespace kw {

namespace {

/// What parts the words of names as much as a blank does.
constexpr std::string_view Trenner = " \t\r\n,;()\"'/@";

char Klein(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// Letters with a stroke, which are whole letters to Unicode; whoever has no such key types the plain one.
constexpr std::pair<std::string_view, std::string_view> Durchgestrichene[] = {
    {"ł", "l"}, {"ø", "o"}, {"đ", "d"}, {"ħ", "h"}, {"ı", "i"}, {"æ", "ae"}, {"œ", "oe"}};

/// Without capitals and accents.
std::string Vereinfacht(std::string_view text) {
    std::string einfach(text);
    const bool nurAscii = std::all_of(text.begin(), text.end(), [](char c) { return (c & '\x80') == 0; });
    if (!nurAscii) {
        utf8proc_uint8_t *ergebnis = nullptr;
        const auto *const bytes = reinterpret_cast<const utf8proc_uint8_t *>(text.data()); // NOLINT(*reinterpret*)
        const auto länge = utf8proc_map(bytes, static_cast<utf8proc_ssize_t>(text.size()), &ergebnis,
                                        static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_DECOMPOSE |
                                                                       UTF8PROC_STRIPMARK | UTF8PROC_CASEFOLD));
        const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> halter(ergebnis, &std::free);
        if (länge >= 0) einfach.assign(ergebnis, ergebnis + länge);
        for (const auto &[buchstabe, ersatz] : Durchgestrichene) einfach = Ersetzt(einfach, buchstabe, ersatz);
    }
    for (char &c : einfach) c = Trenner.find(c) == std::string_view::npos ? Klein(c) : ' ';
    return einfach;
}

/// Each word with a blank in front, and one at the end.
void WorteAnfügen(std::string &worte, std::string_view text) {
    const std::string einfach = Vereinfacht(text);
    for (std::size_t i = 0; i < einfach.size();) {
        const std::size_t ende = std::min(einfach.find(' ', i), einfach.size());
        if (ende > i) worte.append(einfach, i, ende - i) += ' ';
        i = ende + 1;
    }
}

int Jahr(Ereignisangabe ereignis) {
    return ereignis.empty() || ereignis == "Y" ? 0 : StammdatumLesen(ereignis).Erstes.Jahr;
}

std::string Lebensjahre(const Stammperson &person) {
    const int geburt = Jahr(person.Geburt);
    const int tod = Jahr(person.Tod);
    if (geburt > 0 && tod > 0) return ", " + std::to_string(geburt) + "–" + std::to_string(tod);
    if (geburt > 0) return ", * " + std::to_string(geburt);
    return tod > 0 ? ", † " + std::to_string(tod) : "";
}

/// Whether a name has letters that run to the left: of Hebrew, Arabic and their neighbours, U+0590 to U+08FF.
bool LäuftNachLinks(std::string_view name) {
    return std::any_of(name.begin(), name.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c); // the first of a character says its range
        return byte >= 0xD6 && byte <= 0xE0;
    });
}

/// Names without the file's own name for the person; set apart where years behind it would go before it.
std::string Rufname(const Stammperson &person) {
    Stammperson ohneKennung;
    ohneKennung.Vorname = person.Vorname;
    ohneKennung.Nachname = person.Nachname;
    const auto name = Anzeigename(ohneKennung);
    return LäuftNachLinks(name) ? "\u2068" + name + "\u2069" : name;
}

/// What somebody of that sex is to others; the last one for those of whom the file says nothing.
struct Bandwort {
    std::string_view Geschlecht;
    Zweisprachig Kind, Partner;
};
constexpr std::array Bandworte{
    Bandwort{"M", {", Sohn von ", ", son of "}, {", Partner von ", ", partner of "}},
    Bandwort{"F", {", Tochter von ", ", daughter of "}, {", Partnerin von ", ", partner of "}},
    Bandwort{"", {", Kind von ", ", child of "}, {", Partner von ", ", partner of "}},
};
constexpr Zweisprachig Und{" und ", " and "};
constexpr std::size_t GenugNamen = 3; ///< that tell somebody from a namesake

/// Says whose child or partner a person is.
class Bandtext {
  public:
    Bandtext(const Stammbaum &baum, const Verwandtschaft &verwandte, Sprache sprache)
        : baum_(baum), verwandte_(verwandte), sprache_(sprache) {}

    std::string KindVon(std::uint32_t person) const {
        for (const auto familie : verwandte_.AlsKind(person))
            if (const auto namen = Namen(person, {&familie, 1}); !namen.empty())
                return std::string(Wort(person).Kind.In(sprache_)) + namen;
        return {};
    }
    std::string PartnerVon(std::uint32_t person) const {
        const auto namen = Namen(person, verwandte_.AlsPartner(person));
        return namen.empty() ? namen : std::string(Wort(person).Partner.In(sprache_)) + namen;
    }

  private:
    const Bandwort &Wort(std::uint32_t person) const {
        const auto geschlecht = baum_.Personen[person].Geschlecht;
        const auto *const wort = std::find_if(Bandworte.begin(), Bandworte.end() - 1,
                                              [&](const Bandwort &w) { return w.Geschlecht == geschlecht; });
        return *wort;
    }
    /// The partners of these families, but the person.
    std::string Namen(std::uint32_t person, std::span<const std::uint32_t> familien) const {
        std::string text;
        std::size_t anzahl = 0;
        for (const auto familie : familien)
            for (const auto partner : verwandte_.Partner(familie)) {
                const auto name = partner == person ? "" : Rufname(baum_.Personen[partner]);
                if (name.empty() || anzahl++ >= GenugNamen) continue;
                if (!text.empty()) text += Und.In(sprache_);
                text += name;
            }
        return text;
    }

    const Stammbaum &baum_;
    const Verwandtschaft &verwandte_;
    Sprache sprache_;
};

} // namespace

Personensuche::Personensuche(const Stammbaum &baum) : baum_(baum) {
    anfang_.reserve(baum.Personen.size() + 1);
    for (const Stammperson &person : baum.Personen) {
        anfang_.push_back(static_cast<std::uint32_t>(worte_.size()));
        worte_ += ' ';
        for (const auto name : {person.Vorname, person.Nachname, person.Kennung}) WorteAnfügen(worte_, name);
        for (const int jahr : {Jahr(person.Geburt), Jahr(person.Tod)})
            if (jahr > 0) WorteAnfügen(worte_, std::to_string(jahr));
    }
    anfang_.push_back(static_cast<std::uint32_t>(worte_.size()));
}

Personensuche::Treffer Personensuche::Suchen(std::string_view text, std::size_t höchstens, bool ganzeWorte) const {
    std::vector<std::string> gesuchte;
    std::string alle;
    WorteAnfügen(alle, text);
    for (std::size_t i = 0; i < alle.size();) {
        const std::size_t ende = alle.find(' ', i);
        gesuchte.push_back(" " + alle.substr(i, ende - i + (ganzeWorte ? 1 : 0)));
        i = ende + 1;
    }
    Treffer treffer;
    for (std::uint32_t person = 0; person + 1 < anfang_.size(); ++person) {
        const std::string_view worte =
            std::string_view(worte_).substr(anfang_[person], anfang_[person + 1] - anfang_[person]);
        if (!std::all_of(gesuchte.begin(), gesuchte.end(),
                         [&](const std::string &wort) { return worte.find(wort) != std::string_view::npos; }))
            continue;
        if (++treffer.Anzahl <= höchstens) treffer.Personen.push_back(person);
    }
    return treffer;
}

Personensuche::Treffer Personensuche::Finden(std::string_view text, std::size_t höchstens) const {
    return Suchen(text, höchstens, false);
}

Personensuche::Treffer Personensuche::Gemeint(std::string_view text, std::size_t höchstens) const {
    std::string_view kennung = text;
    if (kennung.size() > 2 && kennung.front() == '@' && kennung.back() == '@')
        kennung = kennung.substr(1, kennung.size() - 2);
    if (const auto *person = baum_.Person(kennung)) return {{static_cast<std::uint32_t>(baum_.Nummer(*person))}, 1};
    const Treffer ganze = Suchen(text, höchstens, true);
    return ganze.Anzahl > 0 ? ganze : Finden(text, höchstens);
}

std::string Personensuche::NameUndJahre(std::uint32_t person) const {
    const Stammperson &p = baum_.Personen[person];
    const std::string name = Rufname(p);
    return (name.empty() ? "?" : name) + Lebensjahre(p);
}

std::string Personensuche::MitKennung(std::string zeile, std::uint32_t person) const {
    const auto kennung = baum_.Personen[person].Kennung;
    return kennung.empty() ? zeile : zeile.append(" (").append(kennung).append(")");
}

std::string Personensuche::Zeile(std::uint32_t person) const { return MitKennung(NameUndJahre(person), person); }

std::vector<std::string> Personensuche::Zeilen(std::span<const std::uint32_t> personen, const Verwandtschaft &verwandte,
                                               Sprache sprache) const {
    const Bandtext band(baum_, verwandte, sprache);
    std::vector<std::string> zeilen;
    std::map<std::string, std::size_t> gleiche, immerNochGleiche;
    for (const auto person : personen) ++gleiche[zeilen.emplace_back(NameUndJahre(person))];
    const auto fürNamensvettern = [&](auto tun) {
        for (std::size_t i = 0; i < personen.size(); ++i)
            if (gleiche.at(NameUndJahre(personen[i])) > 1) tun(zeilen[i], personen[i]);
    };
    fürNamensvettern([&](std::string &zeile, auto person) { ++immerNochGleiche[zeile += band.KindVon(person)]; });
    fürNamensvettern([&](std::string &zeile, auto person) {
        // Partners are told where parents don't tell: there are none, or they are the namesake's, too.
        if (gleiche.contains(zeile) || immerNochGleiche.at(zeile) > 1) zeile += band.PartnerVon(person);
    });
    for (std::size_t i = 0; i < personen.size(); ++i) zeilen[i] = MitKennung(std::move(zeilen[i]), personen[i]);
    return zeilen;
}

std::uint32_t Personensuche::Vorschlag() const {
    if (const auto *person = baum_.Person(baum_.Kopf.Hauptperson))
        return static_cast<std::uint32_t>(baum_.Nummer(*person));
    return baum_.Personen.empty() ? Keine : 0;
}

} // namespace kw
