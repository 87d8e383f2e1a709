#include "familytree/Satzleser.h"

#include "familytree/Leerraum.h"

namespace kw {

namespace {

using namespace std::string_view_literals;

constexpr auto Bytemarke = "\xEF\xBB\xBF"sv;
constexpr int Ebenenziffern = 3;

constexpr bool IstBlank(char c) { return c == ' ' || c == '\t'; }
constexpr bool IstZiffer(char c) { return c >= '0' && c <= '9'; }
constexpr bool IstMarkenzeichen(char c) {
    return IstZiffer(c) || c == '_' || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

/// Takes from the start of `text` what `gehört` says belongs together.
template <class F> std::string_view Vorderes(std::string_view &text, F gehört) {
    std::size_t i = 0;
    while (i < text.size() && gehört(text[i])) ++i;
    const auto vorn = text.substr(0, i);
    text.remove_prefix(i);
    return vorn;
}

/// "@I1@ " at the start of `text`: its name is taken. What looks like one but isn't is left.
std::string_view Kennungsteil(std::string_view &text) {
    if (!text.starts_with('@')) return {};
    const auto zweiter = text.find('@', 1);
    if (zweiter == std::string_view::npos || zweiter == 1) return {};
    const auto kennung = text.substr(1, zweiter - 1);
    auto rest = text.substr(zweiter + 1);
    if (Vorderes(rest, IstBlank).empty()) return {};
    text = rest;
    return kennung;
}

bool IstLeer(std::string_view zeile) { return zeile.find_first_not_of(" \t\0\x1A"sv) == std::string_view::npos; }

} // namespace

const Knoten *Satz::Erstes(const Knoten &knoten, std::string_view marke) const {
    const auto nr = Nummer(knoten);
    for (auto i = nr + 1; i < Zeilen.size() && Zeilen[i].Eltern >= nr; ++i)
        if (Zeilen[i].Eltern == nr && Zeilen[i].Marke == marke) return &Zeilen[i];
    return nullptr;
}

std::string_view Satz::Text(const Knoten &knoten, std::string_view marke) const {
    const auto *const kind = Erstes(knoten, marke);
    return kind ? Randlos(kind->Wert) : std::string_view();
}

void Satz::Verlängern(Knoten &knoten, std::string_view trenner, std::string_view text) {
    if (knoten.Langwert == 0) {
        lange_.emplace_back(knoten.Wert);
        knoten.Langwert = static_cast<std::uint32_t>(lange_.size());
    }
    auto &lang = lange_[knoten.Langwert - 1];
    lang.append(trenner).append(text);
    knoten.Wert = lang;
}

void Satz::Leeren() {
    Zeilen.clear();
    lange_.clear();
}

std::string_view Satzleser::NächsteZeile() {
    zeilenanfang_ = stelle_;
    const char *const anfang = text_ + stelle_;
    while (stelle_ < ende_ && text_[stelle_] != '\n' && text_[stelle_] != '\r') ++stelle_;
    const std::string_view zeile(anfang, stelle_ - zeilenanfang_);
    // One line end is CR, LF, or one of each in either order.
    if (stelle_ < ende_) {
        const char erstes = text_[stelle_++];
        if (stelle_ < ende_ && text_[stelle_] != erstes && (text_[stelle_] == '\n' || text_[stelle_] == '\r'))
            ++stelle_;
    }
    ++zeile_;
    return zeile;
}

bool Satzleser::Gelesen(std::string_view roh, Zeile &zeile) const {
    while (const auto länge = roh.starts_with(Bytemarke) ? Bytemarke.size() : LeerraumVorn(roh))
        roh.remove_prefix(länge);
    const auto ebene = Vorderes(roh, IstZiffer);
    if (ebene.empty() || ebene.size() > Ebenenziffern || Vorderes(roh, IstBlank).empty()) return false;
    zeile.Ebene = 0;
    for (const char c : ebene) zeile.Ebene = static_cast<std::uint16_t>(zeile.Ebene * 10 + (c - '0'));
    zeile.Kennung = Kennungsteil(roh);
    zeile.Marke = Vorderes(roh, IstMarkenzeichen);
    if (zeile.Marke.empty() || (!roh.empty() && !IstBlank(roh[0]))) return false;
    zeile.Wert = roh.empty() ? roh : roh.substr(1);
    if (nurErstesVerdoppelt_ && zeile.Wert.starts_with("@@")) zeile.Wert.remove_prefix(1);
    for (char *c = text_ + (zeile.Marke.data() - text_), *ende = c + zeile.Marke.size(); c != ende; ++c)
        if (*c >= 'a' && *c <= 'z') *c = static_cast<char>(*c - 'a' + 'A');
    return true;
}

void Satzleser::Fortsetzen(Satz &satz, const Zeile &zeile) {
    while (stapel_.size() > 1 && satz.Zeilen[stapel_.back()].Ebene >= zeile.Ebene) stapel_.pop_back();
    satz.Verlängern(satz.Zeilen[stapel_.back()], zeile.Marke == "CONT" ? "\n" : "", zeile.Wert);
}

bool Satzleser::Gehört(const Satz &satz, int ebene) const {
    return satz.Leer() || (!stapel_.empty() && satz.Wurzel().Ebene < ebene);
}

void Satzleser::Einordnen(Satz &satz, const Zeile &zeile, Warnungen &warnungen) {
    while (!stapel_.empty() && satz.Zeilen[stapel_.back()].Ebene >= zeile.Ebene) stapel_.pop_back();
    const auto nr = static_cast<std::uint32_t>(satz.Zeilen.size());
    const auto eltern = stapel_.empty() ? nr : stapel_.back();
    if (stapel_.empty() && zeile.Ebene > 0) warnungen.Hinzu(Warnungsart::ErsteEbene, zeile_);
    if (!stapel_.empty() && zeile.Ebene > satz.Zeilen[eltern].Ebene + 1)
        warnungen.Hinzu(Warnungsart::Ebenensprung, zeile_);
    satz.Zeilen.push_back({zeile.Marke, zeile.Kennung, zeile.Wert, zeile_, eltern, zeile.Ebene, 0});
    stapel_.push_back(nr);
}

bool Satzleser::Nächster(Satz &satz, Warnungen &warnungen) {
    satz.Leeren();
    stapel_.clear();
    while (stelle_ < ende_) {
        const auto roh = NächsteZeile();
        if (IstLeer(roh)) continue;
        Zeile zeile;
        if (!Gelesen(roh, zeile)) {
            warnungen.Hinzu(Warnungsart::KeineZeile, zeile_);
            if (!stapel_.empty()) satz.Verlängern(satz.Zeilen[stapel_.back()], "\n", roh);
        } else if (!stapel_.empty() && (zeile.Marke == "CONC" || zeile.Marke == "CONT")) {
            Fortsetzen(satz, zeile);
        } else if (Gehört(satz, zeile.Ebene)) {
            if (satz.Leer()) satz.Ort = {zeilenanfang_, 0, zeile_};
            Einordnen(satz, zeile, warnungen);
        } else {
            // The line begins the next record: it is read once more then.
            stelle_ = zeilenanfang_;
            --zeile_;
            break;
        }
        satz.Ort.Ende = stelle_;
    }
    return !satz.Leer();
}

} // namespace kw
