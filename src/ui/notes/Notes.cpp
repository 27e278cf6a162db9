#include "ui/notes/Notes.h"

#include "store/Store.h"

namespace ravelo {

using namespace Qt::StringLiterals;

Notes::Notes(Sketch::Services services)
    : Tab({u"Notes"_s, tr("Notes"), u"note.text"_s, QUrl(u"qrc:/Ravelo/Notes/NotesTab.qml"_s)}),
      store_(services.store),
      sketch_(services) {
    connect(&store_, &Store::noteChanged, this, &Notes::textChanged);
}

void Notes::setView(View view) {
    if (view != view_) {
        view_ = view;
        Q_EMIT viewChanged();
        Q_EMIT textChanged();
    }
}

QString Notes::text() const {
    return view_ == SecondNote ? store_.note2() : store_.note();
}

void Notes::setText(const QString& text) {
    if (text != this->text()) {
        view_ == SecondNote ? store_.setNote2(text) : store_.setNote(text);
        store_.save();
    }
}

void Notes::reset() {
    setView(QuickNote);
    sketch_.reset();
}

} // namespace ravelo
