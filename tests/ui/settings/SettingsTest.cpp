#include "../WindowsFixture.h"

namespace ravelo {

namespace {

TEST_F(Settings, TheKeyboardSetsEachControlAtOnce) {
    expectTabStops(*window, {"tab0", "launchAtLogin", "fullBlack", "darkness", "panelWidth",
                             "clearHistory", "quit", "close", "tab0"});

    struct Case {
        QString control;
        int key;
        QString preference;
        QJsonValue kept;
    };

    const Case cases[] = {
        {u"fullBlack"_s, Qt::Key_Space, u"fullBlack"_s, true},
        {u"fullBlack"_s, Qt::Key_Return, u"fullBlack"_s, false},
        {u"darkness"_s, Qt::Key_Right, u"bgOpacity"_s, 0.561},
        {u"darkness"_s, Qt::Key_PageDown, u"bgOpacity"_s, 0.451},
        {u"darkness"_s, Qt::Key_Home, u"bgOpacity"_s, 0.3},
        {u"darkness"_s, Qt::Key_Left, u"bgOpacity"_s, 0.3},
        {u"darkness"_s, Qt::Key_End, u"bgOpacity"_s, 0.85},
        {u"darkness"_s, Qt::Key_Up, u"bgOpacity"_s, 0.85},
        {u"panelWidth"_s, Qt::Key_Right, u"panelWidth"_s, 930},
        {u"panelWidth"_s, Qt::Key_Down, u"panelWidth"_s, 920},
        {u"panelWidth"_s, Qt::Key_PageUp, u"panelWidth"_s, 1020},
        {u"panelWidth"_s, Qt::Key_End, u"panelWidth"_s, 1100},
        {u"panelWidth"_s, Qt::Key_Right, u"panelWidth"_s, 1100},
        {u"panelWidth"_s, Qt::Key_Home, u"panelWidth"_s, 560},
        {u"panelWidth"_s, Qt::Key_Left, u"panelWidth"_s, 560},
    };
    EXPECT_TRUE(kept(u"panelWidth"_s).isUndefined()) << "showing it must not write";
    for (const Case& c : cases) {
        in(window, c.control)->forceActiveFocus();
        press(*window, c.key);
        EXPECT_NEAR(kept(c.preference).toDouble(), c.kept.toDouble(), 1e-9)
            << qPrintable(c.control) << " " << c.key;
        EXPECT_EQ(kept(c.preference).toBool(), c.kept.toBool());
    }
    in(window, u"launchAtLogin"_s)->forceActiveFocus();
    press(*window, Qt::Key_Space);
    EXPECT_TRUE(world.loginItem.enabled);
    press(*window, Qt::Key_Space);
    EXPECT_FALSE(world.loginItem.enabled);
}

TEST_F(Settings, ScrollByKeys) {
    press(*window, Qt::Key_3, Qt::ControlModifier);
    QQuickItem* const last = in(window, u"eraseEverything"_s);
    const auto place = [last] {
        return last->mapToScene({}).y();
    };
    const double below = place();
    ASSERT_GT(below, window->height());
    for (const QString& focus : {u"tab2"_s, u"exportSnippets"_s}) {
        in(window, focus)->forceActiveFocus();
        press(*window, Qt::Key_Home);
        EXPECT_EQ(place(), below) << qPrintable(focus);
        press(*window, Qt::Key_Down);
        const double lower = place();
        EXPECT_LT(lower, below) << qPrintable(focus);
        press(*window, Qt::Key_PageDown);
        EXPECT_LT(place(), lower) << qPrintable(focus);
        press(*window, Qt::Key_End);
        EXPECT_LT(place(), window->height() - 58) << qPrintable(focus);
    }
}

TEST_F(Settings, AShortcutIsRecorded) {
    press(*window, Qt::Key_4, Qt::ControlModifier);
    const QQuickItem* field = in(window, u"shortcut"_s);
    const auto record = [&](int key, Qt::KeyboardModifiers modifiers) {
        in(window, u"shortcut"_s)->forceActiveFocus();
        press(*window, Qt::Key_Return);
        EXPECT_TRUE(shortcut.suspended) << "the present keys would open the panel";
        press(*window, key, modifiers);
    };
    record(Qt::Key_V, Qt::MetaModifier);
    EXPECT_EQ(kept(u"shortcut"_s), u"Super+V"_s);
    EXPECT_FALSE(shortcut.suspended);
    EXPECT_EQ(find(field, u"caps"_s)->property("caps").toStringList(),
              (QStringList{u"Super"_s, u"V"_s}));

    record(Qt::Key_Super_L, Qt::MetaModifier);
    EXPECT_TRUE(in(window, u"shortcutNote"_s)->property("text").toString().startsWith(u"Escape"_s))
        << "a modifier alone is no mistake";
    press(*window, Qt::Key_B, Qt::NoModifier);
    EXPECT_TRUE(shortcut.suspended) << "a letter alone is no shortcut";
    press(*window, Qt::Key_V, Qt::ControlModifier);
    EXPECT_TRUE(
        in(window, u"shortcutNote"_s)->property("text").toString().startsWith(u"Programs copy"_s))
        << "it would end pasting everywhere";
    clickOn(window, u"shortcut"_s);
    EXPECT_TRUE(shortcut.suspended) << "while others are still recorded";
    press(*window, Qt::Key_Escape);
    EXPECT_FALSE(shortcut.suspended);
    EXPECT_TRUE(window->isVisible()) << "Escape cancels the recording only";
    EXPECT_EQ(kept(u"shortcut"_s), u"Super+V"_s);

    shortcut.called = u"Meta+J"_s;
    shortcut.become(GlobalShortcut::State::registered);
    EXPECT_TRUE(in(window, u"shortcutNote"_s)->property("text").toString().contains(u"Meta+J"_s))
        << "the user has changed them in the desktop's settings";
    shortcut.become(GlobalShortcut::State::taken);
    EXPECT_TRUE(in(window, u"shortcutNote"_s)
                    ->property("text")
                    .toString()
                    .startsWith(u"Taken by another program"_s));
    record(Qt::Key_Backspace, Qt::NoModifier);
    EXPECT_EQ(kept(u"shortcut"_s), QString());

    EXPECT_FALSE(in(window, u"copyLine"_s)->isVisible());
    shortcut.become(GlobalShortcut::State::impossible);
    EXPECT_TRUE(in(window, u"copyLine"_s)->isVisible());
    EXPECT_EQ(in(window, u"shortcutLine"_s)->property("text"), u"ravelo --toggle"_s);
}

TEST(Shortcut, HasALineForTheCompositorsConfiguration) {
    const std::pair<const char*, const char*> cases[] = {
        {"sway", "bindsym Mod4+Shift+v exec ravelo --toggle"},
        {"Hyprland", "bind = SUPER SHIFT, v, exec, ravelo --toggle"},
        {"labwc:wlroots", "<keybind key=\"W-S-v\"><action name=\"Execute\">"
                          "<command>ravelo --toggle</command></action></keybind>"},
        {"ubuntu:GNOME", "ravelo --toggle"},
        {"", "ravelo --toggle"},
    };
    for (const auto& [desktop, line] : cases) {
        EXPECT_EQ(shortcutLine(QString::fromLatin1(desktop), u"Super+Shift+V"_s),
                  QString::fromLatin1(line));
    }
}

TEST_F(Settings, TheOtherPagesAreSavedAtOnce) {
    struct Case {
        int page;
        QString control;
        int key;
        QJsonValue kept;
    };

    const Case cases[] = {
        {Qt::Key_2, u"newestFirst"_s, Qt::Key_Space, true},
        {Qt::Key_2, u"newestFirst"_s, Qt::Key_Space, false},
        {Qt::Key_2, u"keepTextsExactly"_s, Qt::Key_Return, true},
        {Qt::Key_2, u"keyLikeWords"_s, Qt::Key_Space, true},
        {Qt::Key_2, u"keepSelectedText"_s, Qt::Key_Space, true},
        {Qt::Key_2, u"showOrigins"_s, Qt::Key_Space, true},
        {Qt::Key_2, u"forgetSecrets"_s, Qt::Key_Up, 1},
        {Qt::Key_2, u"forgetSecrets"_s, Qt::Key_Up, 0},
        {Qt::Key_3, u"historyLength"_s, Qt::Key_Down, 200},
        {Qt::Key_3, u"historyLength"_s, Qt::Key_Down, 1000},
        {Qt::Key_3, u"historyLength"_s, Qt::Key_Down, 1000},
        {Qt::Key_3, u"historyLength"_s, Qt::Key_Up, 200},
        {Qt::Key_3, u"keepDays"_s, Qt::Key_Down, 30},
        {Qt::Key_4, u"returnPastes"_s, Qt::Key_Space, true},
        {Qt::Key_4, u"joinWith"_s, Qt::Key_Down, u"space"_s},
        {Qt::Key_5, u"hideClaudeCode"_s, Qt::Key_Space, true},
        {Qt::Key_5, u"showPeakHours"_s, Qt::Key_Space, false},
        {Qt::Key_5, u"keepSession"_s, Qt::Key_Space, true},
        {Qt::Key_5, u"handedOverFirst"_s, Qt::Key_Space, true},
        {Qt::Key_5, u"notifyTimer"_s, Qt::Key_Space, true},
        {Qt::Key_5, u"notifyFiles"_s, Qt::Key_Space, true},
        {Qt::Key_5, u"notifySaving"_s, Qt::Key_Space, true},
        {Qt::Key_5, u"notifyPlan"_s, Qt::Key_Space, true},
        {Qt::Key_5, u"language"_s, Qt::Key_Down, u"en"_s},
    };
    for (const Case& c : cases) {
        press(*window, c.page, Qt::ControlModifier);
        in(window, c.control)->forceActiveFocus();
        press(*window, c.key);
        EXPECT_EQ(kept(c.control), c.kept) << qPrintable(c.control);
    }
    EXPECT_EQ(world.settings.historyLength(), 200);

    press(*window, Qt::Key_3, Qt::ControlModifier);

    struct Choice {
        QString control;
        int kept;
    };

    const Choice choices[] = {{u"historyLength"_s, 1000},
                              {u"keepDays"_s, 7},
                              {u"textLimit"_s, 64},
                              {u"imageLimit"_s, 512}};
    for (const Choice& choice : choices) { // The third of each menu.
        clickOn(window, choice.control);
        ravelo::pressKeys(*window, u"Down Down Down Return"_s);
        EXPECT_EQ(kept(choice.control), choice.kept) << qPrintable(choice.control);
    }
}

TEST_F(Settings, SayIfTheDesktopShowsNoNotifications) {
    FakeNotifier notifier;
    SettingsWindow::Subjects subjects{{view.window()}, world.store, world.settings, [] {}, {}};
    subjects.notifier = &notifier;
    SettingsWindow own(subjects);
    for (const bool available : {true, false}) {
        notifier.available = available;
        own.show();
        ASSERT_TRUE(eventually([&] { return own.window()->isActive(); }));
        press(*own.window(), Qt::Key_5, Qt::ControlModifier);
        const QQuickItem* row = in(own.window(), u"notifyTimer"_s)->parentItem()->parentItem();
        const QString note = row->findChild<QQuickItem*>(u"note"_s)->property("text").toString();
        EXPECT_EQ(note.isEmpty(), available) << qPrintable(note);
        own.window()->close();
    }
}

TEST_F(Settings, SayWhyTheyOnlyCopyAndAllowTheDesktopToAskAgain) {
    FakePasteKeys keys;
    SettingsWindow::Subjects subjects{{view.window()}, world.store, world.settings, [] {}, {}};
    subjects.pasteKeys = &keys;
    SettingsWindow own(subjects);
    own.show();
    ASSERT_TRUE(eventually([&] { return own.window()->isActive(); }));
    press(*own.window(), Qt::Key_4, Qt::ControlModifier);

    struct Row {
        TypingPermission permission;
        QString note; ///< Its beginning.
        bool asksAgain;
    };

    const Row rows[] = {
        {TypingPermission::unasked, u"Into the window you came from. The desktop asks"_s, false},
        {TypingPermission::unavailable, u"Only copies: the desktop did not answer"_s, false},
        {TypingPermission::given, u"Into the window you came from. Shift+Return"_s, false},
        {TypingPermission::refused, u"You did not allow"_s, true},
    };
    const QQuickItem* row = in(own.window(), u"returnPastes"_s)->parentItem()->parentItem();
    for (const Row& one : rows) {
        keys.become(one.permission);
        const QString note = row->findChild<QQuickItem*>(u"note"_s)->property("text").toString();
        EXPECT_TRUE(note.startsWith(one.note)) << qPrintable(note);
        EXPECT_EQ(in(own.window(), u"askAgain"_s)->isVisible(), one.asksAgain) << qPrintable(note);
    }
    clickOn(own.window(), u"askAgain"_s);
    EXPECT_EQ(keys.allowed, TypingPermission::unasked);
    EXPECT_FALSE(in(own.window(), u"askAgain"_s)->isVisible());
    own.window()->close();
}

TEST_F(Settings, IgnoresProgramsAndPatterns) {
    const auto type = [this](const QString& field, const QString& typed) {
        in(window, field)->forceActiveFocus();
        for (const QChar letter : typed) {
            ravelo::press(*window, Qt::Key_unknown, Qt::NoModifier, letter);
        }
    };
    const auto says = [this](const QString& line) {
        return in(window, line)->property("text").toString();
    };
    press(*window, Qt::Key_2, Qt::ControlModifier);
    for (const QString& name : {u"KeePassXC"_s, u"Secrets"_s, u"keepassxc"_s}) {
        type(u"addProgram"_s, name);
        press(*window, Qt::Key_Return);
    }
    EXPECT_EQ(kept(u"ignoredPrograms"_s), (QJsonArray{u"KeePassXC"_s, u"Secrets"_s}));
    in(window, u"program0"_s)->forceActiveFocus();
    press(*window, Qt::Key_Delete);
    EXPECT_EQ(kept(u"ignoredPrograms"_s), QJsonArray{u"Secrets"_s});

    type(u"pattern0"_s, u"^IBAN"_s);
    press(*window, Qt::Key_Return);
    type(u"pattern1"_s, u"(a"_s);
    press(*window, Qt::Key_Return);
    EXPECT_EQ(says(u"mistake1"_s), u"A bracket is not closed, at character 1"_s);
    EXPECT_EQ(kept(u"ignoredPatterns"_s), QJsonArray{u"^IBAN"_s}) << "a mistake is not saved";
    type(u"pattern1"_s, u")"_s);
    press(*window, Qt::Key_Return);
    EXPECT_EQ(kept(u"ignoredPatterns"_s), (QJsonArray{u"^IBAN"_s, u"(a)"_s}));
    EXPECT_EQ(says(u"trial"_s), QString());
    type(u"triedText"_s, u"b"_s);
    EXPECT_EQ(says(u"trial"_s), u"Would be kept"_s);
    type(u"triedText"_s, u"a"_s);
    EXPECT_EQ(says(u"trial"_s), u"Would be ignored, by the second pattern"_s);
    in(window, u"removePattern0"_s)->forceActiveFocus();
    press(*window, Qt::Key_Space);
    EXPECT_EQ(kept(u"ignoredPatterns"_s), QJsonArray{u"(a)"_s});
    EXPECT_EQ(in(window, u"pattern0"_s)->property("text"), u"(a)"_s);
}

TEST_F(Settings, TheMouseSetsTheSame) {
    clickOn(window, u"fullBlack"_s);
    EXPECT_EQ(kept(u"fullBlack"_s), true);
    clickOn(window, u"launchAtLogin"_s);
    EXPECT_TRUE(world.loginItem.enabled);

    click(*window, on(u"darkness"_s, 0.8));
    EXPECT_NEAR(kept(u"bgOpacity"_s).toDouble(), 0.74, 1e-9);
    turn(u"panelWidth"_s, 120);
    EXPECT_TRUE(kept(u"panelWidth"_s).isUndefined()) << "only the page is scrolled";
    click(*window, on(u"panelWidth"_s, 0.25));
    EXPECT_EQ(kept(u"panelWidth"_s), 700) << "695 is no step";
    EXPECT_EQ(label(u"widthRow"_s), u"Width: 700"_s);

    // Pressed beside its centre the knob does not jump; it follows beyond the ends.
    const QPointF held = on(u"panelWidth"_s, 140.0 / 540) + QPointF(5, 0);
    send(*window, QEvent::MouseMove, held);
    send(*window, QEvent::MouseButtonPress, held);
    EXPECT_EQ(kept(u"panelWidth"_s), 700);
    for (const auto& [x, width] : {std::pair(0.5, 830), {2.0, 1100}, {-2.0, 560}}) {
        QMouseEvent drag(QEvent::MouseMove, on(u"panelWidth"_s, x) + QPointF(5, 0),
                         window->mapToGlobal(held), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &drag);
        EXPECT_EQ(kept(u"panelWidth"_s), width);
    }
    send(*window, QEvent::MouseButtonRelease, held);

    click(*window, on(u"panelWidth"_s, 0));
    turn(u"panelWidth"_s, 60); // Half a notch, as touchpads send them.
    EXPECT_EQ(kept(u"panelWidth"_s), 560);
    turn(u"panelWidth"_s, 60);
    EXPECT_EQ(kept(u"panelWidth"_s), 570);
    turn(u"panelWidth"_s, -240);
    EXPECT_EQ(kept(u"panelWidth"_s), 560);
}

TEST_F(Settings, AnAssistiveProgramSetsTheSame) {
    const auto accessible = [this](const QString& name) {
        return QAccessible::queryAccessibleInterface(in(window, name));
    };
    QAccessibleInterface* width = accessible(u"panelWidth"_s);
    EXPECT_EQ(width->role(), QAccessible::Slider);
    EXPECT_EQ(width->text(QAccessible::Name), u"Width"_s);
    for (const auto& [wanted, got] : {std::pair(703.0, 700), {5000.0, 1100}, {5000.0, 1100}}) {
        width->valueInterface()->setCurrentValue(wanted);
        EXPECT_EQ(kept(u"panelWidth"_s), got);
        EXPECT_EQ(width->valueInterface()->currentValue(), got);
    }
    QAccessibleInterface* black = accessible(u"fullBlack"_s);
    EXPECT_EQ(black->role(), QAccessible::CheckBox);
    EXPECT_FALSE(black->state().checked);
    black->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(kept(u"fullBlack"_s), true);
    EXPECT_TRUE(black->state().checked);
}

TEST_F(Settings, FollowsChangesAndNumbersBeyondASlidersRange) {
    const auto place = [this](const QString& slider) {
        return in(window, slider)->findChild<QQuickItem*>(u"knob"_s)->x();
    };
    for (const auto& [width, left] :
         {std::pair(560.0, 0.0), {1100.0, 182.0}, {200.0, 0.0}, {10000.0, 182.0}, {830.0, 91.0}}) {
        world.settings.panelWidth.set(width);
        EXPECT_EQ(label(u"widthRow"_s), u"Width: "_s + QString::number(width, 'f', 0));
        EXPECT_NEAR(place(u"panelWidth"_s), left, 1e-6);
        EXPECT_EQ(kept(u"panelWidth"_s), width) << "showing it must not change it";
    }
    world.settings.bgOpacity.set(1);
    EXPECT_EQ(place(u"darkness"_s), 182);
    in(window, u"darkness"_s)->forceActiveFocus();
    press(*window, Qt::Key_Left);
    EXPECT_EQ(kept(u"bgOpacity"_s), 0.85);
}

TEST_F(Settings, ClearsUnpinnedClipsAtOnce) {
    EXPECT_EQ(label(u"clips"_s), u"3 items stored"_s);
    world.store.togglePin(world.store.clips()[1].id);
    clickOn(window, u"clearHistory"_s);
    ASSERT_EQ(world.store.clips().size(), 1);
    EXPECT_EQ(world.store.clips()[0].text, u"second"_s);
    EXPECT_EQ(label(u"clips"_s), u"1 item stored"_s);
}

TEST_F(Settings, IsHiddenWhenClosedAndReused) {
    EXPECT_EQ(window->title(), u"Ravelo Settings"_s);
    EXPECT_EQ(window->size(), QSize(460, 600));
    for (const bool byKey : {true, false}) {
        SCOPED_TRACE(byKey);
        byKey ? press(*window, Qt::Key_Escape) : void(window->close());
        EXPECT_FALSE(window->isVisible());
        EXPECT_EQ(quits, 0);
        settings.show();
        EXPECT_EQ(settings.window(), window);
        EXPECT_TRUE(eventually([this] { return window->isActive(); }));
    }
    clickOn(window, u"quit"_s);
    EXPECT_EQ(quits, 1);
}

TEST_F(Settings, RefuseABadFolderOfASecondAccount) {
    SettingsWindow::Subjects subjects{{view.window()}, world.store, world.settings, [] {}, {}};
    subjects.checkAccount = [](const QString& folder, const auto& done) {
        done(folder == u"/gone"_s ? u"No such folder"_s : QString());
    };
    SettingsWindow checked(subjects);
    checked.chooseSecondAccount(u"/home/u/second"_s);
    EXPECT_EQ(world.settings.secondAccount(), u"/home/u/second"_s);
    EXPECT_EQ(checked.accountProblem(), QString());
    checked.chooseSecondAccount(u"/gone"_s);
    EXPECT_EQ(world.settings.secondAccount(), u"/home/u/second"_s) << "the former one stays";
    EXPECT_EQ(checked.accountProblem(), u"No such folder"_s);
}

} // namespace

} // namespace ravelo
