#pragma once

#include "dialogs/Formular.h"

#include <optional>

namespace kw {

struct Dialogumgebung;

/// The program's language. It goes into the settings file at once and counts from the next start on.
class frmEinstellungen : public Formular {
  public:
    /// `ersterStart`: no language has been chosen yet; the form asks for it, with English chosen.
    explicit frmEinstellungen(Dialogumgebung &umgebung, bool ersterStart = false);

    void Laden() override;
    void Entladen() override;

  protected:
    void Geklickt(std::string_view name) override;

  private:
    void Bestätigen();

    Dialogumgebung &umgebung_;
    bool ersterStart_;
    std::optional<Sprache> gewählt_; ///< the language that was confirmed
};

} // namespace kw
