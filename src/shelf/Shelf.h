#pragma once

#include <QList>
#include <QSet>
#include <QUrl>

#include <optional>

namespace ravelo {

/// Parked files and which of them are chosen for the next drag or sending. A value with its rules;
/// the files themselves are never touched.
struct Shelf {
    QList<QList<QUrl>> stacks; ///< Oldest first; each in the order of its drop.
    QSet<QUrl> selected;

    /// All files, stack by stack.
    [[nodiscard]] QList<QUrl> files() const;

    /// The selected files in the shelf's order.
    [[nodiscard]] QList<QUrl> selectedFiles() const;

    /// With those of `urls` that are not parked yet as a new, selected stack; nothing where all
    /// are. A file given twice is kept twice.
    [[nodiscard]] std::optional<Shelf> added(const QList<QUrl>& urls) const;

    /// Without the files, wherever they lie, and without stacks that lose their last file by it.
    [[nodiscard]] Shelf removed(const QSet<QUrl>& urls) const;

    /// With all of `stack` selected, or, where it all is already, none of it.
    [[nodiscard]] Shelf stackToggled(const QList<QUrl>& stack) const;

    friend bool operator==(const Shelf&, const Shelf&) = default;
};

} // namespace ravelo
