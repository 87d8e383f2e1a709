#pragma once

#include "anonymity/NamenloseSeite.h"
#include "dialogs/Formular.h"

#include <optional>

namespace kw {

struct Dialogumgebung;

/// Shows the page without names before it is exported so: with ages, or with years of birth.
class frmOhneNamen : public Formular {
  public:
    explicit frmOhneNamen(Dialogumgebung &umgebung);

    void Laden() override;
    void BildZeichnen(std::string_view name, Zeichenfläche &fläche) override;
    std::pair<double, double> BildGröße(std::string_view name) const override;
    double BildMaßstab(std::string_view name) const override;

  protected:
    void Geklickt(std::string_view name) override;

  private:
    Lebenszeit Gewählte() const;
    std::string Fehlendes() const;

    Dialogumgebung &umgebung_;
    std::optional<NamenloseSeite> seite_; ///< as chosen
};

} // namespace kw
