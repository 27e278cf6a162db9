#pragma once

#include "base/Handle.h"
#include "ui/panel/PanelBackground.h"

#include <QSizeF>

namespace ravelo {

class AppSettings;
class NotchController;
class Scheduler;

/// What is the panel's own: its look, and when its content exists and how large it is. Main thread.
class PanelState : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(bool hasContent READ hasContent NOTIFY hasContentChanged)
    Q_PROPERTY(QSizeF contentSize READ contentSize NOTIFY contentSizeChanged)
    Q_PROPERTY(ravelo::Backdrop::Kind backdrop READ backdrop NOTIFY backdropChanged)
    Q_PROPERTY(double darkness READ darkness NOTIFY darknessChanged)
    Q_PROPERTY(bool fullBlack READ fullBlack NOTIFY darknessChanged)
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY reducedMotionChanged)

public:
    /// All of it outlives this.
    PanelState(NotchController& controller, AppSettings& settings, Scheduler& scheduler);

    /// From now on it follows whether the panel is open.
    void start();

    /// Whether there is content, shown or hidden. A closed panel's content is thrown away with all
    /// that was searched, scrolled or opened in it; the next is made soon after, so that opening
    /// has nothing left to do.
    [[nodiscard]] bool hasContent() const { return hasContent_; }

    /// Logical pixels. While closed, the size that the panel would open with.
    [[nodiscard]] QSizeF contentSize() const { return contentSize_; }

    [[nodiscard]] Backdrop::Kind backdrop() const { return backdrop_; }

    void setBackdrop(Backdrop::Kind backdrop);

    [[nodiscard]] double darkness() const;
    [[nodiscard]] bool fullBlack() const;

    [[nodiscard]] bool reducedMotion() const { return reducedMotion_; }

    /// The user wants things to fade, not to move.
    void setReducedMotion(bool reduced);

    /// The window has got this size.
    void windowResized(QSizeF size);

Q_SIGNALS:
    void opened(); ///< Before the content is made, if there is none yet.
    void closed(); ///< After the content is gone.
    void hasContentChanged();
    void contentSizeChanged();
    void backdropChanged();
    void darknessChanged();
    void reducedMotionChanged();

private:
    void follow();
    void setHasContent(bool has);
    void setContentSize(QSizeF size);

    NotchController& controller_;
    AppSettings& settings_;
    Scheduler& scheduler_;
    bool hasContent_ = false;
    QSizeF contentSize_;
    Backdrop::Kind backdrop_ = Backdrop::Translucent;
    bool reducedMotion_ = false;
    Handle building_;
};

} // namespace ravelo
