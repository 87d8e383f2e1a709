#pragma once

#include "dialogs/Formular.h"

namespace kw {

struct Dialogumgebung;

/// The kind of the selected relationship line. It also confirms a line that has just been drawn: leaving it by
/// anything but OK and delete takes that line away again.
class frmBezLinien : public Formular {
  public:
    explicit frmBezLinien(Dialogumgebung &umgebung);

    void Laden() override;
    void BildZeichnen(std::string_view name, Zeichenfläche &fläche) override;
    std::pair<double, double> BildGröße(std::string_view name) const override;
    void Schließkreuz() override;

  protected:
    void Geklickt(std::string_view name) override;

  private:
    /// Number of the ticked kind, -1 none: a damaged record.
    int Gewählt() const;
    void Bestätigen();

    Dialogumgebung &umgebung_;
};

} // namespace kw
