#pragma once

#include "dialogs/Formular.h"

#include <functional>

namespace kw {

struct Dialogumgebung;

/// The font and the three sizes that a new text box offers.
class frmSchrift : public Formular {
  public:
    explicit frmSchrift(Dialogumgebung &umgebung);

    void Laden() override;
    void Zeitgeber(std::string_view name) override;

    /// Told the font on OK, before the form goes; for the form that has opened this one.
    std::function<void(std::string_view schriftart)> SchriftÜbernehmen;

  protected:
    void Geändert(std::string_view name) override;
    void Geklickt(std::string_view name) override;

  private:
    void BeispieleZeigen();
    void StandardwerteSetzen();
    void cmdOK_Click();

    Dialogumgebung &umgebung_;
    bool lädt_ = true;
};

} // namespace kw
