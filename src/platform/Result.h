#pragma once

#include "platform/Problem.h"

#include <QString>

#include <optional>
#include <stdexcept>
#include <utility>
#include <variant>

namespace vlt {

/// The reason why an operation has no value.
///
/// With a `key`, the message key of its translation, `text` is in English; without one it is shown
/// as it is. `detail` is the reason in the words of a library. At least one of `text` and `detail`
/// is not empty.
struct Error
{
    QString key;
    QString text;
    QString path = {}; ///< path of the file concerned
    QString detail = {};

    /// The same error of another file, or of none.
    Error withPath(const QString &other) const { return {key, text, other, detail}; }
};

/// A value, or the reason why there is none. Access to the missing one throws std::logic_error.
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

/// The value of an operation that only succeeds or fails.
struct Done
{
};

/// The result of an operation that the user can stop; nothing if it was stopped.
template<typename T>
using Stoppable = std::optional<Result<T>>;

} // namespace vlt
