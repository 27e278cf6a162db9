#pragma once

#include "base/Handle.h"
#include "store/Records.h"

#include <QObject>
#include <QQmlEngine>
#include <QStringList>

#include <optional>

namespace ravelo {

class Store;

/// A working copy of the snippet that is being edited. The store hears of it when it is saved, and
/// not before. Main thread.
class SnippetEditor : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(bool editing READ isEditing NOTIFY changed)
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY changed)
    Q_PROPERTY(QString body READ body WRITE setBody NOTIFY changed)
    Q_PROPERTY(QString imageFileName READ imageFileName NOTIFY changed)
    Q_PROPERTY(bool canSave READ canSave NOTIFY changed)

public:
    explicit SnippetEditor(Store& store);

    [[nodiscard]] bool isEditing() const { return editing_.has_value(); }

    [[nodiscard]] QString title() const { return copy().title; }

    void setTitle(const QString& title);

    [[nodiscard]] QString body() const { return copy().body; }

    void setBody(const QString& body);

    [[nodiscard]] QString imageFileName() const { return copy().imageFileName; }

    /// A title is what a snippet is known by.
    [[nodiscard]] bool canSave() const { return !title().trimmed().isEmpty(); }

    // Nothing while another is being edited or there is no such snippet.
    Q_INVOKABLE void edit(const QUuid& id);
    /// A new one, which comes to be when it is saved.
    Q_INVOKABLE void editNew();
    /// Nothing where it cannot be saved.
    Q_INVOKABLE void save();
    Q_INVOKABLE void cancel();

    /// Takes the image now on the pasteboard, once it has been read; nothing where there is none.
    Q_INVOKABLE void attachImage();
    Q_INVOKABLE void removeImage();

Q_SIGNALS:
    void changed();
    void added(); ///< A new one is in the store.

private:
    [[nodiscard]] Snippet copy() const { return editing_.value_or(Snippet()); }

    void begin(const Snippet& snippet);
    /// Ends without the images that were attached but for the one that is kept.
    std::optional<Snippet> end(const QString& keptImage);

    Store& store_;
    std::optional<Snippet> editing_;
    QStringList attached_; ///< Images that the store does not know of.
    Handle attaching_;
};

} // namespace ravelo
