#pragma once

#include "document/Nachschlagen.h"
#include "platform/Sprache.h"

#include <string>
#include <string_view>
#include <vector>

namespace kw {

class PersonSatz;
class Uhr;
struct Dokument;

/// Persons as one speaks of them. The document must not change while this is used: who is joined with whom is looked
/// up once.
class Personenworte {
  public:
    Personenworte(const Dokument &dokument, Sprache sprache, const Uhr &uhr);

    /// How others call person `position`: the first and the family name; "Unbenannt (männlich)" without them, and of
    /// those that never have any the kind. Empty for what isn't there.
    std::string Ruf(int position) const;
    std::string RufVon(std::string_view nr) const { return Ruf(bezüge.Person(nr)); }
    /// The same of two, "A und B".
    std::string RufVon(std::string_view nr1, std::string_view nr2) const;

    /// "Anna Müller, weiblich, 45, verheiratet mit Jörg Müller, 2 Kinder, Indexperson".
    std::string Name(int position) const;
    /// What else there is to say, each on its own: parents, twin, children, relationships, marks, date of birth.
    std::vector<std::string> Einzelheiten(int position) const;
    /// The same with what stands at the partnerships, and whether the age isn't known: for those who read all of it.
    std::vector<std::string> Ausführlich(int position) const;

    /// Whether a kind is a living person's, which has names, marks and an age.
    static bool IstMensch(int kennzahl) { return kennzahl == 1 || kennzahl == 2 || kennzahl >= 10; }

    const Dokument &dokument;
    const Sprache sprache;
    const Bezüge bezüge;

  private:
    std::string Lebensalter(const PersonSatz &person) const;
    std::vector<std::string> Partner(const PersonSatz &person) const;
    std::vector<std::string> Kinderzahlen(const PersonSatz &person) const;
    std::vector<std::string> Kindernamen(const PersonSatz &person) const;
    std::string Eltern(const PersonSatz &person) const;
    std::string Zwilling(const PersonSatz &person) const;
    std::vector<std::string> Partnerstände(const PersonSatz &person) const;
    std::vector<std::string> Beziehungen(const PersonSatz &person) const;
    std::vector<int> Kinder(const PersonSatz &person) const;
    std::string Im(const Zweisprachig &text) const { return std::string(text.In(sprache)); }

    const Uhr &uhr_;
};

/// What a partnership is, as an adjective: "verheiratet"; nothing for one without a state.
std::string Partnerstand(std::string_view satz, Sprache sprache);
/// What stands at a partnership of its state: "seit 1994", "gesch. 1988", "distanziert".
std::vector<std::string> Partnerdaten(std::string_view satz, Sprache sprache);
/// "enge Beziehung"; `präposition` gets what joins it to another person, "zu", when it isn't null.
std::string Beziehungswort(std::string_view art, Sprache sprache, std::string *präposition = nullptr);
/// "Kind von A und B", by the kind of the child's line.
std::string Kindschaft(std::string_view kindart, bool mensch, const std::string &eltern, Sprache sprache);

/// "Kinder: A und B".
std::string Kinderliste(const std::vector<std::string> &namen, Sprache sprache);

} // namespace kw
