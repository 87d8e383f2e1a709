#pragma once

#include "layout/Familienlage.h"
#include "layout/Geruest.h"

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace kw {

/// What counts how much while the order of the rows is sought.
struct Gewichte {
    int Kreuzung = 60;
    int Verwechselt = 2;       ///< how many times that of child lines where two bars touch at a common partner
    int AnFremdem = 120;       ///< a child that is drawn as if it hung on another couple's bar
    int Getrennt = 200;        ///< a couple with strangers between them
    int NochEinGetrennt = 250; ///< each one more
    int Dazwischen = 30;       ///< and each of these
    int Verkehrt = 40;         ///< a pair of siblings in the wrong order, as long as they are few
    int ZuVerkehrt = 200;      ///< each one more
    int Wenige = 50;           ///< how many pairs are few: thousandths of all
    int FrauLinks = 3;         ///< a man on the right of a woman
    int Umgestellt = 2;        ///< a pair that the user drew the other way round
    int Weite = 2;             ///< half a place that a child stands beside the middle of its parents
    int Verschränkt = 9000;    ///< two lines that have to be upright, and change sides
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
    /// A state to which exchanges can be taken back, until `Behalten` or `Setzen`.
    struct Marke {
        std::size_t Änderungen;
        std::int64_t Kosten;
    };
    Marke Merken() const { return {geändert_.Liste.size(), kosten_}; }
    void Zurück(const Marke &marke);
    void Behalten() { geändert_.Liste.clear(); }
    std::int64_t Kosten() const { return kosten_; }
    /// What a finished drawing of these rows costs, by the same weights: its lines cross where they are drawn.
    std::int64_t Wert(const Lagebefund &befund) const;

    /// A couple with strangers between them, in that row.
    struct Paar {
        int Zeile, A, B;
    };
    std::vector<Paar> Getrennte() const;
    /// From now on each couple apart but one costs that much, and each pair of siblings in the wrong order that is too
    /// many.
    void StrengerSein(int nochEinGetrennt, int zuVerkehrt);
    bool ZuVielesFalsch() const { return getrennt_ > 1 || verkehrt_ > wissen_->Wenige; }
    const Gewichte &Wiegt() const { return gewichte_; }
    bool SindPartner(int a, int b) const { return wissen_->Partner[Ort(a, b)] != 0; }
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
        std::size_t Paare = 0;    ///< where what it costs with the others of its row is kept
        std::size_t Nummer = 0;   ///< which of its row it is
    };
    /// Lists by row and person, packed: those of one lie from `Anfang[i]` to `Anfang[i + 1]`.
    template <typename T> struct Verzeichnis {
        std::vector<int> Anfang;
        std::vector<T> Inhalt;
        explicit Verzeichnis(const std::vector<std::vector<T>> &listen = {}) : Anfang{0} {
            for (const std::vector<T> &liste : listen) {
                Inhalt.insert(Inhalt.end(), liste.begin(), liste.end());
                Anfang.push_back(static_cast<int>(Inhalt.size()));
            }
        }
        std::span<const T> operator[](std::size_t i) const {
            return {Inhalt.data() + Anfang[i], Inhalt.data() + Anfang[i + 1]};
        }
    };
    /// By how much it is dearer that one stands left of another than the other way round; and in how many more families
    /// that is the wrong order. What is so either way doesn't count.
    struct Vorzug {
        int Kosten = 0, Verkehrt = 0;
    };
    /// A thing between two, seen from one of them.
    struct Band {
        int Ding;
        int Anderer; ///< where the other's place is kept
    };
    /// What never changes, and copies share.
    struct Wissen {
        int Anzahl = 0;
        std::vector<int> Ebene;
        std::vector<Ding> Dinge;
        std::vector<int> Kinder, Kinderorte; ///< and where their places are kept
        Verzeichnis<int> Unten, Oben;        ///< what hangs on a person in a row; what a person there hangs on
        Verzeichnis<Band> Bande;             ///< of the first those with two ends
        std::vector<Vorzug> Vorzüge;         ///< of two, as they stand from left to right
        int Wenige = 0;                      ///< pairs of siblings in the wrong order that are few
        std::vector<char> Partner;           ///< whether two are partners
        std::vector<char> Fremd;             ///< whether a person may not stand between what hangs there
        std::size_t Paare = 0;               ///< of things of one row
    };
    struct Spanne {
        int L, R;
    };
    static void DingeSammeln(const Gerüst &gerüst, Wissen &w);
    static void VorliebenSammeln(const Familiengraph &graph, const Gerüst &gerüst, const Gewichte &g, Wissen &w);

    std::size_t Ort(int zeile, int person) const { return Z(zeile * wissen_->Anzahl + person); }
    int Platz(int zeile, int person) const { return platz_[Ort(zeile, person)]; }
    const Ding &Das(int i) const { return wissen_->Dinge[Z(i)]; }
    std::span<const int> Kinder(const Ding &d) const {
        return {wissen_->Kinder.data() + d.Erstes, wissen_->Kinder.data() + d.Ende};
    }
    /// What the child lines of two cost when the first hangs left of the second.
    int &Verdreht(int links, int rechts) { return verdreht_[Das(links).Paare + Das(rechts).Nummer]; }
    int Verdreht(int links, int rechts) const { return verdreht_[Das(links).Paare + Das(rechts).Nummer]; }

    Spanne SpanneVon(const Ding &d) const;
    int Linienkosten(const Ding &f, int kindF, const Ding &g, int kindG) const;
    int Paarkosten(int i, int j) const { return Paarkosten(i, j, SpanneVon(Das(i)), SpanneVon(Das(j))); }
    int Paarkosten(int i, int j, const Spanne &a, const Spanne &b) const;
    int Verwechselbar(const Ding &links, const Spanne &a, const Ding &rechts, const Spanne &b) const;
    int Ineinander(const Ding &außen, const Ding &innen) const;
    int Unten(int zeile, int links, int rechts) const;
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
    std::int64_t Vorlieben() const;
    std::int64_t Neuberechnet();
    int Einzelkosten(int ding);

    void Ändern(int &zahl, int neu) {
        geändert_.Liste.push_back({&zahl, zahl});
        zahl = neu;
    }

    Gewichte gewichte_;
    std::shared_ptr<const Wissen> wissen_;
    Folgen zeilen_;
    std::vector<int> platz_;      ///< by row and person
    std::vector<int> verdreht_;   ///< by two things of a row
    std::vector<int> dazwischen_; ///< strangers between the partners, by thing
    int getrennt_ = 0;            ///< how many couples these stand between
    int verkehrt_ = 0;            ///< pairs of siblings in the wrong order
    std::int64_t kosten_ = 0;
    std::int64_t arbeit_ = 0;
    /// Numbers of those above that were changed, and what they were. They are no copy's: each begins without any.
    struct Änderungen {
        struct Änderung {
            int *Zahl;
            int War;
        };
        std::vector<Änderung> Liste;
        Änderungen() = default;
        Änderungen(const Änderungen &) {}
        Änderungen &operator=(const Änderungen &) {
            Liste.clear();
            return *this;
        }
        ~Änderungen() = default;
    };
    Änderungen geändert_; ///< since the last that was kept
};

} // namespace kw
