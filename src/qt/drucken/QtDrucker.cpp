#include "qt/drucken/QtDrucker.h"

#include "document/Dateien.h"
#include "qt/drucken/Ausgabe.h"
#include "qt/drucken/Blattdrucker.h"
#include "qt/grund/Text.h"

#include <QLibrary>
#include <QPrintEngine>
#include <QTransform>

namespace kw {

namespace {

constexpr int Dpi = Blattdrucker::Dpi;
constexpr int Hochformat = 1;
/// Key of the toolkit for what goes to the print system with a job, in pairs; other engines ignore it.
constexpr auto PrintSystemOptions = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xfe00);

const QString &Eingebauter() {
    static const QString name = Text(PdfDruckerName);
    return name;
}

/// Whatever defaults its queue has, the page comes out in its size, as it was turned here, in the sheet's corner.
QStringList Auftragsoptionen(bool farbig) {
    QStringList paare;
    for (const char *wort : {"print-scaling", "none", "fit-to-page", "false", "number-up", "1", "position", "top-left",
                             "orientation-requested", "3", "print-color-mode", farbig ? "color" : "monochrome"})
        paare << QLatin1String(wort);
    return paare;
}

/// From the corner of the printable area to the sheet's, in device pixels. A page in landscape lies with its top at the
/// sheet's left edge. It is turned here: print systems turn in one or the other direction, and with the page the edges.
QTransform AufBlatt(const Blattdrucker &drucker, int lage) {
    constexpr double JePunkt = Dpi / 72.0;
    const QMarginsF rand = drucker.Ränder() * JePunkt;
    if (lage == Hochformat) return QTransform::fromTranslate(rand.left(), rand.top());
    return {0, -1, 1, 0, rand.left(), drucker.Höhe() * JePunkt - rand.bottom()};
}

/// Whether the print system has taken the last job of this thread. The toolkit hands it over and doesn't look; the
/// library that it uses for that remembers.
bool IstAngenommen() {
    constexpr int ErsterFehler = 0x100; // of the protocol's status codes; success has several, below
    using Letzter = int (*)();
    const auto letzter = reinterpret_cast<Letzter>(QLibrary(QStringLiteral("cups"), 2).resolve("cupsLastError"));
    if (!letzter) return true; // a print system of another kind
    const int status = letzter();
    return status >= 0 && status < ErsterFehler;
}

} // namespace

/// A chosen printer that has gone meanwhile leaves the default one.
QString QtDrucker::Aktueller(const Druckerstand &stand) const {
    return stand.Namen.contains(gewählt_) ? gewählt_ : stand.Vorgabe;
}

std::optional<std::string> QtDrucker::DeviceName() const {
    const QString name = gewählt_ == Eingebauter() ? gewählt_ : Aktueller(auskunft_.Erfragen());
    return name.isEmpty() ? std::nullopt : std::optional(name.toStdString());
}

Druckervorgabe QtDrucker::Vorgabe() const {
    const Druckerstand stand = auskunft_.Erfragen();
    return {stand.Beantwortet, stand.Vorgabe.toStdString(), stand.Ränder};
}

std::vector<std::string> QtDrucker::DeviceNames() const {
    std::vector<std::string> namen;
    for (const QString &name : auskunft_.Erfragen().Namen) namen.push_back(name.toStdString());
    namen.emplace_back(PdfDruckerName);
    return namen;
}

bool QtDrucker::Wählen(std::string_view deviceName) {
    const QString name = Text(deviceName);
    if (name != Eingebauter()) {
        const Druckerstand stand = auskunft_.Erfragen(Druckerauskunft::Geduld::Lang);
        if (!stand.Beantwortet || !stand.Namen.contains(name)) return false;
    }
    gewählt_ = name;
    return true;
}

/// Into a file. Its sheet is the document's page, without margins; nothing is written but a whole one.
Druckbefund QtDrucker::AlsPdfDrucken(const Druckauftrag &auftrag) {
    const auto ziel = auftrag.Zieldatei();
    if (!ziel) return {Druckbefund::Art::Aufgegeben};
    const Ursache grund = PdfSchreiben(auftrag, *ziel);
    return {grund == Ursache::Keine ? Druckbefund::Art::Erledigt : Druckbefund::Art::NichtGeschrieben, grund};
}

/// Of a chosen printer that has gone nothing comes out elsewhere; what a mute print system is asked would never end.
Druckbefund QtDrucker::Drucken(const Druckauftrag &auftrag) {
    if (gewählt_ == Eingebauter()) return AlsPdfDrucken(auftrag);
    const Druckerstand stand = auskunft_.Erfragen(Druckerauskunft::Geduld::Lang);
    const QString name = gewählt_.isEmpty() ? stand.Vorgabe : gewählt_;
    const Druckbefund unerreicht{Druckbefund::Art::NichtErreicht, {}, name.toStdString()};
    if (!stand.Beantwortet || !stand.Namen.contains(name)) return unerreicht;
    const QPrinterInfo info = QPrinterInfo::printerInfo(name);
    if (info.isNull()) return unerreicht;
    Blattdrucker drucker(info);
    drucker.setColorMode(auftrag.Farbig ? QPrinter::Color : QPrinter::GrayScale);
    drucker.setDocName(Text(auftrag.Titel));
    drucker.printEngine()->setProperty(PrintSystemOptions, Auftragsoptionen(auftrag.Farbig));
    const bool gezeichnet = SeiteDrucken(auftrag, drucker, Dpi / CmJeZoll, AufBlatt(drucker, lage_));
    if (!gezeichnet) drucker.abort();
    if (gezeichnet && IstAngenommen()) return {};
    return {Druckbefund::Art::NichtAngenommen, {}, name.toStdString()};
}

} // namespace kw
