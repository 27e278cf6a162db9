#include "contract/PasteboardContract.h"
#include "fakes/ManualScheduler.h"
#include "fakes/MemoryPasteboard.h"

namespace ravelo {
namespace {

class MemoryHost final : public PasteboardHost {
public:
    [[nodiscard]] Pasteboard& pasteboard() override { return pasteboard_; }

    void offer(const QList<PasteboardEntry>& forms) override { pasteboard_.offer(forms); }

    void loseOwner() override { pasteboard_.loseOwner(); }

    void release() override { pasteboard_.release(); }

    [[nodiscard]] QByteArray pasted(QLatin1StringView type) override {
        return pasteboard_.bytes(type);
    }

    [[nodiscard]] bool eventually(const std::function<bool()>& condition) override {
        for (int step = 0; step < 100 && !condition(); ++step) {
            scheduler_.advance(Seconds(0.01));
        }
        return condition();
    }

private:
    ManualScheduler scheduler_;
    MemoryPasteboard pasteboard_{scheduler_};
};

INSTANTIATE_TEST_SUITE_P(Memory, PasteboardContract, testing::Values([]() {
                             return std::unique_ptr<PasteboardHost>(new MemoryHost);
                         }));

} // namespace
} // namespace ravelo
