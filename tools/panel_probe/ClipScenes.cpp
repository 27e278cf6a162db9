// Clips, their search and preview, and the snippets above them.

#include "Stage.h"

#include "store/images/TooLarge.h"

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

constexpr QPointF beside{5, 300};
constexpr Milliseconds untilTheEditorIsShown(2500);

void search(Stage& stage, const QString& text) {
    stage.hand.click(u"searchInput"_s);
    stage.hand.item(u"searchInput"_s).setProperty("text", text);
}

std::function<void(Stage&)> previewOf(int row) {
    return [row](Stage& stage) {
        stage.hand.click(u"searchInput"_s);
        for (int i = 0; i < row; ++i) {
            stage.hand.press(Qt::Key_Down);
        }
        stage.hand.press(Qt::Key_Space);
    };
}

} // namespace

Scenes clipScenes() {
    return {
        {u"clipboard"_s, nothing, nothing},
        {u"empty"_s, nothing, nothing},
        {u"hover"_s, nothing,
         [](Stage& stage) {
             stage.hand.point(QPointF(643, 417));
         }},
        {u"question"_s, nothing,
         [](Stage& stage) {
             stage.hand.click(u"trash"_s);
         }},
        {u"toast"_s, nothing,
         [](Stage& stage) {
             stage.hand.click(u"card2"_s);
             stage.hand.point(beside);
         }},
        {u"undo"_s, nothing,
         [](Stage& stage) {
             stage.hand.point(u"card2"_s);
             settle(Milliseconds(200));
             stage.hand.click(u"card2/delete"_s);
             stage.hand.point(beside);
         }},
        {u"too-large"_s, nothing,
         [](Stage& stage) {
             stage.view.features().clips->showTooLarge(
                 {TooLargeCopy::Measure::bytesOfText, 14'885'000});
         }},
        {u"search"_s, nothing,
         [](Stage& stage) {
             search(stage, u"larkspur"_s);
         }},
        {u"search-nothing"_s, nothing,
         [](Stage& stage) {
             search(stage, u"larkspurr"_s);
         }},
        {u"search-filter"_s, nothing,
         [](Stage& stage) {
             search(stage, u"type:image "_s);
             settle(Milliseconds(200));
             stage.hand.click(u"filter"_s);
         }},
        {u"search-question"_s, nothing,
         [](Stage& stage) {
             search(stage, u"larkspur"_s);
             stage.hand.click(u"trash"_s);
         }},
        {u"preview"_s, nothing, previewOf(0)},
        {u"preview-image"_s, nothing, previewOf(3)},
        {u"preview-link"_s, nothing, previewOf(4)},
        {u"preview-text"_s, nothing, previewOf(6)},
    };
}

Scenes snippetScenes() {
    return {
        {u"chip"_s, nothing,
         [](Stage& stage) {
             stage.hand.point(u"chip1"_s);
         }},
        {u"menu"_s, nothing,
         [](Stage& stage) {
             stage.hand.click(u"chip1"_s, Qt::RightButton);
             stage.hand.point(u"snippetMenu/item0"_s);
         }},
        {u"editor"_s, nothing,
         [](Stage& stage) {
             Snippet snippet = stage.world.store.snippets()[6];
             snippet.imageFileName = u"plan.png"_s;
             stage.world.store.updateSnippet(snippet);
             stage.view.features().snippets.editor()->edit(snippet.id);
             stage.rest = untilTheEditorIsShown;
         }},
        {u"editor-new"_s, nothing,
         [](Stage& stage) {
             stage.hand.click(u"addSnippet"_s);
             stage.rest = untilTheEditorIsShown;
         }},
    };
}

} // namespace ravelo
