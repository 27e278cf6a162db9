// The desktop's sound, as it arrives at a sound device that is a pipe: ALSA's own drivers write it
// there. The device cannot even be opened before there is a reader, like a sound server that hangs.

#include "platform/freedesktop/feedback/ThemeSound.h"

#include "support/Eventually.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

class ThemeSoundTest : public testing::Test {
public:
    ~ThemeSoundTest() override { close(ear_); }

protected:
    ThemeSoundTest() {
        QFile configuration(folder_.filePath(u"asound.conf"_s));
        EXPECT_TRUE(configuration.open(QIODevice::WriteOnly));
        // Without the system's configuration, which may make a sound server the default.
        configuration.write("pcm.default { type file format raw slave.pcm { type null } file \"" +
                            device() + "\" }\n");
        qputenv("ALSA_CONFIG_PATH", configuration.fileName().toLocal8Bit());
        qputenv("XDG_CACHE_HOME", folder_.path().toLocal8Bit());
        qputenv("CANBERRA_DRIVER", "alsa");
    }

    void plugIn() {
        ASSERT_TRUE(QDir(folder_.path()).mkdir(u"plugged"_s));
        ASSERT_EQ(mkfifo(device(), 0600), 0);
    }

    void listen() { ear_ = open(device(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); }

    /// One sound, until its player closes the device. Empty if there is none.
    QByteArray heard() {
        QByteArray samples;
        (void)eventually([&] {
            QByteArray more(65536, '\0');
            const auto size = read(ear_, more.data(), more.size());
            samples.append(more.left(std::max<qsizetype>(size, 0)));
            return size == 0 && !samples.isEmpty();
        });
        return samples;
    }

    [[nodiscard]] QByteArray device() const {
        return folder_.filePath(u"plugged/device"_s).toLocal8Bit();
    }

    QTemporaryDir folder_;
    int ear_ = -1;
};

TEST_F(ThemeSoundTest, isPlayedOnceHoweverSlowTheDevice) {
    plugIn();
    ThemeSound sound;
    sound.play(); // Must not wait: the reader comes later.
    sound.play();
    listen();
    const QByteArray first = heard();
    EXPECT_GT(first.size(), 10'000);
    EXPECT_NE(first.count('\0'), first.size()) << "silence";
    sound.play();
    EXPECT_EQ(heard(), first) << "played again on request";
}

TEST_F(ThemeSoundTest, isPlayedOnceThereIsADevice) {
    const auto threads = [] {
        return QDir(u"/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
    };
    const auto before = threads();
    ThemeSound sound;
    sound.play();
    ASSERT_TRUE(eventually([&] { return threads() == before; })) << "it waits for a device";
    plugIn();
    listen();
    sound.play();
    EXPECT_FALSE(heard().isEmpty());
}

} // namespace
} // namespace ravelo
