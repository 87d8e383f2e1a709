#include "qt/PdfDrucker.h"

#include "document/Dateien.h"
#include "qt/Ausgabe.h"
#include "qt/Text.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QStandardPaths>

#include <utility>

namespace kw {

namespace {

/// The platform's dialog asks itself about existing files: to the program this is a printer, not a file.
std::string ZielErfragen(QWidget *fenster, bool deutsch, const std::string &titel) {
    const QString überschrift = Text(deutsch ? "Druckausgabe speichern unter" : "Save Print Output As");
    const QString ordner = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QFileDialog dialog(fenster, überschrift, ordner, QStringLiteral("PDF (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    // In "Berg 1.2" the dialog would take the "2" for an ending.
    dialog.selectFile(Text(Kennung(titel).empty() ? titel : titel + ".pdf"));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return dialog.selectedFiles().first().toStdString();
}

void MisslungenMelden(QWidget *fenster, bool deutsch, const std::string &datei) {
    const std::string name = DateiName(datei);
    const std::string satz = deutsch ? "Die Datei " + name + " konnte nicht geschrieben werden."
                                     : "The file " + name + " could not be written.";
    QMessageBox kasten(QMessageBox::Warning, QStringLiteral("Kinwright"), Text(satz), QMessageBox::Ok, fenster);
    kasten.setTextFormat(Qt::PlainText);
    kasten.exec();
}

} // namespace

PdfRückfragen PdfDialoge(const std::function<QWidget *()> &fenster, const std::function<bool()> &istDeutsch) {
    return {[=](const std::string &titel) { return ZielErfragen(fenster(), istDeutsch(), titel); },
            [=](const std::string &datei) { MisslungenMelden(fenster(), istDeutsch(), datei); }};
}

void PdfDrucker::Drucken(const Druckauftrag &auftrag) const {
    const std::string ziel = rückfragen_.Ziel(auftrag.Titel);
    if (!ziel.empty() && !PdfSchreiben(auftrag, ziel).empty()) rückfragen_.Misslungen(ziel);
}

} // namespace kw
