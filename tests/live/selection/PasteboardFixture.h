#pragma once

#include "live/ListenerSession.h"

namespace ravelo::x11 {

class X11PasteboardTest : public testing::Test {
protected:
    /// Another program takes the clipboard; we have been notified when this returns.
    std::unique_ptr<live::Client> own(const QString& behaviour, const QStringList& offers) {
        const qint64 before = board().changeCount();
        auto owner = std::make_unique<live::Client>(
            live::selectionOwner(), QStringList{QStringLiteral("CLIPBOARD"), behaviour} + offers);
        EXPECT_FALSE(owner->readLine().isEmpty()) << "the other program does not own it";
        EXPECT_TRUE(eventually([&] { return board().changeCount() != before; })) << "no notice";
        return owner;
    }

    Handle ask(const QString& type, std::optional<PasteboardSnapshot>& result) {
        return board().read(
            [type](const PasteboardSnapshot& snapshot) {
                return snapshot.answers.contains(type) ? QString() : type;
            },
            [&](PasteboardSnapshot snapshot) { result = std::move(snapshot); });
    }

    PasteboardSnapshot read(const QString& type) {
        std::optional<PasteboardSnapshot> result;
        const Handle reading = ask(type, result);
        EXPECT_TRUE(eventually([&] { return result.has_value(); })) << "the read never ends";
        return result.value_or(PasteboardSnapshot());
    }

    std::optional<QByteArray> readText() {
        return read(plainTextType).answers.value(plainTextType);
    }

    [[nodiscard]] X11Pasteboard& board() { return session_.pasteboard; }

    live::ListenerSession session_;
};

} // namespace ravelo::x11
