#pragma once

#include "document/saetze/Person.h"
#include "gui/Probeseite.h"

#include <gtest/gtest.h>

namespace kw {

/// The page alone, a pointer on it.
struct Bedienung : testing::Test, Probeseite<> {
    Bedienung() : Probeseite({1000, 700}) {
        innen.bereich.WerkzeugleisteZeigen();
        innen.bereich.ZoomWählen(Zoom100);
    }

    void Zeigen() {
        fläche.show();
        QApplication::processEvents();
        fläche.Auffrischen();
    }
    void Drücken(QPoint ort) { Maus(QEvent::MouseButtonPress, ort, Qt::LeftButton, Qt::LeftButton); }
    void Bewegen(QPoint ort, Qt::MouseButtons unten = Qt::NoButton) {
        Maus(QEvent::MouseMove, ort, Qt::NoButton, unten);
    }
    void Lassen(QPoint ort) { Maus(QEvent::MouseButtonRelease, ort, Qt::LeftButton, Qt::NoButton); }
    void Klicken(QPoint ort) {
        Bewegen(ort);
        Drücken(ort);
        Lassen(ort);
    }
    void PersonSetzen(QPoint ort) {
        ASSERT_TRUE(haupt.BefehlAusführen("cmdSymb(1)"));
        Klicken(ort);
    }

    QImage Bild() { return fläche.grab().toImage().convertToFormat(QImage::Format_RGB32); }
    /// The field of the only person, cm.
    double PersonX() { return PersonSatz(innen.dokument.cboPersonen.Satz(0)).PosX(); }

    static constexpr int Zoom100 = 2; ///< places in the zoom list
    static constexpr int Zoom250 = 17;
};

} // namespace kw
