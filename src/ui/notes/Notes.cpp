#include "ui/notes/Notes.h"

#include "store/Store.h"

namespace ravelo {

using namespace Qt::StringLiterals;

Notes::Notes(Store& store)
    : Tab({u"Notes"_s, tr("Notes"), u"note.text"_s, QUrl(u"qrc:/Ravelo/Notes/NotesTab.qml"_s)}),
      store_(store) {
    connect(&store, &Store::noteChanged, this, &Notes::textChanged);
}

QString Notes::text() const {
    return store_.note();
}

void Notes::setText(const QString& text) {
    if (text != store_.note()) {
        store_.setNote(text);
        store_.save();
    }
}

} // namespace ravelo
