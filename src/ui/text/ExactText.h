#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickTextDocument>

namespace ravelo {

/// Replaces the selection of a TextEdit and keeps every character of `text`.
void replaceSelection(QQuickItem& edit, QQuickTextDocument& document, const QString& text);

/// The exact text of a TextEdit. Its `text` has a space for U+00A0 and a line feed for U+2028 and
/// for every line end: CR, CRLF, U+2029, U+FDD0, U+FDD1. The document keeps the first two; the line
/// ends are stored in block formats, so undo and redo keep them too. Main thread.
class ExactText : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickTextDocument* document READ document WRITE setDocument NOTIFY documentChanged)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)

public:
    using QObject::QObject;

    [[nodiscard]] QQuickTextDocument* document() const { return document_; }

    /// Set once; owned by the TextEdit.
    void setDocument(QQuickTextDocument* document);

    [[nodiscard]] QString text() const { return text_; }

    /// Also clears the undo history.
    void setText(const QString& text);

    /// Between two cursor positions.
    Q_INVOKABLE [[nodiscard]] QString part(int from, int to) const;

    bool eventFilter(QObject* edit, QEvent* event) override;

Q_SIGNALS:
    void documentChanged();
    void textChanged();

private:
    void fill();
    void follow();
    void insert(const QString& text);

    QQuickTextDocument* document_ = nullptr;
    QString text_;
    bool filling_ = false;
};

} // namespace ravelo
