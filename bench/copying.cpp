// copying EVERY TYPE FILE...: copies the contents of each file as TYPE, one after the other, each
// as soon as the contents of the previous one were requested and no more requests come. Copies the
// same again EVERY milliseconds without a request. Prints for each file when it was copied and
// first requested, in milliseconds of CLOCK_MONOTONIC. At the end keeps the clipboard until it is
// killed.

#include "bench/XServer.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace ravelo::bench;
using namespace std::chrono_literals;

constexpr auto timeout = 20s;
constexpr auto quiet = 60ms; ///< Much longer than a reader's pause between two requests.

xcb_atom_t atom(XServer& server, const std::string& name) {
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        server.get(),
        xcb_intern_atom(server.get(), 0, static_cast<uint16_t>(name.size()), name.data()),
        nullptr));
    if (!reply) {
        giveUp("the X server knows no atom");
    }
    return reply->atom;
}

/// Owns the clipboard and answers requests.
class Owner {
public:
    Owner(XServer& server, const std::string& type)
        : server_(server),
          window_(xcb_generate_id(server.get())),
          clipboard_(atom(server, "CLIPBOARD")),
          targets_(atom(server, "TARGETS")),
          timestamp_(atom(server, "TIMESTAMP")),
          forms_{atom(server, type)} {
        if (type.starts_with("text/")) {
            forms_.push_back(atom(server, "UTF8_STRING"));
        }
        const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_create_window(server.get(), XCB_COPY_FROM_PARENT, window_, server.screen().root, 0, 0,
                          1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT,
                          XCB_CW_EVENT_MASK, &events);
    }

    Clock::time_point copy(const std::string& contents) {
        contents_ = &contents;
        asked_.reset();
        owned_ = now();
        const auto copied = Clock::now();
        xcb_set_selection_owner(server_.get(), window_, clipboard_, owned_);
        xcb_flush(server_.get());
        return copied;
    }

    /// Time of the first request.
    [[nodiscard]] std::optional<Clock::time_point> asked() const { return asked_; }

    /// Answers until there were no requests for `pause`.
    void answer(Clock::duration pause) {
        while (const auto event = server_.nextEvent(Clock::now() + pause)) {
            if (typeOf(*event) == XCB_SELECTION_REQUEST) {
                answer(as<xcb_selection_request_event_t>(*event));
            }
        }
    }

private:
    /// Server time.
    xcb_timestamp_t now() {
        xcb_change_property(server_.get(), XCB_PROP_MODE_APPEND, window_, XCB_ATOM_WM_NAME,
                            XCB_ATOM_STRING, 8, 0, "");
        while (const auto event = server_.nextEvent(Clock::now() + timeout)) {
            if (typeOf(*event) == XCB_PROPERTY_NOTIFY) {
                return as<xcb_property_notify_event_t>(*event).time;
            }
            if (typeOf(*event) == XCB_SELECTION_REQUEST) {
                answer(as<xcb_selection_request_event_t>(*event));
            }
        }
        giveUp("the X server tells no time");
    }

    void answer(const xcb_selection_request_event_t& request) {
        const auto property = request.property == XCB_NONE ? request.target : request.property;
        const auto put = [&](xcb_atom_t type, uint8_t format, size_t count, const void* data) {
            xcb_change_property(server_.get(), XCB_PROP_MODE_REPLACE, request.requestor, property,
                                type, format, static_cast<uint32_t>(count), data);
        };
        bool known = true;
        if (request.target == targets_) {
            std::vector<xcb_atom_t> all = {targets_, timestamp_};
            all.insert(all.end(), forms_.begin(), forms_.end());
            put(XCB_ATOM_ATOM, 32, all.size(), all.data());
        } else if (request.target == timestamp_) {
            put(XCB_ATOM_INTEGER, 32, 1, &owned_);
        } else if (std::ranges::find(forms_, request.target) != forms_.end()) {
            asked_ = asked_.value_or(Clock::now());
            put(request.target, 8, contents_->size(), contents_->data());
        } else {
            known = false;
        }
        xcb_selection_notify_event_t told = {};
        told.response_type = XCB_SELECTION_NOTIFY;
        told.time = request.time;
        told.requestor = request.requestor;
        told.selection = request.selection;
        told.target = request.target;
        told.property = known ? property : xcb_atom_t{XCB_NONE};
        char event[32] = {};
        static_assert(sizeof told <= sizeof event);
        std::copy_n(reinterpret_cast<const char*>(&told), sizeof told, event);
        xcb_send_event(server_.get(), 0, request.requestor, 0, event);
        xcb_flush(server_.get());
    }

    XServer& server_;
    xcb_window_t window_;
    xcb_atom_t clipboard_;
    xcb_atom_t targets_;
    xcb_atom_t timestamp_;
    std::vector<xcb_atom_t> forms_;
    xcb_timestamp_t owned_ = XCB_CURRENT_TIME;
    const std::string* contents_ = nullptr;
    std::optional<Clock::time_point> asked_;
};

std::string contentsOf(const char* path) {
    std::ifstream file(path, std::ios::binary);
    std::string contents(std::istreambuf_iterator<char>(file), {});
    if (contents.empty()) {
        giveUp("there is nothing in a file to copy");
    }
    return contents;
}

double milliseconds(Clock::time_point time) {
    return std::chrono::duration<double, std::milli>(time.time_since_epoch()).count();
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        giveUp("copying EVERY TYPE FILE...");
    }
    const auto every = std::chrono::milliseconds(std::atoi(argv[1]));
    XServer server;
    Owner owner(server, argv[2]);
    std::string contents;
    std::cout << std::fixed;
    for (int file = 3; file < argc; ++file) {
        contents = contentsOf(argv[file]);
        const auto end = Clock::now() + timeout;
        Clock::time_point copied;
        do {
            copied = owner.copy(contents);
            owner.answer(std::min<Clock::duration>(every, quiet));
            if (!owner.asked()) {
                owner.answer(every);
            }
        } while (!owner.asked() && Clock::now() < end);
        if (!owner.asked()) {
            giveUp("nobody asks for what was copied");
        }
        owner.answer(quiet);
        std::cout << milliseconds(copied) << ' ' << milliseconds(*owner.asked()) << std::endl;
    }
    owner.answer(24h);
}
