#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

namespace kw {

/// Keeps texts in few large pieces. What it gave out stays where it is, also when the store itself is moved.
class Textlager {
  public:
    std::string_view Aufnehmen(std::string_view text) {
        if (text.empty()) return {};
        if (frei_ < text.size()) {
            frei_ = std::max(Stück, text.size());
            stücke_.push_back(std::make_unique<char[]>(frei_)); // NOLINT(modernize-avoid-c-arrays)
            nächstes_ = stücke_.back().get();
        }
        char *const ort = nächstes_;
        std::memcpy(ort, text.data(), text.size());
        nächstes_ += text.size();
        frei_ -= text.size();
        return {ort, text.size()};
    }

  private:
    static constexpr std::size_t Stück = std::size_t{1} << 16;
    std::vector<std::unique_ptr<char[]>> stücke_; // NOLINT(modernize-avoid-c-arrays)
    char *nächstes_ = nullptr;
    std::size_t frei_ = 0;
};

} // namespace kw
