// What the page gives to screen readers: where things are on the screen, and what can be done with them.
#include "app/frmMain.h"
#include "qt/fenster/Arbeitsflaeche.h"

#include "qt/zugang/Seitenbaum.h"
#include "rendering/Zeichenflaeche.h"

namespace kw {

/// For who can't see it.
Seitenquelle Arbeitsflaeche::FürVorleser() {
    return {[this]() -> const std::vector<Elementzeile> & {
                haupt_->DerVorleser().Zuhören();
                return haupt_->DerVorleser().Zeilen();
            },
            [this] { return anblick_->ansicht.Sprache; },
            [this](const Umgebung &cm) { return OrtVon(cm); },
            [this] { return Sicht(); },
            [this] { return anblick_->cursor.Element(); },
            [this](Element element, Elementtat tat) { Machen(element, tat); }};
}

QRect Arbeitsflaeche::Sicht() const {
    const Arbeitsbereich &b = anblick_->bereich;
    const int rechts = b.VScroll1.Visible ? vScroll_.x() : width();
    const int unten = b.HScroll1.Visible ? hScroll_.y() : height();
    const int links = b.picBack.Left / TwipsJePixel;
    return Seite().toAlignedRect() & QRect(links, 0, rechts - links, unten);
}

QRect Arbeitsflaeche::OrtVon(const Umgebung &cm) const {
    const QRectF seite = Seite();
    const double maßstab = seite.width() / anblick_->ansicht.SeitenBreite;
    const QRectF ort(cm.Links * maßstab, cm.Oben * maßstab, (cm.Rechts - cm.Links) * maßstab,
                     (cm.Unten - cm.Oben) * maßstab);
    return ort.translated(seite.topLeft()).toRect();
}

/// As the keys do it that are told with the names of what can be done.
void Arbeitsflaeche::Machen(Element element, Elementtat tat) {
    if (!haupt_ || imModell_) return;
    setFocus(Qt::OtherFocusReason);
    Melden([&] { haupt_->ElementFokussieren(element); });
    switch (tat) {
    case Elementtat::Fokussieren: break;
    case Elementtat::Wählen:
        if (TasteMelden({Taste::Leer})) Melden([this] { haupt_->LeertasteLoslassen(); });
        break;
    case Elementtat::Bearbeiten: TasteMelden({Taste::Eingabe}); break;
    case Elementtat::MenüÖffnen: TasteMelden({Taste::Menü}); break;
    }
}

} // namespace kw
