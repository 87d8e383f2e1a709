#include "document/Dateinamen.h"

#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>

namespace kw {

std::string Pfad(std::string_view datei) { return std::string(datei.substr(0, datei.rfind('/') + 1)); }

std::string Ordner(std::string_view datei) {
    auto ordner = Pfad(datei);
    return ordner.empty() ? "./" : ordner;
}

std::string DateiName(std::string_view pfad) { return std::string(pfad.substr(pfad.rfind('/') + 1)); }

std::string NameOhneKennung(std::string_view name) { return std::string(name.substr(0, name.rfind('.'))); }

std::string Kennung(std::string_view name) {
    const auto punkt = name.rfind('.');
    return punkt == std::string_view::npos ? std::string{} : std::string(name.substr(punkt + 1));
}

std::string MitKennung(const std::string &datei, std::string_view kennung, bool alle) {
    constexpr size_t Längste = 4; // "jpeg"
    const std::string eigene = Kennung(DateiName(datei));
    const auto klein = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    const bool gleich = std::equal(eigene.begin(), eigene.end(), kennung.begin(), kennung.end(),
                                   [&](char a, char b) { return klein(a) == klein(b); });
    const auto istBuchstabe = [&](char c) { return klein(c) >= 'a' && klein(c) <= 'z'; };
    const bool irgendeine = eigene.size() <= Längste && std::any_of(eigene.begin(), eigene.end(), istBuchstabe) &&
                            std::none_of(eigene.begin(), eigene.end(), [](char c) { return c == ' '; });
    return gleich || (alle && irgendeine) ? datei : datei + "." + std::string(kennung);
}

bool HatKennung(const std::string &datei, std::string_view kennung) {
    return MitKennung(datei, kennung, false) == datei;
}

bool DateiVorhanden(const std::string &pfad) {
    struct stat angaben {};
    return ::stat(pfad.c_str(), &angaben) == 0 && !S_ISDIR(angaben.st_mode);
}

bool IstBeschreibbar(const std::string &ordner) {
    struct stat angaben {};
    return ::stat(ordner.c_str(), &angaben) == 0 && S_ISDIR(angaben.st_mode) &&
           ::access(ordner.c_str(), W_OK | X_OK) == 0;
}

bool IstFürDateien(const std::string &ordner) {
    constexpr std::string_view System[] = {"/usr", "/bin", "/sbin", "/lib", "/opt", "/snap", "/app", "/nix"};
    for (const auto system : System)
        if (ordner == system || ordner.starts_with(std::string(system) + "/")) return false;
    return IstBeschreibbar(ordner);
}

std::string AlsDateiname(std::string_view text) {
    constexpr std::string_view Unmöglich = "%/\\:*?\"<>|";
    constexpr std::string_view Ziffern = "0123456789ABCDEF";
    std::string name;
    for (const char zeichen : text) {
        const auto c = static_cast<unsigned char>(zeichen);
        if (c >= ' ' && Unmöglich.find(zeichen) == std::string_view::npos) name += zeichen;
        else name.append({'%', Ziffern[c / Ziffern.size()], Ziffern[c % Ziffern.size()]});
    }
    return name;
}

} // namespace kw
