#pragma once

#include "platform/Befehlsnamen.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace kw {

class Benutzer;
struct Ansicht;
struct Stammbaumvorlage;

/// A genealogy program's file that becomes a new project: the file, the form that asks whom to take, the report.
/// Owned by the main window.
class Stammbaumimport {
  public:
    /// `einstellungsDatei` knows the folder of the last project; `formÖffnen` shows a form.
    Stammbaumimport(Benutzer &benutzer, const Ansicht &ansicht, const std::string &einstellungsDatei,
                    std::function<void(Formularname)> formÖffnen);
    ~Stammbaumimport();
    Stammbaumimport(const Stammbaumimport &) = delete;
    Stammbaumimport &operator=(const Stammbaumimport &) = delete;

    /// Whether a file's name ends as those of family trees do.
    static bool IstStammbaum(std::string_view datei);

    /// The menu command: asks for the file.
    void mnuStammbaum();
    /// The form for that file, then the report, when there is something to tell. A box says why it can't be read.
    void Öffnen(const std::string &datei);

    /// The family tree that the forms are open for; nullptr otherwise.
    Stammbaumvorlage *Vorlage() const { return vorlage_.get(); }

  private:
    void Warnen(std::string text);

    Benutzer &benutzer_;
    const Ansicht &ansicht_;
    const std::string &einstellungsDatei_;
    std::function<void(Formularname)> formÖffnen_;
    std::unique_ptr<Stammbaumvorlage> vorlage_;
};

} // namespace kw
