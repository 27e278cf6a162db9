#pragma once

#include "fakes/FakeDesktopExtension.h"
#include "fakes/FakeNotifier.h"
#include "panel_fixture/PanelFixture.h"
#include "ui/settings/SettingsWindow.h"
#include "ui/setup/OnboardingController.h"

#include <QAccessible>
#include <QJsonArray>

namespace ravelo {

class Windows : public Panel {
public:
    QQuickItem* in(QQuickWindow* window, const QString& name) {
        QQuickItem* found = find(window->contentItem(), name);
        if (found == nullptr) {
            ADD_FAILURE() << "no item " << qPrintable(name);
            return &nothing;
        }
        return found;
    }

    void clickOn(QQuickWindow* window, const QString& name) {
        clickMiddle(*window, in(window, name));
    }

    /// Tab goes through these.
    void expectTabStops(QQuickWindow& window, std::initializer_list<const char*> names) {
        for (const char* next : names) {
            press(window, Qt::Key_Tab);
            EXPECT_TRUE(in(&window, QString::fromUtf8(next))->hasActiveFocus()) << next;
        }
    }

    [[nodiscard]] QJsonValue kept(const QString& key) const { return world.preferences.value(key); }

    int quits = 0;
    FakeGlobalShortcut shortcut;
    SettingsWindow settings{{{view.window()},
                             world.store,
                             world.settings,
                             [this] { ++quits; },
                             QStringLiteral("X11 (for a reason)"),
                             nullptr,
                             true,
                             true,
                             {},
                             &shortcut}};
    OnboardingController setup{{view.window()}, world.settings, world.screens, nullptr, &shortcut};
};

class Settings : public Windows {
public:
    Settings() {
        settings.show();
        window = settings.window();
        EXPECT_TRUE(eventually([this] { return window->isActive(); }));
    }

    QString label(const QString& row) {
        return in(window, row)->findChild<QQuickItem*>(u"label"_s)->property("text").toString();
    }

    /// `place` is from 0 to 1.
    QPointF on(const QString& slider, double place) {
        const QQuickItem* item = in(window, slider);
        return item->mapToScene({9 + place * (item->width() - 18), item->height() / 2});
    }

    void turn(const QString& slider, int angle) { turnWheel(*window, on(slider, 0.5), angle); }

    TitledWindow* window = nullptr;
};

} // namespace ravelo
