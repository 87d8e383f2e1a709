#pragma once

#include <filesystem>
#include <fstream>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>

#include "replay/Skript.h"

#include <stdlib.h>

namespace kw {

/// A folder for what a target runs the program on, which is the current one meanwhile. It goes with this.
class Bühne {
  public:
    Bühne() {
        std::string muster = (std::filesystem::temp_directory_path() / "kinwright-fuzz-XXXXXX").string();
        if (!::mkdtemp(muster.data())) std::abort();
        ordner_ = muster;
        std::filesystem::current_path(ordner_);
    }
    ~Bühne() {
        std::error_code fehler;
        std::filesystem::current_path("/", fehler);
        std::filesystem::remove_all(ordner_, fehler);
    }
    Bühne(const Bühne &) = delete;
    Bühne &operator=(const Bühne &) = delete;

    std::string Ort(std::string_view name) const { return ordner_ + "/" + std::string(name); }
    void Datei(std::string_view name, std::string_view inhalt) const {
        const auto ort = Ort(name);
        std::filesystem::create_directories(std::filesystem::path(ort).parent_path());
        std::ofstream(ort, std::ios::binary) << inhalt;
    }
    std::string Gelesen(std::string_view name) const {
        std::ostringstream inhalt;
        inhalt << std::ifstream(Ort(name), std::ios::binary).rdbuf();
        return inhalt.str();
    }
    /// Runs the program from a script, whatever it prints.
    void Spielen(const std::string &skript) const {
        std::ostream stumm(nullptr);
        std::istringstream zeilen(skript);
        Wiedergabe(stumm).Ausführen(zeilen);
    }

  private:
    std::string ordner_;
};

} // namespace kw
