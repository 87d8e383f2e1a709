#pragma once

#include <QDockWidget>

#include <functional>
#include <optional>

class QMimeData;

namespace kw {

class Importmodell;
struct Anblick;

/// The persons of the import, to be dragged onto the page. Stands at the window's right while the model says so.
class Importliste : public QDockWidget {
  public:
    /// `einsetzen` puts a row, from 0, on the page without the pointer.
    Importliste(const Anblick &anblick, std::function<void(int)> einsetzen);

    /// Whether the model wants the list seen: until then none needs to be made.
    static bool IstVerlangt(const Anblick &anblick);
    /// Copies the model's state.
    void Auffrischen();

  private:
    const Anblick &anblick_;
    Importmodell *modell_;
};

/// The row of the list, from 0, that a drag carries; nothing when it carries something else.
std::optional<int> GezogeneZeile(const QMimeData &inhalt);

} // namespace kw
