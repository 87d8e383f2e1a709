#include "app/Stammbaumimport.h"

#include "app/Stammbaumdatei.h"
#include "dialogs/Stammbaumvorlage.h"
#include "document/Codepage.h"
#include "document/Einstellungen.h"
#include "platform/Benutzer.h"
#include "rendering/Ansicht.h"

namespace kw {

namespace {

constexpr Zweisprachig Dateititel{"Stammbaum übernehmen", "Import Family Tree"};
constexpr Zweisprachig Dateifilter{"Stammbaum (*.ged *.gdz *.GED *.GDZ)|*.ged *.gdz *.GED *.GDZ",
                                   "Family tree (*.ged *.gdz *.GED *.GDZ)|*.ged *.gdz *.GED *.GDZ"};
constexpr Zweisprachig OhnePersonen{"Die Datei ist kein Stammbaum: sie enthält keine Personen.",
                                    "The file is no family tree: it holds no persons."};

} // namespace

Stammbaumimport::Stammbaumimport(Benutzer &benutzer, const Ansicht &ansicht, const std::string &einstellungsDatei,
                                 std::function<void(Formularname)> formÖffnen)
    : benutzer_(benutzer), ansicht_(ansicht), einstellungsDatei_(einstellungsDatei),
      formÖffnen_(std::move(formÖffnen)) {}

Stammbaumimport::~Stammbaumimport() = default;

bool Stammbaumimport::IstStammbaum(std::string_view datei) {
    const std::string klein = Kleingeschrieben(datei);
    return klein.ends_with(".ged") || klein.ends_with(".gdz");
}

void Stammbaumimport::mnuStammbaum() {
    std::string ordner = LetzterOrdner(einstellungsDatei_);
    if (ordner.empty()) ordner = benutzer_.Desktopordner();
    const Sprache s = ansicht_.Sprache;
    const auto datei =
        benutzer_.DateiÖffnen({std::string(Dateititel.In(s)), "", std::string(Dateifilter.In(s)), ordner});
    if (datei) Öffnen(*datei);
}

void Stammbaumimport::Öffnen(const std::string &datei) {
    if (vorlage_) return;
    std::string bytes;
    const Stammbaumbefund gelesen = StammbaumdateiLesen(datei, bytes);
    if (!gelesen.Gelungen()) return Warnen(datei + "\n\n" + gelesen.Text(ansicht_.Sprache));
    auto vorlage = std::make_unique<Stammbaumvorlage>(datei, std::move(bytes));
    if (vorlage->Baum.Personen.empty()) return Warnen(datei + "\n\n" + std::string(OhnePersonen.In(ansicht_.Sprache)));
    vorlage_ = std::move(vorlage);
    formÖffnen_(Name::frmStammbaum);
    if (vorlage_->Übernommen && !vorlage_->Bericht.empty()) formÖffnen_(Name::frmStammbaumbericht);
    vorlage_.reset();
}

void Stammbaumimport::Warnen(std::string text) {
    benutzer_.Fragen({"Kinwright", std::move(text), Knöpfe::Ok, Zeichen::Warnung});
}

} // namespace kw
