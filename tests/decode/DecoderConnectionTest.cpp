// Replies of a decoder that has been taken over.

#include "platform/system/DecoderConnection.h"
#include "decode/Packets.h"
#include "support/TestPictures.h"

#include <QDir>

#include <gtest/gtest.h>

#include <array>
#include <cstring>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/socket.h>

namespace ravelo {

namespace {

using namespace decode;

constexpr std::chrono::milliseconds timeout(200);

class Liar : public testing::Test {
public:
    Liar() {
        std::array<int, 2> ends{};
        EXPECT_EQ(socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()), 0);
        theirs = Descriptor(ends[0]);
        ours = std::make_unique<DecoderConnection>(Descriptor(ends[1]));
    }

    template <typename Packet>
    void say(const Packet& packet, const Descriptor& memory) {
        ASSERT_TRUE(sendPacket(theirs.number(), &packet, sizeof(packet), memory));
    }

    /// A reply cut to `size` bytes, with the descriptor twice.
    void sayTwice(Reply reply, size_t size, const Descriptor& memory) {
        const std::array numbers{memory.number(), memory.number()};
        std::array<char, CMSG_SPACE(sizeof(numbers))> room{};
        iovec part{&reply, size};
        msghdr message{};
        message.msg_iov = &part;
        message.msg_iovlen = 1;
        message.msg_control = room.data();
        message.msg_controllen = room.size();
        cmsghdr* const header = CMSG_FIRSTHDR(&message);
        header->cmsg_level = SOL_SOCKET;
        header->cmsg_type = SCM_RIGHTS;
        header->cmsg_len = CMSG_LEN(sizeof(numbers));
        std::memcpy(CMSG_DATA(header), numbers.data(), sizeof(numbers));
        ASSERT_EQ(sendmsg(theirs.number(), &message, 0), static_cast<ssize_t>(size));
    }

    Descriptor theirs;
    std::unique_ptr<DecoderConnection> ours;
};

constexpr Reply sixteen{Status::done, 2, 2, 0, 16};

TEST_F(Liar, IsBelievedIfTheReplyIsValid) {
    say(sixteen, sealedMemory("0123456789abcdef"));
    const auto answer = ours->receive(timeout);
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->contents, "0123456789abcdef");
}

TEST_F(Liar, IsNotBelievedIfItCanStillChangeTheMemory) {
    const Descriptor open(memfd_create("open", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    ASSERT_EQ(write(open.number(), "0123456789abcdef", 16), 16);
    say(sixteen, open);
    EXPECT_FALSE(ours->receive(timeout)) << "memory that is not sealed";
    ASSERT_EQ(fcntl(open.number(), F_ADD_SEALS, F_SEAL_WRITE | F_SEAL_GROW), 0);
    say(sixteen, open);
    EXPECT_FALSE(ours->receive(timeout)) << "memory that can still be made smaller";
}

TEST_F(Liar, IsNotBelievedAWrongSize) {
    Reply negative = sixteen;
    negative.bytes = -16;
    const auto lie = [&](const Reply& reply, const Descriptor& memory) {
        say(reply, memory);
        return ours->receive(timeout).has_value();
    };
    EXPECT_FALSE(lie(sixteen, sealedMemory("0123456789abcde"))) << "less than it says";
    EXPECT_FALSE(lie(sixteen, sealedMemory("0123456789abcdefg"))) << "more than it says";
    EXPECT_FALSE(lie(sixteen, Descriptor())) << "nothing at all";
    EXPECT_FALSE(lie(negative, sealedMemory("0123456789abcdef"))) << "less than nothing";
    EXPECT_FALSE(lie(sixteen, Descriptor(open("/dev/zero", O_RDONLY | O_CLOEXEC)))) << "a device";
}

TEST_F(Liar, IsNotBelievedAPacketOfTheWrongSize) {
    say('x', Descriptor());
    EXPECT_FALSE(ours->receive(timeout)) << "too short";
    say(std::array<Reply, 2>{Reply{Status::done, 1, 1, 0, 0}, {}}, Descriptor());
    EXPECT_FALSE(ours->receive(timeout)) << "too long";
    EXPECT_FALSE(ours->receive(std::chrono::milliseconds(1))) << "silence";
}

qsizetype openDescriptors() {
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System).size();
}

TEST_F(Liar, LeavesNoDescriptorBehind) {
    const Descriptor memory = sealedMemory("0123456789abcdef");
    const qsizetype before = openDescriptors();
    Reply empty = sixteen;
    empty.bytes = 0;
    sayTwice(sixteen, sizeof(sixteen), memory);
    EXPECT_FALSE(ours->receive(timeout)) << "two descriptors";
    sayTwice(empty, sizeof(empty), memory);
    EXPECT_FALSE(ours->receive(timeout)) << "two descriptors for nothing";
    say(empty, memory);
    EXPECT_FALSE(ours->receive(timeout)) << "a descriptor for nothing";
    sayTwice(empty, 0, memory);
    EXPECT_FALSE(ours->receive(timeout)) << "an empty packet";
    EXPECT_EQ(openDescriptors(), before) << "leaked descriptors";
}

TEST(Decoder, IsKilledAtTheTimeLimit) {
    auto decoder = DecoderConnection::start(RAVELO_DECODE);
    ASSERT_TRUE(decoder && decoder->isReady());
    const Descriptor large = sealedMemory(picture("bmp", Qt::green, {4000, 4000}));
    ASSERT_TRUE(decoder->send({Kind::png, 0, 0, 0, 20}, large));
    EXPECT_FALSE(decoder->receive(std::chrono::seconds(20))) << "it took as long as it liked";
    EXPECT_FALSE(decoder->send({Kind::probe, 0, 0, 0, 0}, large)) << "it is still there";
}

} // namespace

} // namespace ravelo
