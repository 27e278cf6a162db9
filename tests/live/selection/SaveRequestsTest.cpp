#include "live/selection/PasteboardFixture.h"
#include "platform/x11/connection/Events.h"

#include <functional>
#include <utility>

namespace ravelo::x11 {
namespace {

using live::offering;
using namespace Qt::StringLiterals;

/// A program that asks the clipboard manager for something, and others that want to be it.
class Asker {
public:
    void ask(const QByteArray& target, const QByteArray& property = "ANSWER") {
        xcb_convert_selection(
            xcb(), window_, connection_->atom("CLIPBOARD_MANAGER"), connection_->atom(target),
            property.isEmpty() ? XCB_NONE : connection_->atom(property), XCB_CURRENT_TIME);
        xcb_flush(xcb());
    }

    /// The name of the property with the answer, "refused", or empty if there is none yet.
    QByteArray answer() {
        while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(xcb())}) {
            if (const auto* notice =
                    eventAs<xcb_selection_notify_event_t>(*event, XCB_SELECTION_NOTIFY)) {
                return notice->property == XCB_NONE
                           ? "refused"
                           : connection_->names({&notice->property, 1}).front();
            }
        }
        return {};
    }

    QByteArray waitForAnswer() {
        QByteArray name;
        EXPECT_TRUE(eventually([&] { return !(name = answer()).isEmpty(); })) << "no answer";
        return name;
    }

    /// The type and the atoms of a property.
    std::pair<QByteArray, QList<QByteArray>> property(const QByteArray& name) {
        const auto cookie = xcb_get_property(xcb(), 0, window_, connection_->atom(name),
                                             XCB_GET_PROPERTY_TYPE_ANY, 0, 64);
        const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(xcb(), cookie, nullptr));
        const auto* atoms = static_cast<const xcb_atom_t*>(xcb_get_property_value(reply.get()));
        QList<QByteArray> names;
        for (const QByteArray& atom : connection_->names({atoms, reply->value_len})) {
            names.append(atom);
        }
        return {connection_->names({&reply->type, 1}).front(), names};
    }

    void take() { set(window_); }

    void giveUp() { set(XCB_NONE); }

    [[nodiscard]] bool isManager() {
        const auto cookie = xcb_get_selection_owner(xcb(), connection_->atom("CLIPBOARD_MANAGER"));
        const Owned<xcb_get_selection_owner_reply_t> reply(
            xcb_get_selection_owner_reply(xcb(), cookie, nullptr));
        return reply->owner == window_;
    }

private:
    [[nodiscard]] xcb_connection_t* xcb() { return connection_->get(); }

    void set(xcb_window_t owner) {
        xcb_set_selection_owner(xcb(), owner, connection_->atom("CLIPBOARD_MANAGER"),
                                XCB_CURRENT_TIME);
        xcb_flush(xcb());
    }

    std::unique_ptr<Connection> connection_ = std::move(Connection::create().value());
    xcb_window_t window_ = [this] {
        const xcb_window_t window = xcb_generate_id(connection_->get());
        xcb_create_window(connection_->get(), 0, window, connection_->root(), 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        return window;
    }();
};

class SaveRequestsTest : public X11PasteboardTest {};

TEST_F(SaveRequestsTest, answersAProgramWaitingForASave) {
    Asker asker;
    int asked = 0;
    const Handle listening = board().onSaveRequest([&] { ++asked; });
    const auto owner = own(u"answer"_s, {offering(u"STRING"_s, "x")});
    asker.ask("SAVE_TARGETS");
    ASSERT_TRUE(eventually([&] { return asked == 1; })) << "not notified";
    EXPECT_EQ(asker.answer(), "") << "answered for us";
    board().answerSaveRequests(board().changeCount(), SaveAnswer::saved);
    EXPECT_EQ(asker.waitForAnswer(), "ANSWER");
    EXPECT_EQ(asker.property("ANSWER").first, "NULL");

    asker.ask("SAVE_TARGETS", {}); // As old clients do.
    ASSERT_TRUE(eventually([&] { return asked == 2; }));
    board().answerSaveRequests(board().changeCount(), SaveAnswer::saved);
    EXPECT_EQ(asker.waitForAnswer(), "SAVE_TARGETS");

    asker.ask("SAVE_TARGETS");
    ASSERT_TRUE(eventually([&] { return asked == 3; }));
    board().answerSaveRequests(board().changeCount() - 1, SaveAnswer::saved); // Comes too late.
    board().answerSaveRequests(board().changeCount(), SaveAnswer::refused);
    EXPECT_EQ(asker.waitForAnswer(), "refused");

    asker.ask("SAVE_TARGETS");
    ASSERT_TRUE(eventually([&] { return asked == 4; }));
    const auto next = own(u"answer"_s, {offering(u"STRING"_s, "y")});
    EXPECT_EQ(asker.waitForAnswer(), "refused") << "what was to be saved is gone";

    asker.ask("TARGETS");
    EXPECT_EQ(asker.waitForAnswer(), "ANSWER");
    EXPECT_TRUE(asker.property("ANSWER").second.contains("SAVE_TARGETS"));
    asker.ask("STRING");
    EXPECT_EQ(asker.waitForAnswer(), "refused");
    EXPECT_EQ(asked, 4);
}

TEST_F(SaveRequestsTest, isTheManagerOnlyIfThereIsNoOther) {
    Asker other;
    Asker asker;
    other.take();
    for (const auto& end : std::initializer_list<std::function<void()>>{[&] { other.giveUp(); },
                                                                        [&] {
                                                                            other = {};
                                                                        }}) {
        EXPECT_TRUE(other.isManager());
        end();
        asker.ask("TARGETS"); // The server refuses it if there is no manager.
        EXPECT_TRUE(eventually([&] {
            const QByteArray answer = asker.answer();
            if (answer == "refused") {
                asker.ask("TARGETS");
            }
            return answer == "ANSWER";
        })) << "there is no manager";
        other.take();
    }
}

} // namespace
} // namespace ravelo::x11
