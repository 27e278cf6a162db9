#include "ui/clips/ClipEditor.h"

#include <utility>

namespace ravelo {

void ClipEditor::edit(const ClipItem& clip) {
    if (text_ || clip.kind == ClipKind::image || !clip.secret.isEmpty()) {
        return;
    }
    if (clip.text.size() > longest) {
        Q_EMIT tooLong();
        return;
    }
    text_ = draft_ = clip.text;
    resumed_ = false;
    Q_EMIT editingChanged();
}

void ClipEditor::setDraft(const QString& draft) {
    if (isEditing() && draft != draft_) {
        draft_ = draft;
        Q_EMIT draftChanged();
    }
}

void ClipEditor::putAside() {
    if (draft_ == text()) {
        discard();
    } else if (text_ && !std::exchange(aside_, true)) {
        Q_EMIT editingChanged();
    }
}

void ClipEditor::resume() {
    if (std::exchange(aside_, false)) {
        resumed_ = true;
        Q_EMIT editingChanged();
    }
}

void ClipEditor::copy() {
    if (isEditing() && !draft_.trimmed().isEmpty()) {
        const QString text = draft_;
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

} // namespace ravelo
