#include "platform/x11/X11DragMonitor.h"

#include "base/UriList.h"
#include "platform/x11/OwnClient.h"

#include <QSysInfo>

#include <utility>

namespace ravelo::x11 {

namespace {

constexpr qsizetype mostBytes = 8 << 20;

/// Asks for the list of addresses (RFC 2483) and nothing else: sources of Qt refuse TARGETS while
/// a drag is on.
class FilesConversation final : public Conversation {
public:
    using Done = std::function<void(QByteArray)>;

    FilesConversation(xcb_atom_t uriList, Done done) : target_(uriList), done_(std::move(done)) {}

    [[nodiscard]] std::optional<TransferRequest> next() override {
        const auto target = std::exchange(target_, XCB_ATOM_NONE);
        return target == XCB_ATOM_NONE ? std::nullopt
                                       : std::optional(TransferRequest{target, mostBytes});
    }

    void take(TransferResult result) override {
        if (result) {
            list_ = result->bytes;
        }
    }

    void finish() override { done_(std::move(list_)); }

private:
    xcb_atom_t target_;
    Done done_;
    QByteArray list_;
};

} // namespace

X11DragMonitor::X11DragMonitor(Listener& listener)
    : listener_(listener), changes_(std::make_shared<Notifier>(listener)) {
    auto changed = [counter = counter_, changes = changes_,
                    own = OwnClient::ofQt()](const OwnerChange& change) {
        if (change.owner != XCB_NONE && !own.owns(change.owner)) {
            counter->countForeign(change.sequence);
            changes->notify();
        }
    };
    watch_ = std::make_shared<SelectionWatch>(listener.connection(),
                                              QByteArrayLiteral("XdndSelection"), changed);
    listener.attach(watch_);
}

std::optional<QList<QUrl>> X11DragMonitor::files() {
    const qint64 drag = counter_->value();
    if (drag == 0) {
        return std::nullopt; // None has begun yet.
    }
    if (question_->drag != drag) {
        ask(drag);
    }
    return question_->files;
}

void X11DragMonitor::ask(qint64 drag) {
    *question_ = {drag, std::nullopt};
    auto done = [&listener = listener_, question = question_, changes = changes_,
                 drag](const QByteArray& list) {
        listener.tell([question, changes, drag,
                       files = localFiles(list, QSysInfo::machineHostName().toUtf8())] {
            if (question->drag == drag) {
                question->files = files;
                changes->notify();
            }
        });
    };
    listener_.post([&listener = listener_, counter = counter_, watch = watch_, drag, done] {
        listener.catchUp();
        if (counter->value() == drag) {
            const auto uriList = listener.connection().atom(QByteArrayLiteral("text/uri-list"));
            watch->reader().add(0, std::make_unique<FilesConversation>(uriList, done));
        }
    });
}

} // namespace ravelo::x11
