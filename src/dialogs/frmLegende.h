#pragma once

#include "dialogs/Formular.h"

namespace kw {

struct Dialogumgebung;

/// The legend's options. Its preview is a small legend of a made-up family in the form that is ticked.
class frmLegende : public Formular {
  public:
    explicit frmLegende(Dialogumgebung &umgebung);

    void Laden() override;
    void BildZeichnen(std::string_view name, Zeichenfläche &fläche) override;
    std::pair<double, double> BildGröße(std::string_view name) const override;

  protected:
    void Geklickt(std::string_view name) override;

  private:
    void Bestätigen();

    Dialogumgebung &umgebung_;
};

} // namespace kw
