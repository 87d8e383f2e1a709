#pragma once

#include "description/Personenworte.h"
#include "editing/Elemente.h"

#include <string>
#include <vector>

namespace kw {

struct Legendenblatt;

/// What stands on the page in words, of every kind. As for persons, the document must not change meanwhile.
class Elementworte {
  public:
    /// Circle lines are as smooth as `glättungsgrad` says.
    Elementworte(const Dokument &dokument, const Legendenblatt &legende, int glättungsgrad, Sprache sprache,
                 const Uhr &uhr);

    /// What it is, and whom it joins: "Partnerschaft: Anna Müller und Jörg Müller, verheiratet".
    std::string Name(Element element) const;
    /// What else there is to say of it, each on its own.
    std::vector<std::string> Einzelheiten(Element element) const;
    /// How it is called in a sentence: of a person the name alone, of a partnership those two.
    std::string Ruf(Element element) const;

    const Personenworte personen;

  private:
    struct Art {
        std::string (Elementworte::*Name)(int position) const;
        std::vector<std::string> (Elementworte::*Einzelheiten)(int position) const;
    };
    static const Art &ArtVon(Element element);

    std::string Person(int position) const { return personen.Name(position); }
    std::string Partnerschaft(int position) const;
    std::string Kind(int position) const;
    std::string Beziehung(int position) const;
    std::string Text(int position) const;
    std::string Pfeil(int position) const;
    std::string Kreis(int position) const;
    std::string Legende(int) const;
    std::vector<std::string> ZurPerson(int position) const { return personen.Einzelheiten(position); }
    std::vector<std::string> ZurPartnerschaft(int position) const;
    std::vector<std::string> ZumKreis(int position) const;
    std::vector<std::string> ZurLegende(int) const;
    std::vector<std::string> Nichts(int) const { return {}; }

    std::vector<std::string> Umkreiste(int position) const;
    std::string WasLiegtBei(double x, double y) const;
    std::string Im(const Zweisprachig &text) const { return std::string(text.In(personen.sprache)); }

    const Dokument &dokument_;
    const Legendenblatt &legende_;
    int glättungsgrad_;
};

} // namespace kw
