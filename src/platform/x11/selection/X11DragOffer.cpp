#include "platform/x11/selection/X11DragOffer.h"

#include <utility>

namespace ravelo::x11 {

namespace {

constexpr qsizetype maxBytes = 8 << 20;

/// Asks for targets until one is given. Stops once another drag has begun, whose source would
/// answer instead. Does not ask for TARGETS: sources of Qt refuse it during a drag.
class FirstOfTargets final : public Conversation {
public:
    using Done = std::function<void(const QByteArray&)>;

    using IsNewest = std::function<bool()>;

    /// `done` gets nothing if the source gives nothing or goes away first.
    FirstOfTargets(QList<xcb_atom_t> targets, IsNewest isNewest, Done done)
        : targets_(std::move(targets)), isNewest_(std::move(isNewest)), done_(std::move(done)) {}

    ~FirstOfTargets() override { done_(bytes_); }

    [[nodiscard]] std::optional<TransferRequest> next() override {
        return targets_.isEmpty() || !isNewest_()
                   ? std::nullopt
                   : std::optional(TransferRequest{targets_.takeFirst(), maxBytes});
    }

    void take(TransferResult result) override {
        if (result) {
            bytes_ = result->bytes;
            targets_.clear();
        } else if (result.error().reason != TransferFailure::refused) {
            targets_.clear(); // It would be as slow under another name.
        }
    }

    void finish() override {}

private:
    QList<xcb_atom_t> targets_;
    IsNewest isNewest_;
    Done done_;
    QByteArray bytes_;
};

} // namespace

std::optional<QByteArray> X11DragOffer::data(const QStringList& types) {
    const auto [answer, isNew] = answers_.try_emplace(types);
    if (isNew) {
        ask(types);
    }
    return answer->second;
}

void X11DragOffer::ask(const QStringList& types) {
    auto done = [self = shared_from_this(), types](const QByteArray& bytes) {
        self->source_.listener.callOnMain([self, types, bytes] {
            self->answers_[types] = bytes;
            self->source_.changes->notify();
        });
    };
    source_.listener.post([source = source_, count = count_, types, done] {
        source.listener.catchUp();
        QList<xcb_atom_t> targets;
        for (const QString& type : types) {
            targets.append(source.listener.connection().atom(type.toLatin1()));
        }
        const auto isNewest = [counter = source.counter, count] {
            return counter->value() == count;
        };
        if (const auto reads = source.reads.lock()) {
            reads->begin(std::make_unique<FirstOfTargets>(targets, isNewest, done));
        }
    });
}

} // namespace ravelo::x11
