#pragma once

#include "store/Store.h"

#include <QLocale>
#include <QObject>
#include <QQmlEngine>
#include <QUuid>

#include <memory>

namespace ravelo {

class Toast;

/// Deletes with undo while the toast is shown. Further deletions in that time join the same undo.
/// Main thread.
class Deleting : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")

public:
    Deleting(Store& store, Toast& toast, const QLocale& locale);

    Q_INVOKABLE void deleteClip(const QUuid& id);
    /// All unpinned clips.
    Q_INVOKABLE void clearClips();
    Q_INVOKABLE void removeSnippet(const QUuid& id);

private:
    struct Offered;

    [[nodiscard]] std::shared_ptr<Offered> offered();
    void offer(const std::shared_ptr<Offered>& what);
    void undo(const std::shared_ptr<Offered>& what);
    void report(const std::shared_ptr<Offered>& what, const Store::Restored& restored);
    [[nodiscard]] QString message(const Offered& what) const;

    Store& store_;
    Toast& toast_;
    QLocale locale_;
    std::weak_ptr<Offered> last_; ///< Lives as long as the toast offers it.
};

} // namespace ravelo
