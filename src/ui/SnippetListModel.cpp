#include "ui/SnippetListModel.h"

#include "store/Store.h"

namespace ravelo {

SnippetListModel::SnippetListModel(Store& store) {
    connect(&store, &Store::snippetsChanged, this, [this, &store] { takeOver(store.snippets()); });
    takeOver(store.snippets());
}

QVariant SnippetListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Snippet& snippet = rows()[index.row()];
    switch (role) {
    case snippetIdRole:
        return snippet.id;
    case titleRole:
        return snippet.title;
    case iconRole:
        return snippet.icon;
    default:
        return {};
    }
}

QHash<int, QByteArray> SnippetListModel::roleNames() const {
    return {{snippetIdRole, "snippetId"}, {titleRole, "title"}, {iconRole, "icon"}};
}

} // namespace ravelo
