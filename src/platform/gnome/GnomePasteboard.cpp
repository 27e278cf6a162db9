#include "platform/gnome/GnomePasteboard.h"

#include "base/ClipboardText.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMimeData>

#include <chrono>
#include <utility>

namespace ravelo::gnome {

using namespace Qt::StringLiterals;

namespace {

/// The shell, for contents that it keeps.
constexpr quint32 shellOwner = 1;

/// How long Mutter may need to see a write; then it has refused it.
constexpr std::chrono::milliseconds maxDelay{500};

Seconds uptime() {
    return std::chrono::steady_clock::now().time_since_epoch();
}

/// Gives what there is of one type, under the owner's name for it.
using Fetch = std::function<Transferred(const QByteArray& target)>;

/// The names by which to ask for `type`, the surest first.
QList<QByteArray> targetsFor(const QString& type, const QList<QByteArray>& offered) {
    if (type == plainTextType) {
        return textTargets(offered);
    }
    const QByteArray target = type.toUtf8();
    return offered.contains(target) ? QList{target} : QList<QByteArray>();
}

void ask(PasteboardSnapshot& snapshot, const QString& type, const QList<QByteArray>& offered,
         const Fetch& fetch) {
    snapshot.answers.insert(type, std::nullopt);
    for (const QByteArray& target : targetsFor(type, offered)) {
        const Transferred given = fetch(target);
        if (given.tooLarge > 0) {
            snapshot.tooLarge.insert(type, given.tooLarge);
            return;
        }
        // An owner refuses by giving nothing.
        if (given.bytes && !given.bytes->isEmpty()) {
            snapshot.answers[type] =
                type == plainTextType ? toUtf8(target, target, *given.bytes) : given.bytes;
            return;
        }
    }
}

PasteboardSnapshot follow(const PasteboardPlan& plan, PasteboardSnapshot snapshot,
                          const QList<QByteArray>& offered, const Fetch& fetch) {
    for (const QByteArray& name : offered) {
        const QString type = isPlainText(name) ? QString(plainTextType) : QString::fromUtf8(name);
        if (!snapshot.types.contains(type)) {
            snapshot.types.append(type);
        }
    }
    for (QString type = plan(snapshot); !type.isEmpty() && !snapshot.answers.contains(type);
         type = plan(snapshot)) {
        ask(snapshot, type, offered, fetch);
    }
    return snapshot;
}

/// What we wrote ourselves need not be asked for.
Fetch fetchFrom(const QList<PasteboardEntry>& forms) {
    return [forms](const QByteArray& target) -> Transferred {
        for (const PasteboardEntry& form : forms) {
            if (form.type.toUtf8() == target) {
                return {form.bytes};
            }
        }
        return {};
    };
}

} // namespace

GnomePasteboard::GnomePasteboard(Channel& channel, Transfers& transfers)
    : channel_(channel),
      transfers_(transfers),
      deliveries_(channel.onDelivery([this](Delivery& delivery) {
          if (const auto* report = std::get_if<Copied>(&delivery.report)) {
              copied(*report);
          }
      })) {
    QGuiApplication::clipboard()->blockSignals(true);
    unconfirmed_.setSingleShot(true);
    unconfirmed_.setInterval(maxDelay);
    connect(&unconfirmed_, &QTimer::timeout, this, [this] {
        if (own_) {
            offerText();
        } else {
            written_.clear();
        }
        written();
    });
}

void GnomePasteboard::onceWritten(std::function<void()> callback) {
    onceWritten_ = std::move(callback);
    if (!unconfirmed_.isActive()) {
        written();
    }
}

void GnomePasteboard::written() {
    unconfirmed_.stop();
    if (const auto callback = std::exchange(onceWritten_, nullptr)) {
        callback();
    }
}

void GnomePasteboard::copied(const Copied& report) {
    dropReadings();
    const bool wasEmpty = !own_ && types_.isEmpty();
    serial_ = report.serial;
    if (report.offered || report.types.contains(mark())) {
        if (!std::exchange(own_, true)) {
            ++count_; // Somebody else's copy was reported after our write, but came before it.
        }
        written();
        return;
    }
    own_ = false;
    if (!unconfirmed_.isActive()) { // Else it may still be reported.
        written_.clear();
    }
    types_ = report.types;
    owner_ = report.kept ? PasteboardOwner{shellOwner, PasteboardOwner::Kind::manager}
                         : PasteboardOwner{};
    if (report.initial) {
        return; // Copied before we were there to see it.
    }
    if (types_.isEmpty() && !wasEmpty) {
        lastEnd_ = OwnerEnd{count_, Seconds(0)};
    } else if (lastEnd_) {
        lastEnd_->before = uptime() - lastChange_;
    }
    lastChange_ = uptime();
    ++count_;
    changes_.notify();
}

/// They are about contents that are gone, except those that have them already.
void GnomePasteboard::dropReadings() {
    std::erase_if(*readings_, [](const auto& entry) { return !entry.second->isFinished(); });
}

Handle GnomePasteboard::read(PasteboardPlan plan, std::function<void(PasteboardSnapshot)> done) {
    PasteboardSnapshot known;
    known.changeCount = count_;
    known.owner = owner_;
    known.lastEnd = lastEnd_;
    QList<QByteArray> offered = types_;
    if (own_) {
        offered.clear();
        for (const PasteboardEntry& form : written_) {
            offered.append(form.type.toUtf8());
        }
    }
    const int key = nextKey_++;
    auto work = [this, known, offered, own = own_, forms = written_, serial = serial_,
                 plan = std::move(plan), done = std::move(done), key,
                 readings = std::weak_ptr(readings_)](const Cancellation& cancellation) {
        const Fetch fetch = own ? fetchFrom(forms) : Fetch([&](const QByteArray& target) {
            return transfers_.fetch({Selection::clip, serial, target, maxAnswerSize(target)},
                                    cancellation);
        });
        auto snapshot = std::make_shared<PasteboardSnapshot>(follow(plan, known, offered, fetch));
        return [snapshot, done, key, readings] {
            if (const auto alive = readings.lock()) {
                const auto finished = alive->extract(key);
                done(std::move(*snapshot));
            }
        };
    };
    readings_->emplace(key,
                       std::make_unique<Reading>(static_cast<QObject&>(*this), std::move(work)));
    return Handle([readings = std::weak_ptr(readings_), key] {
        if (const auto alive = readings.lock()) {
            alive->erase(key);
        }
    });
}

qint64 GnomePasteboard::write(const QList<PasteboardEntry>& forms) {
    dropReadings();
    ++writes_;
    ++count_;
    own_ = true;
    written_ = forms;
    owner_ = {};
    lastEnd_.reset();
    lastChange_ = uptime();
    writeByQt(forms);
    if (QGuiApplication::focusWindow() == nullptr) { // Although Mutter may have given it already.
        offerText();
    }
    return count_;
}

void GnomePasteboard::writeByQt(const QList<PasteboardEntry>& forms) {
    auto contents = std::make_unique<QMimeData>();
    for (const PasteboardEntry& form : forms) {
        contents->setData(form.type, form.bytes);
    }
    contents->setData(QString::fromLatin1(mark()), {});
    QGuiApplication::clipboard()->setMimeData(contents.release());
    unconfirmed_.start();
}

void GnomePasteboard::offerText() {
    for (const PasteboardEntry& form : written_) {
        if (form.type == plainTextType) {
            channel_.send(offer(QString::fromUtf8(form.bytes), mark()));
            break;
        }
    }
}

/// Among the types that we offer, so that we know our last write again.
QByteArray GnomePasteboard::mark() const {
    return "application/x-ravelo;process=" +
           QByteArray::number(QCoreApplication::applicationPid()) +
           ";write=" + QByteArray::number(writes_);
}

} // namespace ravelo::gnome
