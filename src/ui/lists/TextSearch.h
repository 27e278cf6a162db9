#pragma once

#include <QHash>
#include <QList>
#include <QLocale>
#include <QSet>
#include <QString>
#include <QUuid>

namespace ravelo {

/// Finds the texts that contain what is typed, ignoring case as the user's language does. Made for
/// many long texts and one letter more or less at a time: keeps what it has made of the texts, and
/// which of them did not match, while the search goes on.
class TextSearch {
public:
    explicit TextSearch(const QLocale& locale);

    /// Empty to find everything.
    void setWanted(const QString& wanted);

    /// `id` stands for a text that never changes.
    [[nodiscard]] bool finds(const QUuid& id, const QString& text);

private:
    struct Level {
        QString wanted; ///< Folded; contains what the level before it wants.
        QSet<QUuid> missed;
    };

    [[nodiscard]] bool contains(const QUuid& id, const QString& text, const QString& wanted);
    [[nodiscard]] QString folded(const QString& text) const;

    const unsigned foldOptions_;
    QList<Level> levels_;
    QHash<QUuid, QString> folded_; ///< Of texts that are more than ASCII.
};

} // namespace ravelo
