// Texts with characters that Qt's text fields change.

#include "panel_fixture/PanelFixture.h"

#include <QInputMethodEvent>

namespace ravelo {

namespace {

/// Each between letters, so that none is trimmed, joined or the last.
QString oddText() {
    QString text;
    for (const QChar odd :
         u"\u00a0\u2028\u2029\r\t\v\f\0\x1f\x7f\x85\u00ad\u0300\u061c\u200b"
         "\u200d\u200e\u202e\u202f\u2060\u2066\u3000\ufeff\ufff9\ufffc\ufffd\xfffe"
         "\xffff\ue000\xfdd0\xfdd1\xfdef"_s) {
        text += QChar(static_cast<char16_t>(u'a' + text.size() % 26));
        text += odd;
    }
    return text + u"\r\n\n\r\r\n\u2029\u2029 e\u0301 \U0001F469\u200d\U0001F680 \U0010FFFF "_s;
}

StoreData oddData() {
    StoreData data = threeClips();
    data.note = oddText();
    return data;
}

class OddText : public Panel {
public:
    OddText() : Panel(oddData()) {}

    void openNote() {
        openTab(u"Notes"_s);
        clickOn(u"noteInput"_s);
        press(Qt::Key_End, Qt::ControlModifier);
    }

    void openSnippet(const QString& title, const QString& body) {
        open();
        snippet = world.store.snippets().first();
        snippet.title = title;
        snippet.body = body;
        world.store.updateSnippet(snippet);
        view.features().snippets.editor()->edit(snippet.id);
    }

    void paste(const QString& text) {
        world.pasteboard.offerText(text);
        press(Qt::Key_V, Qt::ControlModifier, u"\x16"_s);
        world.scheduler.advance(Seconds(0.1));
    }

    void commit(const QString& text) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QCoreApplication::sendEvent(view.window().focusObject(), &event);
    }

    Snippet snippet;
};

/// Other characters than letters as numbers.
std::string readable(const QString& text) {
    std::string all;
    for (const QChar one : text) {
        const bool plain = one.isLetterOrNumber() && one.unicode() < 128;
        all += plain ? std::string(1, one.toLatin1())
                     : u"<%1>"_s.arg(int(one.unicode()), 4, 16, QChar(u'0')).toStdString();
    }
    return all;
}

TEST_F(OddText, isUnchangedInANoteThatIsShownOrEdited) {
    openNote();
    EXPECT_EQ(readable(world.store.note()), readable(oddText()));
    type(u"x"_s);
    EXPECT_EQ(readable(world.store.note()), readable(oddText() + u'x'));
    press(Qt::Key_Home, Qt::ControlModifier);
    type(u"x"_s);
    EXPECT_EQ(readable(world.store.note()), readable(u'x' + oddText() + u'x'));
}

TEST_F(OddText, isRestoredByUndo) {
    openNote();
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    EXPECT_EQ(readable(world.store.note()), "");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(readable(world.store.note()), readable(oddText()));
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(readable(world.store.note()), readable(oddText())) << "before it there was no other";
}

TEST_F(OddText, isCopiedAndCutUnchanged) {
    openNote();
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(readable(pasteboardText()), readable(oddText()));
    press(Qt::Key_Home, Qt::ControlModifier);
    for (int i = 0; i < 5; ++i) { // "a", U+00A0, "c", U+2028, "e"
        press(Qt::Key_Right, Qt::ShiftModifier);
    }
    press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(readable(pasteboardText()), readable(oddText().first(5)));
    EXPECT_EQ(readable(world.store.note()), readable(oddText().sliced(5)));
}

TEST_F(OddText, isPastedIntoANote) {
    openNote();
    press(Qt::Key_A, Qt::ControlModifier);
    paste(u"one "_s + oddText());
    EXPECT_EQ(readable(world.store.note()), readable(u"one "_s + oddText()));
    type(u"x"_s);
    EXPECT_EQ(readable(world.store.note()), readable(u"one "_s + oddText() + u'x'));
}

TEST_F(OddText, isTypedIntoANote) {
    openNote();
    press(Qt::Key_A, Qt::ControlModifier);
    type(u"a\u00a0b\u2028c\u2029d"_s);
    press(Qt::Key_Return, Qt::NoModifier, u"\r"_s);
    press(Qt::Key_Return, Qt::ShiftModifier, u"\r"_s);
    commit(u"e\u2029f\u00a0"_s);
    commit(u"g"_s);
    EXPECT_EQ(readable(world.store.note()),
              readable(u"a\u00a0b\u2028c\u2029d\n\ne\u2029f\u00a0g"_s));
}

TEST_F(OddText, isUnchangedInASnippet) {
    const QString title = u"T "_s + oddText();
    openSnippet(title, oddText());
    type(u"x"_s);
    clickOn(u"titleInput"_s);
    press(Qt::Key_End);
    type(u"y"_s);
    view.features().snippets.editor()->save();
    EXPECT_EQ(readable(world.store.snippets().first().title), readable(title + u'y'));
    EXPECT_EQ(readable(world.store.snippets().first().body), readable(oddText() + u'x'));
}

TEST_F(OddText, isPastedIntoASnippet) {
    openSnippet(u"T"_s, {});
    paste(oddText());
    clickOn(u"titleInput"_s);
    press(Qt::Key_End);
    paste(u"\u00a0\u2028\u2029\u200d"_s);
    view.features().snippets.editor()->save();
    EXPECT_EQ(readable(world.store.snippets().first().title),
              readable(u"T\u00a0\u2028\u2029\u200d"_s));
    EXPECT_EQ(readable(world.store.snippets().first().body), readable(oddText()));
}

TEST_F(OddText, aLongTitleIsNotCutOff) {
    const QString title(40000, u't');
    openSnippet(title, {});
    type(u"x"_s);
    view.features().snippets.editor()->save();
    EXPECT_EQ(world.store.snippets().first().title.size(), title.size());
}

} // namespace

} // namespace ravelo
