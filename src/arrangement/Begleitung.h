#pragma once

#include "arrangement/Zugehoerigkeit.h"
#include "editing/Werkbank.h"

#include <vector>

// Where texts come to lie that go along with persons.
namespace kw {

struct Umzug;

/// Brings the texts of a page along when its persons have gone, so that none comes to lie on a symbol, a name, the
/// legend or another text. Made before anybody goes.
class Begleitung {
  public:
    explicit Begleitung(Werkbank &w);

    /// All persons and their lines stand at their new places. A text goes as its person went; where it would come to
    /// lie on something that it didn't lie on before, or beside the page, to the nearest free place, rather beside
    /// lines than on one. Where there is none near, it lies on as little as can be.
    void Nachholen();

  private:
    struct Text {
        int Position;              ///< in the store
        std::optional<int> Person; ///< whose it is
        Umgebung Alt, Neu;
        bool Liegt = false; ///< its new place is settled
    };
    struct Ding {
        Umgebung Alt, Neu;
    };
    std::vector<Umgebung> Personenkästen() const;
    std::vector<Ding> Dinge(const Text &text) const;
    bool Frei(const Text &text) const;
    void Suchen(Text &text) const;
    bool AufDerSeite(const Umgebung &u) const;

    Werkbank &w_;
    std::vector<Ort> orte_;      ///< of all persons, before
    std::vector<Ding> personen_; ///< their symbols and names
    std::vector<Text> texte_;
    std::vector<Umgebung> linien_; ///< as they are now
};

} // namespace kw
