#pragma once

#include "dialogs/Formular.h"

namespace kw {

struct Dialogumgebung;

/// How the age of persons is shown at their symbols.
class frmSymbGlobal : public Formular {
  public:
    explicit frmSymbGlobal(Dialogumgebung &umgebung);

    void Laden() override;
    void BildZeichnen(std::string_view name, Zeichenfläche &fläche) override;
    std::pair<double, double> BildGröße(std::string_view name) const override;

  protected:
    void Geklickt(std::string_view name) override;

  private:
    /// The ticked option, -1 none.
    int Gewählt() const;
    void BeschriftungStellen();
    void cmdOK_Click();

    Dialogumgebung &umgebung_;
};

} // namespace kw
