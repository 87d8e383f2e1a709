#pragma once

#include "dialogs/Formular.h"

namespace kw {

struct Dialogumgebung;

/// Makes a text box or edits the selected one. The whole box has one font, size, colour and alignment; `Text1`
/// shows what will be stored.
class frmKommentar : public Formular {
  public:
    explicit frmKommentar(Dialogumgebung &umgebung);

    void Laden() override;
    void Entladen() override;
    /// "#" and "¶" mean something in the stored text and can't be typed. Pasting them is left alone.
    bool TasteErlaubt(std::string_view name, std::string_view zeichen) const override;

  protected:
    void Geändert(std::string_view name) override;
    void Geklickt(std::string_view name) override;

  private:
    void TextboxAufnehmen(std::string_view satz);
    void SchriftAnwenden();
    /// Lets the size button stay down whose default the size is, if there is one.
    void GrößenknöpfeStellen();
    void GrößenknopfDrücken(int größe);
    void StilZeigen();
    void Ausrichten(int ausrichtung);
    void FarbeSetzen(Farbe farbe);
    void FarbeFragen();
    void StandardschriftBearbeiten();
    void Command2_Click();
    /// The record, without measures: the next drawing takes them.
    std::string Satz() const;

    Dialogumgebung &umgebung_;
    // As they were when the form came up: a redraw ends the gesture that places a box.
    bool neu_ = false;
    int position_ = -1; ///< of the box under edit
    double textX_ = 0;  ///< cm
    double textY_ = 0;
};

} // namespace kw
