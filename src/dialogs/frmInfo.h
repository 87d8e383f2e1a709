#pragma once

#include "dialogs/Formular.h"

namespace kw {

struct Dialogumgebung;

/// The about box: the program's name, its version, what it is.
class frmInfo : public Formular {
  public:
    frmInfo(Dialogumgebung &umgebung, std::string_view version);

    void Laden() override {}

  protected:
    void Geklickt(std::string_view /*name*/) override { Schließen(); }
};

} // namespace kw
