#pragma once

#include "platform/Bilder.h"

#include <QImage>

namespace kw {

class LeinwandFläche;

/// The canvas's kept picture as files and on the clipboard, in the resolution that it is kept in.
class QtBilder : public Bilder {
  public:
    explicit QtBilder(const LeinwandFläche &leinwand) : leinwand_(leinwand) {}

    Ursache SavePicture(const std::string &datei, const std::optional<Bildausschnitt> &ausschnitt) override;
    Ursache AlsJpeg(const std::string &datei, unsigned char quality) override;
    Ursache AlsPng(const std::string &datei, const Bildausschnitt &ausschnitt) override;
    Ursache SeiteAls(const std::string &datei, const Druckauftrag &seite) override;
    /// Offered as PNG and as bitmap.
    void InZwischenablage(const Bildausschnitt &ausschnitt) override;

  private:
    QImage Ausschnitt(const Bildausschnitt &ausschnitt) const;

    const LeinwandFläche &leinwand_;
};

} // namespace kw
