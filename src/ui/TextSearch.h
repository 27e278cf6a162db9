#pragma once

#include <QHash>
#include <QLocale>
#include <QSet>
#include <QString>
#include <QUuid>

namespace ravelo {

/// Finds the texts that contain what is typed, ignoring case as the user's language does. Made for
/// many long texts and one letter more at a time: keeps what it has made of the texts, and which of
/// them cannot match any more, while the search goes on.
class TextSearch {
public:
    explicit TextSearch(const QLocale& locale);

    /// Empty to find everything.
    void setWanted(const QString& wanted);

    /// `id` stands for a text that never changes.
    [[nodiscard]] bool finds(const QUuid& id, const QString& text);

private:
    [[nodiscard]] QString folded(const QString& text) const;

    const unsigned foldOptions_;
    QString wanted_;
    QHash<QUuid, QString> folded_; ///< Null for a text of ASCII, which is searched as it is.
    QSet<QUuid> missed_;
};

} // namespace ravelo
