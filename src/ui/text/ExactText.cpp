#include "ui/text/ExactText.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <utility>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Block format property: the line end before the block, if not a line feed.
constexpr int lineEnd = QTextFormat::UserProperty + 1;

bool endsLine(QChar letter) {
    switch (letter.unicode()) {
    case u'\n':
    case u'\r':
    case QChar::ParagraphSeparator:
    case 0xfdd0: // QTextDocument uses these two as frame markers.
    case 0xfdd1:
        return true;
    default:
        return false;
    }
}

bool hasLineEnd(const QString& text) {
    return std::any_of(text.begin(), text.end(), endsLine);
}

/// A typed line inherits the format, so a line feed must clear the property.
QTextBlockFormat formatAfter(const QString& end, QTextBlockFormat format) {
    if (end == u"\n") {
        format.clearProperty(lineEnd);
    } else {
        format.setProperty(lineEnd, end);
    }
    return format;
}

void insertExactly(QTextCursor& cursor, const QString& text) {
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    for (qsizetype from = 0; from < text.size();) {
        const auto found = std::find_if(text.begin() + from, text.end(), endsLine);
        const qsizetype end = found - text.begin();
        cursor.insertText(text.mid(from, end - from));
        from = end;
        if (end < text.size()) {
            from += QStringView(text).mid(end).startsWith(u"\r\n") ? 2 : 1;
            cursor.insertBlock(formatAfter(text.mid(end, from - end), cursor.blockFormat()));
        }
    }
    cursor.endEditBlock();
}

/// Between two cursor positions.
QString exactText(const QTextDocument& document, int from, int to) {
    QString text;
    for (QTextBlock block = document.findBlock(from); block.isValid() && block.position() <= to;
         block = block.next()) {
        if (block.position() > from) {
            const QVariant end = block.blockFormat().property(lineEnd);
            text += end.isValid() ? end.toString() : u"\n"_s;
        }
        const int begin = std::max(0, from - block.position());
        const QString line = block.text();
        text += QStringView(line).mid(begin, to - block.position() - begin);
    }
    return text;
}

bool breaksLine(const QKeyEvent& key) {
    return key.matches(QKeySequence::InsertParagraphSeparator) ||
           key.matches(QKeySequence::InsertLineSeparator); // TextEdit would insert U+2028.
}

} // namespace

void replaceSelection(QQuickItem& edit, QQuickTextDocument& document, const QString& text) {
    QTextCursor cursor(document.textDocument());
    cursor.setPosition(edit.property("selectionStart").toInt());
    cursor.setPosition(edit.property("selectionEnd").toInt(), QTextCursor::KeepAnchor);
    insertExactly(cursor, text);
    edit.setProperty("cursorPosition", cursor.position());
}

void ExactText::setDocument(QQuickTextDocument* document) {
    document_ = document;
    document->parent()->installEventFilter(this);
    fill();
    connect(document->textDocument(), &QTextDocument::contentsChanged, this, &ExactText::follow);
    Q_EMIT documentChanged();
}

void ExactText::setText(const QString& text) {
    if (text != text_) {
        text_ = text;
        fill();
        Q_EMIT textChanged();
    }
}

QString ExactText::part(int from, int to) const {
    return exactText(*document_->textDocument(), from, to);
}

bool ExactText::eventFilter(QObject* edit, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (breaksLine(key)) {
            insert(u"\n"_s);
            return true;
        }
        if (key.text() == QChar(QChar::ParagraphSeparator)) {
            insert(key.text());
            return true;
        }
    } else if (event->type() == QEvent::InputMethod) {
        const QString text = static_cast<const QInputMethodEvent&>(*event).commitString();
        if (hasLineEnd(text)) {
            QInputMethodEvent composed;
            QCoreApplication::sendEvent(edit, &composed);
            insert(text);
            return true;
        }
    }
    return QObject::eventFilter(edit, event);
}

void ExactText::fill() {
    if (document_ == nullptr) {
        return;
    }
    const QScopedValueRollback guard(filling_, true);
    QTextDocument& document = *document_->textDocument();
    document.setUndoRedoEnabled(false);
    QTextCursor cursor(&document);
    cursor.select(QTextCursor::Document);
    insertExactly(cursor, text_);
    document.setUndoRedoEnabled(true);
}

void ExactText::follow() {
    if (filling_) {
        return;
    }
    if (QString now = part(0, document_->textDocument()->characterCount() - 1); now != text_) {
        text_ = std::move(now);
        Q_EMIT textChanged();
    }
}

void ExactText::insert(const QString& text) {
    if (auto* edit = qobject_cast<QQuickItem*>(document_->parent())) {
        replaceSelection(*edit, *document_, text);
    }
}

} // namespace ravelo
