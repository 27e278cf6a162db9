#pragma once

#include "base/Handle.h"
#include "store/Records.h"

#include <QObject>
#include <QQmlEngine>
#include <QStringList>

#include <optional>

namespace ravelo {

class Store;

/// A working copy of the edited snippet; the store changes only at `save`. Main thread.
class SnippetEditor : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(bool editing READ isEditing NOTIFY changed)
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY changed)
    Q_PROPERTY(QString body READ body WRITE setBody NOTIFY changed)
    Q_PROPERTY(QString imageFileName READ imageFileName NOTIFY changed)
    Q_PROPERTY(bool canSave READ canSave NOTIFY changed)
    /// Something would be lost by `cancel`.
    Q_PROPERTY(bool modified READ isModified NOTIFY changed)
    /// The panel was closed in between.
    Q_PROPERTY(bool resumed READ isResumed NOTIFY changed)

public:
    explicit SnippetEditor(Store& store);

    [[nodiscard]] bool isEditing() const { return editing_ && !aside_; }

    [[nodiscard]] QString title() const { return copy().title; }

    void setTitle(const QString& title);

    [[nodiscard]] QString body() const { return copy().body; }

    void setBody(const QString& body);

    [[nodiscard]] QString imageFileName() const { return copy().imageFileName; }

    /// Requires a title.
    [[nodiscard]] bool canSave() const { return !title().trimmed().isEmpty(); }

    [[nodiscard]] bool isModified() const { return editing_ && *editing_ != begun_; }

    [[nodiscard]] bool isResumed() const { return resumed_; }

    /// The panel closes: what was changed is kept until it opens again.
    void putAside();
    void resume();

    // No effect while another one is edited or if there is no such snippet.
    Q_INVOKABLE void edit(const QUuid& id);
    /// A new one, which exists once saved.
    Q_INVOKABLE void editNew();
    /// No effect if it cannot be saved.
    Q_INVOKABLE void save();
    Q_INVOKABLE void cancel();

    /// Attaches the image on the pasteboard, asynchronously; no effect without one.
    Q_INVOKABLE void attachImage();
    Q_INVOKABLE void removeImage();

Q_SIGNALS:
    void changed();
    void added(); ///< A new snippet is in the store.

private:
    [[nodiscard]] Snippet copy() const { return editing_.value_or(Snippet()); }

    void begin(const Snippet& snippet);
    /// Ends editing and deletes attached images except the kept one.
    std::optional<Snippet> end(const QString& keptImage);

    Store& store_;
    std::optional<Snippet> editing_;
    bool aside_ = false;
    bool resumed_ = false;
    Snippet begun_;        ///< As it was.
    QStringList attached_; ///< Image files that the store does not refer to.
    Handle attaching_;
};

} // namespace ravelo
