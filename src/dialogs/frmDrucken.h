#pragma once

#include "dialogs/Formular.h"

namespace kw {

struct Dialogumgebung;

/// Chooses the printer and the number of copies, and prints. Copies are whole print runs, not a printer's setting.
class frmDrucken : public Formular {
  public:
    explicit frmDrucken(Dialogumgebung &umgebung);

    void Laden() override;
    /// Digits only.
    bool TasteErlaubt(std::string_view name, std::string_view zeichen) const override;

  protected:
    void Geändert(std::string_view name) override;
    void Geklickt(std::string_view name) override;

  private:
    void ExemplareSetzen(int anzahl);
    void Bestätigen();

    Dialogumgebung &umgebung_;
    int exemplare_ = 1;
};

} // namespace kw
