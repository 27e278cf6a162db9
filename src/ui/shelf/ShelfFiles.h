#pragma once

#include "ui/controls/Tab.h"
#include "ui/lists/RowAges.h"
#include "ui/shelf/FileDrag.h"
#include "ui/shelf/ReceivedModel.h"
#include "ui/shelf/Sending.h"
#include "ui/shelf/ShelfContents.h"

namespace ravelo {

class ClipboardManager;
class FileOpener;
class NotchController;
class Toast;

/// The tab with the parked and received files. Main thread.
class ShelfFiles : public ravelo::Tab {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(ravelo::ShelfContents* parked READ parked CONSTANT)
    Q_PROPERTY(ravelo::ReceivedModel* received READ received CONSTANT)
    Q_PROPERTY(ravelo::Sending* sending READ sending CONSTANT)
    Q_PROPERTY(ravelo::FileDrag* drag READ drag CONSTANT)

public:
    /// All outlive the tab.
    struct Services {
        Store& store;
        NotchController& controller;
        ClipboardManager& clipboard;
        FileOpener& opener;
        Scheduler& scheduler;
        DetachedJobs& jobs;
        ReceivedWatcher& received;
        NearbySend& nearby;
        Toast& toast;
        std::shared_ptr<const FileIcons> icons;
        std::shared_ptr<ImageDecoder> decoder;
    };

    ShelfFiles(const Services& services, const QLocale& locale);

    [[nodiscard]] ShelfContents* parked() { return &parked_; }

    [[nodiscard]] ReceivedModel* received() { return &received_; }

    [[nodiscard]] Sending* sending() { return &sending_; }

    [[nodiscard]] FileDrag* drag() { return &drag_; }

    void begin() override;
    void reset() override;

    // Both close the panel, too.
    Q_INVOKABLE void open(const QUrl& file);
    Q_INVOKABLE void showInFolder(const QUrl& file);

    /// Copies the last parked file, if there is one.
    Q_INVOKABLE void copyLast();

private:
    Store& store_;
    NotchController& controller_;
    ClipboardManager& clipboard_;
    FileOpener& opener_;
    Toast& toast_;
    ShelfContents parked_;
    ReceivedModel received_;
    Sending sending_;
    FileDrag drag_;
    RowAges ages_;
};

} // namespace ravelo
