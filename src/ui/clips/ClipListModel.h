#pragma once

#include "base/Scheduler.h"
#include "store/Records.h"
#include "ui/clips/ClipSearch.h"
#include "ui/clips/ClipSelection.h"
#include "ui/clips/TooLarge.h"
#include "ui/lists/KeyedListModel.h"
#include "ui/lists/RelativeDate.h"
#include "ui/lists/RowAges.h"

#include <QQmlEngine>

#include <optional>

namespace ravelo {

class Store;

/// The clipboard history as shown in the panel: clips that `search` finds, in store order, and
/// after the pinned ones a row about a copy that was too large to keep. Until a search of a long
/// history is done, the rows stay as they were. Main thread.
class ClipListModel : public KeyedListModel<ClipItem>, public AgingRows {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(QString search READ search NOTIFY searchChanged)
    /// "4 of 47"; empty while nothing is searched for.
    Q_PROPERTY(QString tally READ tally NOTIFY found)
    /// Why the list is empty, if a search is the reason.
    Q_PROPERTY(QString nothingFound READ nothingFound NOTIFY found)
    /// -1 if there is none.
    Q_PROPERTY(int tooLargeRow READ tooLargeRow NOTIFY tooLargeRowChanged)

public:
    enum Role {
        titleRole = Qt::UserRole,
        iconRole, ///< Name of a symbol.
        pinnedRole,
        subtitleRole,
        imageFileNameRole,
        orderRole,  ///< Among the chosen clips, from 1; 0 if it is not chosen.
        marksRole,  ///< Where the title has what is searched for; a list of TextRange.
        maskRole,   ///< What is shown instead of a secret's text, in runs; empty for other clips.
        spokenRole, ///< Name for screen readers.
        agoRole,    ///< When it was copied, alone.
    };

    /// Whether subtitles say the program and the size.
    enum class Origins { hidden, shown };

    void setOrigins(Origins origins);

    ClipListModel(Store& store, Scheduler& scheduler, const QLocale& locale);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] const QString& search() const { return search_.written(); }

    void setSearch(const QString& written);

    /// For keys that refer to the rows found.
    Q_INVOKABLE void finishSearch();

    /// Without the filters.
    [[nodiscard]] QString searchedText() const { return search_.query().text; }

    [[nodiscard]] QString tally() const;

    [[nodiscard]] QString nothingFound() const;

    [[nodiscard]] int count() const { return rowCount(); }

    [[nodiscard]] int tooLargeRow() const { return tooLargeRow_; }

    /// Replaces the previous one. Not searched, never stored, removed when the history is cleared.
    void setTooLarge(const TooLargeCopy& copy);
    void dismissTooLarge();

    [[nodiscard]] ClipSelection& selection() { return selection_; }

    [[nodiscard]] const ClipSelection& selection() const { return selection_; }

    /// Clips from one row to another, in this order.
    [[nodiscard]] QList<QUuid> idsBetween(int from, int to) const;

    /// -1 if it is not shown.
    [[nodiscard]] int rowOf(const QUuid& id) const;

    void refreshDates() override;
    [[nodiscard]] Seconds untilDatesChange() const override;

    /// Invalid if there is no such row.
    [[nodiscard]] QUuid idAt(int row) const;

    [[nodiscard]] Q_INVOKABLE bool isSecret(int row) const;

Q_SIGNALS:
    void searchChanged();
    void found();
    void searched(); ///< The rows are those of the new search.
    void tooLargeRowChanged();
    void detailsKnown(); ///< Of more clips.

private:
    void update();
    void continueSearch();
    void show(const QList<ClipItem>& clips);
    [[nodiscard]] QList<ClipItem> allRows() const;
    [[nodiscard]] QString size(const ClipItem& clip, const ClipDetails& details) const;
    void detailsFound();
    [[nodiscard]] QString spoken(const ClipItem& clip) const;
    [[nodiscard]] QString secretSubtitle(const ClipItem& clip) const;
    [[nodiscard]] QString subtitle(const ClipItem& clip) const;
    [[nodiscard]] bool isTooLarge(const ClipItem& row) const;

    /// A placeholder record for its row, not in any store.
    struct TooLargeRow {
        TooLargeCopy copy;
        ClipItem record;
    };

    Store& store_;
    Scheduler& scheduler_;
    ClipSearch search_;
    Handle searching_; ///< While clips are left to search.
    bool isNewSearch_ = false;
    Origins origins_ = Origins::hidden;
    RelativeDate relativeDate_;
    QLocale locale_;
    ClipSelection selection_;
    std::optional<TooLargeRow> tooLarge_;
    int tooLargeRow_ = -1;
};

} // namespace ravelo
