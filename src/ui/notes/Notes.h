#pragma once

#include "ui/controls/Tab.h"
#include "ui/notes/Sketch.h"

namespace ravelo {

/// The tab with the quick note, a second note and a sketch pad. The quick note is what opens. Main
/// thread.
class Notes : public ravelo::Tab {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(View view READ view WRITE setView NOTIFY viewChanged)
    /// Of the note that is shown. Saved at every change.
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(ravelo::Sketch* sketch READ sketch CONSTANT)

public:
    // NOLINTNEXTLINE(readability-identifier-naming): QML demands capitals.
    enum View { QuickNote, SecondNote, SketchPad };
    Q_ENUM(View)

    /// The services outlive the tab.
    explicit Notes(Sketch::Services services);

    [[nodiscard]] View view() const { return view_; }

    void setView(View view);

    [[nodiscard]] QString text() const;

    void setText(const QString& text);

    [[nodiscard]] Sketch* sketch() { return &sketch_; }

    void reset() override;

Q_SIGNALS:
    void viewChanged();
    void textChanged();

private:
    Store& store_;
    Sketch sketch_;
    View view_ = QuickNote;
};

} // namespace ravelo
