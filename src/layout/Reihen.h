#pragma once

#include "layout/Geruest.h"

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace kw {

/// What counts how much while the order of the rows is sought.
struct Gewichte {
    int Kreuzung = 60;
    int Getrennt = 200;        ///< a couple with strangers between them
    int NochEinGetrennt = 250; ///< each one more
    int Dazwischen = 30;       ///< and each of these
    int Verkehrt = 40;         ///< a pair of siblings in the wrong order, as long as they are few
    int ZuVerkehrt = 90;       ///< each one more
    int Wenige = 50;           ///< how many pairs are few: thousandths of all
    int FrauLinks = 3;         ///< a man on the right of a woman
    int Umgestellt = 2;        ///< a pair that the user drew the other way round
    int Weite = 1;             ///< half a place that a child stands beside the middle of its parents
    int Verschränkt = 2000;    ///< two lines that have to be upright, and change sides
};

/// The order of everybody in each row, and what it costs. Everything is built of one change: two neighbours change
/// places; what that costs is known by looking at the two alone.
class Reihen {
  public:
    using Folgen = std::vector<std::vector<int>>;

    Reihen(const Familiengraph &graph, const Gerüst &gerüst, const Gewichte &gewichte);

    /// Everybody's order at once; `zeilen` must hold who belongs to each row.
    void Setzen(const Folgen &zeilen);
    const Folgen &Zeilen() const { return zeilen_; }
    const std::vector<int> &Zeile(int zeile) const { return zeilen_[Z(zeile)]; }
    int Anzahl() const { return static_cast<int>(zeilen_.size()); }

    /// Exchanges those at `platz` and `platz` + 1; returns by how much that is dearer.
    int Tauschen(int zeile, int platz);
    /// The way back: exchanges without asking what it costs, which `KostenGelten` then tells.
    void Zurücktauschen(int zeile, int platz);
    void KostenGelten(std::int64_t kosten) { kosten_ = kosten; }
    std::int64_t Kosten() const { return kosten_; }
    /// How often has been exchanged: what work is measured by, since clocks differ.
    std::int64_t Arbeit() const { return arbeit_; }

  private:
    enum class Art { Familie, Linie, Zwillinge };
    /// What hangs below a row, packed; twins too, who hang on nothing but each other.
    struct Ding {
        Art Was = Art::Familie;
        bool Lang = false; ///< whether a line that has to be upright is among its children
        int Zeile = 0;
        int A = 0, B = 0;         ///< the partners
        int OrtA = 0, OrtB = 0;   ///< where their places are kept
        int Versatz = 0;          ///< by how many places the row is longer than the next one
        int Erstes = 0, Ende = 0; ///< the children, as positions in `Kinder`
    };
    /// Lists by row and person, packed: those of one lie from `Anfang[i]` to `Anfang[i + 1]`.
    struct Verzeichnis {
        std::vector<int> Anfang, Inhalt;
        std::span<const int> operator[](std::size_t i) const {
            return {Inhalt.data() + Anfang[i], Inhalt.data() + Anfang[i + 1]};
        }
    };
    /// What never changes, and copies share.
    struct Wissen {
        int Anzahl = 0;
        std::vector<int> Ebene;
        std::vector<Ding> Dinge;
        std::vector<int> Kinder, Kinderorte; ///< and where their places are kept
        Verzeichnis Unten, Oben;             ///< what hangs on a person in a row; what a person there hangs on
        std::vector<int> Verkehrt;           ///< in how many families the first of two is the younger one
        int Wenige = 0;                      ///< pairs of siblings in the wrong order that are few
        std::vector<int> Vorliebe;           ///< what it costs that the first of two stands left of the second
        std::vector<char> Partner;           ///< whether two are partners
        std::vector<char> Fremd;             ///< whether a person may not stand between what hangs there
    };
    struct Spanne {
        int L, R;
    };
    static Verzeichnis Gepackt(const Folgen &listen);
    static void DingeSammeln(const Gerüst &gerüst, Wissen &w);
    static void VorliebenSammeln(const Familiengraph &graph, const Gerüst &gerüst, const Gewichte &g, Wissen &w);

    std::size_t Ort(int zeile, int person) const { return Z(zeile * wissen_->Anzahl + person); }
    int Platz(int zeile, int person) const { return platz_[Ort(zeile, person)]; }
    const Ding &Das(int i) const { return wissen_->Dinge[Z(i)]; }
    std::span<const int> Kinder(const Ding &d) const {
        return {wissen_->Kinder.data() + d.Erstes, wissen_->Kinder.data() + d.Ende};
    }
    /// What the child lines of two cost when the first hangs left of the second.
    int &Verdreht(int links, int rechts) { return verdreht_[Z(links) * wissen_->Dinge.size() + Z(rechts)]; }
    int Verdreht(int links, int rechts) const { return verdreht_[Z(links) * wissen_->Dinge.size() + Z(rechts)]; }

    Spanne SpanneVon(const Ding &d) const;
    int Linienkosten(const Ding &f, int kindF, const Ding &g, int kindG) const;
    int Paarkosten(int i, int j) const;
    int Ineinander(const Ding &außen, const Ding &innen) const;
    int Untenkosten(int zeile, int links, int rechts) const;
    int Obenkosten(int zeile, int links, int rechts) const;
    int Nebeneinander(int zeile, int links, int rechts, bool &ineinander) const;
    void Verdrehen(int zeile, int links, int rechts);
    int Umstellen(int zeile, int links, int rechts);
    int Beinkosten(int zeile, int person) const;
    int Weite(const Ding &d, int kindort) const;
    int Weiten(std::size_t ort, int ohne, int weite) const;
    int Getrenntkosten(int getrennt) const;
    int Verkehrtkosten(int verkehrt) const;
    int DazwischenGelten(int ding, int anzahl);
    int Trennung(int zeile, int ende, int anderer, bool andererRechts);
    int Dazwischen(int ding) const;
    std::int64_t Neuberechnet();
    int Einzelkosten(int ding);

    Gewichte gewichte_;
    std::shared_ptr<const Wissen> wissen_;
    Folgen zeilen_;
    std::vector<int> platz_;      ///< by row and person
    std::vector<int> verdreht_;   ///< by two things
    std::vector<int> dazwischen_; ///< strangers between the partners, by thing
    int getrennt_ = 0;            ///< how many couples these stand between
    int verkehrt_ = 0;            ///< pairs of siblings in the wrong order
    std::int64_t kosten_ = 0;
    std::int64_t arbeit_ = 0;
};

} // namespace kw
