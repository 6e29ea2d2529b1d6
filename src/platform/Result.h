#pragma once

#include "platform/Problem.h"

#include <QString>

#include <optional>
#include <stdexcept>
#include <utility>
#include <variant>

namespace vlt {

/// The reason why an operation has no value. The functions of language/ErrorText.h give its text as
/// the user reads it.
struct Error
{
    /// An error with a text of the dictionaries.
    ///
    /// @param messageKey  key of the translations; not empty
    /// @param english     the text in English
    /// @param concerned   path of the file concerned
    /// @param reason      reason in the words of a library or of a reader
    Error(const QString &messageKey, const QString &english, const QString &concerned = {},
          const QString &reason = {})
        : key(messageKey)
        , text(english)
        , path(concerned)
        , detail(reason)
    {
        if (key.isEmpty())
            throw std::logic_error("Error: a text without message key: " + text.toStdString());
    }

    /// An error whose text is shown as it is, because it is in the user's language already or has
    /// no translation.
    static Error asIs(const QString &text, const QString &path = {}, const QString &detail = {})
    {
        return {text, path, detail, NoKey()};
    }

    /// An error without a text of its own: the reason of a library or of a reader is all there is.
    static Error fromLibrary(const QString &detail, const QString &path = {})
    {
        return {{}, path, detail, NoKey()};
    }

    /// The same error of another file, or of none.
    Error withPath(const QString &other) const
    {
        Error error = *this;
        error.path = other;
        return error;
    }

    QString key; ///< empty for asIs() and fromLibrary()
    QString text;
    QString path;
    QString detail;

private:
    struct NoKey
    {
    };

    Error(const QString &shown, const QString &concerned, const QString &reason, NoKey)
        : text(shown)
        , path(concerned)
        , detail(reason)
    {}
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
