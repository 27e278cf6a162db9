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
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().lineHeight() != line_) {
            QTextCursor cursor(block);
            cursor.joinPreviousEditBlock();
            cursor.mergeBlockFormat(format);
            cursor.endEditBlock();
        }
    }
}

} // namespace ravelo
