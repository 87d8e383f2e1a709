#include "dialogs/frmSymbGlobal.h"

#include "dialogs/Dialogumgebung.h"
#include "document/Einstellungsablage.h"
#include "editing/Werkbank.h"
#include "platform/Uhr.h"
#include "rendering/Beschriftung.h"
#include "rendering/Symbole.h"

#include <array>

namespace kw {

namespace {

constexpr Formularzeile Zeilen[] = {
    {"lblHinweis",
     Art::Beschriftung,
     {"Hier legen Sie fest, wie die Altersangabe für Personen im Genogramm dargestellt werden soll",
      "Here you determine how the age of the persons in the genogram should be displayed"}},
    {"optAltersanzeige(0)", Art::Option, {"Aktuelles Alter", "Current age"}},
    {"optAltersanzeige(1)", Art::Option, {"Geburtsjahr", "Year of birth"}},
    {"optAltersanzeige(2)", Art::Option, {"Aktuelles Alter + Geburtsjahr", "Current age + year of birth"}},
    {"lblVorschau", Art::Beschriftung, {"Vorschau:", "Preview:"}},
    {"picAltersanzeige", Art::Bild},
    {"Label3", Art::Beschriftung, {}, {}, "picAltersanzeige"},
    {"Label4", Art::Beschriftung, {}, {}, "picAltersanzeige"},
    {"cmdOK", Art::Knopf, {"OK", "OK"}},
    {"cmdAbbrechen", Art::Knopf, {"Abbrechen", "Cancel"}},
};
constexpr Formulartafel Tafel{
    "frmSymbGlobal", {"Darstellung der Altersangabe", "Age Display"}, Zeilen, "cmdOK", "cmdAbbrechen"};

// The preview, in centimetres: one symbol of the usual size in the middle.
constexpr double Breite = 2.4;
constexpr double Höhe = 1.8;
constexpr double MitteX = Breite / 2;
constexpr double MitteY = Höhe / 2;

constexpr int BeispielAlter = 24;
constexpr double Jahresschrift = 8; ///< points; what persons are labelled with unless a routine takes another

/// In the order of their numbers.
constexpr std::array<std::string_view, 3> Wahlen{"optAltersanzeige(0)", "optAltersanzeige(1)", "optAltersanzeige(2)"};

/// Shows nothing: texts that are drawn on it become labels at the same place. So the preview's labels stand as the
/// page's do, without a second set of places.
class Beschriftungsfläche : public Zeichenfläche {
  public:
    Beschriftungsfläche(Zeichenfläche &maß, Formular &form) : maß_(maß), form_(form) {}

    void Cls() override {}
    void Line(int, double, double, double, double, Farbe) override {}
    void Circle(int, double, double, double, Farbe) override {}
    void Torte(int, double, double, double, Farbe, double, double) override {}
    void Polygon(std::span<const Bildpunkt>) override {}
    double TextWidth(std::string_view text) override { return Maß().TextWidth(text); }
    double TextHeight() override { return Maß().TextHeight(); }

  protected:
    void TextZeichnen(std::string_view text) override {
        for (const char *name : {"Label3", "Label4"}) {
            Steuerelement &schild = form_[name];
            if (schild.Caption != text) continue;
            schild.Visible = true;
            schild.Left = CurrentX;
            schild.Top = CurrentY;
            schild.Width = TextWidth(text);
            schild.FontName = FontName;
            schild.FontSize = FontSize;
        }
    }

  private:
    Zeichenfläche &Maß() {
        maß_.FontName = FontName;
        maß_.FontSize = FontSize * maß_.Faktor();
        maß_.FontBold = FontBold;
        maß_.FontItalic = FontItalic;
        return maß_;
    }

    Zeichenfläche &maß_;
    Formular &form_;
};

} // namespace

frmSymbGlobal::frmSymbGlobal(Dialogumgebung &umgebung) : Formular(Tafel, umgebung.Sprache()), umgebung_(umgebung) {}

void frmSymbGlobal::Laden() {
    (*this)["Label3"].Caption = "*" + std::to_string(umgebung_.uhr.Heute().Jahr - BeispielAlter);
    (*this)["Label4"].Caption = std::to_string(BeispielAlter);
    BeschriftungStellen();
    const int anzeige = umgebung_.werkbank.ansicht.Altersanzeige;
    if (anzeige >= 0 && anzeige < static_cast<int>(Wahlen.size())) OptionSetzen(Wahlen[static_cast<size_t>(anzeige)]);
}

int frmSymbGlobal::Gewählt() const {
    for (size_t i = 0; i < Wahlen.size(); ++i)
        if (Finden(Wahlen[i])->Value) return static_cast<int>(i);
    return -1;
}

void frmSymbGlobal::Geklickt(std::string_view name) {
    if (name == "cmdOK") cmdOK_Click();
    else if (name == "cmdAbbrechen") Schließen();
    else BeschriftungStellen();
}

void frmSymbGlobal::BeschriftungStellen() {
    Steuerelement &jahr = (*this)["Label3"];
    Steuerelement &alter = (*this)["Label4"];
    jahr.Visible = alter.Visible = false;
    Beschriftungsfläche fläche(umgebung_.werkbank.picVorschau, *this);
    fläche.FontSize = Jahresschrift;
    LebensdatenZeichnen(fläche, Gewählt(), {false, alter.Caption, jahr.Caption, ""}, MitteX, MitteY, GrößeNormal, 1);
}

void frmSymbGlobal::cmdOK_Click() {
    if (const int anzeige = Gewählt(); anzeige >= 0) {
        umgebung_.werkbank.ansicht.Altersanzeige = umgebung_.einstellungen.Altersanzeige = anzeige;
        umgebung_.ablage.Festhalten("agedisplay", std::to_string(anzeige));
    }
    umgebung_.werkbank.fenster.Vorschau();
    Schließen();
}

std::pair<double, double> frmSymbGlobal::BildGröße(std::string_view /*name*/) const { return {Breite, Höhe}; }

void frmSymbGlobal::BildZeichnen(std::string_view /*name*/, Zeichenfläche &f) {
    const int schema = umgebung_.werkbank.ansicht.Farbschema;
    f.FillStyle = Gefüllt;
    f.FillColor = SymbolFüllfarbe(schema);
    f.ForeColor = Schwarz;
    const Symbol::Ort ort{MitteX - GrößeNormal / 2, MitteY - GrößeNormal / 2, MitteX, MitteY, GrößeNormal};
    Symbol(f, ort, BildschirmPixelJeCm * f.Faktor(), 1, schema).Zeichnen(TypMännlich, {}, {});
}

} // namespace kw
