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
    draft_ = clip.text;
    resumed_ = false;
    Q_EMIT editingChanged();
}

void ClipEditor::copy(const QString& text) {
    if (isEditing() && !text.trimmed().isEmpty()) {
        discard();
        Q_EMIT copied(text);
    }
}

void ClipEditor::discard() {
    if (text_) {
        text_.reset();
        draft_.clear();
        aside_ = false;
        Q_EMIT editingChanged();
    }
}

void ClipEditor::putAside() {
    if (draft_ == text()) {
        discard();
    } else if (isEditing()) {
        aside_ = true;
        Q_EMIT editingChanged();
    }
}

void ClipEditor::resume() {
    if (aside_) {
        aside_ = false;
        resumed_ = true;
        Q_EMIT editingChanged();
    }
}

} // namespace ravelo
