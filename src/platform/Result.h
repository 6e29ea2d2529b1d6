#pragma once

#include "platform/Problem.h"

#include <QString>

#include <optional>
#include <stdexcept>
#include <utility>
#include <variant>

namespace vlt {

/// Why an operation gave no value.
///
/// `text` is in English where `key` is the message key of its translation, else as it is shown.
/// `detail` is the reason that a library gave, in its own words; it stands alone, without a text,
/// where nothing else is known. All but one of text and detail may be empty.
struct Error
{
    QString key;
    QString text;
    QString path = {}; ///< of the file concerned
    QString detail = {};

    /// Text and path as they are shown to the user: the path follows after a line feed.
    QString display() const { return path.isEmpty() ? text : text + QLatin1Char('\n') + path; }
};

/// A value, or the reason why there is none. Asking for what is not there throws std::logic_error.
template<typename T>
class [[nodiscard]] Result
{
public:
    Result(T value) : m_state(std::move(value)) {}
    Result(Error error) : m_state(std::move(error)) {}

    bool ok() const { return std::holds_alternative<T>(m_state); }
    explicit operator bool() const { return ok(); }

    const T &value() const &
    {
        requireValue();
        return std::get<T>(m_state);
    }
    T &&value() &&
    {
        requireValue();
        return std::get<T>(std::move(m_state));
    }
    const Error &error() const
    {
        if (ok())
            throw std::logic_error("Result: error() asked of a value");
        return std::get<Error>(m_state);
    }

private:
    void requireValue() const
    {
        if (!ok())
            throw std::logic_error("Result: value() asked of an error: " +
                                   std::get<Error>(m_state).text.toStdString());
    }

    std::variant<T, Error> m_state;
};

/// The result of an operation that gives nothing but success.
struct Done
{
};

/// What work gives that the user can stop: nothing where that happened.
template<typename T>
using Stoppable = std::optional<Result<T>>;

} // namespace vlt
