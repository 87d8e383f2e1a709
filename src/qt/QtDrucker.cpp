#include "qt/QtDrucker.h"

#include "qt/Ausgabe.h"
#include "qt/Text.h"

#include <QPageLayout>
#include <QPrintEngine>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTransform>

namespace kw {

namespace {

constexpr int Dpi = 600;
constexpr int Hochformat = 1;
/// Key of the toolkit for what goes to the print system with a job, in pairs; other engines ignore it.
constexpr auto PrintSystemOptions = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xfe00);

const QString &Eingebauter() {
    static const QString name = Text(PdfDruckerName);
    return name;
}

/// A printer with the paper that it is set to: left alone, the toolkit takes its own.
class Blattdrucker : public QPrinter {
  public:
    explicit Blattdrucker(const QPrinterInfo &info) : QPrinter(info, QPrinter::HighResolution) {
        setResolution(Dpi);
        setFullPage(true);
        setPageSize(info.defaultPageSize());
        setPageOrientation(QPageLayout::Portrait);
    }
    /// What of the upright sheet can't be reached, in points.
    QMarginsF Ränder() const {
        QPageLayout blatt = pageLayout();
        blatt.setUnits(QPageLayout::Point);
        return blatt.minimumMargins();
    }
    double Höhe() const { return pageLayout().fullRect(QPageLayout::Point).height(); }
};

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

} // namespace

/// A chosen printer that has gone meanwhile leaves the default one.
QString QtDrucker::Aktueller() const {
    if (gewählt_ == Eingebauter()) return gewählt_;
    const Druckerstand stand = auskunft_.Erfragen();
    return stand.Namen.contains(gewählt_) ? gewählt_ : stand.Vorgabe;
}

std::optional<std::string> QtDrucker::DeviceName() const {
    const QString name = Aktueller();
    return name.isEmpty() ? std::nullopt : std::optional(name.toStdString());
}

Druckränder QtDrucker::Ränder() const {
    const QPrinterInfo info = QPrinterInfo::printerInfo(auskunft_.Erfragen().Vorgabe);
    if (info.isNull()) return {};
    constexpr double CmJePunkt = CmJeZoll / 72;
    const QMarginsF cm = Blattdrucker(info).Ränder() * CmJePunkt;
    return {cm.left(), cm.right(), cm.top(), cm.bottom()};
}

std::vector<std::string> QtDrucker::DeviceNames() const {
    std::vector<std::string> namen;
    for (const QString &name : auskunft_.Erfragen().Namen) namen.push_back(name.toStdString());
    namen.emplace_back(PdfDruckerName);
    return namen;
}

bool QtDrucker::Wählen(std::string_view deviceName) {
    const QString name = Text(deviceName);
    if (name != Eingebauter() && (!auskunft_.Erfragen().Namen.contains(name) || auskunft_.StehtAus())) return false;
    gewählt_ = name;
    lage_ = Hochformat;
    return true;
}

/// Into a file. Its sheet is the document's page, without margins; nothing is written but a whole one.
Druckende QtDrucker::AlsPdfDrucken(const Druckauftrag &auftrag) {
    const auto ziel = auftrag.Zieldatei();
    if (!ziel) return Druckende::Aufgegeben;
    return PdfSchreiben(auftrag, *ziel).empty() ? Druckende::Erledigt : Druckende::NichtGeschrieben;
}

/// Of a chosen printer that has gone nothing comes out elsewhere; of a print system that is mute nothing is asked.
Druckende QtDrucker::Drucken(const Druckauftrag &auftrag) {
    if (gewählt_ == Eingebauter()) return AlsPdfDrucken(auftrag);
    const QString name = Aktueller();
    if (auskunft_.StehtAus() || (!gewählt_.isEmpty() && name != gewählt_)) return Druckende::Erledigt;
    const QPrinterInfo info = QPrinterInfo::printerInfo(name);
    if (info.isNull()) return Druckende::Erledigt;
    Blattdrucker drucker(info);
    drucker.setColorMode(auftrag.Farbig ? QPrinter::Color : QPrinter::GrayScale);
    drucker.setDocName(Text(auftrag.Titel));
    drucker.printEngine()->setProperty(PrintSystemOptions, Auftragsoptionen(auftrag.Farbig));
    if (!SeiteDrucken(auftrag, drucker, Dpi / CmJeZoll, AufBlatt(drucker, lage_))) drucker.abort();
    return Druckende::Erledigt;
}

} // namespace kw
