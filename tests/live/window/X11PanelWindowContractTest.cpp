#include "contract/PanelWindowContract.h"
#include "live/window/PanelFixture.h"

namespace ravelo::live {
namespace {

class X11Host final : public PanelWindowHost {
public:
    [[nodiscard]] PanelWindow& panel() override { return desk_.panel; }

    [[nodiscard]] Screen screen() override { return monitor().screen; }

    [[nodiscard]] bool isShown() override { return desk_.server.isViewable(desk_.id()); }

    [[nodiscard]] QRectF frame() override {
        return x11::toLogical(monitor(), desk_.server.geometry(desk_.id()));
    }

    [[nodiscard]] bool hasKeyboard() override { return desk_.server.focus() == desk_.id(); }

    void movePointer(QPointF place) override {
        const QPoint native = desk_.screens.toNative(place);
        EXPECT_TRUE(run(QStringLiteral("xdotool"),
                        {QStringLiteral("mousemove"), QString::number(native.x()),
                         QString::number(native.y())}));
    }

    [[nodiscard]] bool eventually(const std::function<bool()>& condition) override {
        return ravelo::eventually(condition);
    }

private:
    class Desk final : public PanelFixture {
        void TestBody() override {}
    };

    [[nodiscard]] const x11::Monitor& monitor() {
        return *desk_.screens.monitor(QStringLiteral("DUMMY0"));
    }

    Desk desk_;
    OtherWindow window_{OtherWindow::Kind::normal, {300, 700, 300, 200}}; ///< Has the keyboard.
};

INSTANTIATE_TEST_SUITE_P(X11, PanelWindowContract, testing::Values([]() {
                             return std::unique_ptr<PanelWindowHost>(new X11Host);
                         }));

} // namespace
} // namespace ravelo::live
