#pragma once

#include "base/Date.h"
#include "base/Scheduler.h"
#include "ui/lists/KeyedListModel.h"
#include "ui/lists/RelativeDate.h"
#include "ui/lists/RowAges.h"

#include <QQmlEngine>
#include <QUrl>

namespace ravelo {

class ReceivedWatcher;

struct ReceivedFile {
    QUrl id;
    Date came;

    friend bool operator==(const ReceivedFile&, const ReceivedFile&) = default;
};

/// The received files in order of arrival. Main thread.
class ReceivedModel : public KeyedListModel<ReceivedFile>, public AgingRows {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(bool receiving READ isReceiving NOTIFY receivingChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(QUrl folder READ folder CONSTANT)

public:
    enum Role { fileRole = Qt::UserRole, nameRole, agoRole };

    ReceivedModel(ReceivedWatcher& watcher, const Scheduler& scheduler, const QLocale& locale);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// A file has just arrived.
    [[nodiscard]] bool isReceiving() const { return receiving_; }

    [[nodiscard]] int count() const { return rowCount(); }

    /// The downloads folder.
    [[nodiscard]] QUrl folder() const;

    void refreshDates() override;
    [[nodiscard]] Seconds untilDatesChange() const override;

    [[nodiscard]] Q_INVOKABLE QUrl fileAt(int row) const;

Q_SIGNALS:
    void receivingChanged();
    void countChanged();

private:
    void update();
    [[nodiscard]] QString ago(Date came) const;

    ReceivedWatcher& watcher_;
    const Scheduler& scheduler_;
    RelativeDate relativeDate_;
    bool receiving_ = false;
    Handle changes_;
};

} // namespace ravelo
