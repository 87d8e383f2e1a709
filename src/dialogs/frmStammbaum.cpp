#include "dialogs/frmStammbaum.h"

#include "arrangement/Stammbaumworte.h"
#include "dialogs/Dialogumgebung.h"
#include "dialogs/Seitenbild.h"
#include "dialogs/Stammbaumvorlage.h"
#include "document/Texte.h"
#include "editing/Werkbank.h"
#include "platform/Befehlsnamen.h"
#include "platform/Uhr.h"

#include <algorithm>
#include <array>

namespace kw {

namespace {

constexpr Formularzeile Zeilen[] = {
    {"lblPerson", Art::Beschriftung, {"&Person:", "&Person:"}},
    {"txtSuche",
     Art::Textfeld,
     {},
     {"Name, Geburts- oder Sterbejahr der Person, um die es geht",
      "Name, year of birth or death of the person in question"},
     "lstPersonen"},
    {"lstPersonen", Art::Listenfeld, {}, {"Gefundene Personen", "Persons found"}},
    {"lblTreffer", Art::Beschriftung},
    {"lblHinauf", Art::Beschriftung, {"Generationen &hinauf:", "Generations &up:"}},
    {"cboHinauf", Art::Liste},
    {"lblHinunter", Art::Beschriftung, {"hin&unter:", "&down:"}},
    {"cboHinunter", Art::Liste},
    {"chkGeschwister", Art::Ankreuzfeld, {"&Geschwister", "&Siblings"}},
    {"chkNeffen", Art::Ankreuzfeld, {"&Nichten und Neffen", "&Nieces and nephews"}},
    {"chkTanten", Art::Ankreuzfeld, {"&Tanten und Onkel", "&Aunts and uncles"}},
    {"chkCousins", Art::Ankreuzfeld, {"&Cousins und Cousinen", "&Cousins"}},
    {"chkPartner", Art::Ankreuzfeld, {"Pa&rtner", "Pa&rtners"}},
    {"chkKleiner", Art::Ankreuzfeld, {"&Kleinere Symbole, wo nötig", "Smaller s&ymbols where needed"}},
    {"picSeite", Art::Bild},
    {"lblErgebnis", Art::Beschriftung},
    {"cmdWeg(1)", Art::Knopf},
    {"cmdWeg(2)", Art::Knopf},
    {"Frame1", Art::Rahmen, {"Was die Datei nicht sagt", "What the File Doesn't Say"}},
    {"lblHeirat", Art::Beschriftung},
    {"cboHeirat", Art::Liste},
    {"lblZwillinge", Art::Beschriftung},
    {"cboZwillinge", Art::Liste},
    {"lblGeschlecht", Art::Beschriftung},
    {"cboGeschlecht", Art::Liste},
    {"lblEltern", Art::Beschriftung},
    {"cboEltern", Art::Liste},
    {"lblAlte", Art::Beschriftung},
    {"cboAlte", Art::Liste},
    {"lblBericht", Art::Beschriftung},
    {"cmdBericht", Art::Knopf, {"&Bericht ...", "Rep&ort ..."}},
    {"cmdOK", Art::Knopf, {"OK", "OK"}},
    {"cmdAbbrechen", Art::Knopf, {"Abbrechen", "Cancel"}},
};
constexpr Formulartafel Tafel{
    Name::frmStammbaum.Text, {"Stammbaum übernehmen", "Import Family Tree"}, Zeilen, "cmdOK", "cmdAbbrechen"};

/// A tick and what it takes in.
struct Kreuz {
    std::string_view Feld;
    bool Sippenwahl::*Wer;
};
constexpr Kreuz Kreuze[] = {{"chkGeschwister", &Sippenwahl::Geschwister},
                            {"chkNeffen", &Sippenwahl::NichtenNeffen},
                            {"chkTanten", &Sippenwahl::TantenOnkel},
                            {"chkCousins", &Sippenwahl::Cousins},
                            {"chkPartner", &Sippenwahl::Partner}};

/// A question to all that the file leaves open in one way: how many there are, and the answers.
struct Offenes {
    std::string_view Schild, Liste;
    Zweisprachig Text;
    std::array<Befundart, 2> Arten;
    std::array<Zweisprachig, 3> Antworten; ///< the first one unless another is chosen
};
constexpr Zweisprachig Nichts{"", ""};
constexpr Offenes Fragen[] = {
    {"lblHeirat",
     "cboHeirat",
     {"Paare ohne Heiratsangabe", "Couples, marriage not told"},
     {Befundart::StatusAngenommen, Befundart::StatusAngenommen},
     {{{"unverheiratet", "unmarried"}, {"verheiratet", "married"}, Nichts}}},
    {"lblZwillinge",
     "cboZwillinge",
     {"Gleich alte Geschwister", "Siblings born on one day"},
     {Befundart::ZwillingeMöglich, Befundart::ZwillingeAngenommen},
     {{{"keine Zwillinge", "no twins"},
       {"zweieiige Zwillinge", "fraternal twins"},
       {"eineiige Zwillinge", "identical twins"}}}},
    {"lblGeschlecht",
     "cboGeschlecht",
     {"Geschlecht unbekannt", "Sex unknown"},
     {Befundart::GeschlechtGesetzt, Befundart::GeschlechtGesetzt},
     {{{"männlich", "male"}, {"weiblich", "female"}, {"divers", "gender nonconforming"}}}},
    {"lblEltern",
     "cboEltern",
     {"Mehrere Eltern", "Several parents"},
     {Befundart::WeitereEltern, Befundart::WeitereEltern},
     {{{"leibliche Eltern", "natural parents"}, {"Adoptiveltern", "adoptive parents"}, Nichts}}},
    {"lblAlte",
     "cboAlte",
     {"Über 110, kein Tod bekannt", "Over 110, no death told"},
     {Befundart::AltOhneTod, Befundart::AltOhneTod},
     {{{"lebt", "living"}, {"verstorben", "deceased"}, Nichts}}},
};
constexpr const char *Heiratsantworten[] = {"0", "2"}; // states of a couple
constexpr int Geschlechtsantworten[] = {TypMännlich, TypWeiblich, TypDivers};

constexpr std::string_view Wegknöpfe[] = {"cmdWeg(1)", "cmdWeg(2)"};
constexpr Zweisprachig EinePerson{"1 Person", "1 person"};
constexpr Zweisprachig AllePersonen{"%1 Personen", "%1 persons"};
constexpr Zweisprachig DieErsten{"die ersten %2 von %1 Personen", "the first %2 of %1 persons"};
constexpr Zweisprachig Berichtszeile{"Bericht: %1 angenommen, %2 geändert, %3 weggelassen",
                                     "Report: %1 taken for granted, %2 changed, %3 left out"};
constexpr int HöchsteWahl = 9;           ///< generations that the lists offer
constexpr std::size_t Listenlänge = 200; ///< more nobody reads; a search narrows it down
constexpr int Tippdauer = 150;           ///< ms in which the next key of a name comes
constexpr int Atempause = 1;             ///< ms, for events between two layouts
constexpr std::size_t SoVieleAuswege = 2;

std::string MitZahlen(const Zweisprachig &text, Sprache sprache, std::initializer_list<std::size_t> zahlen) {
    std::string gefüllt(text.In(sprache));
    int nummer = 0;
    for (const std::size_t zahl : zahlen)
        gefüllt = Ersetzt(gefüllt, "%" + std::to_string(++nummer), std::to_string(zahl));
    return gefüllt;
}

} // namespace

frmStammbaum::frmStammbaum(Dialogumgebung &umgebung)
    : Formular(Tafel, umgebung.Sprache()), umgebung_(umgebung), vorlage_(*umgebung.stammbaum) {
    for (const char *liste : {"cboHinauf", "cboHinunter"})
        for (int i = 0; i <= HöchsteWahl; ++i) (*this)[liste].Einträge.push_back(std::to_string(i));
    for (const Offenes &frage : Fragen)
        for (const Zweisprachig &antwort : frage.Antworten)
            if (!antwort.Deutsch.empty()) (*this)[frage.Liste].Einträge.emplace_back(antwort.In(umgebung.Sprache()));
}

void frmStammbaum::Laden() {
    const Sippenwahl wahl;
    IndexSetzen("cboHinauf", wahl.Hinauf);
    IndexSetzen("cboHinunter", wahl.Hinunter);
    for (const Kreuz &kreuz : Kreuze) (*this)[kreuz.Feld].Value = wahl.*kreuz.Wer;
    for (const Offenes &frage : Fragen) IndexSetzen(frage.Liste, 0);
    for (const std::string_view knopf : Wegknöpfe) (*this)[knopf].Visible = false;
    proband_ = vorlage_.Suche.Vorschlag();
    Suchen();
    SeiteErmitteln();
}

bool frmStammbaum::Angekreuzt(std::string_view feld) const { return Finden(feld)->Value; }

void frmStammbaum::Geändert(std::string_view name) {
    if (name == "txtSuche") Suchen();
}

/// Whoever was chosen stays chosen while he is among those found.
void frmStammbaum::Suchen() {
    const std::string &text = (*this)["txtSuche"].Text;
    auto treffer = vorlage_.Suche.Finden(text, Listenlänge);
    gefundene_ = std::move(treffer.Personen);
    if (Getrimmt(text).empty() && std::find(gefundene_.begin(), gefundene_.end(), proband_) == gefundene_.end())
        gefundene_.insert(gefundene_.begin(), proband_);
    auto &liste = (*this)["lstPersonen"];
    liste.Einträge = vorlage_.Suche.Zeilen(gefundene_, vorlage_.Verwandte, umgebung_.Sprache());
    const Zweisprachig &wieViele = treffer.Anzahl > Listenlänge ? DieErsten
                                   : treffer.Anzahl == 1        ? EinePerson
                                                                : AllePersonen;
    (*this)["lblTreffer"].Caption = MitZahlen(wieViele, umgebung_.Sprache(), {treffer.Anzahl, Listenlänge});
    const auto wieder = std::find(gefundene_.begin(), gefundene_.end(), proband_);
    const bool da = wieder != gefundene_.end();
    IndexSetzen("lstPersonen", da ? static_cast<int>(wieder - gefundene_.begin()) : gefundene_.empty() ? -1 : 0);
    MöglichesZeigen();
}

void frmStammbaum::Geklickt(std::string_view name) {
    if (name == "cmdAbbrechen") return Schließen();
    if (name == "cmdOK") return Bestätigen();
    if (name == "cmdBericht") return BerichtZeigen();
    for (std::size_t i = 0; i < std::size(Wegknöpfe); ++i)
        if (name == Wegknöpfe[i]) return AuswegGehen(i);
    if (name == "lstPersonen") {
        const auto gewählt = static_cast<std::size_t>(Gewählt("lstPersonen"));
        const std::uint32_t neu = gewählt < gefundene_.size() ? gefundene_[gewählt] : proband_;
        if (std::exchange(proband_, neu) == neu) return;
    }
    Verzögern();
}

/// While somebody types or walks through a list nothing is laid out.
void frmStammbaum::Verzögern() {
    veraltet_ = true;
    offene_.clear();
    ZeitgeberStellen("tmrWege", 0);
    ZeitgeberStellen("tmrSeite", Tippdauer);
    MöglichesZeigen();
}

void frmStammbaum::Zeitgeber(std::string_view name) {
    if (name == "tmrSeite" && veraltet_) SeiteErmitteln();
    if (name == "tmrWege") AuswegSuchen();
}

Seitenwunsch frmStammbaum::Wunsch() const {
    Seitenwunsch wunsch;
    wunsch.Proband = proband_;
    wunsch.Wahl.Hinauf = std::max(0, Gewählt("cboHinauf"));
    wunsch.Wahl.Hinunter = std::max(0, Gewählt("cboHinunter"));
    for (const Kreuz &kreuz : Kreuze) wunsch.Wahl.*kreuz.Wer = Angekreuzt(kreuz.Feld);
    Übernahmeregeln &regeln = wunsch.Regeln;
    regeln.Textsprache = umgebung_.Sprache();
    regeln.OhneHeirat = Heiratsantworten[std::max(0, Gewählt("cboHeirat"))];
    regeln.UnbekanntesGeschlecht = Geschlechtsantworten[std::max(0, Gewählt("cboGeschlecht"))];
    regeln.GleichaltrigeSindZwillinge = Gewählt("cboZwillinge") > 0;
    regeln.ZwillingeEineiig = Gewählt("cboZwillinge") > 1;
    regeln.AdoptionVorGeburt = Gewählt("cboEltern") > 0;
    regeln.AlteSindVerstorben = Gewählt("cboAlte") > 0;
    regeln.Jahr = umgebung_.uhr.Heute().Jahr;
    const Werkbank &w = umgebung_.werkbank;
    wunsch.Blatt.Raster = w.ansicht.Rasterweite;
    wunsch.Blatt.Papiercode = w.dokument.Papiercode;
    wunsch.Blatt.Kleiner = Angekreuzt("chkKleiner");
    wunsch.Blatt.AuchDarüber = true; // to be seen, never to be taken over
    return wunsch;
}

bool frmStammbaum::Passt() const { return seite_.Ausgang == Seitenausgang::Passt && !seite_.Blatt.LiegtDarüber; }

void frmStammbaum::SeiteErmitteln() {
    veraltet_ = false;
    ZeitgeberStellen("tmrSeite", 0);
    const Seitenwunsch wunsch = Wunsch();
    seite_ = SeiteAus(vorlage_.Alle(), wunsch, umgebung_.werkbank.picVorschau);
    auswege_.clear();
    offene_.clear();
    if (!Passt()) {
        offene_ = Auswege(wunsch);
        std::reverse(offene_.begin(), offene_.end());
        ZeitgeberStellen("tmrWege", Atempause);
    }
    (*this)["lblErgebnis"].Caption = Seitenbefund(seite_, umgebung_.Sprache());
    FragenZeigen();
    MöglichesZeigen();
}

void frmStammbaum::FragenZeigen() {
    const Sprache sprache = umgebung_.Sprache();
    const Übernahmebericht &bericht = seite_.Übernommen.Bericht;
    for (const Offenes &frage : Fragen) {
        std::size_t anzahl = bericht.Anzahl(frage.Arten[0]);
        if (frage.Arten[1] != frage.Arten[0]) anzahl += bericht.Anzahl(frage.Arten[1]);
        (*this)[frage.Schild].Caption = std::string(frage.Text.In(sprache)) + " (" + std::to_string(anzahl) + "):";
        (*this)[frage.Liste].Enabled = anzahl > 0;
        (*this)[frage.Schild].Visible = (*this)[frage.Liste].Visible = Passt();
    }
    (*this)["Frame1"].Visible = Passt(); // in whose place is what would fit
    using enum Befundklasse;
    (*this)["lblBericht"].Caption =
        MitZahlen(Berichtszeile, sprache,
                  {bericht.Anzahl(Angenommen), bericht.Anzahl(Befundklasse::Geändert), bericht.Anzahl(Weggelassen)});
}

void frmStammbaum::MöglichesZeigen() {
    const int hinauf = Gewählt("cboHinauf");
    (*this)["chkGeschwister"].Enabled = hinauf > 0;
    (*this)["chkNeffen"].Enabled = hinauf > 0 && Angekreuzt("chkGeschwister");
    (*this)["chkTanten"].Enabled = hinauf > 1;
    (*this)["chkCousins"].Enabled = hinauf > 1 && Angekreuzt("chkTanten");
    (*this)["cmdOK"].Enabled = Passt() && Gewählt("lstPersonen") >= 0; // not for whoever was there before
    (*this)["cmdBericht"].Enabled = seite_.Ausgang != Seitenausgang::ZuVielePersonen;
    for (std::size_t i = 0; i < std::size(Wegknöpfe); ++i) (*this)[Wegknöpfe[i]].Visible = i < auswege_.size();
}

/// Whether one way out is another one over again, or that with fewer persons and no larger symbols.
bool frmStammbaum::IstKeinAnderer(const Seitenwunsch &weg, const Seitenwunsch &anderer) const {
    if (weg.Wahl == anderer.Wahl) return true;
    return !Angekreuzt("chkKleiner") && weg.Blatt.Kleiner == anderer.Blatt.Kleiner && weg.Wahl.IstTeilVon(anderer.Wahl);
}

/// Tries one that nobody has tried.
void frmStammbaum::AuswegSuchen() {
    while (!offene_.empty() && auswege_.size() < SoVieleAuswege) {
        const Seitenwunsch ausweg = offene_.back();
        offene_.pop_back();
        if (!auswege_.empty() && IstKeinAnderer(ausweg, auswege_.front())) continue;
        const Stammbaumseite seite = SeiteAus(vorlage_.Alle(), ausweg, umgebung_.werkbank.picVorschau);
        if (seite.Ausgang == Seitenausgang::Passt) {
            const Sprache sprache = umgebung_.Sprache();
            const std::string nummer = std::to_string(auswege_.size() + 1);
            (*this)[Wegknöpfe[auswege_.size()]].Caption =
                "&" + nummer + "  " + Auswegtext(Wunsch(), ausweg, sprache) + " (" +
                MitZahlen(seite.Personen == 1 ? EinePerson : AllePersonen, sprache, {seite.Personen}) + ")";
            auswege_.push_back(ausweg);
        }
        break;
    }
    MöglichesZeigen();
    if (!offene_.empty() && auswege_.size() < SoVieleAuswege) ZeitgeberStellen("tmrWege", Atempause);
}

void frmStammbaum::AuswegGehen(std::size_t nummer) {
    const Seitenwunsch weg = auswege_[nummer];
    IndexSetzen("cboHinauf", weg.Wahl.Hinauf);
    IndexSetzen("cboHinunter", weg.Wahl.Hinunter);
    for (const Kreuz &kreuz : Kreuze) WertSetzen(kreuz.Feld, weg.Wahl.*kreuz.Wer);
    WertSetzen("chkKleiner", weg.Blatt.Kleiner);
    SeiteErmitteln();
    FokusGeben("cmdOK"); // the button goes
}

void frmStammbaum::BerichtZeigen() {
    if (veraltet_) SeiteErmitteln();
    vorlage_.Bericht = Berichtstext(seite_.Übernommen.Bericht, vorlage_.Baum.Warnliste, umgebung_.Sprache());
    umgebung_.werkbank.fenster.FormÖffnen(Name::frmStammbaumbericht);
}

void frmStammbaum::Bestätigen() {
    if (veraltet_) SeiteErmitteln();
    if (!Passt() || !umgebung_.dienste.NeuesProjekt(seite_.Seite, vorlage_.Datei)) return;
    vorlage_.Bericht = Berichtstext(seite_.Übernommen.Bericht, vorlage_.Baum.Warnliste, umgebung_.Sprache());
    vorlage_.Übernommen = true;
    Schließen();
}

/// A square, so that the form keeps its size when the sheet turns.
std::pair<double, double> frmStammbaum::BildGröße(std::string_view) const {
    const Stammblatt &b = seite_.Blatt;
    const double blatt = b.Blatt ? std::max(b.Blatt->Breite, b.Blatt->Höhe) : 0;
    const double seite = std::max({1.0, blatt, b.Breite, b.Höhe}); // cm; either way up
    return {seite, seite};
}

double frmStammbaum::BildMaßstab(std::string_view name) const {
    constexpr double Breite = 8; // cm of the screen
    return Breite / BildGröße(name).first;
}

void frmStammbaum::BildZeichnen(std::string_view name, Zeichenfläche &f) {
    const auto [breite, höhe] = BildGröße(name);
    if (!seite_.Blatt.Blatt) return VorschaugrundZeichnen(f, breite, höhe);
    SeitenvorschauZeichnen(f, seite_.Seite, umgebung_.werkbank.ansicht, umgebung_.uhr, breite, höhe);
}

} // namespace kw
