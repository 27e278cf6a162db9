#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <poll.h>
#include <unistd.h>

// Another program that owns a selection, well- or ill-behaved, for the tests to read from:
//
//     SelectionOwner SELECTION BEHAVIOUR [TARGET=hex:BYTES | TARGET=fill:COUNT]...
//                    [onto:WINDOW | refusal:WINDOW]
//
// It takes the selection and prints the monotonic time in nanoseconds of doing so; at each line on
// its standard input it takes it again, with the number of the taking behind each value that is not
// filled; at the end of the input it ends. With a window it then drags over the middle of its upper
// edge and drops (XDND 5), meaning a move, and prints the action of the answers to that; with
// "refusal" it drops only once it is refused, all the same.

namespace {

using Bytes = std::vector<uint8_t>;

/// Larger values go in pieces of this size (ICCCM 2.7.2).
constexpr std::size_t pieceSize = 1 << 18;

struct Transfer {
    xcb_window_t requestor;
    xcb_atom_t property;
    xcb_atom_t target;
    Bytes bytes;
    std::size_t sent = 0;
    bool ended = false;
};

class Owner {
public:
    Owner(const char* selection, std::string behaviour)
        : xcb_(xcb_connect(nullptr, nullptr)), behaviour_(std::move(behaviour)) {
        if (xcb_connection_has_error(xcb_) != 0) {
            std::exit(2);
        }
        selection_ = atom(selection);
        targets_ = atom("TARGETS");
        incr_ = atom("INCR");
        window_ = xcb_generate_id(xcb_);
        const auto* screen = xcb_setup_roots_iterator(xcb_get_setup(xcb_)).data;
        xcb_create_window(xcb_, 0, window_, screen->root, 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    }

    void offer(const std::string& argument) {
        const auto split = argument.find("=hex:");
        if (split != std::string::npos) {
            Bytes bytes;
            for (std::size_t at = split + 5; at + 1 < argument.size(); at += 2) {
                const std::string digits = argument.substr(at, 2);
                bytes.push_back(static_cast<uint8_t>(std::stoul(digits, nullptr, 16)));
            }
            values_[atom(argument.substr(0, split).c_str())] = {bytes, true};
        } else if (const auto fill = argument.find("=fill:"); fill != std::string::npos) {
            Bytes bytes(std::stoul(argument.substr(fill + 6)));
            for (std::size_t at = 0; at < bytes.size(); ++at) {
                bytes[at] = static_cast<uint8_t>(at % 251);
            }
            values_[atom(argument.substr(0, fill).c_str())] = {bytes, false};
        }
    }

    void take() {
        ++taking_;
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        xcb_set_selection_owner(xcb_, window_, selection_, XCB_CURRENT_TIME);
        // The answer says that the server has done it.
        std::free(xcb_get_selection_owner_reply(xcb_, xcb_get_selection_owner(xcb_, selection_),
                                                nullptr));
        std::printf("%lld\n",
                    static_cast<long long>(
                        std::chrono::duration_cast<std::chrono::nanoseconds>(now).count()));
        std::fflush(stdout);
    }

    /// The drag enters the window; the rest follows the answers.
    void drag(xcb_window_t onto, bool untilRefused) {
        untilRefused_ = untilRefused;
        const auto root = xcb_setup_roots_iterator(xcb_get_setup(xcb_)).data->root;
        const auto asked = xcb_translate_coordinates(xcb_, onto, root, 0, 0);
        const auto size = xcb_get_geometry(xcb_, onto);
        auto* corner = xcb_translate_coordinates_reply(xcb_, asked, nullptr);
        auto* area = xcb_get_geometry_reply(xcb_, size, nullptr);
        place_ =
            static_cast<uint32_t>((corner->dst_x + area->width / 2) << 16 | (corner->dst_y + 2));
        std::free(corner);
        std::free(area);
        onto_ = onto;
        const uint32_t version = 5;
        xcb_atom_t types[3] = {};
        std::size_t count = 0;
        for (auto value = values_.begin(); value != values_.end() && count < 3; ++value) {
            types[count++] = value->first;
        }
        send("XdndEnter", version << 24, types[0], types[1], types[2]);
        move();
    }

    void run() {
        for (;;) {
            handleEvents();
            xcb_flush(xcb_);
            pollfd waits[] = {{xcb_get_file_descriptor(xcb_), POLLIN, 0},
                              {STDIN_FILENO, POLLIN, 0}};
            poll(waits, 2, -1);
            if (waits[1].revents != 0) {
                char byte = 0;
                if (read(STDIN_FILENO, &byte, 1) != 1) {
                    return;
                }
                take();
            }
            if (xcb_connection_has_error(xcb_) != 0) {
                return;
            }
        }
    }

private:
    void move() { send("XdndPosition", 0, place_, XCB_CURRENT_TIME, atom("XdndActionMove")); }

    struct Value {
        Bytes bytes;
        bool numbered = false;
    };

    [[nodiscard]] bool isEndless() const {
        return behaviour_ == "claimsHuge" || behaviour_ == "claimsSmall";
    }

    xcb_atom_t atom(const char* name) {
        auto* reply = xcb_intern_atom_reply(
            xcb_, xcb_intern_atom(xcb_, 0, static_cast<uint16_t>(std::strlen(name)), name),
            nullptr);
        const xcb_atom_t result = reply->atom;
        std::free(reply);
        return result;
    }

    void handleEvents() {
        while (auto* event = xcb_poll_for_event(xcb_)) {
            const int type = event->response_type & ~0x80;
            if (type == XCB_SELECTION_REQUEST) {
                request(*reinterpret_cast<xcb_selection_request_event_t*>(event));
            } else if (type == XCB_PROPERTY_NOTIFY) {
                const auto& notice = *reinterpret_cast<xcb_property_notify_event_t*>(event);
                if (notice.state == XCB_PROPERTY_DELETE) {
                    continueTransfer(notice.window, notice.atom);
                }
            } else if (type == XCB_SELECTION_CLEAR) {
                answerLate();
            } else if (type == XCB_CLIENT_MESSAGE) {
                answered(*reinterpret_cast<xcb_client_message_event_t*>(event));
            }
            std::free(event);
        }
    }

    void send(const char* message, uint32_t a, uint32_t b, uint32_t c, uint32_t d) {
        xcb_client_message_event_t event{};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 32;
        event.window = onto_;
        event.type = atom(message);
        const uint32_t data[5] = {window_, a, b, c, d};
        std::copy_n(data, 5, event.data.data32);
        xcb_send_event(xcb_, 0, onto_, 0, reinterpret_cast<const char*>(&event));
    }

    void answered(const xcb_client_message_event_t& answer) {
        const bool finished = answer.type == atom("XdndFinished");
        if (!finished && (answer.type != atom("XdndStatus") || dropped_)) {
            return;
        }
        const bool accepted = (answer.data.data32[1] & 1) != 0;
        if (!finished && untilRefused_ && accepted) {
            move();
            return;
        }
        dropped_ = true;
        const xcb_atom_t none = XCB_ATOM_NONE;
        const xcb_atom_t action = accepted ? answer.data.data32[finished ? 2 : 4] : none;
        auto* name = xcb_get_atom_name_reply(xcb_, xcb_get_atom_name(xcb_, action), nullptr);
        std::printf("%.*s\n", name ? xcb_get_atom_name_name_length(name) : 4,
                    name ? xcb_get_atom_name_name(name) : "none");
        std::fflush(stdout);
        std::free(name);
        if (!finished) {
            send("XdndDrop", 0, XCB_CURRENT_TIME, 0, 0);
        }
    }

    void request(const xcb_selection_request_event_t& asked) {
        if (behaviour_ == "silent") {
            return;
        }
        if (behaviour_ == "late") {
            late_.push_back(asked);
            return;
        }
        if (asked.target == targets_) {
            answerTargets(asked);
        } else if (behaviour_ == "refuse" || !values_.contains(asked.target)) {
            notify(asked, XCB_ATOM_NONE);
        } else if (behaviour_ == "dieAfterTargets") {
            std::exit(0);
        } else if (behaviour_ != "targetsOnly") {
            answer(asked);
        }
    }

    void answerTargets(const xcb_selection_request_event_t& asked) {
        std::vector<xcb_atom_t> atoms = {targets_};
        for (const auto& [target, value] : values_) {
            atoms.push_back(target);
        }
        xcb_change_property(xcb_, XCB_PROP_MODE_REPLACE, asked.requestor, asked.property,
                            XCB_ATOM_ATOM, 32, static_cast<uint32_t>(atoms.size()), atoms.data());
        notify(asked, asked.property);
    }

    void answer(const xcb_selection_request_event_t& asked) {
        const Value& value = values_.at(asked.target);
        Bytes bytes = value.bytes;
        if (value.numbered && taking_ > 1) {
            const std::string number = std::to_string(taking_);
            bytes.insert(bytes.end(), number.begin(), number.end());
        }
        if (behaviour_ == "inOnePiece" || (bytes.size() <= pieceSize && !isEndless())) {
            xcb_change_property(xcb_, XCB_PROP_MODE_REPLACE, asked.requestor, asked.property,
                                asked.target, 8, static_cast<uint32_t>(bytes.size()), bytes.data());
        } else {
            beginIncremental(asked, std::move(bytes));
        }
        notify(asked, asked.property);
    }

    void beginIncremental(const xcb_selection_request_event_t& asked, Bytes bytes) {
        uint32_t size = static_cast<uint32_t>(bytes.size());
        size = behaviour_ == "claimsHuge" ? 2000000000 : behaviour_ == "claimsSmall" ? 10 : size;
        const uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(xcb_, asked.requestor, XCB_CW_EVENT_MASK, &mask);
        xcb_change_property(xcb_, XCB_PROP_MODE_REPLACE, asked.requestor, asked.property, incr_, 32,
                            1, &size);
        transfers_.push_back({asked.requestor, asked.property, asked.target, std::move(bytes)});
    }

    void continueTransfer(xcb_window_t requestor, xcb_atom_t property) {
        for (Transfer& transfer : transfers_) {
            if (transfer.requestor != requestor || transfer.property != property ||
                transfer.ended) {
                continue;
            }
            const std::size_t size = std::min(pieceSize, transfer.bytes.size() - transfer.sent);
            xcb_change_property(xcb_, XCB_PROP_MODE_REPLACE, requestor, property, transfer.target,
                                8, static_cast<uint32_t>(size),
                                transfer.bytes.data() + transfer.sent);
            transfer.sent += isEndless() ? 0 : size;
            transfer.ended = size == 0 || behaviour_ == "stallsInPieces";
        }
    }

    /// Answers requests from before another program took the selection.
    void answerLate() {
        for (const auto& asked : std::exchange(late_, {})) {
            if (asked.target == targets_) {
                answerTargets(asked);
            } else {
                answer(asked);
            }
        }
    }

    void notify(const xcb_selection_request_event_t& asked, xcb_atom_t property) {
        xcb_selection_notify_event_t notice{};
        notice.response_type = XCB_SELECTION_NOTIFY;
        notice.time = asked.time;
        notice.requestor = asked.requestor;
        notice.selection = asked.selection;
        notice.target = asked.target;
        notice.property = property;
        xcb_send_event(xcb_, 0, asked.requestor, 0, reinterpret_cast<const char*>(&notice));
    }

    xcb_connection_t* xcb_;
    std::string behaviour_;
    xcb_atom_t selection_ = XCB_ATOM_NONE;
    xcb_atom_t targets_ = XCB_ATOM_NONE;
    xcb_atom_t incr_ = XCB_ATOM_NONE;
    xcb_window_t window_ = XCB_NONE;
    xcb_window_t onto_ = XCB_NONE;
    uint32_t place_ = 0; ///< On the screen, as XDND has it.
    bool untilRefused_ = false;
    bool dropped_ = false;
    int taking_ = 0;
    std::map<xcb_atom_t, Value> values_;
    std::vector<Transfer> transfers_;
    std::vector<xcb_selection_request_event_t> late_;
};

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fputs("usage: SelectionOwner SELECTION BEHAVIOUR [TARGET=hex:..|fill:..]...\n",
                   stderr);
        return 2;
    }
    Owner owner(argv[1], argv[2]);
    for (int at = 3; at < argc; ++at) {
        owner.offer(argv[at]);
    }
    owner.take();
    const std::string last = argv[argc - 1];
    const bool untilRefused = last.starts_with("refusal:");
    if (untilRefused || last.starts_with("onto:")) {
        owner.drag(static_cast<xcb_window_t>(std::stoul(last.substr(last.find(':') + 1))),
                   untilRefused);
    }
    owner.run();
    return 0;
}
