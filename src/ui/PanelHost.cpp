#include "ui/PanelHost.h"

#include "panel/NotchGeometry.h"
#include "platform/FileOpener.h"
#include "platform/NightShift.h"
#include "platform/ShutDown.h"

#include <algorithm>
#include <utility>

namespace ravelo {

namespace {

/// Long enough for the closed panel to be gone from the screen, shorter than any hand.
constexpr Seconds buildDelay(0.04);

template <typename Record>
const Record* findById(const QList<Record>& records, const QUuid& id) {
    const auto found = std::find_if(records.begin(), records.end(),
                                    [&](const Record& record) { return record.id == id; });
    return found == records.end() ? nullptr : &*found;
}

} // namespace

PanelHost::PanelHost(Subjects subjects, const QLocale& locale)
    : subjects_(subjects),
      locale_(locale),
      clips_(subjects.store, subjects.scheduler, locale),
      snippets_(subjects.store, locale),
      snippetEditor_(subjects.store),
      focusControls_(subjects.store, subjects.preferences),
      pasting_(subjects.pasteboard),
      toast_(subjects.scheduler),
      deleting_(subjects.store, toast_, locale),
      links_(subjects.opener, subjects.scheduler, toast_),
      shelf_(subjects.store, subjects.jobs, subjects.scheduler),
      received_(subjects.received, subjects.scheduler, locale),
      ages_(subjects.scheduler, clips_, received_),
      sending_(subjects.nearby, subjects.scheduler, toast_),
      fileDrag_(subjects.jobs, subjects.icons, subjects.decoder),
      shelfRequestsSeen_(subjects.store.shelfRequestTick()),
      timerFace_(subjects.store, subjects.scheduler),
      contentSize_(subjects.controller.sizeToOpenWith()) {
    connect(controller(), &NotchController::isOpenChanged, this, &PanelHost::follow);
    connect(settings(), &AppSettings::panelWidthChanged, this, [this] {
        if (!controller()->isOpen()) {
            setContentSize(controller()->sizeToOpenWith());
        }
    });
    connect(&fileDrag_, &FileDrag::draggingChanged, controller(),
            [this] { controller()->setDraggingOut(fileDrag_.isDragging()); });
    connect(&sending_, &Sending::programStarted, controller(), &NotchController::dismiss);
    connect(settings(), &AppSettings::hideClaudeCodeChanged, this,
            &PanelHost::showsClaudeCodeChanged);
    connect(&links_, &LinkOpening::opened, controller(), &NotchController::dismiss);
    connect(store(), &Store::shelfChanged, this, &PanelHost::shelfChanged);
    connect(&subjects.usage, &PlanUsage::changed, this, [this] {
        if (controller()->isOpen()) {
            tellUsage();
        }
    });
    tellUsage();
    follow();
}

void PanelHost::setBackdrop(Backdrop::Kind backdrop) {
    if (backdrop != backdrop_) {
        backdrop_ = backdrop;
        Q_EMIT backdropChanged();
    }
}

void PanelHost::setReducedMotion(bool reduced) {
    if (reduced != reducedMotion_) {
        reducedMotion_ = reduced;
        Q_EMIT reducedMotionChanged();
    }
}

void PanelHost::setClaudeCodeInstalled(bool installed) {
    if (std::exchange(claudeCodeInstalled_, installed) != installed) {
        Q_EMIT showsClaudeCodeChanged();
    }
}

void PanelHost::windowResized(QSizeF size) {
    if (controller()->isOpen()) {
        setContentSize(size);
    }
}

void PanelHost::copyClip(const QUuid& id) {
    const ClipItem* clip = findById(store()->clips(), id);
    if (clip == nullptr) {
        return;
    }
    if (clip->kind == ClipKind::image && !clip->imageFileName.isEmpty()) {
        controller()->copyImage(store()->imagePath(clip->imageFileName));
    } else {
        controller()->copy(clip->text);
    }
    toast_.flashCopied();
}

bool PanelHost::shelfEmpty() const {
    return store()->shelf().stacks.isEmpty();
}

void PanelHost::copyLastShelf() {
    if (!shelfEmpty()) {
        controller()->copyFile(store()->shelf().files().last());
        toast_.flashCopied();
    }
}

void PanelHost::openLink(const QUuid& id) {
    const ClipItem* clip = findById(store()->clips(), id);
    if (clip != nullptr) {
        links_.open(*clip);
    }
}

void PanelHost::tellTooLarge(const TooLargeCopy& copy) {
    clips_.setTooLarge(copy);
    if (controller()->isOpen()) {
        toast_.flash(tooLargeMessage(copy, locale_));
    }
}

void PanelHost::openFile(const QUrl& file) {
    subjects_.opener.open(file);
    controller()->dismiss();
}

void PanelHost::showInFolder(const QUrl& file) {
    subjects_.opener.showInFolder(file);
    controller()->dismiss();
}

bool PanelHost::shelfRequested() const {
    return store()->shelfRequestTick() != shelfRequestsSeen_;
}

void PanelHost::copySnippet(const QUuid& id) {
    if (const Snippet* snippet = findById(store()->snippets(), id)) {
        controller()->copy(snippet->body);
        toast_.flashCopied();
    }
}

void PanelHost::startNightShift() {
    subjects_.nightShift.start();
}

void PanelHost::shutDown() {
    subjects_.shutDown.request();
}

void PanelHost::follow() {
    if (controller()->isOpen()) {
        building_.reset();
        setContentSize(controller()->frame().size());
        ages_.start();
        shelf_.lookForMissing();
        tellUsage();
        setHasContent(true);
    } else {
        startAnew();
    }
}

void PanelHost::startAnew() {
    setHasContent(false);
    ages_.stop();
    shelfRequestsSeen_ = store()->shelfRequestTick();
    toast_.reset();
    clips_.setSearch({});
    clips_.dismissTooLarge();
    links_.reset();
    snippets_.setSearch({});
    snippetEditor_.cancel();
    focusControls_.reload();
    setContentSize(controller()->sizeToOpenWith());
    building_ = subjects_.scheduler.after(buildDelay, [this] { setHasContent(true); });
}

void PanelHost::setHasContent(bool has) {
    if (has != hasContent_) {
        hasContent_ = has;
        Q_EMIT hasContentChanged();
    }
}

void PanelHost::setContentSize(QSizeF size) {
    if (!size.isEmpty() && size != contentSize_) {
        contentSize_ = size;
        Q_EMIT contentSizeChanged();
    }
}

void PanelHost::tellUsage() {
    const Date now = subjects_.scheduler.now();
    sessionLine_ = usageLine(subjects_.usage.session(), now);
    weekLine_ = usageLine(subjects_.usage.week(), now);
    Q_EMIT usageChanged();
}

} // namespace ravelo
