#pragma once

#include "ui/clips/ClipDrag.h"
#include "ui/clips/ClipEditor.h"
#include "ui/clips/ClipListModel.h"
#include "ui/clips/ClipPasting.h"
#include "ui/clips/LinkOpening.h"
#include "ui/controls/Tab.h"
#include "ui/lists/RowAges.h"
#include "ui/preview/ClipPreview.h"
#include "ui/snippets/Snippets.h"

#include <functional>

namespace ravelo {

class ClipboardManager;
class Deleting;
class DetachedJobs;
class NotchController;

/// The tab with the clipboard history and snippets. Main thread.
class Clips : public ravelo::Tab {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(ravelo::ClipListModel* list READ list CONSTANT)
    Q_PROPERTY(ravelo::LinkOpening* links READ links CONSTANT)
    Q_PROPERTY(ravelo::ClipEditor* editor READ editor CONSTANT)
    Q_PROPERTY(ravelo::ClipPreview* preview READ preview CONSTANT)
    Q_PROPERTY(ravelo::ClipPasting* pasting READ pasting CONSTANT)
    /// How chosen clips are joined, for the user.
    Q_PROPERTY(QString joined READ joined NOTIFY joinedChanged)
    /// Number of clips chosen to be copied as one.
    Q_PROPERTY(int selected READ selected NOTIFY selectedChanged)
    Q_PROPERTY(ravelo::Snippets* snippets READ snippets CONSTANT)

public:
    /// All outlive the tab.
    struct Services {
        Store& store;
        NotchController& controller;
        ClipboardManager& clipboard;
        FileOpener& opener;
        DetachedJobs& jobs;
        Scheduler& scheduler;
        Toast& toast;
        Deleting& deleting;
        Snippets& snippets;
        std::shared_ptr<ImageDecoder> decoder;
        AppSettings& settings;
        Pasting* pasting; ///< Null if nothing can be pasted.
    };

    Clips(Services services, const QLocale& locale);

    [[nodiscard]] ClipListModel* list() { return &list_; }

    [[nodiscard]] LinkOpening* links() { return &links_; }

    [[nodiscard]] ClipEditor* editor() { return &editor_; }

    [[nodiscard]] ClipPreview* preview() { return &preview_; }

    [[nodiscard]] ClipPasting* pasting() { return &pasting_; }

    [[nodiscard]] QString joined() const;

    [[nodiscard]] int selected() { return int(list_.selection().ids().size()); }

    [[nodiscard]] Snippets* snippets() { return &services_.snippets; }

    void begin() override;
    void reset() override;

    /// Reports a copy that was not kept: as a row, now or at the next opening, until the panel
    /// closes, and as a toast if the panel is open.
    void showTooLarge(const TooLargeCopy& copy);

    /// In clips and snippets; the latter without the filters.
    Q_INVOKABLE void search(const QString& written);

    [[nodiscard]] Q_INVOKABLE bool isFilter(const QString& word) const {
        return ClipQuery::isFilter(word);
    }

    /// -1 ends it.
    Q_INVOKABLE void showPreview(int row) { preview_.show(list_.idAt(row)); }

    Q_INVOKABLE void copy(int row);
    Q_INVOKABLE void copyAndClose(int row);
    /// See ClipPasting.
    Q_INVOKABLE void pasteAndClose(int row);
    /// Without its other forms.
    Q_INVOKABLE void copyPlainAndClose(int row);
    /// Whether that makes a difference, as far as it is known.
    [[nodiscard]] Q_INVOKABLE bool hasOtherForms(int row) const;
    Q_INVOKABLE void edit(int row);
    /// All chosen clips if the row is one of them.
    Q_INVOKABLE void drag(int row, QQuickItem* from);
    /// Learns what its menu can offer.
    Q_INVOKABLE void look(int row);
    Q_INVOKABLE void toggleSelected(int row);
    /// From where choosing began, else from `current`.
    Q_INVOKABLE void selectTo(int row, int current);
    Q_INVOKABLE void selectAll();
    Q_INVOKABLE void clearSelection();
    /// Joined as the settings say, pictures left out.
    Q_INVOKABLE void copySelected();
    Q_INVOKABLE void pasteSelectedAndClose();
    Q_INVOKABLE void removeSelected();
    /// Closes the panel.
    Q_INVOKABLE void close();
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

Q_SIGNALS:
    void searched();     ///< The rows are those of the last search.
    void detailsKnown(); ///< Of more clips.
    void selectedChanged();
    void joinedChanged();
    /// Deleted clips are back; this is the first of their rows.
    void restored(int row);

private:
    [[nodiscard]] qsizetype removed(const std::function<void()>& remove) const;
    enum class Secrets { included, leftOut };
    [[nodiscard]] QStringList selectedTexts(Secrets secrets = Secrets::included) const;
    [[nodiscard]] QString joined(const QStringList& texts) const;
    void copy(int row, const std::function<void()>& done);
    void copyEdited(const QString& text);
    void showRestored(const QSet<QUuid>& ids);
    [[nodiscard]] const ClipItem* clipOf(const QUuid& id) const;

    [[nodiscard]] const ClipItem* clipAt(int row) const { return clipOf(list_.idAt(row)); }

    Services services_;
    QLocale locale_;
    ClipListModel list_;
    LinkOpening links_;
    ClipPasting pasting_;
    ClipPreview preview_;
    ClipEditor editor_;
    ClipDrag drag_;
    RowAges ages_;
};

} // namespace ravelo
