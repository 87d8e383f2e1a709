#include "replay/Plattform.h"

#include "app/Befehle.h"
#include "commands/Menuetafel.h"
#include "document/Dateien.h"
#include "document/Zahlen.h"
#include "replay/Aufzeichnung.h"
#include "replay/Woerter.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

namespace kw {

namespace {

const char *KnopfText(Knöpfe knöpfe) {
    switch (knöpfe) {
    case Knöpfe::JaNein: return "yes no";
    case Knöpfe::JaNeinAbbrechen: return "yes no cancel";
    default: return "ok";
    }
}

bool HatKnopf(Knöpfe knöpfe, Antwort knopf) {
    if (knöpfe == Knöpfe::Ok) return knopf == Antwort::Ok;
    return knopf == Antwort::Ja || knopf == Antwort::Nein ||
           (knopf == Antwort::Abbrechen && knöpfe == Knöpfe::JaNeinAbbrechen);
}

const char *ZeichenText(Zeichen zeichen) {
    switch (zeichen) {
    case Zeichen::Frage: return "question";
    case Zeichen::Warnung: return "warning";
    case Zeichen::Information: return "information";
    case Zeichen::Halt: return "stop";
    default: return "none";
    }
}

} // namespace

template <typename Passt>
std::optional<DrehbuchBenutzer::Vorbereitet> DrehbuchBenutzer::Nächste(const std::string &titel, Passt passt) {
    if (Antworten.empty() || !passt(Antworten.front())) {
        aus_ << "unanswered " << titel << "\n";
        return std::nullopt;
    }
    const Vorbereitet antwort = Antworten.front();
    Antworten.pop_front();
    return antwort;
}

Antwort DrehbuchBenutzer::Fragen(const Nachfrage &n) {
    Kästen += "box " + n.Titel + " | " + EineZeile(n.Text) + " | " + KnopfText(n.Auswahl) + " | " +
              ZeichenText(n.Bild) + "\n";
    const auto antwort = Nächste(n.Titel, [&](const Vorbereitet &v) {
        return v.Wofür == Vorbereitet::Art::Knopf && HatKnopf(n.Auswahl, v.Knopf);
    });
    return antwort ? antwort->Knopf : Antwort::Abbrechen;
}

std::optional<std::string> DrehbuchBenutzer::DateiWählen(const Dateiwahl &w) {
    Kästen += "file " + w.Titel + " | " + w.Vorschlag + " | " + w.Filter + " | " + w.Ordner + "\n";
    Filter = w.AlleFilter();
    const auto antwort = Nächste(w.Titel, [](const Vorbereitet &v) { return v.Wofür == Vorbereitet::Art::Datei; });
    if (!antwort || antwort->Abgebrochen) return std::nullopt;
    return antwort->Wert;
}

bool DrehbuchBenutzer::IstWählbar(const std::string &name, std::string_view menü) const {
    if (!bedienung || !BefehlFinden(name)) return false;
    for (const auto *zeile = MenüzeileFinden(name); zeile; zeile = MenüzeileFinden(zeile->Menü)) {
        const Bedienelement *element = bedienung->Finden(zeile->Name);
        if (!element || !element->Enabled || !element->Visible) return false;
        if (zeile->Menü == menü) return true;
    }
    return false;
}

std::optional<std::string> DrehbuchBenutzer::PopupZeigen(std::string_view menü) {
    if (Menüwahlen.empty()) return std::nullopt;
    const std::string name = Menüwahlen.front();
    Menüwahlen.pop_front();
    if (IstWählbar(name, menü)) return name;
    aus_ << "disabled " << name << "\n";
    return std::nullopt;
}

void DrehbuchBenutzer::ZeitgeberStarten(std::string_view name, int ms) {
    std::erase_if(ZeitgeberListe, [&](const Zeitgeber &z) { return z.Name == name; });
    ZeitgeberListe.push_back({std::string(name), Jetzt + ms});
}

void DrehbuchBenutzer::FormZeigen(Formular &form) {
    const auto skript = std::find_if(Formulare.begin(), Formulare.end(),
                                     [&](const Formularskript &f) { return f.Name == form.Name(); });
    std::vector<std::string> zeilen;
    if (skript == Formulare.end()) aus_ << "unanswered " << form.Caption << "\n";
    else {
        zeilen = std::move(skript->Zeilen);
        Formulare.erase(skript);
    }
    FormularSpielen(form, zeilen);
    for (auto &[name, wert] : Formularwerte(form)) Formularwerte_[name] = wert;
}

std::optional<int> DrehbuchBenutzer::FarbeWählen(int) {
    const auto antwort = Nächste("colour", [](const Vorbereitet &v) { return v.Wofür == Vorbereitet::Art::Farbwert; });
    if (!antwort || antwort->Abgebrochen) return std::nullopt;
    return static_cast<int>(ZahlLesen(antwort->Wert));
}

bool DrehbuchDrucker::Wählen(std::string_view deviceName) {
    const auto i = std::find(Namen.begin(), Namen.end(), deviceName);
    if (i == Namen.end()) return false;
    gewählt_ = static_cast<size_t>(i - Namen.begin());
    return true;
}

Druckbefund DrehbuchDrucker::Drucken(const Druckauftrag &auftrag) {
    using enum Druckbefund::Art;
    const auto name = DeviceName();
    if (!name) return {};
    const std::string störung = std::exchange(Störung, {});
    if (störung == "memory") throw std::bad_alloc();
    if (störung == "printer") return {NichtErreicht, {}, *name};
    if (störung == "job") return {NichtAngenommen, {}, *name};
    Aufzeichnung papier;
    auftrag.Zeichnen(papier);
    for (const auto &zeichnen : auftrag.WeitereBlätter) zeichnen(papier);
    if (störung == "pdf") {
        const auto ziel = auftrag.Zieldatei();
        if (!ziel) return {Aufgegeben};
        if (const Ursache grund = DateiSchreiben(*ziel, "pdf").Grund; grund != Ursache::Keine)
            return {NichtGeschrieben, grund};
    }
    wirkungen_ += "job " + *name + (lage_ == 1 ? " | portrait | " : " | landscape | ") +
                  (auftrag.Farbig ? "colour" : "mono") + "\n";
    return {};
}

Ursache DrehbuchBilder::Schreiben(const std::string &datei, const std::string &art,
                                  const std::optional<Bildausschnitt> &ausschnitt) {
    const auto pixel = [](double twips) { return std::to_string(std::lround(twips / TwipsJePixel)); };
    const std::string größe = pixel(ausschnitt ? ausschnitt->Width : canvas_.Width()) + "x" +
                              pixel(ausschnitt ? ausschnitt->Height : canvas_.Height());
    return Ausgeben(datei, art, größe);
}

Ursache DrehbuchBilder::Ausgeben(const std::string &datei, const std::string &art, const std::string &größe) {
    if (std::exchange(OhneSpeicher, false)) throw std::bad_alloc();
    if (datei != "clipboard")
        if (const Ursache grund = DateiSchreiben(datei, art + " " + größe).Grund; grund != Ursache::Keine) return grund;
    wirkungen_ += "image " + datei + " | " + art + " | " + größe + "\n";
    return Ursache::Keine;
}

Ursache DrehbuchBilder::SavePicture(const std::string &datei, const std::optional<Bildausschnitt> &ausschnitt) {
    return Schreiben(datei, "bmp", ausschnitt);
}

Ursache DrehbuchBilder::AlsJpeg(const std::string &datei, unsigned char quality) {
    return Schreiben(datei, "jpeg " + std::to_string(quality), std::nullopt);
}

Ursache DrehbuchBilder::AlsPng(const std::string &datei, const Bildausschnitt &ausschnitt) {
    return Schreiben(datei, "png", ausschnitt);
}

Ursache DrehbuchBilder::SeiteAls(const std::string &datei, const Druckauftrag &seite) {
    Aufzeichnung papier;
    seite.Zeichnen(papier);
    return Ausgeben(datei, "page " + Kennung(datei),
                    ZahlSchreiben(seite.SeitenBreite) + "x" + ZahlSchreiben(seite.SeitenHöhe) + " cm | " + seite.Titel);
}

void DrehbuchBilder::InZwischenablage(const Bildausschnitt &ausschnitt) { Schreiben("clipboard", "bmp", ausschnitt); }

} // namespace kw
