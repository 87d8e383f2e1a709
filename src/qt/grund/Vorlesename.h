#pragma once

#include <QString>
#include <QWidget>

namespace kw {

/// What a screen reader calls the widget. The toolkit tells of a name even when it is the old one, so it is only given
/// a new one.
inline void VorlesenAls(QWidget &teil, const QString &name) {
    if (teil.accessibleName() != name) teil.setAccessibleName(name);
}

/// What is read behind the name; told when it is new.
inline void DazuVorlesen(QWidget &teil, const QString &beschreibung) {
    if (teil.accessibleDescription() != beschreibung) teil.setAccessibleDescription(beschreibung);
}

} // namespace kw
