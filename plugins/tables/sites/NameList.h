#pragma once

#include <cstddef>
#include <string>

namespace vlt::driver {

/// Names for the text of a problem, the first ones of many: "a", "b".
class NameList
{
public:
    void add(const std::string &name)
    {
        constexpr std::size_t MaxNamed = 10;
        if (++m_count <= MaxNamed)
            m_text += (m_text.empty() ? "\"" : ", \"") + name + '"';
        else if (m_count == MaxNamed + 1)
            m_text += " \u2026";
    }
    const std::string &text() const { return m_text; }

private:
    std::string m_text;
    std::size_t m_count = 0;
};

} // namespace vlt::driver
