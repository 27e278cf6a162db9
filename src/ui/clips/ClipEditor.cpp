#include "ui/clips/ClipEditor.h"

namespace ravelo {

void ClipEditor::edit(const ClipItem& clip) {
    if (text_ || clip.kind == ClipKind::image || !clip.secret.isEmpty()) {
        return;
    }
    if (clip.text.size() > longest) {
        Q_EMIT tooLong();
        return;
    }
    text_ = clip.text;
    Q_EMIT editingChanged();
}

void ClipEditor::copy(const QString& text) {
    if (text_ && !text.trimmed().isEmpty()) {
        discard();
        Q_EMIT copied(text);
    }
}

void ClipEditor::discard() {
    if (text_) {
        text_.reset();
        Q_EMIT editingChanged();
    }
}

} // namespace ravelo
