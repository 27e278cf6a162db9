#include "contract/PanelWindowContract.h"
#include "fakes/FakeDisplay.h"

namespace ravelo {
namespace {

class FakeHost final : public PanelWindowHost {
public:
    [[nodiscard]] PanelWindow& panel() override { return window_; }

    [[nodiscard]] Screen screen() override { return screens_.screens.front(); }

    [[nodiscard]] bool isShown() override { return window_.shown; }

    [[nodiscard]] QRectF frame() override { return window_.frame; }

    [[nodiscard]] bool hasKeyboard() override { return window_.focused; }

    void movePointer(QPointF place) override {
        window_.setUnderPointer(window_.shown && window_.frame.contains(place));
    }

    [[nodiscard]] bool eventually(const std::function<bool()>& condition) override {
        return condition();
    }

private:
    FakeScreens screens_;
    FakeDragMonitor drags_;
    FakePanelWindow window_{drags_};
};

INSTANTIATE_TEST_SUITE_P(Fake, PanelWindowContract, testing::Values([]() {
                             return std::unique_ptr<PanelWindowHost>(new FakeHost);
                         }));

} // namespace
} // namespace ravelo
