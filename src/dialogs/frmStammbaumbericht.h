#pragma once

#include "dialogs/Formular.h"

namespace kw {

struct Dialogumgebung;

/// What an import of a family tree has left out, taken for granted or changed: to read, save or print.
class frmStammbaumbericht : public Formular {
  public:
    /// The environment has a family tree with its report.
    explicit frmStammbaumbericht(Dialogumgebung &umgebung);

    void Laden() override;

  protected:
    void Geklickt(std::string_view name) override;

  private:
    Dialogumgebung &umgebung_;
};

} // namespace kw
