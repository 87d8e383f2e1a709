#pragma once

#include "arrangement/Stammbaumseite.h"
#include "dialogs/Formular.h"

#include <cstdint>
#include <vector>

namespace kw {

struct Dialogumgebung;
struct Stammbaumvorlage;

/// Whom of a family tree the page is to show: the proband, by what is typed, and who around them; the answers to what
/// the file doesn't say; the page before it is made, and what would fit where it doesn't. OK makes it a new project.
class frmStammbaum : public Formular {
  public:
    /// The environment has a family tree with persons.
    explicit frmStammbaum(Dialogumgebung &umgebung);

    void Laden() override;
    void Zeitgeber(std::string_view name) override;
    /// The page; where no sheet holds it, all of it with the sheet below.
    void BildZeichnen(std::string_view name, Zeichenfläche &fläche) override;
    std::pair<double, double> BildGröße(std::string_view name) const override;
    double BildMaßstab(std::string_view name) const override;

  protected:
    void Geändert(std::string_view name) override;
    void Geklickt(std::string_view name) override;

  private:
    void Suchen();
    void Verzögern();
    void SeiteErmitteln();
    void FragenZeigen();
    bool IstKeinAnderer(const Seitenwunsch &weg, const Seitenwunsch &anderer) const;
    void AuswegSuchen();
    void AuswegGehen(std::size_t nummer);
    void BerichtZeigen();
    void Bestätigen();
    void MöglichesZeigen();
    Seitenwunsch Wunsch() const;
    bool Passt() const;
    int Gewählt(std::string_view liste) const { return Finden(liste)->ListIndex; }
    bool Angekreuzt(std::string_view feld) const;

    Dialogumgebung &umgebung_;
    Stammbaumvorlage &vorlage_;
    std::vector<std::uint32_t> gefundene_; ///< the list's persons
    std::uint32_t proband_ = Keine;
    Stammbaumseite seite_;
    bool veraltet_ = false;             ///< what was chosen has changed since
    std::vector<Seitenwunsch> auswege_; ///< that fit
    std::vector<Seitenwunsch> offene_;  ///< that nobody has tried yet, the next one last
};

} // namespace kw
