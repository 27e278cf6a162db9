// Connects to the session bus and passes on bytes between it and its parent, Ravelo. Portals read
// /proc/PID/root of whoever has connected, which Ravelo forbids; of this process they may. It has
// no secrets, and ends with its parent's connection.

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

/// Of a D-Bus address, whose values write other characters as %7c. Empty if it has no such key.
std::string value(std::string_view address, std::string_view key) {
    const std::size_t start = address.find(key);
    if (start == std::string_view::npos) {
        return {};
    }
    address.remove_prefix(start + key.size());
    address = address.substr(0, address.find_first_of(",;"));
    std::string value;
    for (std::size_t i = 0; i < address.size(); ++i) {
        if (address[i] == '%' && i + 2 < address.size()) {
            const std::string hex(address.substr(i + 1, 2));
            value += static_cast<char>(std::strtol(hex.c_str(), nullptr, 16));
            i += 2;
        } else {
            value += address[i];
        }
    }
    return value;
}

/// Its name as in sockaddr_un; an abstract one begins with '\0'.
std::string socketName() {
    const char* const address = std::getenv("DBUS_SESSION_BUS_ADDRESS");
    if (address == nullptr || *address == '\0') {
        const char* const folder = std::getenv("XDG_RUNTIME_DIR");
        return folder == nullptr ? std::string() : std::string(folder) + "/bus";
    }
    const std::string abstract = value(address, "unix:abstract=");
    return abstract.empty() ? value(address, "unix:path=") : std::string(1, '\0') + abstract;
}

/// -1 if there is none.
int connectToBus() {
    const std::string name = socketName();
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (name.empty() || name.size() >= sizeof(address.sun_path)) {
        return -1;
    }
    std::memcpy(address.sun_path, name.data(), name.size());
    const int bus = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + name.size());
    return connect(bus, reinterpret_cast<const sockaddr*>(&address), size) == 0 ? bus : -1;
}

/// False at the end.
bool pass(int from, int to) {
    std::array<char, 16384> bytes; // NOLINT(*-member-init): read first.
    const ssize_t count = read(from, bytes.data(), bytes.size());
    for (ssize_t done = 0; done < count;) {
        const ssize_t more = write(to, bytes.data() + done, static_cast<std::size_t>(count - done));
        if (more <= 0) {
            return false;
        }
        done += more;
    }
    return count > 0;
}

} // namespace

int main() {
    if (isatty(STDIN_FILENO) != 0) {
        std::fputs("ravelo-bus connects ravelo, which starts it, to the session bus.\n", stderr);
        return EXIT_FAILURE;
    }
    const int bus = connectToBus();
    std::array ends{pollfd{STDIN_FILENO, POLLIN, 0}, pollfd{bus, POLLIN, 0}};
    while (bus >= 0 && poll(ends.data(), ends.size(), -1) > 0) {
        if ((ends[0].revents != 0 && !pass(STDIN_FILENO, bus)) ||
            (ends[1].revents != 0 && !pass(bus, STDOUT_FILENO))) {
            return EXIT_SUCCESS;
        }
    }
    return EXIT_FAILURE;
}
