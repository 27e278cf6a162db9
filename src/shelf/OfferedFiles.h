#pragma once

#include <QByteArray>
#include <QList>
#include <QUrl>

#include <memory>
#include <optional>

namespace ravelo {

class DragOffer;

/// What a drag carries, as far as its source has answered.
enum class Carries { unknown, files, nothing };

/// The files that one drag offers. Its source is asked when something is asked here first: some
/// make their files only then. Main thread.
class OfferedFiles {
public:
    /// Without an offer there are no files yet.
    explicit OfferedFiles(std::shared_ptr<DragOffer> offer = {}) : offer_(std::move(offer)) {}

    [[nodiscard]] const std::shared_ptr<DragOffer>& offer() const { return offer_; }

    /// The local files that it names; nothing while the answer is unknown.
    [[nodiscard]] const std::optional<QList<QUrl>>& named();

    /// The key under which the source hands its files over (see FileTransfer), empty if it has
    /// none; nothing while the answer is unknown.
    [[nodiscard]] const std::optional<QByteArray>& transferKey();

    [[nodiscard]] Carries carries();

private:
    std::shared_ptr<DragOffer> offer_;
    std::optional<QList<QUrl>> named_;
    std::optional<QByteArray> key_;
};

} // namespace ravelo
