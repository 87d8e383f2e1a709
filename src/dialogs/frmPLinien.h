#pragma once

#include "dialogs/Formular.h"

namespace kw {

struct Dialogumgebung;

/// The selected partnership line: its state, distance, and one date text for each state. The dates of the other
/// states stay in the record, so that a divorce keeps the wedding's date.
class frmPLinien : public Formular {
  public:
    explicit frmPLinien(Dialogumgebung &umgebung);

    void Laden() override;
    void Zeitgeber(std::string_view name) override;
    void BildZeichnen(std::string_view name, Zeichenfläche &fläche) override;
    std::pair<double, double> BildGröße(std::string_view name) const override;
    /// The separators of dates and fields can't be typed.
    bool TasteErlaubt(std::string_view name, std::string_view zeichen) const override;

  protected:
    void Geändert(std::string_view name) override;
    void Geklickt(std::string_view name) override;

  private:
    struct Stand;
    static const Stand Stände[];
    const Stand &Gewählt() const;
    void StandZeigen();
    void DatumZeigen();
    void Bestätigen();

    Dialogumgebung &umgebung_;
};

} // namespace kw
