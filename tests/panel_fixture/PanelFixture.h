#pragma once

#include "fakes/UsageWorld.h"
#include "panel_fixture/Input.h"
#include "panel_fixture/Services.h"
#include "support/Eventually.h"
#include "ui/PanelView.h"

#include <gtest/gtest.h>

namespace ravelo {

using namespace Qt::StringLiterals;

inline constexpr Seconds untilBuilt(0.041);

inline StoreData threeClips() {
    StoreData data;
    data.clips = {clip(u"first"_s, Seconds(60)), clip(u"second"_s, Seconds(120)),
                  clip(u"third"_s, Seconds(180))};
    data.note = u"remember"_s;
    return data;
}

/// The whole panel on the in-memory platform.
class Panel : public testing::Test {
public:
    explicit Panel(const StoreData& data = threeClips()) : world(data) {
        view.load(services(world, plan.usage), QLocale(u"en_US"_s));
        view.window().resize(200, 12);
        view.window().show();
        view.window().requestActivate();
        EXPECT_TRUE(eventually([this] { return view.window().isActive(); }));
        world.scheduler.advance(untilBuilt);
    }

    /// Moves the pointer into the hot zone and on to the panel's centre.
    void open() {
        world.pointer.moveTo({720, 3});
        world.scheduler.advance(Seconds(0.02));
        ASSERT_TRUE(world.controller.isOpen());
        view.window().resize(world.controller.frame().size().toSize());
        world.pointer.moveTo({720, 300});
        world.scheduler.advance(Seconds(0.02));
        const QQuickItem* all = view.window().contentItem();
        ASSERT_TRUE(eventually([&] { return all->size() == world.controller.frame().size(); }));
        // The rows of a list are laid out with the next frame.
        view.window().grabWindow();
    }

    /// By key, so that the panel has the keyboard focus.
    void openByKey() {
        world.controller.toggle();
        view.window().resize(world.controller.frame().size().toSize());
        view.window().grabWindow();
    }

    void close() {
        world.controller.dismiss();
        view.window().resize(200, 12);
        world.pointer.moveTo({720, 600});
        world.scheduler.advance(Seconds(0.02));
    }

    /// Null if it does not exist or is hidden.
    QQuickItem* shown(const QString& name) {
        QCoreApplication::processEvents();
        QQuickItem* item = find(view.window().contentItem(), name);
        return item != nullptr && item->isVisible() ? item : nullptr;
    }

    /// Waits until it is visible.
    QQuickItem* item(const QString& name) {
        if (!eventually([&] { return shown(name) != nullptr; })) {
            ADD_FAILURE() << "not visible: " << qPrintable(name);
            return &nothing;
        }
        return shown(name);
    }

    /// The item with this name inside another one. Waits until that is visible and has it: one from
    /// before the panel was closed may still fade.
    QQuickItem* in(const QString& outer, const QString& name) {
        QQuickItem* found = nullptr;
        const auto look = [&] {
            QQuickItem* const around = shown(outer);
            found = around != nullptr ? find(around, name) : nullptr;
            return found != nullptr;
        };
        if (!eventually(look)) {
            ADD_FAILURE() << "not there: " << qPrintable(name) << " in " << qPrintable(outer);
            return &nothing;
        }
        return found;
    }

    void clickOn(const QString& name, Qt::MouseButton button = Qt::LeftButton) {
        clickMiddle(view.window(), item(name), button);
    }

    QString text(const QString& name) { return item(name)->property("text").toString(); }

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
               const QString& text = {}) {
        ravelo::press(view.window(), key, modifiers, text);
    }

    static void press(QQuickWindow& window, int key,
                      Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        ravelo::press(window, key, modifiers);
    }

    /// See Input.h.
    void pressKeys(const QString& keys) { ravelo::pressKeys(view.window(), keys); }

    /// A property of an item inside another one.
    QVariant property(const QString& outer, const QString& name, const char* property) {
        return in(outer, name)->property(property);
    }

    void clickIn(const QString& outer, const QString& name) {
        clickMiddle(view.window(), in(outer, name));
    }

    /// Closes and creates the content of the next opening.
    void rebuild() {
        close();
        world.scheduler.advance(untilBuilt);
        // The former content: outside an event loop nothing else deletes it.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void openTab(const QString& key) {
        world.settings.lastTab.set(key);
        rebuild();
        open();
    }

    void openSearch() {
        open();
        clickOn(u"searchInput"_s);
    }

    /// Moves the pointer over a list row.
    QQuickItem* hover(const QString& row) {
        QQuickItem* found = item(row);
        send(view.window(), QEvent::MouseMove, found->mapToScene({400, found->height() / 2}));
        return found;
    }

    /// The texts of all clips, with an asterisk if pinned.
    [[nodiscard]] QString clips() const {
        QStringList texts;
        for (const ClipItem& one : world.store.clips()) {
            texts.append(one.text + (one.pinned ? u"*"_s : QString()));
        }
        return texts.join(u' ');
    }

    [[nodiscard]] QString toast() { return view.features().toast.text(); }

    void type(const QString& letters) {
        for (const QChar letter : letters) {
            ravelo::press(view.window(), Qt::Key_unknown, Qt::NoModifier, letter);
        }
    }

    [[nodiscard]] QString pasteboardText() const {
        return QString::fromUtf8(world.pasteboard.bytes(plainTextType));
    }

    PanelWorld world;
    UsageWorld plan{world.scheduler};
    PanelView view;
    QQuickItem nothing;
};

} // namespace ravelo
