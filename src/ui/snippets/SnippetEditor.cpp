#include "ui/snippets/SnippetEditor.h"

#include "store/Store.h"

#include <algorithm>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

SnippetEditor::SnippetEditor(Store& store) : store_(store) {}

void SnippetEditor::setTitle(const QString& title) {
    if (isEditing() && editing_->title != title) {
        editing_->title = title;
        Q_EMIT changed();
    }
}

void SnippetEditor::setBody(const QString& body) {
    if (isEditing() && editing_->body != body) {
        editing_->body = body;
        Q_EMIT changed();
    }
}

void SnippetEditor::edit(const QUuid& id) {
    const auto& snippets = store_.snippets();
    const auto found = std::ranges::find(snippets, id, &Snippet::id);
    if (found != snippets.end()) {
        begin(*found);
    }
}

void SnippetEditor::editNew() {
    begin({QUuid::createUuid(), {}, {}, u"doc.text"_s, {}});
}

void SnippetEditor::begin(const Snippet& snippet) {
    if (!editing_) {
        editing_ = begun_ = snippet;
        resumed_ = false;
        Q_EMIT changed();
    }
}

std::optional<Snippet> SnippetEditor::end(const QString& keptImage) {
    attaching_.reset();
    aside_ = false;
    attached_.removeAll(keptImage);
    store_.removeImages(std::exchange(attached_, {}));
    begun_ = {};
    return std::exchange(editing_, std::nullopt);
}

void SnippetEditor::save() {
    if (!canSave()) {
        return;
    }
    const QString former = begun_.imageFileName;
    const Snippet edited = *end(editing_->imageFileName);
    const auto& snippets = store_.snippets();
    if (std::ranges::find(snippets, edited.id, &Snippet::id) != snippets.end()) {
        store_.updateSnippet(edited);
        store_.removeUnusedImage(former);
    } else {
        store_.addSnippet(edited);
        Q_EMIT added();
    }
    Q_EMIT changed();
}

void SnippetEditor::cancel() {
    if (end({})) {
        Q_EMIT changed();
    }
}

void SnippetEditor::putAside() {
    if (!isModified()) {
        cancel();
    } else if (!std::exchange(aside_, true)) {
        Q_EMIT changed();
    }
}

void SnippetEditor::resume() {
    if (std::exchange(aside_, false)) {
        resumed_ = true;
        Q_EMIT changed();
    }
}

void SnippetEditor::attachImage() {
    attaching_ = store_.saveClipboardImageForSnippet([this](const QString& name) {
        if (editing_ && !name.isEmpty()) {
            attached_.append(name);
            editing_->imageFileName = name;
            Q_EMIT changed();
        }
    });
}

void SnippetEditor::removeImage() {
    if (editing_) {
        editing_->imageFileName.clear();
        Q_EMIT changed();
    }
}

} // namespace ravelo
