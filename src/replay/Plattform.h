#pragma once

#include "platform/Bedienelemente.h"
#include "platform/Benutzer.h"
#include "platform/Bilder.h"
#include "platform/Drucker.h"
#include "platform/Uhr.h"
#include "rendering/Zeichenflaeche.h"
#include "replay/Formularspiel.h"

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace kw {

/// A user who does what the script says: answers wait in a strict queue.
class DrehbuchBenutzer : public Benutzer {
  public:
    DrehbuchBenutzer(std::ostream &aus, std::string &wirkungen) : aus_(aus), wirkungen_(wirkungen) {}

    struct Vorbereitet {
        enum class Art { Knopf, Datei, Farbwert }; ///< of a box, a file dialog, a colour dialog
        Art Wofür = Art::Knopf;
        bool Abgebrochen = false;
        Antwort Knopf = Antwort::Abbrechen;
        std::string Wert; ///< path or colour
    };
    struct Zeitgeber {
        std::string Name;
        int Fällig; ///< ms since the start
    };

    const Bedienelemente *bedienung = nullptr; ///< of the window; what of a context menu can be picked
    std::deque<Vorbereitet> Antworten;
    std::deque<std::string> Menüwahlen; ///< entries to pick in the next context menus
    std::string Kästen;                 ///< boxes and dialogs since they were last asked for, a line each
    std::string Filter;                 ///< of the last file dialog
    std::string Angesagtes;             ///< what was told since it was last asked for, a line each
    std::vector<Zeitgeber> ZeitgeberListe;
    int Jetzt = 0; ///< ms since the start
    bool SchließenVerlangt = false;
    bool OhneProgramm = false;                         ///< the next other program can't be started
    bool Ablage = false;                               ///< something lies on the desktop's clipboard
    std::optional<Fensterlage> Fenster;                ///< where the window was put
    Schirmfläche Schirm;                               ///< the only screen
    std::deque<Formularskript> Formulare;              ///< what to do in the next forms, each waiting for its name
    std::map<std::string, std::string> Formularwerte_; ///< of the forms that have closed, each as it was last
    /// Plays the user in front of a form.
    std::function<void(Formular &, const std::vector<std::string> &)> FormularSpielen;

    Antwort Fragen(const Nachfrage &nachfrage) override;
    std::optional<std::string> DateiÖffnen(const Dateiwahl &wahl) override { return DateiWählen(wahl); }
    std::optional<std::string> DateiSpeichern(const Dateiwahl &wahl) override { return DateiWählen(wahl); }
    std::optional<std::string> PopupZeigen(std::string_view menü) override;
    void FormZeigen(Formular &form) override;
    std::optional<int> FarbeWählen(int farbe) override;
    void ZeitgeberStarten(std::string_view name, int ms) override;
    void NachErstemBild(std::function<void()> arbeit) override { arbeit(); }
    void AnzeigeAuffrischen() override {}
    void FensterSchließen() override { SchließenVerlangt = true; }
    bool AdresseÖffnen(const std::string &adresse) override { return Starten("address " + adresse); }
    bool ProgrammStarten(const std::string &name) override { return Starten("program " + name); }
    void Ansagen(std::string_view text) override { Angesagtes += "  " + std::string(text) + "\n"; }
    void FokusAufLeinwand() override {}
    std::optional<Fensterlage> Fensterstand() const override { return Fenster; }
    void FokusWeitergeben(bool zurück) override { wirkungen_ += zurück ? "focus back\n" : "focus on\n"; }
    bool AblageBelegt() const override { return Ablage; }
    std::string Desktopordner() const override { return "/home/user/Desktop/"; }
    std::vector<std::string> Schriftarten() const override { return {"Arial", "Courier New", "Times New Roman"}; }

  private:
    /// Whether a user finds entry `name` in `menü` or in a menu below it, and can choose it.
    bool IstWählbar(const std::string &name, std::string_view menü) const;
    bool Starten(const std::string &wirkung) {
        if (std::exchange(OhneProgramm, false)) return false;
        wirkungen_ += wirkung + "\n";
        return true;
    }
    std::optional<std::string> DateiWählen(const Dateiwahl &wahl);
    /// The next answer when `passt` says that it fits the prompt; else the prompt shows as unanswered.
    template <typename Passt> std::optional<Vorbereitet> Nächste(const std::string &titel, Passt passt);

    std::ostream &aus_;
    std::string &wirkungen_;
};

class DrehbuchUhr : public Uhr {
  public:
    Datum Tag{2026, 3, 12};
    Datumsfolge Reihenfolge = Datumsfolge::TagMonatJahr;

    Datum Heute() const override { return Tag; }
    Datumsfolge Folge() const override { return Reihenfolge; }
};

class DrehbuchDrucker : public Drucker {
  public:
    explicit DrehbuchDrucker(std::string &wirkungen) : wirkungen_(wirkungen) {}

    std::vector<std::string> Namen;
    Druckränder Rand{0.4, 0.4, 0.4, 0.4};
    std::string
        Störung; ///< of the next job: "printer" has gone, "job" is refused, "pdf" goes to a file, "memory" is full

    std::optional<std::string> DeviceName() const override {
        return Namen.empty() ? std::nullopt : std::optional(Namen.at(gewählt_));
    }
    Druckervorgabe Vorgabe() const override { return {true, Namen.empty() ? "" : Namen.front(), Rand}; }
    int Orientation() const override { return lage_; }
    std::vector<std::string> DeviceNames() const override { return Namen; }
    bool Wählen(std::string_view deviceName) override;
    void OrientationSetzen(int lage) override { lage_ = lage; }
    Druckbefund Drucken(const Druckauftrag &auftrag) override;

  private:
    std::string &wirkungen_;
    size_t gewählt_ = 0;
    int lage_ = 1;
};

/// Pictures of the canvas, of which only what becomes of them is told. Files are written, without a picture in them.
class DrehbuchBilder : public Bilder {
  public:
    DrehbuchBilder(const Zeichenfläche &canvas, std::string &wirkungen) : canvas_(canvas), wirkungen_(wirkungen) {}

    bool OhneSpeicher = false; ///< for the next picture there is no memory

    Ursache SavePicture(const std::string &datei, const std::optional<Bildausschnitt> &ausschnitt) override;
    Ursache AlsJpeg(const std::string &datei, unsigned char quality) override;
    Ursache AlsPng(const std::string &datei, const Bildausschnitt &ausschnitt) override;
    Ursache SeiteAls(const std::string &datei, const Druckauftrag &seite) override;
    void InZwischenablage(const Bildausschnitt &ausschnitt) override;

  private:
    /// Of that size, in the words of an effect.
    Ursache Ausgeben(const std::string &datei, const std::string &art, const std::string &größe);
    Ursache Schreiben(const std::string &datei, const std::string &art,
                      const std::optional<Bildausschnitt> &ausschnitt);

    const Zeichenfläche &canvas_;
    std::string &wirkungen_;
};

} // namespace kw
