#include "rendering/Ebenen.h"
#include "rendering/Seite.h"

namespace kw {

namespace {

/// For the length of a print run: the printing flag and line width 3. Afterwards the width is 1,
/// whatever the zoom wanted, until the next change of zoom. Meant.
class Drucklauf {
  public:
    explicit Drucklauf(Ansicht &ansicht) : ansicht_(ansicht) {
        ansicht_.bDruckLaeuft = true;
        ansicht_.StrichFaktor = 3;
    }
    ~Drucklauf() {
        ansicht_.bDruckLaeuft = false;
        ansicht_.StrichFaktor = 1;
    }
    Drucklauf(const Drucklauf &) = delete;
    Drucklauf &operator=(const Drucklauf &) = delete;

  private:
    Ansicht &ansicht_;
};

void EbenenZeichnen(Zeichenfläche &f, Zeichnung &z, double faktor) {
    RasterZeichnen(f, z.ansicht);
    LinienEbene(f, z, faktor);
    KreislinienEbene(f, z);
    PfeilEbene(f, z);
    PersonenEbene(f, z, faktor);
    if (z.dokument.LegendeSichtbar) LegendenEbene(f, z, faktor);
}

} // namespace

void VorschauZeichnen(Zeichenfläche &f, Zeichnung &z) {
    f.Ebene("seite");
    EbenenZeichnen(f, z, SeiteEinrichten(f, z));
}

void DruckZeichnen(Zeichenfläche &f, Zeichnung &z) {
    const Drucklauf lauf(z.ansicht);
    f.FontTransparent = true;
    EbenenZeichnen(f, z, 1);
}

} // namespace kw
