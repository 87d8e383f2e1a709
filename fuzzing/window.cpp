// What a user does at the window: two bytes that count the steps' bytes, the steps, the project that is open.
#include "Buehne.h"
#include "Umlauf.h"

#include "app/Befehle.h"
#include "app/frmMain.h"
#include "commands/Menuetafel.h"
#include "document/Felder.h"
#include "document/Sicherheitsnetz.h"
#include "document/Zahlen.h"
#include "document/saetze/Person.h"
#include "editing/Werkzeuge.h"
#include "replay/Programm.h"

#include <algorithm>
#include <deque>
#include <utility>
#include <vector>

namespace kw {

namespace {

struct Schritt {
    unsigned Was, Wahl, X, Y;
};
constexpr std::size_t Schrittlänge = 4;
constexpr std::size_t MehrAlsGenug = 200; ///< steps of one input

struct Ort {
    double X, Y;
};

/// A place of the page's raster, or one near a pair of numbers in a record, where a thing is likely to be.
Ort OrtVon(const Dokument &dokument, const Schritt &s) {
    const auto &speicher = dokument.*SpeicherTabelle[s.Wahl % SpeicherTabelle.size()].Liste;
    if (s.Wahl >= 0xC0 || speicher.Leer()) return {s.X / 8.0, s.Y / 12.0};
    std::vector<double> zahlen;
    const auto &satz = speicher.Satz(static_cast<int>(s.X) % speicher.Anzahl());
    for (std::string_view rest = satz; !rest.empty() && zahlen.size() < 16;) {
        auto feld = Abgetrennt(rest, '_');
        zahlen.push_back(ZahlLesen(Abgetrennt(feld, '^')));
        if (!feld.empty()) zahlen.push_back(ZahlLesen(feld));
    }
    zahlen.insert(zahlen.end(), {0, 0});
    const std::size_t i = (s.Y & 0x0FU) % (zahlen.size() - 1);
    const auto naheBei = [](double cm, unsigned zehntel) { return std::clamp(cm, -100.0, 100.0) + zehntel * 0.1; };
    return {naheBei(zahlen[i], s.Y >> 4U & 3U), naheBei(zahlen[i + 1], s.Y >> 6U)};
}

std::string_view Befehlsname(unsigned wahl, unsigned mehr) {
    static const auto Namen = [] {
        std::vector<std::string_view> namen;
        for (const auto &zeile : Menütafel())
            if (BefehlFinden(zeile.Name)) namen.push_back(zeile.Name);
        return namen;
    }();
    return Namen[(wahl + 256 * (mehr & 1U)) % Namen.size()];
}

constexpr std::string_view Texte[] = {"",  "Anna", "_",         "#",      "a_b", "\\n",        "¶",   "\"x\"",
                                      "Ş", "1976", "31.2.2001", "999999", "-3",  "12.03.1975", "45$", "1e9"};
constexpr Antwort Antworten[] = {Antwort::Ja, Antwort::Nein, Antwort::Abbrechen, Antwort::Ok};

/// Plays the user in front of a form: does to some of its controls what the next of the steps that are set out says.
class Formularspieler : public Formularwirt {
  public:
    std::deque<Schritt> Vorgemerkt;

    void Spielen(Formular &form) {
        form.Wirt = this;
        zeitgeber_.clear();
        form.Laden();
        for (int i = 0; i < 3 && form.Offen() && !Vorgemerkt.empty(); ++i) {
            const Schritt schritt = Vorgemerkt.front();
            Vorgemerkt.pop_front(); // before: a form that this one opens goes on with the next
            Tun(form, schritt);
        }
        if (form.Offen()) form.Schließkreuz();
        form.Entladen();
    }
    void ZeitgeberStellen(std::string_view name, int ms) override { zeitgeber_ = ms > 0 ? name : ""; }
    void FokusGeben(std::string_view /*steuerelement*/) override {}

  private:
    void Tun(Formular &form, const Schritt &s) {
        if (const auto name = std::exchange(zeitgeber_, ""); !name.empty()) form.Zeitgeber(name);
        const auto &namen = form.Reihenfolge();
        const auto &wer = namen[s.X % namen.size()];
        const auto &element = form[wer];
        if (!element.Enabled || !element.Visible) return;
        const bool text =
            element.Kind == Art::Textfeld || element.Kind == Art::Textblock || element.Kind == Art::Kombination;
        form.FokusErhalten(wer);
        form.Wählen(wer, static_cast<int>(s.Y % std::max<std::size_t>(element.Einträge.size(), 1)));
        if (text && s.Wahl % 4 == 0) form.Tippen(wer, s.Y % 2 == 0 ? "\b" : "7");
        else if (text) form.TextEingeben(wer, Texte[s.Y % std::size(Texte)]);
        form.Verlassen(wer);
        form.Drücken(wer);
        if (s.Wahl % 2 == 1 && form.Offen() && !form.Vorgabeknopf.empty()) form.Drücken(form.Vorgabeknopf);
    }

    std::string zeitgeber_;
};

void AntwortVorbereiten(Programm &p, const Schritt &s) {
    using Vorbereitet = DrehbuchBenutzer::Vorbereitet;
    Vorbereitet antwort;
    antwort.Wofür = static_cast<Vorbereitet::Art>(s.Wahl % 3);
    antwort.Abgebrochen = s.X % 4 == 0;
    antwort.Knopf = Antworten[s.X % std::size(Antworten)];
    antwort.Wert = antwort.Wofür == Vorbereitet::Art::Farbwert ? "255" : s.Y % 2 ? "a.kwp" : "b.kwp";
    p.benutzer.Antworten.push_back(antwort);
}

void Klicken(Programm &p, int taste, Ort ort) {
    p.haupt->MouseMove(TasteKeine, ort.X, ort.Y);
    p.haupt->MouseDown(taste, ort.X, ort.Y);
    p.haupt->MouseUp(taste, ort.X, ort.Y);
}

void Ziehen(Programm &p, Ort von, const Schritt &s) {
    const Ort nach{von.X + (s.X % 16 - 8.0) / 2, von.Y + (s.X / 16 - 8.0) / 2};
    p.haupt->MouseDown(TasteLinks, von.X, von.Y);
    p.haupt->MouseMove(TasteLinks, (von.X + nach.X) / 2, nach.Y);
    p.haupt->MouseMove(TasteLinks, nach.X, nach.Y);
    p.haupt->MouseUp(TasteLinks, nach.X, nach.Y);
}

/// The window goes behind the event that wants it, unless somebody keeps it.
bool IstGeschlossen(Programm &p) { return std::exchange(p.benutzer.SchließenVerlangt, false) && p.haupt->Schließen(); }

/// A gesture in progress may be ahead of the net.
bool IstGehalten(const Einblick &innen) {
    return !innen.projekt.Geändert || innen.lage.Gedrückt || innen.netz.Hält(innen.dokument) ||
           innen.netz.WieLosgelassen(innen.dokument); // a form that was confirmed as it stood
}

void Gehen(Wiedergabe &lauf, Formularspieler &spieler, const Schritt &s) {
    Programm &p = lauf.Läuft();
    const Ort ort = OrtVon(p.innen.dokument, s);
    const auto drücken = [&](int taste) { p.haupt->MouseDown(p.Taste = taste, ort.X, ort.Y); };
    switch (s.Was % 16) {
    case 0: return Klicken(p, TasteLinks, ort);
    case 1: return Klicken(p, TasteRechts, ort);
    case 2: return Ziehen(p, ort, s);
    case 3: return drücken(TasteLinks);
    case 4: return drücken(TasteRechts);
    case 5: return p.haupt->MouseMove(p.Taste, ort.X, ort.Y);
    case 6: return p.haupt->MouseUp(std::exchange(p.Taste, TasteKeine), ort.X, ort.Y);
    case 7: return p.haupt->DblClick(ort.X, ort.Y);
    case 8: p.haupt->BefehlAusführen(WerkzeugName(1 + static_cast<int>(s.Wahl) % WerkzeugAnzahl)); return;
    case 9:
    case 10: p.haupt->BefehlAusführen(Befehlsname(s.Wahl, s.X)); return;
    case 11: p.benutzer.Menüwahlen.emplace_back(Befehlsname(s.Wahl, s.X)); return;
    case 12: return AntwortVorbereiten(p, s);
    case 13: spieler.Vorgemerkt.push_back(s); return;
    case 14: return lauf.Zeile("wait 200");
    default: p.innen.bereich.Mausrad(s.Wahl % 2 == 0);
    }
}

/// A person has a field more until it is touched again, and a damaged place then becomes one of the raster.
Dokument OhneMarken(Dokument dokument) {
    auto &personen = dokument.cboPersonen;
    for (int i = 0; i < personen.Anzahl(); ++i) {
        PersonBau person(personen.Satz(i));
        const double x = Gerundet(person.Stand().PosX(), 1), y = Gerundet(person.Stand().PosY(), 1);
        personen.Ersetzen(i, person.Ort(x, y).Text());
    }
    return dokument;
}

/// Back as far as it goes, and forth again: the page is the same.
void HinUndHer(Programm &p) {
    p.haupt->MouseUp(p.Taste, 0, 0); // a gesture in progress ends
    const Dokument vorher = OhneMarken(p.innen.dokument);
    int schritte = 0;
    while (p.haupt->BefehlAusführen("mnuRückgängig")) ++schritte;
    for (; schritte > 0; --schritte) Halten(p.haupt->BefehlAusführen("mnuWiederholen"), "what was undone can be done");
    const Dokument danach = OhneMarken(p.innen.dokument);
    Halten(danach.GleicheSätze(vorher), "undone and done again it is the same");
}

} // namespace

} // namespace kw

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t anzahl) {
    using namespace kw;
    if (anzahl < 2) return 0;
    const auto schritte =
        std::min(anzahl - 2, std::min(bytes[0] + std::size_t{256} * bytes[1], Schrittlänge * MehrAlsGenug));
    static const Bühne Bühne;
    std::filesystem::remove_all(Bühne.Ort("a.kwp"));
    std::filesystem::remove_all(Bühne.Ort("b.kwp"));
    Bühne.Datei("a.kwp", AlsText(bytes, anzahl).substr(2 + schritte));
    std::ostream stumm(nullptr);
    Wiedergabe lauf(stumm);
    lauf.Zeile("start documents=. printers=Laser");
    Formularspieler spieler;
    lauf.Läuft().benutzer.FormularSpielen = [&](Formular &form, const auto &) { spieler.Spielen(form); };
    lauf.Zeile("load a.kwp");
    for (std::size_t i = 2; i + Schrittlänge <= 2 + schritte; i += Schrittlänge) {
        Gehen(lauf, spieler, {bytes[i], bytes[i + 1], bytes[i + 2], bytes[i + 3]});
        if (IstGeschlossen(lauf.Läuft())) return 0;
        Halten(IstGehalten(lauf.Läuft().innen), "what no file has is in the safety net");
    }
    lauf.Zeile("draw");
    lauf.Zeile("draw printing");
    HinUndHer(lauf.Läuft());
    Umlauf(lauf.Läuft().innen.dokument);
    return 0;
}
