#pragma once

#include "layout/Geruest.h"

#include <cstdint>
#include <span>
#include <vector>

namespace kw {

/// What counts how much while the order of the rows is sought.
struct Gewichte {
    int Kreuzung = 60;
    int Getrennt = 200;    ///< a couple with strangers between them
    int Dazwischen = 30;   ///< and each of these
    int Verkehrt = 25;     ///< a pair of siblings in the wrong order
    int FrauLinks = 1;     ///< a man on the right of a woman
    int Umgestellt = 6;    ///< a pair that the user drew the other way round
    int Verschränkt = 400; ///< two lines that have to be upright, and change sides
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
    std::int64_t Kosten() const { return kosten_; }

  private:
    /// What hangs below a row, packed.
    struct Ding {
        int A, B, Erstes, Ende; ///< partners; children, as positions in `kinder_`
        int Zeile;
        bool Linie, Lang; ///< a line that passes; one that has to be upright is among its children
    };
    /// Lists by row and person, packed: those of one lie from `Anfang[i]` to `Anfang[i + 1]`.
    struct Verzeichnis {
        std::vector<int> Anfang, Inhalt;
        std::span<const int> operator[](std::size_t i) const {
            return {Inhalt.data() + Anfang[i], Inhalt.data() + Anfang[i + 1]};
        }
    };
    struct Spanne {
        int L, R;
    };
    static Verzeichnis Gepackt(const Folgen &listen);
    void DingeSammeln(const Gerüst &gerüst);
    void VorliebenSammeln(const Familiengraph &graph, const Gerüst &gerüst);

    std::size_t Ort(int zeile, int person) const { return Z(zeile * anzahl_ + person); }
    int Platz(int zeile, int person) const { return platz_[Ort(zeile, person)]; }
    std::span<const int> Kinder(const Ding &d) const { return {kinder_.data() + d.Erstes, kinder_.data() + d.Ende}; }
    Spanne SpanneVon(const Ding &d) const;
    int Kreuzungskosten(const Ding &f, int kindF, const Ding &g, int kindG) const;
    int Paarkosten(const Ding &f, const Ding &g) const;
    int Nebeneinander(const Ding &links, const Ding &rechts) const;
    int Ineinander(const Ding &außen, const Ding &innen) const;
    int Obenkosten(int zeile, int links, int rechts) const;
    int Untenkosten(int zeile, int links, int rechts) const;
    int Beinkosten(int zeile, int person) const;
    int Getrenntkosten(int dazwischen) const;
    int Trennung(int zeile, int ende, int anderer, bool andererRechts);
    bool Fremd(const Ding &d, int person) const;
    int Dazwischen(const Ding &d) const;
    std::int64_t Neuberechnet();

    Gewichte gewichte_;
    int anzahl_;
    std::vector<int> ebene_;
    std::vector<Ding> dinge_;
    std::vector<int> kinder_;
    Verzeichnis unten_, oben_;  ///< what hangs on a person in a row; what a person there hangs on
    std::vector<int> vorliebe_; ///< what it costs that the first of two stands left of the second
    std::vector<char> partner_; ///< whether two are partners
    Folgen zeilen_;
    std::vector<int> platz_;
    std::vector<int> dazwischen_; ///< strangers between the partners of what hangs
    std::int64_t kosten_ = 0;
};

} // namespace kw
