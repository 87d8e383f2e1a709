// Runs a target on the files of a folder, or on single files: what is kept of a fuzzer's work.
#include "Ziel.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

int main(int argc, char **argv) {
    std::vector<std::filesystem::path> dateien;
    for (int i = 1; i < argc; ++i) {
        if (!std::filesystem::is_directory(argv[i])) dateien.push_back(std::filesystem::absolute(argv[i]));
        else
            for (const auto &datei : std::filesystem::directory_iterator(std::filesystem::absolute(argv[i])))
                dateien.push_back(datei.path());
    }
    std::sort(dateien.begin(), dateien.end());
    for (const auto &datei : dateien) {
        std::cerr << datei.filename().string() << std::endl; // a fault ends the program: the last name is its file's
        std::ifstream strom(datei, std::ios::binary);
        const std::vector<char> inhalt{std::istreambuf_iterator<char>(strom), {}};
        const std::vector<std::uint8_t> bytes(inhalt.begin(), inhalt.end());
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    }
    if (dateien.empty()) std::cerr << "no files\n";
    return dateien.empty() ? 2 : 0;
}
