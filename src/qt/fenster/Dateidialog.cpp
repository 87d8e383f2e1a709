#include "qt/fenster/Dateidialog.h"

#include "document/Dateien.h"
#include "platform/Benutzer.h"
#include "qt/grund/Text.h"

#include <QSettings>

namespace kw {

namespace {

/// The captions of the filters, each of which carries its pattern in parentheses, as the toolkit wants it.
QStringList Filter(const Dateiwahl &wahl) {
    QStringList alle;
    const QStringList paare = Text(wahl.AlleFilter()).split(u'|');
    for (qsizetype i = 0; i < paare.size(); i += 2) alle += paare[i];
    return alle;
}

/// The ending that the chosen one of them stands for.
std::string Filterkennung(const QString &gewählt) {
    return Kennung(gewählt.section(u'(', -1).section(u')', 0, 0).toStdString());
}

} // namespace

std::optional<std::string> DateiErfragen(QWidget *fenster, const Dateiwahl &wahl, QFileDialog::AcceptMode art) {
    QFileDialog dialog(fenster, Text(wahl.Titel), Text(wahl.Ordner));
    dialog.setNameFilters(Filter(wahl));
    dialog.setAcceptMode(art);
    dialog.setFileMode(art == QFileDialog::AcceptSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    if (!wahl.Vorschlag.empty()) dialog.selectFile(Text(wahl.Vorschlag));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    const std::string datei = dialog.selectedFiles().first().toStdString();
    if (art == QFileDialog::AcceptOpen) return datei;
    // As the platform's dialogs do; the question about replacing then names it whole.
    return MitKennung(datei, Filterkennung(dialog.selectedNameFilter()), wahl.Erlaubt == Dateiwahl::Kennungen::Alle);
}

void OhneDateiverlauf() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
}

} // namespace kw
