#pragma once

#include "base/Listeners.h"
#include "platform/DragMonitor.h"
#include "platform/EdgeBarrier.h"
#include "platform/FileTransfer.h"
#include "platform/InputGrab.h"
#include "platform/PanelWindow.h"
#include "platform/Pointer.h"
#include "platform/Screens.h"
#include "platform/SessionLock.h"

#include <deque>
#include <memory>
#include <utility>
#include <vector>

namespace ravelo {

class FakePointer final : public Pointer {
public:
    [[nodiscard]] PointerState state() override {
        ++questions;
        const bool clicked = std::exchange(clicked_, false);
        return {location, button_ != Qt::NoButton || clicked, button_ == Qt::LeftButton};
    }

    [[nodiscard]] bool isOverOwnWindow() override { return overOwnWindow; }

    [[nodiscard]] Handle onPress(std::function<void(std::optional<QPointF>)> callback) override {
        return presses_.add(std::move(callback));
    }

    [[nodiscard]] Handle onNextActivity(std::function<void()> wake) override {
        wake_ = std::move(wake);
        return Handle([this] { wake_ = nullptr; });
    }

    /// Somebody waits for activity.
    [[nodiscard]] bool isAwaited() const { return bool(wake_); }

    void moveTo(QPointF place) {
        location = place;
        active();
    }

    void press(Qt::MouseButton button = Qt::LeftButton) {
        button_ = button;
        pressedAt(location);
    }

    /// The pointer has gone on since.
    void pressedAt(std::optional<QPointF> place) {
        clicked_ = true;
        presses_.notify(place);
        active();
    }

    void release() {
        button_ = Qt::NoButton;
        active();
    }

    std::optional<QPointF> location = QPointF(400, 600);
    int questions = 0; ///< How often the display server was asked.
    bool overOwnWindow = false;

private:
    void active() {
        if (const auto wake = std::exchange(wake_, nullptr)) {
            wake();
        }
    }

    Qt::MouseButton button_ = Qt::NoButton;
    bool clicked_ = false;
    Listeners<std::optional<QPointF>> presses_;
    std::function<void()> wake_;
};

/// Answers on demand.
class FakeDragOffer final : public DragOffer {
public:
    [[nodiscard]] std::optional<QByteArray> data(const QStringList& types) override {
        ++questions;
        return types.contains(QStringLiteral("text/uri-list")) ? list : key;
    }

    [[nodiscard]] Handle onAnswer(std::function<void()> callback) override {
        return listeners.add(std::move(callback));
    }

    std::optional<QByteArray> list; ///< Of addresses.
    std::optional<QByteArray> key;  ///< For FileTransfer.
    int questions = 0;              ///< How often the source was asked.
    Listeners<> listeners;
};

class FakeDragMonitor final : public DragMonitor {
public:
    [[nodiscard]] qint64 changeCount() const override { return changeCount_; }

    [[nodiscard]] std::shared_ptr<DragOffer> newest() override { return drags_.back(); }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return listeners_.add(std::move(callback));
    }

    /// Another program begins a drag; nothing for a source that does not answer.
    void begin(std::optional<bool> files, std::optional<QByteArray> key = QByteArray()) {
        drags_.push_back(std::make_shared<FakeDragOffer>());
        drags_.back()->list = listOf(files);
        drags_.back()->key = std::move(key);
        ++changeCount_;
        listeners_.notify();
    }

    /// The source of the newest drag, or of one that many before it, answers after all.
    void answer(bool files, const QByteArray& key = QByteArray(), int before = 0) {
        FakeDragOffer& drag = *drags_.end()[-1 - before];
        drag.list = listOf(files);
        drag.key = key;
        drag.listeners.notify();
        listeners_.notify();
    }

    /// How often the source of the newest drag was asked.
    [[nodiscard]] int questions() const { return drags_.back()->questions; }

    const QUrl file = QUrl(QStringLiteral("file:///home/someone/a%20file.txt"));

private:
    [[nodiscard]] std::optional<QByteArray> listOf(std::optional<bool> files) const {
        return files ? std::optional(*files ? file.toEncoded() : QByteArray()) : std::nullopt;
    }

    qint64 changeCount_ = 3;
    std::vector<std::shared_ptr<FakeDragOffer>> drags_ = {std::make_shared<FakeDragOffer>()};
    Listeners<> listeners_;
};

/// Answers on demand.
class FakeFileTransfer final : public FileTransfer {
public:
    [[nodiscard]] Handle retrieve(const QByteArray& key,
                                  std::function<void(const QList<QUrl>&)> done) override {
        keys.append(key);
        waiting_.push_back(std::make_shared<Done>(std::move(done)));
        return Handle([waits = waiting_.back()] { *waits = nullptr; });
    }

    /// The first question that waits.
    void answer(const QList<QUrl>& files) {
        const auto waits = waiting_.front();
        waiting_.pop_front();
        if (const auto done = std::exchange(*waits, nullptr)) {
            done(files);
        }
    }

    QList<QByteArray> keys;

private:
    using Done = std::function<void(const QList<QUrl>&)>;
    std::deque<std::shared_ptr<Done>> waiting_;
};

class FakeScreens final : public Screens {
public:
    [[nodiscard]] std::vector<Screen> all() const override { return screens; }

    [[nodiscard]] std::optional<Screen> main() const override {
        return screens.empty() ? std::nullopt : std::optional(screens.front());
    }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return listeners_.add(std::move(callback));
    }

    void change(std::vector<Screen> now) {
        screens = std::move(now);
        listeners_.notify();
    }

    std::vector<Screen> screens = {
        {QStringLiteral("one"), QRectF(0, 0, 1440, 900), QRectF(0, 28, 1440, 872), {}, {}}};

private:
    Listeners<> listeners_;
};

class FakeEdgeBarrier final : public EdgeBarrier {
public:
    [[nodiscard]] bool isTrusted() override { return trusted; }

    [[nodiscard]] Result<Handle> hold(QRectF strip) override {
        ++attempts;
        if (broken) {
            return failure(QStringLiteral("no barrier"));
        }
        held = strip;
        return Handle([this] { held.reset(); });
    }

    bool trusted = true;
    bool broken = false;
    int attempts = 0;
    std::optional<QRectF> held;
};

class FakeSessionLock final : public SessionLock {
public:
    [[nodiscard]] bool isLocked() const override { return locked_; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return listeners_.add(std::move(callback));
    }

    void setLocked(bool locked) {
        locked_ = locked;
        listeners_.notify();
    }

private:
    bool locked_ = false;
    Listeners<> listeners_;
};

class FakeInputGrab final : public InputGrab {
public:
    [[nodiscard]] Answer ask() override {
        return [this] {
            return held;
        };
    }

    [[nodiscard]] Handle onLikelyTaken(std::function<void()> callback) override {
        return likelyTaken.add(std::move(callback));
    }

    bool held = false;
    Listeners<> likelyTaken;
};

class FakePanelWindow final : public PanelWindow {
public:
    /// Every drag that enters it is the newest of `drags`.
    explicit FakePanelWindow(DragMonitor& drags) : drags_(drags) {}

    void place(const Screen& on, QSizeF wanted) override {
        screen = on.id;
        size = wanted;
        frame = QRectF(QPointF(on.frame.center().x() - size.width() / 2, on.frame.top()), size);
        isCovered = outline.boundingRect().size() == wanted;
    }

    void orderFront() override { shown = true; }

    void orderOut() override { shown = false; }

    void setOutline(const QPainterPath& path) override { outline = path; }

    [[nodiscard]] ShowThrough showThrough() const override { return ShowThrough::sharp; }

    [[nodiscard]] Handle onShowThroughChange(std::function<void()> callback) override {
        return listeners_.add(std::move(callback));
    }

    [[nodiscard]] bool isUnderPointer() const override { return underPointer_; }

    [[nodiscard]] Handle onUnderPointerChange(std::function<void()> callback) override {
        return underPointerListeners_.add(std::move(callback));
    }

    void setUnderPointer(bool under) {
        if (std::exchange(underPointer_, under) != under) {
            underPointerListeners_.notify();
        }
    }

    [[nodiscard]] std::shared_ptr<DragOffer> dragOffer() override { return drags_.newest(); }

    void requestFocus(const QByteArray& token) override {
        focused = true;
        activationToken = token;
    }

    void returnFocus() override { focused = false; }

    QString screen;
    QSizeF size;
    QRectF frame;
    bool isCovered = false; ///< By the outline, when it was placed.
    QPainterPath outline;
    bool shown = false;
    bool focused = false;
    QByteArray activationToken;

private:
    DragMonitor& drags_;
    bool underPointer_ = false;
    Listeners<> listeners_;
    Listeners<> underPointerListeners_;
};

} // namespace ravelo
