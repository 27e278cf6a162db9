#pragma once

#include "base/Scheduler.h"
#include "monitor/PlanUsage.h"
#include "notices/Notices.h"
#include "panel/NotchController.h"
#include "settings/AppSettings.h"
#include "store/Store.h"
#include "ui/ClipListModel.h"
#include "ui/Deleting.h"
#include "ui/FileDrag.h"
#include "ui/FocusControls.h"
#include "ui/LinkOpening.h"
#include "ui/PanelBackground.h"
#include "ui/Pasting.h"
#include "ui/ReceivedModel.h"
#include "ui/RowAges.h"
#include "ui/Sending.h"
#include "ui/ShelfContents.h"
#include "ui/SnippetEditor.h"
#include "ui/SnippetListModel.h"
#include "ui/TimerFace.h"
#include "ui/Toast.h"
#include "ui/TooLarge.h"
#include "ui/Usage.h"

#include <QObject>
#include <QQmlEngine>
#include <QSizeF>

namespace ravelo {

class FileOpener;
class NightShift;
class Pasteboard;
class ShutDown;

/// What the panel's QML works on: the program's observable parts as they are, and what belongs to
/// the panel alone. Decides when content exists. Main thread.
class PanelHost : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the panel has one")
    Q_PROPERTY(ravelo::Store* store READ store CONSTANT)
    Q_PROPERTY(ravelo::AppSettings* settings READ settings CONSTANT)
    Q_PROPERTY(ravelo::NotchController* controller READ controller CONSTANT)
    Q_PROPERTY(ravelo::Notices* notices READ notices CONSTANT)
    Q_PROPERTY(ravelo::LinkOpening* links READ links CONSTANT)
    Q_PROPERTY(ravelo::ClipListModel* clips READ clips CONSTANT)
    Q_PROPERTY(ravelo::SnippetListModel* snippets READ snippets CONSTANT)
    Q_PROPERTY(ravelo::SnippetEditor* snippetEditor READ snippetEditor CONSTANT)
    Q_PROPERTY(ravelo::FocusControls* focusControls READ focusControls CONSTANT)
    Q_PROPERTY(ravelo::Pasting* pasting READ pasting CONSTANT)
    Q_PROPERTY(ravelo::ShelfContents* shelf READ shelf CONSTANT)
    Q_PROPERTY(ravelo::ReceivedModel* received READ received CONSTANT)
    Q_PROPERTY(ravelo::Sending* sending READ sending CONSTANT)
    Q_PROPERTY(ravelo::FileDrag* fileDrag READ fileDrag CONSTANT)
    Q_PROPERTY(bool shelfRequested READ shelfRequested CONSTANT)
    Q_PROPERTY(ravelo::Toast* toast READ toast CONSTANT)
    Q_PROPERTY(ravelo::Deleting* deleting READ deleting CONSTANT)
    Q_PROPERTY(ravelo::TimerFace* timerFace READ timerFace CONSTANT)
    Q_PROPERTY(bool hasContent READ hasContent NOTIFY hasContentChanged)
    Q_PROPERTY(QSizeF contentSize READ contentSize NOTIFY contentSizeChanged)
    Q_PROPERTY(ravelo::Backdrop::Kind backdrop READ backdrop NOTIFY backdropChanged)
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY reducedMotionChanged)
    Q_PROPERTY(bool showsClaudeCode READ showsClaudeCode NOTIFY showsClaudeCodeChanged)
    Q_PROPERTY(bool shelfEmpty READ shelfEmpty NOTIFY shelfChanged)
    Q_PROPERTY(ravelo::UsageLine session READ session NOTIFY usageChanged)
    Q_PROPERTY(ravelo::UsageLine week READ week NOTIFY usageChanged)

public:
    /// All of it outlives the panel.
    struct Subjects {
        Store& store;
        AppSettings& settings;
        NotchController& controller;
        Notices& notices;
        Pasteboard& pasteboard;
        Scheduler& scheduler;
        Preferences& preferences;
        NightShift& nightShift;
        ShutDown& shutDown;
        PlanUsage& usage;
        ReceivedWatcher& received;
        NearbySend& nearby;
        DetachedJobs& jobs;
        FileOpener& opener;
        std::shared_ptr<const FileIcons> icons;
        std::shared_ptr<ImageDecoder> decoder;
    };

    PanelHost(Subjects subjects, const QLocale& locale);

    [[nodiscard]] Store* store() const { return &subjects_.store; }

    [[nodiscard]] AppSettings* settings() const { return &subjects_.settings; }

    [[nodiscard]] NotchController* controller() const { return &subjects_.controller; }

    [[nodiscard]] Notices* notices() const { return &subjects_.notices; }

    [[nodiscard]] LinkOpening* links() { return &links_; }

    [[nodiscard]] ClipListModel* clips() { return &clips_; }

    [[nodiscard]] SnippetListModel* snippets() { return &snippets_; }

    [[nodiscard]] SnippetEditor* snippetEditor() { return &snippetEditor_; }

    [[nodiscard]] FocusControls* focusControls() { return &focusControls_; }

    [[nodiscard]] Pasting* pasting() { return &pasting_; }

    [[nodiscard]] ShelfContents* shelf() { return &shelf_; }

    [[nodiscard]] ReceivedModel* received() { return &received_; }

    [[nodiscard]] Sending* sending() { return &sending_; }

    [[nodiscard]] FileDrag* fileDrag() { return &fileDrag_; }

    /// The panel opens, or is about to, because the shelf is to be shown.
    [[nodiscard]] bool shelfRequested() const;

    [[nodiscard]] Toast* toast() { return &toast_; }

    [[nodiscard]] Deleting* deleting() { return &deleting_; }

    [[nodiscard]] TimerFace* timerFace() { return &timerFace_; }

    /// Whether there is content, shown or hidden. A closed panel's content is thrown away with all
    /// that was searched, scrolled or opened in it; the next is made soon after, so that opening
    /// has nothing left to do.
    [[nodiscard]] bool hasContent() const { return hasContent_; }

    /// Logical pixels. While closed, the size that the panel would open with.
    [[nodiscard]] QSizeF contentSize() const { return contentSize_; }

    [[nodiscard]] Backdrop::Kind backdrop() const { return backdrop_; }

    void setBackdrop(Backdrop::Kind backdrop);

    [[nodiscard]] bool reducedMotion() const { return reducedMotion_; }

    /// The user wants things to fade, not to move.
    void setReducedMotion(bool reduced);

    [[nodiscard]] bool shelfEmpty() const;

    [[nodiscard]] UsageLine session() const { return sessionLine_; }

    [[nodiscard]] UsageLine week() const { return weekLine_; }

    [[nodiscard]] bool showsClaudeCode() const {
        return claudeCodeInstalled_ || !settings()->hideClaudeCode();
    }

    void setClaudeCodeInstalled(bool installed);

    /// Says that a copy was not kept: by a row in the panel, at once or at its next opening, which
    /// goes when the panel closes, and by a toast if the panel is open.
    void tellTooLarge(const TooLargeCopy& copy);

    /// The window has got this size.
    void windowResized(QSizeF size);

    Q_INVOKABLE void copyClip(const QUuid& id);
    Q_INVOKABLE void copySnippet(const QUuid& id);

    /// Copies the file that was parked last; nothing where none is.
    Q_INVOKABLE void copyLastShelf();

    /// As LinkOpening has it; closes the panel if it is opened.
    Q_INVOKABLE void openLink(const QUuid& id);

    Q_INVOKABLE void startNightShift();

    /// Of the computer.
    Q_INVOKABLE void shutDown();

    /// Closes the panel too.
    Q_INVOKABLE void openFile(const QUrl& file);
    Q_INVOKABLE void showInFolder(const QUrl& file);

Q_SIGNALS:
    void hasContentChanged();
    void contentSizeChanged();
    void backdropChanged();
    void reducedMotionChanged();
    void showsClaudeCodeChanged();
    void shelfChanged();
    void usageChanged();
    /// What had the keyboard before something floated is not there: it goes where content starts.
    void keyboardFreed();

private:
    void follow();
    void startAnew();
    void setHasContent(bool has);
    void setContentSize(QSizeF size);
    void tellUsage();

    Subjects subjects_;
    QLocale locale_;
    ClipListModel clips_;
    SnippetListModel snippets_;
    SnippetEditor snippetEditor_;
    FocusControls focusControls_;
    Pasting pasting_;
    Toast toast_;
    Deleting deleting_;
    LinkOpening links_;
    ShelfContents shelf_;
    ReceivedModel received_;
    RowAges ages_;
    Sending sending_;
    FileDrag fileDrag_;
    int shelfRequestsSeen_;
    TimerFace timerFace_;
    bool hasContent_ = false;
    QSizeF contentSize_;
    Backdrop::Kind backdrop_ = Backdrop::Translucent;
    bool reducedMotion_ = false;
    bool claudeCodeInstalled_ = true;
    UsageLine sessionLine_;
    UsageLine weekLine_;
    Handle building_;
};

} // namespace ravelo
