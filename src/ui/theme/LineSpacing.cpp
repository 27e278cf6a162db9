#include "ui/theme/LineSpacing.h"

#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace ravelo {

void LineSpacing::setDocument(QQuickTextDocument* document) {
    document_ = document;
    connect(document->textDocument(), &QTextDocument::contentsChange, this, &LineSpacing::apply);
    apply();
    Q_EMIT changed();
}

void LineSpacing::setLine(double line) {
    line_ = line;
    apply();
    Q_EMIT changed();
}

void LineSpacing::apply() {
    if (document_ == nullptr || line_ <= 0 || applying_) {
        return;
    }
    const QScopedValueRollback guard(applying_, true);
    const QTextDocument& text = *document_->textDocument();
    QTextBlockFormat format;
    format.setLineHeight(line_, QTextBlockFormat::FixedHeight);
    const auto differs = [this](const QTextBlock& block) {
        return block.blockFormat().lineHeight() != line_;
    };
    QTextBlock block = text.begin();
    while (block.isValid() && !differs(block)) {
        block = block.next();
    }
    if (!block.isValid()) {
        return;
    }
    // One edit block: each edit would lay out the rest of the text again.
    QTextCursor cursor(block);
    cursor.joinPreviousEditBlock();
    for (; block.isValid(); block = block.next()) {
        if (differs(block)) {
            cursor.setPosition(block.position());
            cursor.mergeBlockFormat(format);
        }
    }
    cursor.endEditBlock();
}

} // namespace ravelo
