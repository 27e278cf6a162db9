#include "ui/snippets/SnippetListModel.h"

#include "store/Store.h"

namespace ravelo {

SnippetListModel::SnippetListModel(Store& store, const QLocale& locale)
    : store_(store), locale_(locale) {
    connect(&store, &Store::snippetsChanged, this, &SnippetListModel::update);
    update();
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

void SnippetListModel::setSearch(const QString& search) {
    search_ = search;
    update();
}

void SnippetListModel::update() {
    TextSearch search(locale_); // A new one each time: the texts change, and are few and short.
    search.setWanted(search_);
    QList<Snippet> found;
    for (const Snippet& snippet : store_.snippets()) {
        if (search.finds(snippet.id, snippet.title + u'\n' + snippet.body)) {
            found.append(snippet);
        }
    }
    apply(found.isEmpty() ? store_.snippets() : found);
}

} // namespace ravelo
