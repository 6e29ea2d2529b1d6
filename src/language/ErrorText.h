#pragma once

#include "platform/Result.h"

#include <QString>

namespace vlt::language {

/// The text of an error in the user's language, without its path and its detail; the detail if the
/// error has no text.
QString reasonOf(const Error &error);

/// The detail of an error in the user's language; empty if reasonOf() is the detail.
QString detailOf(const Error &error);

/// The reason with the detail in brackets, for one line.
QString explained(const Error &error);

} // namespace vlt::language
