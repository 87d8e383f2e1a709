#pragma once

#include "familytree/Satzleser.h"
#include "familytree/Textlager.h"
#include "familytree/Warnung.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

// The facts of a family tree's file, as they stand there. What becomes of them on a page tells `Uebernahme`.
namespace kw {

/// Stands for the place of what isn't in the file.
constexpr std::uint32_t Keine = 0xFFFFFFFFU;

/// A family that a person says to come from.
struct Herkunft {
    std::string_view Familie;
    std::string_view Kindschaft; ///< PEDI: "adopted", "foster", "birth" ..., in small letters; empty when it isn't said
    std::uint32_t Zeile = 0;
};

/// That a person was adopted.
struct Adoption {
    std::string_view Familie; ///< may be empty
    std::string_view Durch;   ///< "husb", "wife", "both", or empty
    std::uint32_t Zeile = 0;
};

/// What happened once: "" when it didn't, "Y" when it did without a date, else the date as it stands.
using Ereignisangabe = std::string_view;

struct Stammperson {
    std::string_view Kennung;
    std::string_view Geschlecht; ///< the first letter of what the file says, a capital; empty when it says nothing
    std::string_view Vorname, Nachname; ///< of the first name that the file gives, each one line
    Ereignisangabe Geburt, Tod, Taufe;
    std::string_view Sterbealter; ///< as the death says
    bool Gestorben = false;       ///< died, was buried or cremated, with or without a date
    bool Totgeboren = false;
    std::vector<Herkunft> Eltern;
    std::vector<std::pair<std::string_view, std::string_view>> Kindschaften; ///< where one is told: by family, rising
    std::vector<Adoption> Adoptionen;
    std::vector<std::string_view> Familien; ///< those in which the person is a partner, as it lists them
    Satzort Ort;

    /// What the file says of being a child of that family: the last word counts.
    std::string_view Kindschaft(std::string_view familie) const;
};

/// A child as its family lists it.
struct Stammkind {
    std::string_view Kennung;
    std::string_view ZumMann, ZurFrau; ///< _FREL and _MREL, in small letters
    std::uint32_t Zeile = 0;
    std::uint32_t Nummer = Keine; ///< its place among the persons
};

struct Stammfamilie {
    std::string_view Kennung;
    std::vector<std::string_view> Partner; ///< HUSB, then WIFE, each in the file's order
    std::size_t Männer = 0;                ///< so many of the partners are HUSB
    Ereignisangabe Heirat, Scheidung;
    std::vector<std::string_view> Ereignisse;                 ///< their tags
    std::vector<std::string_view> Arten;                      ///< TYPE of marriages and events that have one
    std::vector<Stammkind> Kinder;                            ///< each once
    std::vector<std::vector<std::string_view>> Gleichaltrige; ///< children with the same full date of birth
    Satzort Ort;
};

/// That a person stands in some relation to another one.
struct Beziehungsangabe {
    std::string_view Von, Zu, Rolle;
    std::string_view Worte; ///< that explain the role
    std::uint32_t Zeile = 0;
};

/// A child that names a family which doesn't name it.
struct EinseitigesKind {
    std::string_view Familie, Kind, Kindschaft;
};

/// What a file says of itself.
struct Dateikopf {
    std::string Fassung;  ///< of the format: "5.5.1", "7.0"
    std::string Angesagt; ///< the character set that it names
    std::string Benutzt;  ///< how it was read
    std::string_view Zeilenenden;
    std::string Quelle;      ///< the program that wrote it
    std::string Hauptperson; ///< the person whose tree it is, if the file tells

    /// Whether the format is the one that doubles only an "@" that begins a value; the older ones double each.
    bool IstNeu() const { return Fassung.starts_with('7'); }
};

/// A file, whole. The texts of the facts point into it, so it is moved and not copied.
class Stammbaum {
  public:
    Dateikopf Kopf;
    std::vector<Stammperson> Personen;
    std::vector<Stammfamilie> Familien;
    std::vector<EinseitigesKind> Einseitige; ///< in the order of the persons
    std::vector<Beziehungsangabe> Beziehungen;
    Warnungen Warnliste;

    Stammbaum() = default;
    Stammbaum(Stammbaum &&) = default;
    Stammbaum &operator=(Stammbaum &&) = default;
    Stammbaum(const Stammbaum &) = delete;
    Stammbaum &operator=(const Stammbaum &) = delete;
    ~Stammbaum() = default;

    /// The person of that name: of several the last one. nullptr when there is none.
    const Stammperson *Person(std::string_view kennung) const;
    /// The family of that name: of several the first one.
    const Stammfamilie *Familie(std::string_view kennung) const;
    std::size_t Nummer(const Stammperson &person) const { return static_cast<std::size_t>(&person - Personen.data()); }
    std::size_t Nummer(const Stammfamilie &fam) const { return static_cast<std::size_t>(&fam - Familien.data()); }

    /// The lines of a record once more, for what isn't among the facts.
    Satz Zeilen(const Satzort &ort) const;

  private:
    friend class Stammbaumleser;
    std::unique_ptr<std::string> text_; ///< all of the file: it stays where it is when this is moved
    Textlager lager_;                   ///< texts that stand nowhere in it
    std::unordered_map<std::string_view, std::uint32_t> personen_, familien_;
};

/// Reads a file's bytes. Never fails: what can't be understood is passed over and told by `Warnliste`.
Stammbaum StammbaumLesen(std::string bytes);

} // namespace kw
