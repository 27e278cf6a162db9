#pragma once

#include "platform/DragOffer.h"

#include <QMimeData>
#include <QPointer>

namespace ravelo::wayland {

/// A drag as Qt knows it, on compositors that report it to nobody else. Qt reads on the main
/// thread, and gives up after a second. Main thread.
class MimeDragOffer final : public DragOffer {
public:
    explicit MimeDragOffer(const QMimeData* data) : data_(data) {}

    [[nodiscard]] std::optional<QByteArray> data(const QStringList& types) override {
        for (const QString& type : types) {
            if (data_ && data_->hasFormat(type)) {
                return data_->data(type);
            }
        }
        return QByteArray();
    }

    /// Never: every answer is there at once.
    [[nodiscard]] Handle onAnswer(std::function<void()> /*callback*/) override { return {}; }

private:
    QPointer<const QMimeData> data_; ///< Gone when the drag leaves.
};

} // namespace ravelo::wayland
