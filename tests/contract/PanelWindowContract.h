#pragma once

#include "platform/PanelWindow.h"

#include <gtest/gtest.h>

#include <memory>

namespace ravelo {

/// A panel window and the desktop around it.
class PanelWindowHost {
public:
    virtual ~PanelWindowHost() = default;

    [[nodiscard]] virtual PanelWindow& panel() = 0;
    [[nodiscard]] virtual Screen screen() = 0;

    // As others see it: whether it is shown, where (logical pixels), and whether keys go to it.
    [[nodiscard]] virtual bool isShown() = 0;
    [[nodiscard]] virtual QRectF frame() = 0;
    [[nodiscard]] virtual bool hasKeyboard() = 0;

    /// Global logical pixels.
    virtual void movePointer(QPointF place) = 0;

    /// Lets time pass until `condition` holds; false if it never does.
    [[nodiscard]] virtual bool eventually(const std::function<bool()>& condition) = 0;
};

using PanelWindowHostMaker = std::unique_ptr<PanelWindowHost> (*)();

/// The promises of PanelWindow.h. A test program instantiates it for its own adapter.
class PanelWindowContract : public testing::TestWithParam<PanelWindowHostMaker> {
protected:
    [[nodiscard]] PanelWindow& panel() { return host_->panel(); }

    [[nodiscard]] bool eventually(const std::function<bool()>& condition) {
        return host_->eventually(condition);
    }

    [[nodiscard]] QRectF topCentre(QSizeF size) {
        const QRectF screen = host_->screen().frame;
        return {QPointF(screen.center().x() - size.width() / 2, screen.top()), size};
    }

    void expectAt(QSizeF size, const char* when) {
        EXPECT_TRUE(eventually([&] { return host_->isShown(); })) << when << " it is not shown";
        EXPECT_TRUE(eventually([&] { return host_->frame() == topCentre(size); }))
            << when << " it is not at the top centre";
    }

    std::unique_ptr<PanelWindowHost> host_ = GetParam()();
};

TEST_P(PanelWindowContract, hangsAtTheTopCentreAndKeepsItsPlaceWhileHidden) {
    const QSizeF small(200, 12);
    const QSizeF large(400, 300);
    panel().place(host_->screen(), small);
    EXPECT_FALSE(host_->isShown()) << "by its place alone";
    panel().orderFront();
    expectAt(small, "at first");
    panel().place(host_->screen(), large);
    expectAt(large, "larger");
    panel().orderOut();
    EXPECT_TRUE(eventually([&] { return !host_->isShown(); }));
    panel().orderFront();
    expectAt(large, "shown again");
}

TEST_P(PanelWindowContract, hasTheKeyboardOnRequestOnly) {
    panel().place(host_->screen(), {400, 300});
    panel().orderFront();
    ASSERT_TRUE(eventually([&] { return host_->isShown(); }));
    EXPECT_FALSE(host_->hasKeyboard()) << "by being shown";
    panel().requestFocus("a token of somebody's");
    EXPECT_TRUE(eventually([&] { return host_->hasKeyboard(); }));
    panel().returnFocus();
    EXPECT_TRUE(eventually([&] { return !host_->hasKeyboard(); }));
}

TEST_P(PanelWindowContract, reportsThatThePointerEntersAndLeaves) {
    const QSizeF size(400, 300);
    const QPointF outside = topCentre(size).center() + QPointF(0, 300);
    host_->movePointer(outside);
    panel().place(host_->screen(), size);
    QPainterPath outline;
    outline.addRect({{}, size});
    panel().setOutline(outline);
    panel().orderFront();
    ASSERT_TRUE(eventually([&] { return host_->isShown(); }));
    QList<bool> reports;
    const Handle listening =
        panel().onUnderPointerChange([&] { reports.append(panel().isUnderPointer()); });
    host_->movePointer(topCentre(size).center());
    EXPECT_TRUE(eventually([&] { return reports == QList{true}; })) << "its coming";
    host_->movePointer(outside);
    EXPECT_TRUE(eventually([&] { return reports == QList({true, false}); })) << "its going";
}

} // namespace ravelo
