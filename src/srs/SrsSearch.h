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

/// A search query.
struct SrsQuery
{
    QString text;
    std::optional<geodata::SrsKind> kind; ///< nothing for all kinds
    bool withDeprecated = false;
};

/// Finds systems by words. Case, accents, punctuation and the order of the words have no influence;
/// "wgs84" is equal to "WGS 84". A word may occur anywhere in the name, the code (with or without
/// its authority) or the area of use.
class SrsSearch
{
public:
    explicit SrsSearch(QList<geodata::SrsRecord> systems);

    const QList<geodata::SrsRecord> &systems() const { return m_systems; }

    /// Indices into systems(), in this order: the system with the typed code (with its authority or
    /// as a number), names equal to the text, names that start with it, names that contain it,
    /// names with words that start with the typed words, names that contain all typed words, other
    /// results. The alias of a preferred system counts as its name. If words of its name, alias or
    /// area start with the typed words, it is ranked like a name that starts with the text.
    ///
    /// Equal results are ordered as follows: projected and two-dimensional geographic systems
    /// before others, then the order of the preferences, then WGS 84 and ETRS89 before others, then
    /// the order of systems(). A text without words finds all systems. Deprecated systems are only
    /// found by their code, or if the query includes them.
    std::vector<int> find(const SrsQuery &query, const SrsPreferences &preferences = {}) const;

    /// Whether a text contains a letter or a digit.
    static bool hasWords(const QString &text);

    /// The text with each unknown word replaced by the most frequent known word that differs in one
    /// letter: missing, added, wrong or swapped with its neighbour ("wsg84" becomes "wgs 84").
    /// Empty if all words are known, or if an unknown one has no similar word.
    QString nearText(const QString &text) const;

    /// The system with a code such as "EPSG:2154", in upper or lower case; null if there is none.
    const geodata::SrsRecord *systemOf(const QString &key) const;

private:
    struct Folded
    {
        QString name;
        QString key;    ///< authority and code
        QString number; ///< the code, if it is a number
        QString all;    ///< name, key and area
        bool isWorldwide = false;
    };
    struct Preferred;

    QHash<qsizetype, Preferred> preferredSystems(const SrsPreferences &preferences) const;
    QString nearWord(const QString &word) const;

    QList<geodata::SrsRecord> m_systems;
    std::vector<Folded> m_folded; ///< texts of m_systems, in the same order
    QHash<QString, qsizetype> m_indexOfKey;
    QHash<QString, int> m_words; ///< frequency of the words in all names, authorities and areas
};

/// The entry of a system that was chosen. The alias of a deprecated system states that it is
/// deprecated.
SrsEntry entryOf(const geodata::SrsRecord &system);

using SharedSrsSearch = std::shared_ptr<const SrsSearch>;

/// The search in the PROJ database. The first call starts a thread that reads the database, once
/// for the program. The result is null if the database cannot be read.
QFuture<SharedSrsSearch> sharedSrsSearch();

} // namespace vlt::srs
