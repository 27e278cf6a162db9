#include "platform/x11/X11DragMonitor.h"

#include "base/UriList.h"
#include "platform/x11/OwnClient.h"

#include <QSysInfo>

#include <utility>

namespace ravelo::x11 {

namespace {

constexpr qsizetype mostBytes = 8 << 20;

/// Asks for targets until one is given. TARGETS is none of them: sources of Qt refuse it while a
/// drag is on.
class FirstOfTargets final : public Conversation {
public:
    using Done = std::function<void(const QByteArray&)>;

    /// `done` is given nothing where the source gives nothing or is gone before it has.
    FirstOfTargets(QList<xcb_atom_t> targets, Done done)
        : targets_(std::move(targets)), done_(std::move(done)) {}

    ~FirstOfTargets() override { done_(bytes_); }

    [[nodiscard]] std::optional<TransferRequest> next() override {
        return targets_.isEmpty() ? std::nullopt
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
    Done done_;
    QByteArray bytes_;
};

QList<QUrl> readFiles(const QByteArray& uriList) {
    return localFiles(uriList, QSysInfo::machineHostName().toUtf8());
}

/// It has to be text on its way over the bus; some end it by a NUL.
QByteArray readKey(QByteArray key) {
    while (key.endsWith('\0')) {
        key.chop(1);
    }
    const bool good = key.size() <= 1024 && !key.contains('\0') && key.isValidUtf8();
    return good ? key : QByteArray();
}

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
    return ask(files_, {QByteArrayLiteral("text/uri-list")}, readFiles);
}

std::optional<QByteArray> X11DragMonitor::transferKey() {
    // The second is what the first was called before.
    return ask(key_,
               {QByteArrayLiteral("application/vnd.portal.filetransfer"),
                QByteArrayLiteral("application/vnd.portal.files")},
               readKey);
}

template <typename Answer, typename Read>
std::optional<Answer> X11DragMonitor::ask(const std::shared_ptr<Question<Answer>>& question,
                                          const QList<QByteArray>& targets, Read read) {
    const qint64 drag = counter_->value();
    if (drag == 0) {
        return std::nullopt; // None has begun yet.
    }
    if (question->drag == drag) {
        return question->answer;
    }
    *question = {drag, std::nullopt};
    auto done = [&listener = listener_, question, changes = changes_, drag,
                 read](const QByteArray& bytes) {
        listener.tell([question, changes, drag, answer = read(bytes)] {
            if (question->drag == drag) {
                question->answer = answer;
                changes->notify();
            }
        });
    };
    listener_.post(
        [&listener = listener_, counter = counter_, watch = watch_, drag, targets, done] {
            listener.catchUp();
            if (counter->value() != drag) {
                return;
            }
            QList<xcb_atom_t> atoms;
            for (const QByteArray& target : targets) {
                atoms.append(listener.connection().atom(target));
            }
            watch->reader().add(0, std::make_unique<FirstOfTargets>(atoms, done));
        });
    return std::nullopt;
}

} // namespace ravelo::x11
