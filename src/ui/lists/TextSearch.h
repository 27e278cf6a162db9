#pragma once

#include <QHash>
#include <QList>
#include <QLocale>
#include <QSet>
#include <QString>
#include <QUuid>

namespace ravelo {

/// Finds texts that contain the search, ignoring case by the user's language. Optimised for many
/// long texts and a search that changes by one letter: caches folded texts and mismatches during a
/// search.
class TextSearch {
public:
    explicit TextSearch(const QLocale& locale);

    /// Empty to match everything.
    void setWanted(const QString& wanted);

    /// `id` identifies a text that never changes.
    [[nodiscard]] bool finds(const QUuid& id, const QString& text);

private:
    struct Level {
        QString wanted; ///< Folded; contains the search of the previous level.
        QSet<QUuid> missed;
    };

    [[nodiscard]] bool contains(const QUuid& id, const QString& text, const QString& wanted);
    [[nodiscard]] QString folded(const QString& text) const;

    const unsigned foldOptions_;
    QList<Level> levels_;
    QHash<QUuid, QString> folded_; ///< Of non-ASCII texts.
};

} // namespace ravelo
