#include "document/Profil.h"

#include "document/Codepage.h"
#include "document/Dateien.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace kw {

namespace {

constexpr char Zeilenende = '\n';
constexpr char Fuge = '\r'; ///< between the parts of a run of other lines

/// Without the blanks around it; tabs count as blanks in a profile.
std::string_view OhneLeerzeichen(std::string_view text) {
    const auto anfang = text.find_first_not_of(" \t");
    if (anfang == std::string_view::npos) return {};
    return text.substr(anfang, text.find_last_not_of(" \t") - anfang + 1);
}

/// The name in a header line. Nothing when it is none: a header needs its "]", and what is behind it
/// does not count.
std::optional<std::string_view> Kopfname(std::string_view zeile) {
    if (!zeile.starts_with('[') || zeile.find(Fuge) != std::string_view::npos) return {};
    const auto ende = zeile.rfind(']');
    if (ende == std::string_view::npos) return {};
    return OhneLeerzeichen(zeile.substr(1, ende - 1));
}

/// The name of the key in a line that is no header. It can be empty; a line without "=" has none.
std::optional<std::string_view> Schlüsselname(std::string_view zeile) {
    if (zeile.starts_with(';')) return {};
    const auto gleich = zeile.find('=');
    if (gleich == std::string_view::npos || zeile.find(Fuge) != std::string_view::npos) return {};
    return OhneLeerzeichen(zeile.substr(0, gleich));
}

std::string_view OhneAnführung(std::string_view wert) {
    const bool umschlossen =
        wert.size() >= 2 && wert.front() == wert.back() && (wert.front() == '"' || wert.front() == '\'');
    return umschlossen ? wert.substr(1, wert.size() - 2) : wert;
}

/// The value in a line that is a key's.
std::string_view WertIn(std::string_view zeile) {
    return OhneAnführung(OhneLeerzeichen(zeile.substr(zeile.find('=') + 1)));
}

/// A byte of the code page in lower case.
char Klein(char c) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte == 0x9F) return static_cast<char>(0xFF);
    if (byte == 0x8A || byte == 0x8C || byte == 0x8E) return static_cast<char>(byte + 0x10);
    const bool groß = (byte >= 'A' && byte <= 'Z') || (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7);
    return groß ? static_cast<char>(byte + 0x20) : c;
}

bool Gleich(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char c, char d) { return Klein(c) == Klein(d); });
}

std::uint32_t Streuung(std::string_view name) {
    std::uint64_t wert = 0xCBF29CE484222325U;
    for (const char c : name) wert = (wert ^ static_cast<unsigned char>(Klein(c))) * 0x100000001B3U;
    return static_cast<std::uint32_t>(wert ^ (wert >> 32));
}

/// A text of ours as it can stand in one line.
std::string Einzeilig(std::string_view text) {
    auto bytes = NachCodepage(text);
    std::replace_if(
        bytes.begin(), bytes.end(), [](char c) { return c == '\0' || c == '\r' || c == '\n'; }, ' ');
    return bytes;
}

std::string Name(std::string_view text) { return std::string(OhneLeerzeichen(Einzeilig(text))); }

} // namespace

Profil::Profil(std::string inhalt) : text_(std::move(inhalt)) {
    text_ += Zeilenende;
    std::replace(text_.begin(), text_.end(), '\0', ' ');
    std::replace(text_.begin(), text_.end(), '\r', Zeilenende);
    if (text_.size() > std::numeric_limits<Stelle>::max()) throw std::length_error("profile too large");

    // In place: the plain form is never longer than what was read.
    std::size_t geschrieben = 0;
    bool imLauf = false;
    for (std::size_t gelesen = 0; gelesen < text_.size();) {
        const auto ende = text_.find(Zeilenende, gelesen);
        const auto zeile = OhneLeerzeichen(std::string_view(text_).substr(gelesen, ende - gelesen));
        gelesen = ende + 1;
        if (zeile.empty()) continue;
        const bool sonstige = !Kopfname(zeile) && !Schlüsselname(zeile);
        if (sonstige && imLauf) {
            text_[geschrieben - 1] = Fuge;
        } else {
            zeilen_.push_back(static_cast<Stelle>(geschrieben));
        }
        imLauf = sonstige;
        const auto länge = zeile.size();
        std::copy(zeile.begin(), zeile.end(), text_.begin() + static_cast<std::ptrdiff_t>(geschrieben));
        geschrieben += länge;
        text_[geschrieben++] = Zeilenende;
    }
    text_.resize(geschrieben);
}

std::string_view Profil::Zeile(std::size_t i) const {
    const auto anfang = zeilen_[i];
    return std::string_view(text_).substr(anfang, text_.find(Zeilenende, anfang) - anfang);
}

std::optional<std::string_view> Profil::KopfnameVon(std::size_t i) const {
    if (text_[zeilen_[i]] != '[') return {}; // spares most lines the search for their end
    return Kopfname(Zeile(i));
}

/// Looks through all headers once for each name, and remembers what it found.
Profil::Abschnitt &Profil::Gesucht(std::string_view abschnitt) const {
    const auto name = Name(abschnitt);
    for (auto &bekannt : gesucht_) {
        if (Gleich(bekannt.Name, name)) return bekannt;
    }
    Abschnitt neu;
    neu.Name = name;
    for (std::size_t i = 0; i < zeilen_.size(); ++i) {
        const auto kopf = KopfnameVon(i);
        if (!kopf || !Gleich(*kopf, name)) continue;
        if (neu.Anzahl++ == 0) neu.Kopf = static_cast<Stelle>(i);
    }
    if (neu.Anzahl > 0) {
        neu.Ende = neu.Kopf + 1;
        while (neu.Ende < zeilen_.size() && !KopfnameVon(neu.Ende)) ++neu.Ende;
    }
    return gesucht_.emplace_back(std::move(neu));
}

/// The place in the table where the key stands or would stand.
std::size_t Profil::Platz(const Abschnitt &abschnitt, std::string_view schlüssel, std::uint32_t streuwert) const {
    const auto &tafel = abschnitt.Tafel;
    const auto maske = tafel.size() - 1;
    for (auto platz = streuwert & maske;; platz = (platz + 1) & maske) {
        if (tafel[platz].Versatz == 0) return platz;
        if (tafel[platz].Streuwert != streuwert) continue;
        if (Gleich(*Schlüsselname(Zeile(abschnitt.Kopf + tafel[platz].Versatz)), schlüssel)) return platz;
    }
}

/// Makes a line of the section findable, unless an earlier one has its key.
void Profil::Aufnehmen(Abschnitt &abschnitt, Stelle zeile) const {
    const auto schlüssel = Schlüsselname(Zeile(zeile));
    if (!schlüssel) return;
    auto &tafel = abschnitt.Tafel;
    if (5 * (abschnitt.Belegt + 1) > 4 * tafel.size()) {
        std::vector<Eintrag> größere(std::max<std::size_t>(16, 2 * tafel.size()));
        const auto maske = größere.size() - 1;
        for (const auto &eintrag : tafel) {
            if (eintrag.Versatz == 0) continue;
            auto platz = eintrag.Streuwert & maske;
            while (größere[platz].Versatz != 0) platz = (platz + 1) & maske;
            größere[platz] = eintrag;
        }
        tafel = std::move(größere);
    }
    const auto streuwert = Streuung(*schlüssel);
    auto &eintrag = tafel[Platz(abschnitt, *schlüssel, streuwert)];
    if (eintrag.Versatz != 0) return;
    eintrag = {streuwert, zeile - abschnitt.Kopf};
    ++abschnitt.Belegt;
}

std::optional<Profil::Stelle> Profil::Fundstelle(Abschnitt &abschnitt, std::string_view schlüssel) const {
    if (abschnitt.Tafel.empty()) {
        for (auto i = abschnitt.Kopf + 1; i < abschnitt.Ende; ++i) Aufnehmen(abschnitt, i);
        if (abschnitt.Tafel.empty()) return {};
    }
    const auto versatz = abschnitt.Tafel[Platz(abschnitt, schlüssel, Streuung(schlüssel))].Versatz;
    if (versatz == 0) return {};
    return abschnitt.Kopf + versatz;
}

std::optional<std::string_view> Profil::Wert(std::string_view abschnitt, std::string_view schlüssel) const {
    const auto stelle = Fundstelle(Gesucht(abschnitt), Name(schlüssel));
    if (!stelle) return {};
    return WertIn(Zeile(*stelle));
}

std::string Profil::Lesen(std::string_view abschnitt, std::string_view schlüssel) const {
    const auto wert = Wert(abschnitt, schlüssel);
    return wert ? NachUtf8(wert->substr(0, Lesepuffer - 1)) : std::string{};
}

std::optional<std::string> Profil::LesenUngekürzt(std::string_view abschnitt, std::string_view schlüssel) const {
    const auto wert = Wert(abschnitt, schlüssel);
    if (!wert) return {};
    return NachUtf8(*wert);
}

std::string Profil::Abbild(std::string_view wert) {
    const auto bytes = Einzeilig(wert);
    return NachUtf8(OhneAnführung(OhneLeerzeichen(bytes)));
}

std::string Profil::Gekürzt(std::string_view gelesen) {
    return NachUtf8(std::string_view(NachCodepage(gelesen)).substr(0, Lesepuffer - 1));
}

void Profil::FürAlleEinträge(std::string_view abschnitt, const Eintragsleser &lesen) const {
    const auto &gesucht = Gesucht(abschnitt);
    for (auto i = gesucht.Kopf + std::size_t{1}; i < gesucht.Ende; ++i) {
        const auto zeile = Zeile(i);
        if (const auto name = Schlüsselname(zeile)) lesen(NachUtf8(*name), NachUtf8(WertIn(zeile)));
    }
}

/// A run of other lines is foreign when one of its parts is more than a comment.
bool Profil::IstFremd(std::size_t i) const {
    if (Schlüsselname(Zeile(i))) return false;
    for (auto rest = Zeile(i); !rest.empty();) {
        if (!rest.starts_with(';')) return true;
        const auto ende = rest.find(Fuge);
        rest = ende == std::string_view::npos ? std::string_view{} : rest.substr(ende + 1);
    }
    return false;
}

bool Profil::HatFremdeZeilen(std::string_view abschnitt) const {
    const auto &gesucht = Gesucht(abschnitt);
    for (auto i = gesucht.Kopf + std::size_t{1}; i < gesucht.Ende; ++i)
        if (IstFremd(i)) return true;
    return false;
}

bool Profil::HatVorspann() const {
    for (std::size_t i = 0; i < zeilen_.size() && !KopfnameVon(i); ++i)
        if (Schlüsselname(Zeile(i)) || IstFremd(i)) return true;
    return false;
}

std::string Profil::SchlüsselListe(std::string_view abschnitt) const {
    const auto &gesucht = Gesucht(abschnitt);
    std::string liste;
    for (auto i = gesucht.Kopf + std::size_t{1}; i < gesucht.Ende && liste.size() < Listenplatz; ++i) {
        if (const auto name = Schlüsselname(Zeile(i))) liste.append(*name).push_back('\0');
    }
    return NachUtf8(std::string_view(liste).substr(0, Listenplatz));
}

bool Profil::HatAbschnitt(std::string_view abschnitt) const { return AbschnittAnzahl(abschnitt) > 0; }

int Profil::AbschnittAnzahl(std::string_view abschnitt) const { return Gesucht(abschnitt).Anzahl; }

std::size_t Profil::SchlüsselAnzahl(std::string_view abschnitt) const {
    const auto &gesucht = Gesucht(abschnitt);
    std::size_t anzahl = 0;
    for (auto i = gesucht.Kopf + std::size_t{1}; i < gesucht.Ende; ++i) anzahl += Schlüsselname(Zeile(i)) ? 1 : 0;
    return anzahl;
}

bool Profil::WirdGekürzt(std::string_view abschnitt, std::string_view schlüssel) const {
    const auto wert = Wert(abschnitt, schlüssel);
    return wert && wert->size() >= Lesepuffer;
}

Profil::Stelle Profil::Anfügen(std::string_view zeile) {
    const auto stelle = text_.size();
    if (stelle + zeile.size() >= std::numeric_limits<Stelle>::max()) throw std::length_error("profile too large");
    text_.append(zeile).push_back(Zeilenende);
    return static_cast<Stelle>(stelle);
}

void Profil::AbschnittAnhängen(Abschnitt &abschnitt, std::string_view name) {
    abschnitt.Anzahl = 1;
    abschnitt.Kopf = static_cast<Stelle>(zeilen_.size());
    abschnitt.Ende = abschnitt.Kopf + 1;
    zeilen_.push_back(Anfügen("[" + std::string(name) + "]"));
}

void Profil::ZeileEinfügen(Abschnitt &abschnitt, std::string_view zeile) {
    const auto stelle = abschnitt.Ende;
    zeilen_.insert(zeilen_.begin() + stelle, Anfügen(zeile));
    for (auto &andere : gesucht_) {
        if (andere.Anzahl == 0 || andere.Kopf < stelle) continue;
        ++andere.Kopf;
        ++andere.Ende;
    }
    ++abschnitt.Ende;
    Aufnehmen(abschnitt, stelle); // the search for the key has built the table, if there is a line in it
}

void Profil::Schreiben(std::string_view abschnitt, std::string_view schlüssel, std::string_view wert) {
    const auto name = Name(schlüssel);
    const auto neu = "=" + Einzeilig(wert);
    auto &ziel = Gesucht(abschnitt);
    if (ziel.Anzahl == 0) AbschnittAnhängen(ziel, Name(abschnitt));
    if (const auto stelle = Fundstelle(ziel, name)) {
        zeilen_[*stelle] = Anfügen(std::string(*Schlüsselname(Zeile(*stelle))) + neu);
    } else {
        ZeileEinfügen(ziel, name + neu);
    }
}

void Profil::AbschnittLöschen(std::string_view abschnitt) {
    if (!HatAbschnitt(abschnitt)) return;
    const auto name = Name(abschnitt);
    bool löschen = false;
    std::size_t bleibt = 0;
    for (std::size_t i = 0; i < zeilen_.size(); ++i) {
        if (const auto kopf = KopfnameVon(i)) löschen = Gleich(*kopf, name);
        if (!löschen) zeilen_[bleibt++] = zeilen_[i];
    }
    zeilen_.resize(bleibt);
    gesucht_.clear();
}

std::string Profil::Inhalt() const {
    std::string inhalt;
    for (std::size_t i = 0; i < zeilen_.size(); ++i) {
        for (const char c : Zeile(i)) c == Fuge ? inhalt.append("\r\n") : inhalt.append(1, c);
        inhalt.append("\r\n");
    }
    return inhalt;
}

std::string ProfilLesen(const std::string &datei, std::string_view abschnitt,
                        std::optional<std::string_view> schlüssel) {
    std::string inhalt;
    if (!DateiLesen(datei, inhalt).Gelungen()) return {};
    const Profil profil(std::move(inhalt));
    return schlüssel ? profil.Lesen(abschnitt, *schlüssel) : profil.SchlüsselListe(abschnitt);
}

bool ProfilSchreiben(const std::string &datei, std::string_view abschnitt, std::optional<std::string_view> schlüssel,
                     std::string_view wert) {
    std::string inhalt;
    // A file that is there and cannot be read must not be replaced by one that holds only this key.
    const Dateibefund befund = DateiLesen(datei, inhalt);
    if (!befund.Gelungen() && befund.Grund != Ursache::FehltDatei) return false;
    Profil profil(std::move(inhalt));
    if (schlüssel) {
        profil.Schreiben(abschnitt, *schlüssel, wert);
    } else {
        profil.AbschnittLöschen(abschnitt);
    }
    return DateiSchreiben(datei, profil.Inhalt()).Gelungen();
}

} // namespace kw
