#pragma once

#include "store/Records.h"
#include "ui/lists/KeyedListModel.h"
#include "ui/lists/TextSearch.h"

#include <QQmlEngine>

namespace ravelo {

class Store;

/// The snippets as shown in the strip: those whose title or body contains `search`, all
/// if none does. Main thread.
class SnippetListModel : public KeyedListModel<Snippet> {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")

public:
    enum Role { snippetIdRole = Qt::UserRole, titleRole, iconRole };

    SnippetListModel(Store& store, const QLocale& locale);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    void setSearch(const QString& search);

private:
    void update();

    Store& store_;
    QLocale locale_;
    QString search_;
};

} // namespace ravelo
