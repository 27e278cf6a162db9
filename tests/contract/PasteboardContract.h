#pragma once

#include "platform/Pasteboard.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace ravelo {

/// A pasteboard and the world around it.
class PasteboardHost {
public:
    virtual ~PasteboardHost() = default;

    [[nodiscard]] virtual Pasteboard& pasteboard() = 0;

    /// Another program copies.
    virtual void offer(const QList<PasteboardEntry>& forms) = 0;

    /// That program exits, or clears the pasteboard and stays.
    virtual void loseOwner() = 0;
    virtual void release() = 0;

    /// Whether the desktop itself keeps what a program had that has ended.
    [[nodiscard]] virtual bool keepsOrphans() const { return false; }

    /// What another program reads as this type.
    [[nodiscard]] virtual QByteArray pasted(QLatin1StringView type) = 0;

    /// Lets time pass until `condition` holds; false if it never does.
    [[nodiscard]] virtual bool eventually(const std::function<bool()>& condition) = 0;
};

using PasteboardHostMaker = std::unique_ptr<PasteboardHost> (*)();

/// The promises of Pasteboard.h. A test program instantiates it for its own adapter.
class PasteboardContract : public testing::TestWithParam<PasteboardHostMaker> {
protected:
    /// Asks for these types in turn.
    static PasteboardPlan asking(const QStringList& types) {
        return [types](const PasteboardSnapshot& snapshot) {
            const auto next = std::ranges::find_if(
                types, [&](const QString& type) { return !snapshot.answers.contains(type); });
            return next == types.end() ? QString() : *next;
        };
    }

    PasteboardSnapshot read(const QStringList& types) {
        std::optional<PasteboardSnapshot> result;
        const Handle reading = board().read(
            asking(types), [&](PasteboardSnapshot snapshot) { result = std::move(snapshot); });
        EXPECT_FALSE(result) << "answered from within the call";
        EXPECT_TRUE(eventually([&] { return result.has_value(); })) << "no answer";
        return result.value_or(PasteboardSnapshot());
    }

    /// Another program copies; we have been notified when this returns.
    void offer(const QList<PasteboardEntry>& forms) {
        const qint64 before = board().changeCount();
        host_->offer(forms);
        ASSERT_TRUE(eventually([&] { return board().changeCount() != before; }))
            << "the count stands still";
    }

    [[nodiscard]] Pasteboard& board() { return host_->pasteboard(); }

    [[nodiscard]] bool eventually(const std::function<bool()>& condition) {
        return host_->eventually(condition);
    }

    [[nodiscard]] static PasteboardEntry text(const char* words) { return {plainTextType, words}; }

    std::unique_ptr<PasteboardHost> host_ = GetParam()();
};

inline const QString pngType = QStringLiteral("image/png");

TEST_P(PasteboardContract, reportsAChangeFromElsewhere) {
    EXPECT_TRUE(board().reportsChanges());
    int calls = 0;
    const Handle listening = board().onChange([&] { ++calls; });
    offer({text("one")});
    EXPECT_TRUE(eventually([&] { return calls == 1; })) << "the change is not reported";
}

TEST_P(PasteboardContract, readsOnlyWhatThePlanRequests) {
    offer(
        {text("Gr\xc3\xbc\xc3\x9f"), {pngType, "png bytes"}, {QStringLiteral("text/html"), "<b>"}});
    const auto snapshot = read({plainTextType, pngType, QStringLiteral("image/tiff")});
    for (const QString& type : {QString(plainTextType), pngType, QStringLiteral("text/html")}) {
        EXPECT_EQ(snapshot.types.count(type), 1) << qPrintable(type);
    }
    EXPECT_EQ(snapshot.changeCount, board().changeCount());
    EXPECT_EQ(snapshot.answers.size(), 3);
    EXPECT_EQ(snapshot.answers.value(plainTextType), QByteArray("Gr\xc3\xbc\xc3\x9f"));
    EXPECT_EQ(snapshot.answers.value(pngType), QByteArray("png bytes"));
    EXPECT_EQ(snapshot.answers.value(QStringLiteral("image/tiff")), std::nullopt)
        << "something that was not on offer";
}

TEST_P(PasteboardContract, passesAllFormsOnUnchanged) {
    const QByteArray bytes("<b>\0\r\n\xff</b>", 11);
    const QList<PasteboardEntry> forms = {
        {QStringLiteral("text/uri-list"), "file:///tmp/a%20b\r\nfile:///tmp/c\r\n"},
        {QStringLiteral("x-special/gnome-copied-files"), "copy\nfile:///tmp/a%20b\nfile:///tmp/c"},
        {QStringLiteral("text/html"), bytes},
        {QStringLiteral("text/rtf"), "{\\rtf1 \\b b}"},
        {QStringLiteral("application/x-openoffice-embed-source-xml;windows_formatname=\"Star\""),
         bytes},
        text("Gr\xc3\xbc\xc3\x9f")};
    QStringList types;
    for (const PasteboardEntry& form : forms) {
        types.append(form.type);
    }
    offer(forms);
    const auto snapshot = read(types);
    for (const PasteboardEntry& form : forms) {
        EXPECT_EQ(snapshot.answers.value(form.type), form.bytes) << qPrintable(form.type);
    }
    board().write(forms);
    for (const PasteboardEntry& form : forms) {
        const QByteArray type = form.type.toLatin1();
        EXPECT_EQ(host_->pasted(QLatin1StringView(type)), form.bytes) << type.constData();
    }
}

TEST_P(PasteboardContract, neverAnswersADroppedOrOutdatedRead) {
    offer({text("old")});
    int answers = 0;
    Handle dropped = board().read(asking({plainTextType}), [&](const auto&) { ++answers; });
    dropped.reset();
    QByteArray latest("old"); // It may have been answered just before the change.
    const Handle overtaken =
        board().read(asking({plainTextType}), [&](const PasteboardSnapshot& snapshot) {
            latest = snapshot.answers.value(plainTextType).value_or(QByteArray());
        });
    board().write({text("ours")});
    EXPECT_EQ(read({plainTextType}).answers.value(plainTextType), QByteArray("ours"));
    EXPECT_EQ(answers, 0) << "the handle was dropped";
    EXPECT_EQ(latest, "old") << "answered by contents that came after the question";
}

TEST_P(PasteboardContract, countsOurWriteAtOnceWithoutANotification) {
    offer({text("before")});
    int calls = 0;
    const qint64 before = board().changeCount();
    const Handle listening = board().onChange([&] { ++calls; });
    ASSERT_TRUE(read({plainTextType}).types.contains(plainTextType)); // All notices are in.
    calls = 0;
    EXPECT_EQ(board().write({{pngType, "png bytes"}, text("Gr\xc3\xbc\xc3\x9f")}), before + 1);
    EXPECT_EQ(board().changeCount(), before + 1);
    EXPECT_EQ(host_->pasted(plainTextType), "Gr\xc3\xbc\xc3\x9f");
    EXPECT_EQ(host_->pasted(QLatin1StringView("image/png")), "png bytes");
    EXPECT_EQ(read({pngType}).answers.value(pngType), QByteArray("png bytes"));
    EXPECT_EQ(board().changeCount(), before + 1) << "counted again when the notice came";
    EXPECT_EQ(calls, 0) << "notified of our own write";
}

TEST_P(PasteboardContract, isAdoptedOnlyAfterAnOwnersEnd) {
    if (host_->keepsOrphans()) {
        GTEST_SKIP() << "there are no orphans";
    }
    const QList<PasteboardEntry> ours = {text("ours")};
    const auto expectNoOrphan = [&](const char* when) {
        EXPECT_EQ(board().orphaned(), std::nullopt) << when;
        EXPECT_FALSE(board().adopt(ours)) << when;
    };
    expectNoOrphan("at first");
    offer({text("given up")});
    qint64 before = board().changeCount();
    host_->release();
    EXPECT_TRUE(eventually([&] { return board().changeCount() == before + 1; }));
    if (board().orphans() == Pasteboard::Orphans::ofEndedOwners) {
        expectNoOrphan("given up");
    }

    offer({text("lost")});
    expectNoOrphan("owned");
    before = board().changeCount();
    int calls = 0;
    const Handle listening = board().onChange([&] { ++calls; });
    host_->loseOwner();
    EXPECT_TRUE(eventually([&] { return board().orphaned() == before; }));
    EXPECT_TRUE(eventually([&] { return calls > 0; })) << "not notified of the end";
    (void)read({plainTextType}); // Until all that came before is reported.
    const int reported = calls;
    EXPECT_EQ(board().changeCount(), before + 1);
    EXPECT_EQ(board().adopt(ours), before + 2);
    EXPECT_EQ(board().changeCount(), before + 2);
    EXPECT_TRUE(eventually([&] { return host_->pasted(plainTextType) == "ours"; }));
    EXPECT_EQ(read({plainTextType}).answers.value(plainTextType), QByteArray("ours"));
    expectNoOrphan("adopted");
    EXPECT_EQ(calls, reported) << "notified of our own write";

    offer({text("lost too")});
    host_->loseOwner();
    EXPECT_TRUE(eventually([&] { return board().orphaned().has_value(); }));
    offer({text("next")});
    expectNoOrphan("copied again");
    EXPECT_EQ(host_->pasted(plainTextType), "next");
}

} // namespace ravelo
