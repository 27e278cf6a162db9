#include "platform/x11/X11DragMonitor.h"

#include "base/UriList.h"
#include "platform/x11/OwnClient.h"
#include "platform/x11/SelectionWatch.h"

#include <QSysInfo>

#include <utility>

namespace ravelo::x11 {

namespace {

constexpr qsizetype mostBytes = 8 << 20;

/// Asks for targets until one is given, and nothing more once another drag has begun: its source
/// would answer. TARGETS is none of them: sources of Qt refuse it while a drag is on.
class FirstOfTargets final : public Conversation {
public:
    using Done = std::function<void(const QByteArray&)>;

    using IsNewest = std::function<bool()>;

    /// `done` is given nothing if the source gives nothing or is gone before it has.
    FirstOfTargets(QList<xcb_atom_t> targets, IsNewest isNewest, Done done)
        : targets_(std::move(targets)), isNewest_(std::move(isNewest)), done_(std::move(done)) {}

    ~FirstOfTargets() override { done_(bytes_); }

    [[nodiscard]] std::optional<TransferRequest> next() override {
        return targets_.isEmpty() || !isNewest_()
                   ? std::nullopt
                   : std::optional(TransferRequest{targets_.takeFirst(), mostBytes});
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

QList<QUrl> readFiles(const QByteArray& uriList) {
    return localFiles(uriList, QSysInfo::machineHostName().toUtf8());
}

/// It has to be text on its way over the bus; some end it by a NUL.
QByteArray readKey(const QByteArray& bytes) {
    QByteArray key = bytes;
    while (key.endsWith('\0')) {
        key.chop(1);
    }
    const bool good = key.size() <= 1024 && !key.contains('\0') && key.isValidUtf8();
    return good ? key : QByteArray();
}

} // namespace

X11DragMonitor::X11DragMonitor(Listener& listener)
    : listener_(listener),
      changes_(std::make_shared<Notifier>(listener)),
      reads_(std::make_shared<DragReads>(
          listener.connection(), listener.connection().atom(QByteArrayLiteral("XdndSelection")))) {
    auto changed = [counter = counter_, changes = changes_, reads = reads_,
                    own = OwnClient::ofQt()](const OwnerChange& change) {
        if (change.owner != XCB_NONE && !own.owns(change.owner)) {
            reads->sourceChanged(change.time);
            counter->countForeign(change.sequence);
            changes->notify();
        }
    };
    listener.attach(std::make_shared<SelectionWatch>(listener.connection(),
                                                     QByteArrayLiteral("XdndSelection"), changed));
    listener.attach(reads_);
}

std::optional<QList<QUrl>> X11DragMonitor::files() {
    return ask(&Drag::filesAsked, &DragAnswers::files, {QByteArrayLiteral("text/uri-list")},
               readFiles);
}

std::optional<QByteArray> X11DragMonitor::transferKey() {
    // The second is what the first was called before.
    return ask(&Drag::keyAsked, &DragAnswers::transferKey,
               {QByteArrayLiteral("application/vnd.portal.filetransfer"),
                QByteArrayLiteral("application/vnd.portal.files")},
               readKey);
}

std::shared_ptr<const DragAnswers> X11DragMonitor::answers() {
    const auto drag = newest();
    return {drag, &drag->answers};
}

std::shared_ptr<X11DragMonitor::Drag> X11DragMonitor::newest() {
    if (const qint64 count = counter_->value(); newest_->count != count) {
        newest_ = std::make_shared<Drag>(Drag{count, {}});
    }
    return newest_;
}

template <typename Answer>
std::optional<Answer>
X11DragMonitor::ask(bool Drag::*asked, std::optional<Answer> DragAnswers::*answer,
                    const QList<QByteArray>& targets, Answer (*read)(const QByteArray&)) {
    const auto drag = newest();
    // Count 0: none has begun yet.
    if (drag->count == 0 || std::exchange((*drag).*asked, true)) {
        return drag->answers.*answer;
    }
    auto done = [&listener = listener_, changes = changes_, drag, answer,
                 read](const QByteArray& bytes) {
        listener.tell([changes, drag, answer, value = read(bytes)] {
            drag->answers.*answer = value;
            changes->notify();
        });
    };
    listener_.post([&listener = listener_, counter = counter_, reads = reads_, count = drag->count,
                    targets, done] {
        listener.catchUp();
        QList<xcb_atom_t> atoms;
        for (const QByteArray& target : targets) {
            atoms.append(listener.connection().atom(target));
        }
        const auto isNewest = [counter, count] {
            return counter->value() == count;
        };
        reads->begin(std::make_unique<FirstOfTargets>(atoms, isNewest, done));
    });
    return std::nullopt;
}

} // namespace ravelo::x11
