#include "platform/freedesktop/portals/PortalKeyboard.h"

#include "platform/Preferences.h"
#include "platform/freedesktop/portals/PortalProgram.h"

#include <QProcess>
#include <QTimer>

#include <chrono>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

// Preferences.
const QString tokenKey = u"typingToken"_s;
const QString refusedKey = u"typingRefused"_s;

/// To end after its last keys.
constexpr std::chrono::seconds lastMoments(5);

} // namespace

PortalKeyboard::PortalKeyboard(QString program, const QProcessEnvironment& environment,
                               Preferences& preferences)
    : program_(std::move(program)),
      environment_(portalEnvironment(environment)),
      preferences_(preferences) {}

PortalKeyboard::~PortalKeyboard() {
    for (auto* const child : findChildren<QProcess*>()) {
        child->disconnect();
        child->kill();
        child->waitForFinished(); // QProcess would, too, but with a warning.
    }
}

TypingPermission PortalKeyboard::permission() const {
    if (preferences_.value(refusedKey).toBool()) {
        return TypingPermission::refused;
    }
    if (open_ || !preferences_.value(tokenKey).toString().isEmpty()) {
        return TypingPermission::given;
    }
    return unavailable_ ? TypingPermission::unavailable : TypingPermission::unasked;
}

void PortalKeyboard::forgetRefusal() {
    if (permission() == TypingPermission::refused) {
        remember({}, false);
        changes_.notify();
    }
}

void PortalKeyboard::remember(const QString& token, bool refused) {
    if (preferences_.value(tokenKey).toString() != token) {
        preferences_.set(tokenKey, token);
    }
    if (preferences_.value(refusedKey).toBool() != refused) {
        preferences_.set(refusedKey, refused);
    }
}

Handle PortalKeyboard::open(std::function<void(bool)> done) {
    const auto callback = std::make_shared<std::function<void(bool)>>(std::move(done));
    done_ = callback;
    if (open_ || permission() == TypingPermission::refused) {
        QMetaObject::invokeMethod(
            this, [this] { finish(open_); }, Qt::QueuedConnection);
    } else if (child_ == nullptr) {
        startChild();
    }
    return Handle([callback] { *callback = nullptr; });
}

void PortalKeyboard::finish(bool open) {
    if (const auto callback = std::exchange(done_, nullptr)) {
        if (const auto done = std::exchange(*callback, nullptr)) {
            done(open);
        }
    }
}

void PortalKeyboard::startChild() {
    auto* const child = child_ = new QProcess(this);
    child->setStandardErrorFile(QProcess::nullDevice());
    child->setWorkingDirectory(u"/"_s);
    child->setProcessEnvironment(environment_);
    connect(child, &QProcess::readyReadStandardOutput, this, &PortalKeyboard::hear);
    connect(child, &QProcess::finished, this, &PortalKeyboard::failed);
    // Queued, because it may come from within start().
    connect(
        child, &QProcess::errorOccurred, this,
        [this, child] {
            if (child == child_) {
                failed();
            }
        },
        Qt::QueuedConnection);
    child->start(program_, {u"keyboard"_s});
    child->write(preferences_.value(tokenKey).toString().toUtf8() + '\n');
}

void PortalKeyboard::hear() {
    while (child_ != nullptr && child_->canReadLine()) {
        const QByteArray line = child_->readLine().chopped(1);
        if (line == "open" || line.startsWith("open ")) {
            open_ = true;
            unavailable_ = false;
            remember(QString::fromUtf8(line.mid(5)), false);
            changes_.notify();
            finish(true);
        } else if (line == "refused") {
            remember({}, true);
            endChild(false);
        } else {
            failed();
        }
    }
}

/// Its session was closed, or it never had one.
void PortalKeyboard::failed() {
    endChild(!open_);
}

void PortalKeyboard::endChild(bool unavailable) {
    letGo();
    unavailable_ = unavailable;
    changes_.notify();
    finish(false);
}

void PortalKeyboard::letGo() {
    QProcess* const child = std::exchange(child_, nullptr);
    open_ = false;
    child->disconnect(this);
    if (child->state() == QProcess::NotRunning) {
        child->deleteLater();
        return;
    }
    connect(child, &QProcess::finished, child, &QObject::deleteLater);
    child->closeWriteChannel();
    QTimer::singleShot(lastMoments, child, &QProcess::kill);
}

void PortalKeyboard::type(PasteChord chord, Letters letters) {
    if (open_ && chord != PasteChord::shiftInsert) { // The selection is not ours.
        child_->write(chord == PasteChord::controlShiftV ? "control shift " : "control ");
        child_->write(letters == Letters::byPlace ? "place\n" : "v\n");
    }
}

void PortalKeyboard::close() {
    const bool asksAgain = preferences_.value(tokenKey).toString().isEmpty();
    if (child_ != nullptr && !(open_ && asksAgain)) {
        done_.reset();
        letGo();
    }
}

} // namespace ravelo
