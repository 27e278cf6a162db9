#pragma once

#include <QList>
#include <QSet>
#include <QUrl>

#include <optional>

namespace ravelo {

/// Parked files and which of them are selected for the next drag or sending. A value with its
/// rules; the files themselves are never touched.
struct Shelf {
    QList<QList<QUrl>> stacks; ///< Oldest first; each in the order of its drop.
    QSet<QUrl> selected;

    /// All files, stack by stack.
    [[nodiscard]] QList<QUrl> files() const;

    /// The selected files in the shelf's order.
    [[nodiscard]] QList<QUrl> selectedFiles() const;

    /// Adds those of `urls` that are not parked yet as a new, selected stack; nothing if all are. A
    /// file given twice is kept twice.
    [[nodiscard]] std::optional<Shelf> added(const QList<QUrl>& urls) const;

    /// Removes the files, and stacks that become empty.
    [[nodiscard]] Shelf removed(const QSet<QUrl>& urls) const;

    /// Brings back what was parked `before` and is not any more: to its old places if nothing was
    /// parked since, otherwise as a new stack. Selected is what was.
    [[nodiscard]] Shelf restored(const Shelf& before) const;

    /// The files of `before` that are not parked any more.
    [[nodiscard]] QSet<QUrl> goneSince(const Shelf& before) const;

    /// Selects all of `stack` or, if it is selected already, deselects it.
    [[nodiscard]] Shelf stackToggled(const QList<QUrl>& stack) const;

    friend bool operator==(const Shelf&, const Shelf&) = default;
};

} // namespace ravelo
