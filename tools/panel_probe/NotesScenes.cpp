#include "Stage.h"

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

std::function<void(Stage&)> pageOf(const QString& button) {
    return [button](Stage& stage) {
        stage.hand.click(button);
        stage.hand.point(QPointF(5, 300));
    };
}

} // namespace

Scenes notesScenes() {
    return {
        {u"notes"_s, nothing,
         [](Stage& stage) {
             stage.hand.click(u"noteInput"_s);
             QQuickItem& input = stage.hand.item(u"noteInput"_s);
             input.setProperty("cursorPosition", input.property("length"));
             stage.rest = Milliseconds(200); // Before the caret blinks.
         }},
        {u"notes-second"_s, nothing, pageOf(u"secondNote"_s)},
        {u"notes-sketch"_s, nothing, pageOf(u"sketchPad"_s)},
    };
}

} // namespace ravelo
