#include "contract/PasteboardContract.h"
#include "live/ListenerSession.h"

namespace ravelo {
namespace {

class X11Host final : public PasteboardHost {
public:
    [[nodiscard]] Pasteboard& pasteboard() override { return session_.pasteboard; }

    void offer(const QList<PasteboardEntry>& forms) override {
        QStringList arguments = {QStringLiteral("CLIPBOARD"), QStringLiteral("answer")};
        for (const PasteboardEntry& form : forms) {
            arguments.append(live::offering(form.type, form.bytes));
        }
        owner_ = std::make_unique<live::Client>(live::selectionOwner(), arguments);
        EXPECT_FALSE(owner_->readLine().isEmpty());
        // Not just any notice: that of an earlier owner's end may still be on its way.
        EXPECT_TRUE(eventually([&] { return noticesOfQt_.owner() == session_.clipboardOwner(); }));
    }

    void loseOwner() override { owner_.reset(); }

    void release() override {
        x11::Connection& connection = *session_.connection; // Any client may do it for the owner.
        xcb_set_selection_owner(connection.get(), XCB_NONE, connection.atom("CLIPBOARD"),
                                XCB_CURRENT_TIME);
        xcb_flush(connection.get());
    }

    [[nodiscard]] QByteArray pasted(QLatin1StringView type) override {
        live::Client xclip(QStringLiteral("xclip"),
                           {QStringLiteral("-o"), QStringLiteral("-selection"),
                            QStringLiteral("clipboard"), QStringLiteral("-t"), type});
        return xclip.finish();
    }

    [[nodiscard]] bool eventually(const std::function<bool()>& condition) override {
        return ravelo::eventually(condition);
    }

private:
    live::ListenerSession session_;
    live::NoticesOfQt noticesOfQt_{*session_.connection};
    std::unique_ptr<live::Client> owner_;
};

INSTANTIATE_TEST_SUITE_P(X11, PasteboardContract, testing::Values([]() {
                             return std::unique_ptr<PasteboardHost>(new X11Host);
                         }));

} // namespace
} // namespace ravelo
