#include "ui/snippets/SnippetEditor.h"
#include "panel_fixture/PanelFixture.h"
#include "support/TestPictures.h"

namespace ravelo {

namespace {

class SnippetEditing : public testing::Test {
public:
    [[nodiscard]] const QList<Snippet>& snippets() const { return world.store.snippets(); }

    void attach() {
        editor.attachImage();
        settle();
    }

    void settle() {
        for (int i = 0; i < 3; ++i) {
            world.scheduler.advance(Seconds(1));
            world.worker.drain();
        }
    }

    [[nodiscard]] QStringList images() {
        settle();
        return QDir(world.store.clipsDir()).entryList(QDir::Files);
    }

    PanelWorld world;
    SnippetEditor editor{world.store};
    const Snippet first = world.store.snippets().first();
};

TEST_F(SnippetEditing, changesTheStoreOnlyWhenSaved) {
    editor.edit(first.id);
    editor.setTitle(u"changed"_s);
    editor.setBody(u"also"_s);
    EXPECT_EQ(snippets().first(), first);
    editor.cancel();
    EXPECT_FALSE(editor.isEditing());
    EXPECT_EQ(snippets().first(), first);

    editor.edit(first.id);
    EXPECT_EQ(editor.title(), first.title) << "of the last time";
    editor.setTitle(u"changed"_s);
    editor.save();
    EXPECT_FALSE(editor.isEditing());
    EXPECT_EQ(snippets().first(), Snippet({first.id, u"changed"_s, first.body, first.icon, {}}));
}

TEST_F(SnippetEditing, appendsANewOneOnceItHasATitle) {
    editor.editNew();
    editor.setBody(u"body"_s);
    editor.setTitle(u" \n"_s);
    EXPECT_FALSE(editor.canSave());
    editor.save();
    EXPECT_TRUE(editor.isEditing());
    EXPECT_EQ(snippets().size(), 18);
    editor.setTitle(u"title"_s);
    editor.save();
    ASSERT_EQ(snippets().size(), 19);
    EXPECT_EQ(snippets().last(),
              Snippet({snippets().last().id, u"title"_s, u"body"_s, u"doc.text"_s, {}}));
}

TEST_F(SnippetEditing, attachesTheCopiedImageAndDeletesOthers) {
    editor.edit(first.id);
    attach();
    EXPECT_EQ(editor.imageFileName(), QString()) << "there was none";
    world.pasteboard.offer({{u"image/png"_s, picture("png")}});
    attach();
    EXPECT_EQ(QStringList{editor.imageFileName()}, images());
    editor.cancel();
    EXPECT_EQ(images(), QStringList()) << "nothing refers to it";

    editor.edit(first.id);
    attach();
    editor.removeImage();
    attach();
    editor.save();
    EXPECT_EQ(images(), QStringList{snippets().first().imageFileName});
    editor.edit(first.id);
    editor.attachImage();
    editor.cancel();
    EXPECT_EQ(images(), QStringList{snippets().first().imageFileName}) << "it came too late";
}

TEST_F(Panel, aSnippetWithoutATitleIsNotSaved) {
    open();
    const qsizetype before = world.store.snippets().size();
    clickOn(u"addSnippet"_s);
    clickOn(u"bodyInput"_s);
    clickOn(u"save"_s);
    EXPECT_TRUE(view.features().snippets.editor()->isEditing()) << "what was typed is lost";
    EXPECT_TRUE(item(u"titleField"_s)->property("mistaken").toBool()) << "nothing says why";
    EXPECT_TRUE(item(u"titleInput"_s)->hasActiveFocus());
    type(u"t"_s);
    EXPECT_FALSE(item(u"titleField"_s)->property("mistaken").toBool());
    clickOn(u"save"_s);
    EXPECT_EQ(world.store.snippets().size(), before + 1);
}

TEST_F(SnippetEditing, deletesAnImageThatASavedSnippetNoLongerHas) {
    world.pasteboard.offer({{u"image/png"_s, picture("png")}});
    editor.edit(first.id);
    attach();
    editor.save();
    ASSERT_EQ(images().size(), 1);
    editor.edit(first.id);
    editor.removeImage();
    editor.cancel();
    EXPECT_EQ(images().size(), 1) << "the snippet still has it";
    editor.edit(first.id);
    attach();
    editor.save();
    EXPECT_EQ(images(), QStringList{snippets().first().imageFileName}) << "the other one is gone";
    editor.edit(first.id);
    editor.removeImage();
    editor.save();
    EXPECT_EQ(images(), QStringList());
}

TEST_F(Panel, aChangedSnippetWaitsWhileThePanelIsClosed) {
    const auto reopen = [this] {
        rebuild();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // The former content.
        EXPECT_FALSE(view.features().snippets.editor()->isEditing()) << "closed";
        openByKey();
    };
    open();
    clickOn(u"addSnippet"_s);
    reopen();
    EXPECT_EQ(shown(u"sheet"_s), nullptr) << "nothing was typed";
    clickOn(u"addSnippet"_s);
    type(u"title"_s);
    clickOn(u"bodyInput"_s);
    type(u"ab"_s);
    for (const QString& next : {u"c"_s, u"d"_s}) {
        reopen();
        ASSERT_TRUE(eventually([&] { return item(u"bodyInput"_s)->hasActiveFocus(); }));
        type(next);
    }
    EXPECT_EQ(text(u"titleInput"_s), u"title"_s);
    EXPECT_EQ(text(u"bodyInput"_s), u"abcd"_s);
    press(Qt::Key_Escape);
    item(u"snippetDiscardQuestion"_s);
    pressKeys(u"Tab Return"_s);
    reopen();
    EXPECT_FALSE(view.features().snippets.editor()->isEditing()) << "discarded";

    clickOn(u"addSnippet"_s);
    type(u"title"_s);
    close();
    openByKey(); // Before the panel was built again.
    EXPECT_EQ(text(u"titleInput"_s), u"title"_s);
    close();
    view.features().forget();
    openByKey();
    EXPECT_FALSE(view.features().snippets.editor()->isEditing())
        << "the store was locked or erased";
}

TEST_F(Panel, EscapeAsksBeforeItDiscardsASnippet) {
    open();
    const auto isEditing = [this] {
        return view.features().snippets.editor()->isEditing();
    };
    clickOn(u"addSnippet"_s);
    press(Qt::Key_Escape);
    EXPECT_FALSE(isEditing()) << "nothing was typed";
    EXPECT_TRUE(eventually([this] { return shown(u"sheet"_s) == nullptr; }));
    clickOn(u"addSnippet"_s);
    type(u"t"_s);
    press(Qt::Key_Escape);
    item(u"snippetDiscardQuestion"_s);
    press(Qt::Key_Return);
    EXPECT_TRUE(isEditing()) << "Return means no";
    EXPECT_EQ(text(u"titleInput"_s), u"t"_s);
    EXPECT_TRUE(eventually([this] { return shown(u"snippetDiscardQuestion"_s) == nullptr; }));
    press(Qt::Key_Escape);
    item(u"snippetDiscardQuestion"_s);
    pressKeys(u"Tab Return"_s);
    EXPECT_FALSE(isEditing());
}

} // namespace
} // namespace ravelo
