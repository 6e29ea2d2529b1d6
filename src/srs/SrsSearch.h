#pragma once

#include "geodata/SrsCatalogue.h"
#include "srs/SrsEntry.h"
#include "srs/SrsPreferences.h"

#include <QFuture>
#include <QHash>
#include <QList>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace vlt::srs {

/// What is looked for among the systems.
struct SrsQuery
{
    QString text;
    std::optional<geodata::SrsKind> kind; ///< none: every kind
    bool withDeprecated = false;
};

/// Finds systems by words. Case, accents and punctuation do not count, nor does the order of the
/// words; "wgs84" is the same as "WGS 84". A word may stand anywhere in the name, the code (with
/// or without its authority) or the area of use.
class SrsSearch
{
public:
    explicit SrsSearch(QList<geodata::SrsRecord> systems);

    const QList<geodata::SrsRecord> &systems() const { return m_systems; }

    /// Indices into systems(): first a system whose code was typed, with its authority or as a
    /// mere number, then names that are, start with or hold the text, then names that hold every
    /// word (at the start of words before elsewhere), then the rest. A preferred system is found by
    /// its alias as by its name, and where words of its name, alias or area start with all of the
    /// text's it is as if its name did.
    ///
    /// Of those alike, systems in a plane or by longitude and latitude come first, then it is the
    /// order of the preferences, then WGS 84 and ETRS89 come before all others, then it is the
    /// order of systems(). A text without words finds every system. Deprecated systems are left
    /// out, unless asked for or typed as a code.
    std::vector<int> find(const SrsQuery &query, const SrsPreferences &preferences = {}) const;

    /// Whether a text has anything to look for: a letter or a digit.
    static bool hasWords(const QString &text);

    /// The text with each unknown word replaced by the most frequent known one that differs from it
    /// in one letter, missing, added, wrong or swapped with its neighbour ("wsg84" becomes "wgs
    /// 84"). Empty where no word is unknown, or where nothing is near to one of them.
    QString nearText(const QString &text) const;

    /// The system of a code such as "EPSG:2154", whatever its case; null where there is none.
    const geodata::SrsRecord *systemOf(const QString &key) const;

private:
    struct Folded
    {
        QString name;
        QString key;    ///< authority and code
        QString number; ///< the code, where it is one
        QString all;    ///< name, key and area
        bool isWorldwide = false;
    };
    struct Preferred;

    QHash<qsizetype, Preferred> preferredSystems(const SrsPreferences &preferences) const;
    QString nearWord(const QString &word) const;

    QList<geodata::SrsRecord> m_systems;
    std::vector<Folded> m_folded; ///< of m_systems, same order
    QHash<QString, qsizetype> m_indexOfKey;
    QHash<QString, int> m_words; ///< of all names, authorities and areas, with how often they occur
};

/// The entry that stands for a system once it is chosen; the alias of a deprecated one says so.
SrsEntry entryOf(const geodata::SrsRecord &system);

using SharedSrsSearch = std::shared_ptr<const SrsSearch>;

/// The search over the PROJ database, which is read once for the whole program, on a thread of its
/// own that the first call starts. Its result is null where the database cannot be read.
QFuture<SharedSrsSearch> sharedSrsSearch();

} // namespace vlt::srs
