#include "contract/PasteboardContract.h"
#include "wayland/WaylandSession.h"

#include <QTimer>

#include <future>

namespace ravelo::live {
namespace {

using namespace Qt::StringLiterals;

class WaylandHost final : public PasteboardHost {
public:
    [[nodiscard]] Pasteboard& pasteboard() override { return server_->pasteboard(); }

    void offer(const QList<PasteboardEntry>& forms) override {
        auto next = std::make_unique<OtherProgram>();
        const qint64 before = pasteboard().changeCount();
        next->pasteboard.write(forms);
        EXPECT_TRUE(eventually([&] { return pasteboard().changeCount() != before; }));
        owner_ = std::move(next);
    }

    void loseOwner() override { owner_.reset(); }

    void release() override { EXPECT_EQ(output("wl-copy", {u"--clear"_s}), ""); }

    [[nodiscard]] QByteArray pasted(QLatin1StringView type) override {
        return output("wl-paste", {u"--no-newline"_s, u"--type"_s, type});
    }

    [[nodiscard]] bool eventually(const std::function<bool()>& condition) override {
        return ravelo::eventually(condition);
    }

private:
    std::unique_ptr<wayland::WaylandDisplayServer> server_ = connectToSway();
    std::unique_ptr<OtherProgram> owner_;
};

INSTANTIATE_TEST_SUITE_P(Wayland, PasteboardContract, testing::Values([]() {
                             return std::unique_ptr<PasteboardHost>(new WaylandHost);
                         }));

/// Follows the clipboard as the program does.
class WaylandPasteboardTest : public testing::Test {
protected:
    static PasteboardPlan text() {
        return [](const PasteboardSnapshot& snapshot) {
            return snapshot.answers.contains(plainTextType) ? QString() : QString(plainTextType);
        };
    }

    void readText() {
        readings_.push_back(board_.read(
            text(), [this](const PasteboardSnapshot& snapshot) { snapshots_.append(snapshot); }));
    }

    [[nodiscard]] QByteArrayList texts() const {
        QByteArrayList texts;
        for (const PasteboardSnapshot& snapshot : snapshots_) {
            texts.append(snapshot.answers.value(plainTextType).value_or("nothing"));
        }
        return texts;
    }

    std::unique_ptr<wayland::WaylandDisplayServer> server_ = connectToSway();
    Pasteboard& board_ = server_->pasteboard();
    QList<PasteboardSnapshot> snapshots_;
    std::vector<Handle> readings_;
    Handle changes_ = board_.onChange([this] { readText(); });
    OtherProgram other_;
};

TEST_F(WaylandPasteboardTest, seesEachOfTwentyCopies) {
    QByteArrayList copied;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        copied.append("copy " + QByteArray::number(copied.size()));
        other_.pasteboard.write({{plainTextType, copied.last()}});
        if (copied.size() == 20) {
            timer.stop();
        }
    });
    timer.start(25);
    EXPECT_TRUE(eventually([&] { return copied.size() == 20 && texts().size() == 20; }));
    EXPECT_EQ(texts(), copied);
}

TEST_F(WaylandPasteboardTest, aHungOwnerCostsNoMoreThanItsTimeOut) {
    std::promise<void> end;
    // More than fits in a pipe: it might give the beginning before it hangs.
    other_.pasteboard.write({{plainTextType, QByteArray(1 << 20, 'x')}});
    other_.thread->post([come = end.get_future().share()] { come.wait(); });
    const StallGauge gauge;
    EXPECT_TRUE(eventually([&] { return !snapshots_.isEmpty(); }));
    EXPECT_EQ(texts(), QByteArrayList{"nothing"});

    readText();
    OtherProgram next;
    next.pasteboard.write({{plainTextType, "next"}});
    EXPECT_TRUE(eventually([&] { return snapshots_.size() == 2; }));
    EXPECT_EQ(texts().constLast(), "next") << "the copy that came while the hung one was read";
    EXPECT_LT(gauge.longestStallMs(), 50) << "the main thread waited";
    end.set_value();
}

TEST_F(WaylandPasteboardTest, givesUpWhatIsTooLarge) {
    const qsizetype limit = maxAnswerSize("text/plain");
    other_.pasteboard.write({{plainTextType, QByteArray(limit, 'a')}});
    EXPECT_TRUE(eventually([&] { return snapshots_.size() == 1; }));
    EXPECT_EQ(texts().constLast().size(), limit);
    other_.pasteboard.write({{plainTextType, QByteArray(limit + 1, 'a')}});
    EXPECT_TRUE(eventually([&] { return snapshots_.size() == 2; }));
    EXPECT_EQ(texts().constLast(), "nothing");
    EXPECT_GT(snapshots_.last().tooLarge.value(plainTextType), limit);
}

TEST_F(WaylandPasteboardTest, ignoresThePrimarySelection) {
    const Client primary(u"wl-copy"_s, {u"--foreground"_s, u"--primary"_s, u"selected"_s});
    ASSERT_TRUE(eventually([] {
        return output("wl-paste", {u"--primary"_s, u"--no-newline"_s}) == "selected";
    }));
    const Client copy(u"wl-copy"_s, {u"--foreground"_s, u"Gr\u00fc\u00df"_s});
    EXPECT_TRUE(eventually([&] { return !snapshots_.isEmpty(); }));
    EXPECT_EQ(texts(), QByteArrayList{"Gr\xc3\xbc\xc3\x9f"});
    EXPECT_EQ(board_.changeCount(), 1);
}

} // namespace
} // namespace ravelo::live
