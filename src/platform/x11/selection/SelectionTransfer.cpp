#include "platform/x11/selection/SelectionTransfer.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace ravelo::x11 {

namespace {

constexpr std::chrono::milliseconds stepTime(1500);

/// How much of a property is fetched at once; the server is busy with nothing else meanwhile.
constexpr uint32_t pieceWords = 256 * 1024;

template <typename Event>
const Event& as(const xcb_generic_event_t& event) {
    return reinterpret_cast<const Event&>(event);
}

} // namespace

RequestorWindow::RequestorWindow(Connection& connection)
    : connection_(&connection), id_(xcb_generate_id(connection.get())) {
    const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection.get(), 0, id_, connection.root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &events);
}

RequestorWindow::RequestorWindow(RequestorWindow&& other) noexcept
    : connection_(other.connection_), id_(std::exchange(other.id_, XCB_NONE)) {}

RequestorWindow& RequestorWindow::operator=(RequestorWindow&& other) noexcept {
    std::swap(connection_, other.connection_);
    std::swap(id_, other.id_);
    return *this;
}

RequestorWindow::~RequestorWindow() {
    if (id_ != XCB_NONE) {
        xcb_destroy_window(connection_->get(), id_);
    }
}

void RequestorWindow::fallSilent() {
    const uint32_t none = 0;
    xcb_change_window_attributes(connection_->get(), id_, XCB_CW_EVENT_MASK, &none);
}

SelectionTransfer::SelectionTransfer(Connection& connection, xcb_atom_t selection,
                                     TransferRequest request, xcb_timestamp_t time)
    : connection_(connection),
      request_(request),
      property_(connection.atom(QByteArrayLiteral("RAVELO_TRANSFER"))),
      incr_(connection.atom(QByteArrayLiteral("INCR"))),
      window_(connection) {
    xcb_convert_selection(connection.get(), window_.id(), selection, request.target, property_,
                          time);
    waitForOwner();
}

std::optional<TransferResult> SelectionTransfer::handle(const xcb_generic_event_t& event) {
    const int type = event.response_type & ~0x80; // The high bit says that a client sent it.
    if (type == XCB_SELECTION_NOTIFY && state_ == State::asked) {
        const auto& notice = as<xcb_selection_notify_event_t>(event);
        if (notice.requestor == window_.id() && notice.target == request_.target) {
            return begin(notice);
        }
    }
    if (type == XCB_PROPERTY_NOTIFY && state_ == State::incremental) {
        const auto& notice = as<xcb_property_notify_event_t>(event);
        if (notice.window == window_.id() && notice.atom == property_ &&
            notice.state == XCB_PROPERTY_NEW_VALUE) {
            return goOn();
        }
    }
    return std::nullopt;
}

std::optional<TransferResult> SelectionTransfer::begin(const xcb_selection_notify_event_t& notice) {
    if (notice.property != property_) {
        return end(tl::unexpected(TransferFailure{TransferFailure::refused}));
    }
    auto piece = readProperty();
    if (!piece) {
        return end(tl::unexpected(piece.error()));
    }
    if (piece->type == XCB_ATOM_NONE) {
        return end(tl::unexpected(TransferFailure{TransferFailure::refused}));
    }
    if (piece->type != incr_) {
        deleteProperty();
        return end(std::move(piece));
    }
    // The number is a lower bound; what arrives is counted anyway.
    uint32_t least = 0;
    std::memcpy(&least, piece->bytes.constData(),
                std::min<std::size_t>(sizeof least, static_cast<std::size_t>(piece->bytes.size())));
    if (least > request_.limit) {
        return end(tl::unexpected(TransferFailure{TransferFailure::tooLarge, least}));
    }
    announced_ = least;
    state_ = State::incremental;
    deleteProperty();
    waitForOwner();
    return std::nullopt;
}

std::optional<TransferResult> SelectionTransfer::goOn() {
    const auto piece = readProperty();
    if (!piece) {
        return end(tl::unexpected(piece.error()));
    }
    if (piece->type == XCB_ATOM_NONE) {
        return std::nullopt; // Gone already: the notice of a value that has been read.
    }
    deleteProperty();
    if (piece->bytes.isEmpty()) {
        return end(std::exchange(value_, {}));
    }
    value_.type = piece->type;
    value_.bytes.append(piece->bytes);
    waitForOwner();
    return std::nullopt;
}

std::optional<TransferResult> SelectionTransfer::end(TransferResult result) {
    state_ = State::done;
    return result;
}

/// The property as it is, with type None if there is none. Stops if it exceeds what the limit
/// leaves room for.
tl::expected<SelectionValue, TransferFailure> SelectionTransfer::readProperty() {
    SelectionValue value;
    const qsizetype room = request_.limit - value_.bytes.size();
    for (uint32_t left = 1; left > 0;) {
        const auto cookie =
            xcb_get_property(connection_.get(), 0, window_.id(), property_, XCB_ATOM_ANY,
                             static_cast<uint32_t>(value.bytes.size() / 4), pieceWords);
        const Owned<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(connection_.get(), cookie, nullptr));
        if (!reply) {
            return tl::unexpected(TransferFailure{TransferFailure::refused});
        }
        left = reply->bytes_after;
        const qsizetype length = xcb_get_property_value_length(reply.get());
        const qsizetype whole = value.bytes.size() + length + qsizetype(left);
        if (whole > room) {
            const qint64 least = std::max<qint64>(announced_, value_.bytes.size() + whole);
            return tl::unexpected(TransferFailure{TransferFailure::tooLarge, least});
        }
        value.type = reply->type;
        value.bytes.append(static_cast<const char*>(xcb_get_property_value(reply.get())), length);
        if (length % 4 != 0) {
            break; // Only the end is no whole number of words: the owner shortened it meanwhile.
        }
    }
    return value;
}

void SelectionTransfer::deleteProperty() {
    xcb_delete_property(connection_.get(), window_.id(), property_);
}

void SelectionTransfer::waitForOwner() {
    deadline_ = std::chrono::steady_clock::now() + stepTime;
}

std::optional<RequestorWindow> SelectionTransfer::abandon() {
    // An owner that has delivered, or waits for us to take a piece, writes nothing by itself.
    if (state_ == State::done) {
        return std::nullopt;
    }
    state_ = State::done;
    window_.fallSilent();
    return std::move(window_);
}

} // namespace ravelo::x11
