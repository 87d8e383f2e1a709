#pragma once

#include "dialogs/Formular.h"

namespace kw {

struct Dialogumgebung;

/// Paper, orientation, and whether the printable area is shown. The orientation shown is the printer's, which follows
/// the document's. OK with nothing changed changes nothing.
class frmSeiteEinrichten : public Formular {
  public:
    explicit frmSeiteEinrichten(Dialogumgebung &umgebung);

    void Laden() override;

  protected:
    void Geklickt(std::string_view name) override;

  private:
    void Bestätigen();

    Dialogumgebung &umgebung_;
};

} // namespace kw
