#include "dialogs/frmFassungen.h"

#include "dialogs/Dialogumgebung.h"
#include "dialogs/Seitenbild.h"
#include "document/Dateinamen.h"
#include "document/ProjektDatei.h"
#include "document/Sicherheitsnetz.h"
#include "editing/Werkbank.h"
#include "platform/Befehlsnamen.h"
#include "platform/Uhr.h"

#include <algorithm>
#include <array>
#include <ctime>

namespace kw {

namespace {

using Netzart = Netzkopf::Art;

constexpr Formularzeile Zeilen[] = {
    {"lblErklärung",
     Art::Beschriftung,
     {"Diese Genogramme stehen so in keiner Projektdatei. Öffnen überschreibt nichts; das Schließkreuz behält alle.",
      "No project file holds these genograms as they are. Opening one overwrites nothing; the close box keeps all."}},
    {"lstFassungen", Art::Listenfeld},
    {"picSeite", Art::Bild},
    {"lblOrt", Art::Beschriftung},
    {"cmdÖffnen", Art::Knopf, {"Öffnen", "Open"}},
    {"cmdBehalten", Art::Knopf, {"Behalten", "Keep"}},
    {"cmdLöschen", Art::Knopf, {"Löschen", "Delete"}},
};
constexpr Formulartafel Tafel{Name::frmFassungen.Text, {"Gesicherte Fassungen", "Kept Versions"}, Zeilen, "cmdÖffnen"};

constexpr Zweisprachig OhneNamen{"Ohne Namen", "Unnamed"};
constexpr Zweisprachig NieGespeichert{"Noch nie gespeichert", "Never saved"};
constexpr Zweisprachig Leer{"Es ist nichts aufgehoben.", "Nothing is kept."};
constexpr Zweisprachig EinePerson{"1 Person", "1 person"};
constexpr Zweisprachig Personen{" Personen", " persons"};

struct Artname {
    Netzart Was;
    Zweisprachig Text;
};
constexpr Artname Artnamen[] = {
    {Netzart::Stand, {"nicht gespeichert", "not saved"}},
    {Netzart::Behalten, {"behalten", "kept"}},
    {Netzart::Verdrängt, {"ersetzte Datei", "replaced file"}},
    {Netzart::VorOrt, {"Speichern abgebrochen", "saving broke off"}},
};

/// Nobody has answered yet what is to become of it.
bool IstOffen(const Netzkopf &fassung) { return fassung.Was == Netzart::Stand || fassung.Was == Netzart::VorOrt; }

/// In the order in which the user's locale writes dates, to the minute.
std::string Zeitpunkt(std::int64_t nanosekunden, Datumsfolge folge) {
    constexpr std::int64_t JeSekunde = 1'000'000'000;
    constexpr std::array<const char *, 3> Muster{"%d.%m.%Y %H:%M", "%m/%d/%Y %H:%M", "%Y-%m-%d %H:%M"};
    const auto sekunden = static_cast<std::time_t>(nanosekunden / JeSekunde);
    std::tm tag{};
    std::array<char, 64> text{};
    if (!::localtime_r(&sekunden, &tag)) return {};
    return {text.data(), std::strftime(text.data(), text.size(), Muster.at(static_cast<size_t>(folge)), &tag)};
}

} // namespace

frmFassungen::frmFassungen(Dialogumgebung &umgebung) : Formular(Tafel, umgebung.Sprache()), umgebung_(umgebung) {}

frmFassungen::~frmFassungen() = default;

void frmFassungen::Laden() { Auffüllen(0); }

void frmFassungen::Entladen() { VersuchBeenden(); }

std::string frmFassungen::Zeile(const Netzkopf &fassung) const {
    const Sprache sprache = umgebung_.Sprache();
    std::string art;
    for (const auto &name : Artnamen)
        if (name.Was == fassung.Was) art = name.Text.In(sprache);
    const std::string name = fassung.Projektdatei.empty() ? std::string(OhneNamen.In(sprache))
                                                          : NameOhneKennung(DateiName(fassung.Projektdatei));
    const std::string personen = fassung.Personen == 1
                                     ? std::string(EinePerson.In(sprache))
                                     : std::to_string(fassung.Personen) + std::string(Personen.In(sprache));
    return name + ", " + Zeitpunkt(fassung.Zeit, umgebung_.uhr.Folge()) + ", " + personen + " (" + art + ")";
}

/// The list as the net has it now, the newest first.
void frmFassungen::Auffüllen(int gewählt) {
    fassungen_ = umgebung_.netz.Einträge();
    auto &liste = (*this)["lstFassungen"];
    liste.Einträge.clear();
    for (const auto &fassung : fassungen_) liste.Einträge.push_back(Zeile(fassung));
    liste.ListIndex = std::min(gewählt, static_cast<int>(fassungen_.size()) - 1);
    liste.Text = liste.ListIndex < 0 ? "" : liste.Einträge[static_cast<size_t>(liste.ListIndex)];
    Zeigen();
}

const Netzkopf *frmFassungen::Gewählte() const {
    const int i = Finden("lstFassungen")->ListIndex;
    return i < 0 || i >= static_cast<int>(fassungen_.size()) ? nullptr : &fassungen_[static_cast<size_t>(i)];
}

/// What is chosen: its page, where its project stands, what can be done with it.
void frmFassungen::Zeigen() {
    const Netzkopf *fassung = Gewählte();
    for (const char *knopf : {"cmdÖffnen", "cmdBehalten", "cmdLöschen"}) (*this)[knopf].Enabled = fassung != nullptr;
    const Sprache sprache = umgebung_.Sprache();
    (*this)["lblOrt"].Caption = !fassung                        ? Leer.In(sprache)
                                : fassung->Projektdatei.empty() ? NieGespeichert.In(sprache)
                                                                : std::string_view(fassung->Projektdatei);
    seite_.reset();
    VersuchBeenden(); // nothing was drawn of it, so it did no harm
    if (!fassung || umgebung_.netz.IstVersucht(fassung->Name)) return;
    auto eintrag = umgebung_.netz.Lesen(fassung->Name);
    if (!eintrag) return;
    umgebung_.netz.VersuchBeginnen(versuch_ = fassung->Name);
    Dokument dokument;
    if (ProjektLesen(Profil(std::move(eintrag->Inhalt)), dokument).IstProjekt)
        seite_ = std::make_unique<Dokument>(std::move(dokument));
}

void frmFassungen::Geklickt(std::string_view name) {
    if (name == "lstFassungen") return Zeigen();
    const Netzkopf *fassung = Gewählte();
    if (!fassung) return;
    if (name == "cmdÖffnen") {
        if (umgebung_.dienste.FassungÖffnen(fassung->Name)) Schließen();
        else Auffüllen((*this)["lstFassungen"].ListIndex); // it may have gone meanwhile
    }
    if (name == "cmdBehalten") Behalten();
    if (name == "cmdLöschen") {
        umgebung_.netz.Löschen(fassung->Name);
        Auffüllen((*this)["lstFassungen"].ListIndex);
        if (fassungen_.empty()) Schließen();
    }
}

/// The chosen one is answered. The form stays for the next that isn't.
void frmFassungen::Behalten() {
    VersuchBeenden(); // under the name that it has until now
    umgebung_.netz.Behalten(Gewählte()->Name);
    Auffüllen((*this)["lstFassungen"].ListIndex);
    const auto nächste = std::find_if(fassungen_.begin(), fassungen_.end(), IstOffen);
    if (nächste == fassungen_.end()) Schließen();
    else Wählen("lstFassungen", static_cast<int>(nächste - fassungen_.begin()));
}

void frmFassungen::Schließkreuz() {
    VersuchBeenden();
    for (const auto &fassung : fassungen_)
        if (IstOffen(fassung)) umgebung_.netz.Behalten(fassung.Name);
    Schließen();
}

std::pair<double, double> frmFassungen::BildGröße(std::string_view) const {
    constexpr double Lange = 29.7; // cm; one size for all, so that the form doesn't change its own
    return {Lange, Lange};
}

double frmFassungen::BildMaßstab(std::string_view) const { return 0.3; }

void frmFassungen::BildZeichnen(std::string_view, Zeichenfläche &f) {
    if (!seite_) return;
    const auto [breite, höhe] = BildGröße("");
    SeitenvorschauZeichnen(f, *seite_, umgebung_.werkbank.ansicht, umgebung_.uhr, breite, höhe);
    VersuchBeenden();
}

void frmFassungen::VersuchBeenden() {
    if (!versuch_.empty()) umgebung_.netz.VersuchEnden(std::exchange(versuch_, {}));
}

} // namespace kw
