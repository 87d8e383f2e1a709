#pragma once

#include <string>
#include <string_view>

// What names of files say, and what can be asked of a place without opening it.
namespace kw {

/// Everything up to and including the last "/"; empty when there is none.
std::string Pfad(std::string_view datei);
/// The same as a folder that can be opened: "./" when there is none.
std::string Ordner(std::string_view datei);
/// Everything behind the last "/".
std::string DateiName(std::string_view pfad);
/// Everything before the last "." of a file name; the whole text when there is none.
std::string NameOhneKennung(std::string_view name);
/// Everything behind the last "." of a file name; empty when there is none.
std::string Kennung(std::string_view name);
/// `datei` with the ending `kennung` unless it has that, in letters of any case; with `alle` unless it has any: a date
/// or a number behind the last point ("Berg 3.11.2026") is none.
std::string MitKennung(const std::string &datei, std::string_view kennung, bool alle);
/// Whether `datei` has that ending, in letters of any case.
bool HatKennung(const std::string &datei, std::string_view kennung);
/// Whether it is named as a project.
inline bool IstProjektname(const std::string &datei) { return HatKennung(datei, "kwp"); }
bool DateiVorhanden(const std::string &pfad);
/// Whether `ordner` is a folder that can be written.
bool IstBeschreibbar(const std::string &ordner);
/// The same, but for the system's own folders, where no program keeps its files whoever runs it.
bool IstFürDateien(const std::string &ordner);
/// Any text as the name of a file, without folders: what a name can't hold here or elsewhere stands as "%2F", so that
/// different texts give different names.
std::string AlsDateiname(std::string_view text);

} // namespace kw
