// Into real programs: a terminal and a text field.

#include "live/window/PanelFixture.h"
#include "platform/x11/keys/X11PasteKeys.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QTemporaryDir>

#include <X11/keysym.h>
#include <xcb/xtest.h>

namespace ravelo::live {
namespace {

using namespace Qt::StringLiterals;

/// Writes the text of its field at each change.
constexpr QLatin1StringView entryProgram(R"(
import gi
gi.require_version("Gtk", "3.0")
from gi.repository import GLib, Gtk
GLib.set_prgname("entry")
window, entry = Gtk.Window(), Gtk.Entry()
window.add(entry)
entry.connect("changed", lambda entry: print(entry.get_text(), flush=True))
window.connect("focus-in-event", lambda *_: print("focus", flush=True))
window.show_all()
Gtk.main()
)");

class PasteKeysTest : public PanelFixture {
public:
    void SetUp() override {
        show(u"DUMMY0"_s, {400, 200});
        auto contents = std::make_unique<QMimeData>();
        contents->setData(u"text/plain"_s, "pasted at once");
        QGuiApplication::clipboard()->setMimeData(contents.release());
    }

    /// As if the user had come from another window to the panel.
    PasteKeys::Target comeFrom(const QString& name) {
        const auto isFocused = [&] {
            const auto target = keys.target();
            return target && target->names.contains(name, Qt::CaseInsensitive);
        };
        EXPECT_TRUE(eventually(isFocused)) << qPrintable(name) << " does not get the focus";
        panel.requestFocus({});
        EXPECT_TRUE(eventually([&] { return server.focus() == id(); }));
        EXPECT_TRUE(isFocused()) << "it gets the focus back";
        const auto target = keys.target().value_or(PasteKeys::Target{});
        EXPECT_FALSE(keys.readiness(target).focused) << "while the panel has it";
        return target;
    }

    void paste(const PasteKeys::Target& target, PasteChord chord) {
        panel.returnFocus();
        EXPECT_TRUE(eventually([&] { return keys.readiness(target).isComplete(); }));
        keys.press(target, chord);
    }

    /// xdotool would switch back.
    void switchLayout() {
        const auto code = x11::KeyMap(*connection).codeOf(XK_ISO_Next_Group);
        EXPECT_NE(code, 0) << "no key switches the layout";
        for (const uint8_t type : {uint8_t(XCB_KEY_PRESS), uint8_t(XCB_KEY_RELEASE)}) {
            xcb_test_fake_input(server.get(), type, code, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
        }
        static_cast<void>(server.focus()); // At the answer it is done.
    }

    x11::X11PasteKeys keys{*connection, inputFocus};
    Client entry{u"/usr/bin/python3"_s, {u"-c"_s, entryProgram}};
};

TEST_F(PasteKeysTest, ATextFieldGetsTheText) {
    EXPECT_EQ(entry.readLine(), "focus");
    const auto target = comeFrom(u"entry"_s);
    paste(target, PasteChord::controlV);
    QByteArray line;
    EXPECT_TRUE(eventually([&] { return (line = entry.readLine()) != "focus"; }));
    EXPECT_EQ(line, "pasted at once");
}

TEST_F(PasteKeysTest, TheActiveLayoutSaysWhichKeyIsV) {
    struct Case {
        const char *layouts, *variants;
        int active;
        bool isTyped;
    };

    EXPECT_EQ(entry.readLine(), "focus");
    const auto target = comeFrom(u"entry"_s);
    QByteArray line;
    for (const auto& [layouts, variants, active, isTyped] :
         {Case{"us,us", ",dvorak", 0, true},
          {"us,us", ",dvorak", 1, true},
          {"us,tr", ",f", 1, true},
          {"us,ru", ",", 1, true},
          {"us,de,ru", ",,", 2, true},
          // The core protocol does not tell the third layout.
          {"us,us,us", ",dvorak,dvorak", 2, false}}) {
        EXPECT_TRUE(run(u"setxkbmap"_s, {u"-option"_s, u"grp:menu_toggle"_s, u"-layout"_s,
                                         QString::fromLatin1(layouts), u"-variant"_s,
                                         QString::fromLatin1(variants)}));
        for (int key = 0; key < active; ++key) {
            switchLayout();
        }
        paste(target, PasteChord::controlV);
        const auto before = line.size();
        EXPECT_TRUE(run(u"xdotool"_s, {u"key"_s, u"1"_s}));
        // The field asks for the clipboard, so the text may come after the 1.
        const qsizetype more = isTyped ? QByteArrayView("pasted at once1").size() : 1;
        EXPECT_TRUE(eventually([&] { return (line = entry.readLine()).size() == before + more; }))
            << layouts << ' ' << variants << " with layout " << active << ": " << line.constData();
    }
    EXPECT_TRUE(run(u"setxkbmap"_s, {u"-option"_s, u""_s, u"-layout"_s, u"us"_s}));
}

TEST_F(PasteKeysTest, ATerminalGetsTheText) {
    EXPECT_EQ(entry.readLine(), "focus");
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"line"_s);
    const Client terminal(u"xterm"_s,
                          {u"-e"_s, u"sh"_s, u"-c"_s, u"stty -icanon; cat > "_s + path});
    const auto target = comeFrom(u"xterm"_s);
    QFile file(path);
    ASSERT_TRUE(eventually([&] { return file.open(QIODevice::ReadOnly); }));
    paste(target, PasteChord::shiftInsert);
    QByteArray text;
    EXPECT_TRUE(eventually([&] { return (text += file.readAll()).size() >= 14; }));
    EXPECT_EQ(text, "pasted at once");
}

TEST_F(PasteKeysTest, NothingIsTypedUnlessAllIsTrue) {
    EXPECT_EQ(entry.readLine(), "focus");
    const auto target = comeFrom(u"entry"_s);
    panel.returnFocus();
    EXPECT_TRUE(eventually([&] { return keys.readiness(target).isComplete(); }));

    EXPECT_TRUE(run(u"xdotool"_s, {u"keydown"_s, u"Shift_L"_s}));
    EXPECT_FALSE(keys.readiness(target).modifiersUp);
    keys.press(target, PasteChord::controlV);
    EXPECT_TRUE(run(u"xdotool"_s, {u"keyup"_s, u"Shift_L"_s}));
    EXPECT_TRUE(keys.readiness(target).modifiersUp);

    xcb_grab_keyboard(server.get(), 0, server.root(), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC,
                      XCB_GRAB_MODE_ASYNC);
    static_cast<void>(server.focus()); // At the answer it is done.
    keys.press(target, PasteChord::controlV);
    static_cast<void>(keys.readiness(target)); // Likewise.
    xcb_ungrab_keyboard(server.get(), XCB_CURRENT_TIME);
    static_cast<void>(server.focus());
    while (const x11::Owned<xcb_generic_event_t> event{xcb_poll_for_event(server.get())}) {
        EXPECT_NE(event->response_type & 0x7f, XCB_KEY_PRESS) << "typed into a menu";
    }

    auto stranger =
        std::make_unique<OtherWindow>(OtherWindow::Kind::normal, QRect(300, 600, 300, 200));
    EXPECT_FALSE(keys.readiness(target).focused);
    keys.press(target, PasteChord::controlV);
    stranger.reset();
    // Whom a window manager gives the focus then is up to it.
    EXPECT_TRUE(run(u"xdotool"_s, {u"windowfocus"_s, QString::number(target.id)}));
    EXPECT_TRUE(eventually([&] { return keys.readiness(target).focused; }));

    EXPECT_TRUE(run(u"sh"_s, {u"-c"_s, u"echo foreign | xclip -selection clipboard"_s}));
    EXPECT_TRUE(eventually([&] { return !keys.readiness(target).ownsPasteboard; }));
    keys.press(target, PasteChord::controlV);

    // Each may repeat on a busy machine.
    EXPECT_TRUE(run(u"xdotool"_s, {u"key"_s, u"x"_s}));
    EXPECT_TRUE(run(u"xdotool"_s, {u"key"_s, u"y"_s}));
    QByteArray line;
    EXPECT_TRUE(eventually([&] { return (line = entry.readLine()).endsWith('y'); }));
    EXPECT_FALSE(line.contains("foreign") || line.contains("pasted")) << line.constData();
}

} // namespace
} // namespace ravelo::live
