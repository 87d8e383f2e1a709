#pragma once

#include "platform/Drucker.h"

#include <functional>
#include <string>

class QWidget;

namespace kw {

/// What the built-in printer asks and tells the user.
struct PdfRückfragen {
    /// The file for a job of that title, existing ones confirmed; empty when the user cancels.
    std::function<std::string(const std::string &titel)> Ziel;
    /// That file couldn't be written.
    std::function<void(const std::string &datei)> Misslungen;
};

/// By dialogs over the window that `fenster` tells at that moment, in German or English.
PdfRückfragen PdfDialoge(const std::function<QWidget *()> &fenster, const std::function<bool()> &istDeutsch);

/// The built-in printer: prints into a PDF file. Its sheet is the document's page, without margins.
class PdfDrucker {
  public:
    explicit PdfDrucker(PdfRückfragen rückfragen) : rückfragen_(std::move(rückfragen)) {}
    /// Nothing is written when the user cancels, and nothing half when it fails.
    void Drucken(const Druckauftrag &auftrag) const;

  private:
    PdfRückfragen rückfragen_;
};

} // namespace kw
