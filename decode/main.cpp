// Reads untrusted pictures and returns their pixels, and cannot do anything else. Ravelo starts it
// when there is a picture to read; it ends by itself.

#include "decode/Conversation.h"
#include "decode/Formats.h"
#include "decode/Heif.h"
#include "decode/LockDown.h"
#include "decode/Pictures.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <string_view>
#include <thread>
#include <utility>

#include <dlfcn.h>
#include <malloc.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

using namespace ravelo::decode;

constexpr double busyLife = 20; ///< Seconds of processor time; then a new process takes over.

bool isCalledByRavelo() {
    int type = 0;
    socklen_t size = sizeof(type);
    return getsockopt(socketNumber, SOL_SOCKET, SO_TYPE, &type, &size) == 0 &&
           type == SOCK_SEQPACKET;
}

/// Closes everything but the socket and leaves the terminal.
void detach() {
    setsid();
    closefrom(socketNumber + 1);
    const timeval timeout{idleSeconds, 0};
    setsockopt(socketNumber, SOL_SOCKET, SO_RCVTIMEO, &timeout, sizeof(timeout));
}

/// A second malloc arena would read /proc when it shrinks, and Qt's message handler looks for a
/// terminal.
void avoidFiles() {
    mallopt(M_ARENA_MAX, 1);
    setenv("QT_NO_GLIB", "1", 1);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}

/// Kills this process after the time; 0 is no limit.
void limitTime(uint32_t milliseconds) {
    const auto start = [](__itimer_which timer, uint32_t span) {
        const itimerval once{
            {0, 0},
            {static_cast<time_t>(span / 1000), static_cast<suseconds_t>(span % 1000 * 1000)}};
        setitimer(timer, &once, nullptr);
    };
    start(ITIMER_PROF, milliseconds);
    start(ITIMER_REAL, milliseconds * realTimeFactor);
}

bool hasWorkedLong() {
    return double(std::clock()) / CLOCKS_PER_SEC > busyLife;
}

void load(Formats formats) {
    loadFormats(formats);
    if (formats == Formats::png) {
        return;
    }
    // By its whole path: with the address sanitizer, $ORIGIN would be the sanitizer's folder.
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    const auto path = program.parent_path() / "ravelo-decode-heif.so";
    if (void* library = dlopen(path.c_str(), RTLD_NOW)) {
        using Reader = const HeifReader* (*)();
        const auto reader = reinterpret_cast<Reader>(dlsym(library, "raveloHeif"));
        readHeifBy(reader != nullptr ? reader() : nullptr);
    }
}

/// Whether to continue.
bool carryOut(Order& order, Formats formats) {
    limitTime(order.request.milliseconds); // Of reading, too: a file's mount may die meanwhile.
    const QByteArray bytes = readAll(std::exchange(order.picture, {})); // Closed before decoding.
    const bool isPossible = formats == Formats::all ||
                            (formatOf(bytes) == Format::png && order.request.kind != Kind::png);
    const Picture picture = isPossible ? decodePicture(order.request, bytes) : Picture();
    const Reply reply{picture.status, picture.size.width(), picture.size.height(),
                      hasWorkedLong() ? 1U : 0U, 0};
    const QByteArrayView contents =
        picture.image.isNull()
            ? QByteArrayView(picture.png)
            : QByteArrayView(picture.image.constBits(), picture.image.sizeInBytes());
    const bool sent = send(reply, contents);
    limitTime(0);
    return sent && reply.last == 0;
}

} // namespace

int main(int argc, char** argv) {
    if (!isCalledByRavelo()) {
        std::fputs("ravelo-decode reads pictures for ravelo, which starts it.\n", stderr);
        return EXIT_FAILURE;
    }
    detach();
    avoidFiles();
    const bool onlyPng = argc > 1 && std::string_view(argv[1]) == onlyPngOption;
    const Formats formats = onlyPng ? Formats::png : Formats::all;
    load(formats);
    std::thread([] {}).join(); // The first thread sets up signal handling.
    if (!lockDown()) {
        _exit(EXIT_FAILURE);
    }
    if (!send({Status::ready, 0, 0, 0, 0}, {})) {
        _exit(EXIT_FAILURE);
    }
    for (auto order = nextOrder(); order && carryOut(*order, formats); order = nextOrder()) {
    }
    _exit(EXIT_SUCCESS);
}
