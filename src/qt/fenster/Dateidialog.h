#pragma once

#include <QFileDialog>

#include <optional>
#include <string>

namespace kw {

struct Dateiwahl;

/// A file dialog as the model asks for it, over `fenster`; it doesn't ask about existing files itself. The chosen path;
/// nothing when it was cancelled.
std::optional<std::string> DateiErfragen(QWidget *fenster, const Dateiwahl &wahl, QFileDialog::AcceptMode art);

/// The toolkit's file dialog would write the folders of clients into a file that all its programs share: not after
/// this.
void OhneDateiverlauf();

} // namespace kw
