#pragma once

#include "platform/Pasteboard.h"
#include "platform/x11/selection/SelectionReader.h"

namespace ravelo::x11 {

/// Asks an owner for its targets, then for what the plan wants. Text is asked for under the names
/// that the owner knows it by.
class PasteboardConversation final : public Conversation {
public:
    using Done = std::function<void(PasteboardSnapshot)>;

    /// `known` is what is known of the owner beforehand. `done` is called on the thread of the
    /// conversation.
    PasteboardConversation(Connection& connection, PasteboardSnapshot known, PasteboardPlan plan,
                           Done done);

    [[nodiscard]] std::optional<TransferRequest> next() override;
    void take(TransferResult result) override;

    void finish() override { done_(std::move(snapshot_)); }

private:
    enum class Step { targets, contents };

    [[nodiscard]] TransferRequest request(const QByteArray& target);
    [[nodiscard]] QList<QByteArray> targetsFor(const QString& type) const;
    void takeTargets(const QByteArray& atoms);

    Connection& connection_;
    PasteboardPlan plan_;
    Done done_;
    PasteboardSnapshot snapshot_;
    Step step_ = Step::targets;
    QList<QByteArray> offered_;
    QString wanted_;              ///< The type that the plan asked for.
    QByteArray target_;           ///< What the owner was asked for in its name.
    QList<QByteArray> fallbacks_; ///< What to ask for if the owner refuses.
};

} // namespace ravelo::x11
