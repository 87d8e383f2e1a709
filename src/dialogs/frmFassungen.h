#pragma once

#include "dialogs/Formular.h"
#include "document/Netzeintrag.h"

#include <memory>
#include <string>
#include <vector>

namespace kw {

struct Dialogumgebung;
struct Dokument;

/// The versions that the safety net keeps: each can be opened, kept or deleted. Closing the form keeps what nobody has
/// answered yet, so that it isn't offered again.
class frmFassungen : public Formular {
  public:
    explicit frmFassungen(Dialogumgebung &umgebung);
    ~frmFassungen() override;

    void Laden() override;
    void Entladen() override;
    void Schließkreuz() override;
    /// The page of the version that is chosen. One that has once brought a program down while it was drawn isn't drawn
    /// again: nobody could get past it.
    void BildZeichnen(std::string_view name, Zeichenfläche &fläche) override;
    std::pair<double, double> BildGröße(std::string_view name) const override;
    double BildMaßstab(std::string_view name) const override;

  protected:
    void Geklickt(std::string_view name) override;

  private:
    void Auffüllen(int gewählt);
    void Zeigen();
    void Behalten();
    void VersuchBeenden();
    const Netzkopf *Gewählte() const;
    std::string Zeile(const Netzkopf &fassung) const;

    Dialogumgebung &umgebung_;
    std::vector<Netzkopf> fassungen_;
    std::unique_ptr<Dokument> seite_; ///< of the chosen version; none when it can't be shown
    std::string versuch_;             ///< the version that is drawn for the first time
};

} // namespace kw
