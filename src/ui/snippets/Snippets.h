#pragma once

#include "ui/snippets/SnippetEditor.h"
#include "ui/snippets/SnippetListModel.h"

namespace ravelo {

class ClipboardManager;
class Deleting;
class NotchController;
class Toast;

/// The snippets and actions on them. Main thread.
class Snippets : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(ravelo::SnippetListModel* list READ list CONSTANT)
    Q_PROPERTY(ravelo::SnippetEditor* editor READ editor CONSTANT)

public:
    /// All outlive this.
    struct Services {
        Store& store;
        NotchController& controller;
        ClipboardManager& clipboard;
        Toast& toast;
        Deleting& deleting;
    };

    Snippets(Services services, const QLocale& locale);

    [[nodiscard]] SnippetListModel* list() { return &list_; }

    [[nodiscard]] SnippetEditor* editor() { return &editor_; }

    /// Visible, or no longer: a snippet that is being edited waits meanwhile. The search is the
    /// tab's to reset.
    void begin() { editor_.resume(); }

    void reset() { editor_.putAside(); }

    Q_INVOKABLE void copy(const QUuid& id);
    Q_INVOKABLE void remove(const QUuid& id);

private:
    Services services_;
    SnippetListModel list_;
    SnippetEditor editor_;
};

} // namespace ravelo
