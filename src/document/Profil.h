#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kw {

/// A profile (INI) file in memory: parsed once, asked and changed at will, written once. Texts go in
/// and out as UTF-8; the file's bytes are Windows-1252, and the limits count those bytes. Names compare
/// without regard to case. Lines that are neither header nor key (comments among them) are kept.
class Profil {
  public:
    /// The read buffer of the program's profile routine, in bytes, its closing NUL included.
    static constexpr std::size_t Lesepuffer = 4096;

    /// What of it a section's names can fill: the list ends in a NUL of its own behind that of its last name.
    static constexpr std::size_t Listenplatz = Lesepuffer - 2;

    explicit Profil(std::string inhalt = {});

    /// The value without the blanks around it and without one pair of enclosing quotation marks, cut to
    /// 4095 bytes; empty when section or key is missing.
    std::string Lesen(std::string_view abschnitt, std::string_view schlüssel) const;
    /// The same without the buffer: as long as the line is. Nothing when section or key is missing.
    std::optional<std::string> LesenUngekürzt(std::string_view abschnitt, std::string_view schlüssel) const;
    /// What `LesenUngekürzt` gives of a value that `Schreiben` wrote.
    static std::string Abbild(std::string_view wert);
    /// What `Lesen` gives of a value that `LesenUngekürzt` read.
    static std::string Gekürzt(std::string_view gelesen);

    using Eintragsleser = std::function<void(std::string_view schlüssel, std::string_view wert)>;
    /// Calls `lesen` for every key of the section in file order, one that stands twice included, with what
    /// `LesenUngekürzt` would give of its line.
    void FürAlleEinträge(std::string_view abschnitt, const Eintragsleser &lesen) const;

    /// The names of all keys of the section in file order, each ended by NUL. What passes the buffer is
    /// cut off: then the last name in it may be a part of one, and has no NUL.
    std::string SchlüsselListe(std::string_view abschnitt) const;

    bool HatAbschnitt(std::string_view abschnitt) const;
    /// How many sections have this name. Only the first of them is read.
    int AbschnittAnzahl(std::string_view abschnitt) const;
    /// Whether there is a line that is neither a key nor a comment: in the section, or before the first one
    /// (where a key counts too, since nobody can ask for it).
    bool HatFremdeZeilen(std::string_view abschnitt) const;
    bool HatVorspann() const;
    /// How many keys the section has, those included for which the buffer has no room.
    std::size_t SchlüsselAnzahl(std::string_view abschnitt) const;
    /// True when the value does not fit into the buffer, so that `Lesen` cuts it.
    bool WirdGekürzt(std::string_view abschnitt, std::string_view schlüssel) const;

    /// Replaces the key's value in place, or appends key or section. Line breaks and NULs in it would tear
    /// the file: they become blanks.
    void Schreiben(std::string_view abschnitt, std::string_view schlüssel, std::string_view wert);
    /// Deletes all sections of this name, so that no record of a second one can come back.
    void AbschnittLöschen(std::string_view abschnitt);
    /// Deletes what `HatVorspann` tells of.
    void VorspannLöschen();

    /// The whole file, lines ended by CR LF.
    std::string Inhalt() const;

  private:
    using Stelle = std::uint32_t;

    /// A place in the hash table of a section's keys: a line, counted from the header, so that 0 is a free one.
    struct Eintrag {
        std::uint32_t Streuwert = 0;
        Stelle Versatz = 0;
    };

    /// What is known of a section that somebody asked for; `Kopf` and `Ende` are positions in `zeilen_`.
    struct Abschnitt {
        std::string Name;
        int Anzahl = 0;
        Stelle Kopf = 0;
        Stelle Ende = 0; ///< behind its last line
        std::size_t Belegt = 0;
        std::size_t Schlüssel = 0;  ///< lines that are keys, once there is a table
        std::vector<Eintrag> Tafel; ///< empty until somebody asks for a key
    };

    std::string_view Zeile(std::size_t i) const;
    bool IstFremd(std::size_t i) const;
    std::optional<std::string_view> KopfnameVon(std::size_t i) const;
    Abschnitt &Gesucht(std::string_view abschnitt) const;
    std::size_t Platz(const Abschnitt &abschnitt, std::string_view schlüssel, std::uint32_t streuwert) const;
    void Aufnehmen(Abschnitt &abschnitt, Stelle zeile) const;
    std::optional<Stelle> Fundstelle(Abschnitt &abschnitt, std::string_view schlüssel) const;
    std::optional<std::string_view> Wert(std::string_view abschnitt, std::string_view schlüssel) const;
    Stelle Anfügen(std::string_view zeile);
    void AbschnittAnhängen(Abschnitt &abschnitt, std::string_view name);
    void ZeileEinfügen(Abschnitt &abschnitt, std::string_view zeile);

    // A file may have tens of millions of lines, so a line costs four bytes beside its text: `text_` is the
    // file in a plain form (lines trimmed, no blank ones, each ended by LF), and `zeilen_` says in file order
    // where each line begins. A run of lines that are neither header nor key is one line, with CR between its
    // parts. New and changed lines are appended to `text_`; what they replace stays there unused.
    std::string text_;
    std::vector<Stelle> zeilen_;
    mutable std::vector<Abschnitt> gesucht_;
};

/// One reading call on the file itself: the value, or with no key the list of key names. A file that
/// cannot be read gives the empty text.
std::string ProfilLesen(const std::string &datei, std::string_view abschnitt,
                        std::optional<std::string_view> schlüssel);

/// One writing call on the file itself; with no key it deletes the section. True when it was written.
bool ProfilSchreiben(const std::string &datei, std::string_view abschnitt, std::optional<std::string_view> schlüssel,
                     std::string_view wert);

} // namespace kw
