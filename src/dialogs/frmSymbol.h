#pragma once

#include "dialogs/Formular.h"
#include "document/basAltersberechnung.h"

namespace kw {

struct Dialogumgebung;

/// The properties of the selected person (`PersRecord`, `PersAuswahl`), or with another face of an institution. What
/// it refuses it refuses without a word: a frame round the box, "?" in the preview, and OK does nothing.
class frmSymbol : public Formular {
  public:
    explicit frmSymbol(Dialogumgebung &umgebung);

    void Laden() override;
    void Entladen() override;
    void Zeitgeber(std::string_view name) override;
    void BildZeichnen(std::string_view name, Zeichenfläche &fläche) override;
    std::pair<double, double> BildGröße(std::string_view name) const override;
    bool TasteErlaubt(std::string_view name, std::string_view zeichen) const override;

  protected:
    void Geändert(std::string_view name) override;
    void Geklickt(std::string_view name) override;
    void MausGedrückt(std::string_view name) override;
    void Fokussiert(std::string_view name) override;
    void FokusVerloren(std::string_view name) override;

  private:
    enum class Feld { Keins, Geburtsdatum, Alter };

    void GesichtZeigen();
    void PersonLaden();
    void TypGewählt();
    void VerstorbenGewählt();
    void BildOrdnen();
    void GeburtsdatumGeändert();
    void AlterGeändert();
    void SterbealterGeändert();
    void SterbealterÖffnen();
    void AlterAnzeigen();
    void DatumsgenauigkeitAnzeigen();
    void AlterBeschriften(std::string_view text);
    void AlterUnbekannt();
    bool DatumAblehnen();
    void Übernehmen();
    void Löschen();
    std::string NeuerSatz();

    Steuerelement &Das(std::string_view name) { return (*this)[name]; }
    const std::string &Text(std::string_view name) { return Das(name).Text; }
    int Symbolkennzahl();
    bool IstKlein();
    std::string_view Ja(std::string_view ankreuzfeld) { return Das(ankreuzfeld).Value ? "1" : "0"; }

    Dialogumgebung &umgebung_;
    Altersberechnung alter_;  ///< its own: what another person's date has raised must not block this form
    std::string satz_;        ///< the record as opened
    std::string alterImSatz_; ///< of the record's date; empty without one that counts
    int position_ = -1;       ///< in `cboPersonen`
    int typ_ = 0;             ///< as opened
    bool institution_ = false;
    bool PersonEingabeGesperrt = true;
    Feld AktivesDatumsfeld = Feld::Keins; ///< which of the two last had the focus: it leads, the other follows
};

} // namespace kw
