#pragma once

#include "store/Records.h"
#include "ui/KeyedListModel.h"

#include <QQmlEngine>

namespace ravelo {

class Store;

/// The snippets as the panel's strip shows them. Main thread.
class SnippetListModel : public KeyedListModel<Snippet> {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the panel has one")

public:
    enum Role { snippetIdRole = Qt::UserRole, titleRole, iconRole };

    explicit SnippetListModel(Store& store);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};

} // namespace ravelo
