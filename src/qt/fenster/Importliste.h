#pragma once

#include <QDockWidget>

#include <optional>

class QMimeData;

namespace kw {

class frmMain;
class Importmodell;

/// The persons of the import, to be dragged onto the page. Stands at the window's right while the model says so.
class Importliste : public QDockWidget {
  public:
    explicit Importliste(const frmMain &haupt);

    /// Whether the model wants the list seen: until then none needs to be made.
    static bool IstVerlangt(const frmMain &haupt);
    /// Copies the model's state.
    void Auffrischen();

  private:
    const frmMain &haupt_;
    Importmodell *modell_;
};

/// The row of the list, from 0, that a drag carries; nothing when it carries something else.
std::optional<int> GezogeneZeile(const QMimeData &inhalt);

} // namespace kw
