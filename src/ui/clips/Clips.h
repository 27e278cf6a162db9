#pragma once

#include "ui/clips/ClipListModel.h"
#include "ui/clips/LinkOpening.h"
#include "ui/controls/Tab.h"
#include "ui/lists/RowAges.h"
#include "ui/snippets/Snippets.h"

#include <functional>

namespace ravelo {

class Deleting;
class NotchController;

/// The tab with the clipboard history and snippets. Main thread.
class Clips : public ravelo::Tab {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(ravelo::ClipListModel* list READ list CONSTANT)
    Q_PROPERTY(ravelo::LinkOpening* links READ links CONSTANT)
    Q_PROPERTY(ravelo::Snippets* snippets READ snippets CONSTANT)

public:
    /// All outlive the tab.
    struct Services {
        Store& store;
        NotchController& controller;
        FileOpener& opener;
        Scheduler& scheduler;
        Toast& toast;
        Deleting& deleting;
        Snippets& snippets;
    };

    Clips(Services services, const QLocale& locale);

    [[nodiscard]] ClipListModel* list() { return &list_; }

    [[nodiscard]] LinkOpening* links() { return &links_; }

    [[nodiscard]] Snippets* snippets() { return &services_.snippets; }

    void begin() override;
    void reset() override;

    /// Reports a copy that was not kept: as a row, now or at the next opening, until the panel
    /// closes, and as a toast if the panel is open.
    void showTooLarge(const TooLargeCopy& copy);

    /// In clips and snippets.
    Q_INVOKABLE void search(const QString& text);

    Q_INVOKABLE void copy(int row);
    Q_INVOKABLE void copyAndClose(int row);
    /// See LinkOpening; closes the panel if the link opens.
    Q_INVOKABLE void openLink(int row);
    Q_INVOKABLE void togglePin(int row);
    /// The text of a secret, to be shown while a button is held; of no other clip.
    [[nodiscard]] Q_INVOKABLE QString revealed(int row) const;
    /// Makes a secret an ordinary clip.
    Q_INVOKABLE void keepSecret(int row);
    /// Without undo.
    Q_INVOKABLE void forgetSecret(int row);
    Q_INVOKABLE void remove(int row);
    /// All unpinned clips.
    Q_INVOKABLE void clear();

private:
    [[nodiscard]] qsizetype removed(const std::function<void()>& remove) const;
    [[nodiscard]] const ClipItem* clipAt(int row) const;

    Services services_;
    QLocale locale_;
    ClipListModel list_;
    LinkOpening links_;
    RowAges ages_;
};

} // namespace ravelo
