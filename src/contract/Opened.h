#pragma once

#include <string>

namespace vlt::contract {

/// An open file, or the reason why there is none.
///
/// Handle is a smart pointer that owns the file.
template<typename Handle>
struct Opened
{
    Handle file = nullptr; ///< null if it could not be opened
    std::string reason =
        {}; ///< a text of SceneTexts.h or a library's own words; empty if it is open

    explicit operator bool() const { return static_cast<bool>(file); }
    auto *operator->() const { return file.get(); }
};

} // namespace vlt::contract
