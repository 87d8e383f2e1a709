#pragma once

#include "document/Zahlen.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <string>
#include <type_traits>

namespace kw {

/// One variable under its own name: its text, and how to set it from one (none for what is derived).
struct Variable {
    std::function<std::string()> Lesen;
    std::function<void(const std::string &)> Setzen;
};

/// As scripts print it: booleans as 0 and 1, numbers as records write them, texts bare.
template <typename T> std::string AlsText(const T &wert) {
    if constexpr (std::is_convertible_v<T, std::string>) return wert;
    else if constexpr (std::is_floating_point_v<T>) return ZahlSchreiben(wert);
    else return std::to_string(static_cast<long>(wert));
}

template <typename T> T AusText(const std::string &text) {
    if constexpr (std::is_convertible_v<T, std::string>) return text;
    else if constexpr (std::is_same_v<T, bool>) return ZahlLesen(text) != 0;
    else if constexpr (std::is_floating_point_v<T>) return ZahlLesen(text);
    else if constexpr (std::is_enum_v<T>) return static_cast<T>(AusText<std::underlying_type_t<T>>(text));
    else
        return static_cast<T>(std::clamp(ZahlLesen(text), static_cast<double>(std::numeric_limits<T>::min()),
                                         static_cast<double>(std::numeric_limits<T>::max())));
}

/// A variable of the program, which must outlive it.
template <typename T> Variable Von(T &wert) {
    return {[&wert] { return AlsText(wert); }, [&wert](const std::string &text) { wert = AusText<T>(text); }};
}

template <typename Lesen> Variable Abgeleitet(Lesen lesen) {
    return {[lesen] { return AlsText(lesen()); }, nullptr};
}

} // namespace kw
