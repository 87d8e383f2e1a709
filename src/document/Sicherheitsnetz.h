#pragma once

#include "document/Dokument.h"
#include "document/Nachfluss.h"
#include "document/Netzeintrag.h"

#include <string>
#include <utility>
#include <vector>

namespace kw {

/// The safety net: a folder of the user's own in which every document lies that no project file holds, and every
/// version of a project file that was replaced though it was nobody's here. Several programs share it: each holds a
/// lock on a file beside its own document for as long as it lives, so that a document whose lock is free was left by a
/// program that has ended. What fails in it never harms the document.
///
/// A document's file is named after its program, `<id>.stand`; the user's word makes that `<id>.behalten`. What was
/// replaced is `<id>-<n>.alt`, what is about to be written in place `<id>-<n>-alt.vorort` and `<id>-<n>-neu.vorort`.
class Sicherheitsnetz : public Versionswahrer {
  public:
    /// `ordner`, without a closing "/", is made when it is needed first. Empty for no net: then nothing is kept, and
    /// no version can be set aside.
    explicit Sicherheitsnetz(std::string ordner);
    /// What is kept stays.
    ~Sicherheitsnetz() override;
    Sicherheitsnetz(const Sicherheitsnetz &) = delete;
    Sicherheitsnetz &operator=(const Sicherheitsnetz &) = delete;

    /// The document holds something that no file does. Written in the place of what was kept before, unless that is the
    /// same and still there; the disk has it a moment later. `kopf` tells of the project's file, the rest of it is
    /// filled in.
    Dateibefund Festhalten(const Dokument &dokument, Netzkopf kopf);
    /// The document is in its project file, or the user gave it up: what was kept of it goes.
    void Loslassen(const Dokument &dokument);
    /// Whether the document as it stands is in the net.
    bool Hält(const Dokument &dokument) const { return hält_ && stand_.GleicherStand(dokument) && Liegt(); }
    /// Whether it is as it was let go, so that its file has it.
    bool WieLosgelassen(const Dokument &dokument) const { return !hält_ && stand_.GleicherStand(dokument); }

    /// Every version but a living program's document, the newest first.
    std::vector<Netzkopf> Einträge() const;
    /// Once a start: versions that were replaced more than 30 days ago go, and what dead programs left beside theirs.
    void Aufräumen() const;
    /// Whether there is something to offer that nobody has answered yet. Opens nothing else.
    bool HatUnbeantwortete() const;
    /// Nothing when it has gone, or can't be read.
    std::optional<Netzeintrag> Lesen(const std::string &name) const;
    /// From now on it stays until it is deleted.
    void Behalten(const std::string &name) const;
    void Löschen(const std::string &name) const;
    /// Whoever shows a version for the first time says so before, and again when it is shown: in between it may bring
    /// the program down, and then it has been tried.
    bool IstVersucht(const std::string &name) const;
    void VersuchBeginnen(const std::string &name) const;
    void VersuchEnden(const std::string &name) const;
    /// The document has been opened from that version, which goes as soon as `Festhalten` has written its successor.
    /// One that was replaced stays for its time, or for good when the user has said so.
    void Ablösen(const std::string &name) { abgelöst_ = name; }

    bool Beiseitelegen(const std::string &pfad, std::string_view inhalt) override;
    bool VorOrtBeginnt(const std::string &pfad, std::string_view alt, std::string_view neu) override;
    void VorOrtEndet() override;

  private:
    bool Bereit();
    bool Liegt() const;
    void VorgängerLöschen();
    std::string Ort(const std::string &name) const { return ordner_ + "/" + name; }
    bool Lebt(const std::string &name) const;
    std::vector<std::string> Namen() const;
    bool Aufheben(const std::string &name, const std::string &pfad, std::string_view inhalt);
    std::string NeuerName();

    std::string ordner_;
    std::string kennung_; ///< of this program; empty until it has its lock
    int sperre_ = -1;
    int gezählt_ = 0; ///< versions set aside
    Dokument stand_;  ///< as it was kept, saved or loaded last
    bool hält_ = false;
    std::string abgelöst_;                           ///< goes when its successor is written
    std::pair<std::string, Fingerabdruck> beiseite_; ///< path and content of what was set aside last
    std::string beiseiteName_;                       ///< and its name, should it have been deleted since
    std::string vorOrt_;                             ///< of the file that is being written in place
    Nachfluss nachfluss_;
};

} // namespace kw
