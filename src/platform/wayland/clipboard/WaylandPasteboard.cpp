#include "platform/wayland/clipboard/WaylandPasteboard.h"

#include "platform/wayland/keys/ActiveWindow.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace ravelo::wayland {

namespace {

/// Whether a text field of ours copied this by QClipboard, which leaves no mark. Its own contents
/// can be read without waiting for anybody.
bool isCopyOfOurs(const PasteboardSnapshot& snapshot) {
    const QClipboard& clipboard = *QGuiApplication::clipboard();
    const auto text = snapshot.answers.value(plainTextType);
    return text && !text->isEmpty() && clipboard.ownsClipboard() &&
           clipboard.mimeData() != nullptr && clipboard.mimeData()->text().toUtf8() == *text;
}

} // namespace

WaylandPasteboard::WaylandPasteboard(ClipboardThread& thread) : thread_(thread) {
    QGuiApplication::clipboard()->blockSignals(true);
    selection_ = Selection::create(thread, count_, [&thread, changes = changes_] {
        if (!changes->pending.exchange(true)) {
            thread.callOnMain([changes] {
                changes->pending = false;
                changes->listeners.notify();
            });
        }
    });
}

bool WaylandPasteboard::namesPrograms() const {
    return windows_ != nullptr && windows_->isReported();
}

void WaylandPasteboard::setNaming(Naming naming) {
    if (namesPrograms() && naming != naming_) {
        naming_ = naming;
        windows_->setFollowing(naming == Naming::on ? ActiveWindow::Following::always
                                                    : ActiveWindow::Following::whileAsked);
    }
}

Handle WaylandPasteboard::read(PasteboardPlan plan, std::function<void(PasteboardSnapshot)> done) {
    const auto key = nextKey_++;
    if (const QString name = naming_ == Naming::on ? windows_->activeAppId() : QString();
        !name.isEmpty()) {
        done = [name, done = std::move(done)](PasteboardSnapshot snapshot) {
            snapshot.owner.names = {name};
            done(std::move(snapshot));
        };
    }
    reads_->emplace(key, std::move(done));
    // A complete reading is reported even if the owner has changed since: a main thread that is
    // behind loses no copy.
    auto finish = [&thread = thread_, reads = std::weak_ptr(reads_),
                   key](PasteboardSnapshot snapshot) {
        thread.callOnMain([reads, key, snapshot = std::move(snapshot)]() mutable {
            const auto alive = reads.lock();
            const auto read = alive ? alive->extract(key) : Reads::node_type();
            if (!read.empty()) {
                PasteboardSnapshot nothing;
                nothing.changeCount = snapshot.changeCount;
                read.mapped()(isCopyOfOurs(snapshot) ? nothing : std::move(snapshot));
            }
        });
    };
    thread_.post([selection = selection_, key, count = count_->value(), plan = std::move(plan),
                  finish = std::move(finish)] { selection->read(key, count, plan, finish); });
    return Handle([&thread = thread_, reads = std::weak_ptr(reads_), selection = selection_, key] {
        const auto alive = reads.lock();
        if (alive && alive->erase(key) > 0) {
            thread.post([selection, key] { selection->cancel(key); });
        }
    });
}

qint64 WaylandPasteboard::write(const QList<PasteboardEntry>& forms) {
    return write(forms, Selection::Over::anything);
}

std::optional<qint64> WaylandPasteboard::adopt(const QList<PasteboardEntry>& forms) {
    return orphaned() ? std::optional(write(forms, Selection::Over::nothing)) : std::nullopt;
}

qint64 WaylandPasteboard::write(const QList<PasteboardEntry>& forms, Selection::Over over) {
    const qint64 count = count_->countOwn();
    thread_.post(
        [selection = selection_, count, forms, over] { selection->write(count, forms, over); });
    return count;
}

} // namespace ravelo::wayland
