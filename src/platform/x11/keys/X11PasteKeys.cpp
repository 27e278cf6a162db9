#include "platform/x11/keys/X11PasteKeys.h"

#include "platform/x11/connection/Properties.h"

#include <QClipboard>
#include <QGuiApplication>

#include <X11/keysym.h>
#include <xcb/xtest.h>

#include <algorithm>

namespace ravelo::x11 {

namespace {

/// Toolkits focus windows within the one that has a class.
constexpr int deepest = 8;

bool hasXTest(Connection& connection) {
    const auto* extension = xcb_get_extension_data(connection.get(), &xcb_test_id);
    return extension != nullptr && extension->present != 0;
}

xcb_window_t parentOf(Connection& connection, xcb_window_t window) {
    const auto cookie = xcb_query_tree(connection.get(), window);
    const Owned<xcb_query_tree_reply_t> reply(
        xcb_query_tree_reply(connection.get(), cookie, nullptr));
    return reply ? reply->parent : XCB_NONE;
}

/// Makes the copied text the selected one, too; false if there is none. Qt has a connection of its
/// own and waits for the server here, so this must not happen while we have the server grabbed.
bool selectCopiedText() {
    QClipboard* clipboard = QGuiApplication::clipboard();
    const QString text = clipboard->ownsClipboard() ? clipboard->text() : QString();
    if (!text.isEmpty()) {
        clipboard->setText(text, QClipboard::Selection);
    }
    return !text.isEmpty();
}

/// A menu or launcher that has grabbed the keyboard would get our keys instead of the focused
/// window. Only while the server is grabbed does the answer stay true.
bool isKeyboardGrabbed(Connection& connection) {
    xcb_connection_t* xcb = connection.get();
    const auto cookie = xcb_grab_keyboard(xcb, 1, connection.root(), XCB_CURRENT_TIME,
                                          XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const Owned<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(xcb, cookie, nullptr));
    if (!reply || reply->status != XCB_GRAB_STATUS_SUCCESS) {
        return true;
    }
    xcb_ungrab_keyboard(xcb, XCB_CURRENT_TIME);
    return false;
}

} // namespace

X11PasteKeys::X11PasteKeys(Connection& connection, InputFocus& focus)
    : connection_(connection),
      focus_(focus),
      own_(OwnClient::ofQt()),
      hasXTest_(hasXTest(connection)) {}

std::optional<PasteKeys::Target> X11PasteKeys::target() {
    const auto window = focus_.next(own_);
    return window ? std::optional(Target{*window, namesOf(*window)}) : std::nullopt;
}

PasteKeys::Readiness X11PasteKeys::readiness(const Target& target) {
    return readiness(target, KeyMap(connection_));
}

PasteKeys::Readiness X11PasteKeys::readiness(const Target& target, const KeyMap& keys) {
    xcb_connection_t* xcb = connection_.get();
    const auto focusAsked = xcb_get_input_focus(xcb);
    const auto ownerAsked = xcb_get_selection_owner(xcb, connection_.atom("CLIPBOARD"));
    const auto downAsked = xcb_query_keymap(xcb);
    const auto pointerAsked = xcb_query_pointer(xcb, connection_.root());
    const Owned<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(xcb, focusAsked, nullptr));
    const Owned<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(xcb, ownerAsked, nullptr));
    const Owned<xcb_query_keymap_reply_t> down(xcb_query_keymap_reply(xcb, downAsked, nullptr));
    const Owned<xcb_query_pointer_reply_t> pointer(
        xcb_query_pointer_reply(xcb, pointerAsked, nullptr));
    const bool modified = !pointer || keys.hasModifier(pointer->mask);
    return {.modifiersUp = down && !keys.hasModifier(*down) && !modified,
            .ownsPasteboard = owner && own_.owns(owner->owner),
            .focused = focus && focus->focus == target.id};
}

void X11PasteKeys::press(const Target& target, PasteChord chord) {
    const KeyMap keys(connection_);
    if (!readiness(target, keys).isComplete() ||
        (chord == PasteChord::shiftInsert && !selectCopiedText())) {
        return;
    }
    xcb_grab_server(connection_.get());
    if (readiness(target, keys).isComplete() && !isKeyboardGrabbed(connection_)) {
        switch (chord) {
        case PasteChord::controlV:
            type(keys, XK_Control_L, XCB_NO_SYMBOL, XK_v);
            break;
        case PasteChord::controlShiftV:
            type(keys, XK_Control_L, XK_Shift_L, XK_v);
            break;
        case PasteChord::shiftInsert:
            type(keys, XK_Shift_L, XCB_NO_SYMBOL, XK_Insert);
            break;
        }
    }
    xcb_ungrab_server(connection_.get());
    xcb_flush(connection_.get());
}

/// Instance and class of the window or the one around it.
QStringList X11PasteKeys::namesOf(xcb_window_t window) {
    for (int depth = 0; depth < deepest && window != XCB_NONE && window != connection_.root();
         ++depth) {
        const QStringList names = PropertyRequest(connection_, window, XCB_ATOM_WM_CLASS).strings();
        if (!names.isEmpty()) {
            return names;
        }
        window = parentOf(connection_, window);
    }
    return {};
}

/// Nothing if the keyboard lacks one of the keys.
void X11PasteKeys::type(const KeyMap& keys, uint32_t modifier, uint32_t second, uint32_t key) {
    const auto cookie = xcb_query_pointer(connection_.get(), connection_.root());
    const Owned<xcb_query_pointer_reply_t> pointer(
        xcb_query_pointer_reply(connection_.get(), cookie, nullptr));
    const uint16_t state = pointer ? pointer->mask : 0;
    std::vector<xcb_keycode_t> codes{keys.codeOf(modifier, state), keys.codeOf(key, state)};
    if (second != XCB_NO_SYMBOL) {
        codes.insert(codes.begin() + 1, keys.codeOf(second, state));
    }
    if (std::ranges::find(codes, 0) != codes.end()) {
        return;
    }
    const auto send = [this](uint8_t type, xcb_keycode_t code) {
        xcb_test_fake_input(connection_.get(), type, code, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
    };
    for (const xcb_keycode_t code : codes) {
        send(XCB_KEY_PRESS, code);
    }
    std::ranges::for_each(codes.rbegin(), codes.rend(),
                          [&](xcb_keycode_t code) { send(XCB_KEY_RELEASE, code); });
}

} // namespace ravelo::x11
