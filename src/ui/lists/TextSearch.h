#pragma once

#include "ui/theme/TextRange.h"

#include <QHash>
#include <QList>
#include <QLocale>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QUuid>

namespace ravelo {

/// Finds texts that contain the search, ignoring case by the user's language. Optimised for many
/// long texts and a search that changes by one letter: caches folded texts and mismatches during a
/// search.
class TextSearch {
public:
    enum class For {
        phrase, ///< The search as it is.
        words,  ///< All words of the search, in any order, with or without accents.
    };

    explicit TextSearch(const QLocale& locale, For what = For::phrase);

    /// Empty to match everything.
    void setWanted(const QString& wanted);

    /// `id` identifies a text that never changes.
    [[nodiscard]] bool finds(const QUuid& id, const QString& text);

    /// Skips texts in which `other` searched the same in vain, unless they are not ASCII: only
    /// there phrases and words differ.
    void skipMissed(const TextSearch& other);

    /// Where `text` has what is wanted.
    [[nodiscard]] QList<TextRange> matches(const QString& text) const;

private:
    struct Level {
        QStringList wanted; ///< Folded; all texts of the previous level are in these.
        QSet<QUuid> missed;
    };

    /// A folded text, and for each of its units the letter that it comes from.
    struct Letters {
        QString folded;
        QList<TextRange> origins; ///< Empty if each unit is its own letter.

        [[nodiscard]] TextRange origin(qsizetype unit) const {
            return origins.isEmpty() ? TextRange{unit, 1} : origins[unit];
        }
    };

    [[nodiscard]] bool contains(const QUuid& id, const QString& text, const QStringList& wanted);
    [[nodiscard]] QStringList parts(const QString& wanted) const;
    [[nodiscard]] QString folded(const QString& text) const;
    [[nodiscard]] QString foldedByUnicode(const QString& text) const;
    [[nodiscard]] Letters letters(const QString& text) const;

    const unsigned foldOptions_;
    const For what_;
    QList<Level> levels_;
    QHash<QUuid, QString> folded_; ///< Of non-ASCII texts.
};

} // namespace ravelo
