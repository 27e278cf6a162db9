#pragma once

#include "base/Handle.h"
#include "ui/panel/PanelBackground.h"

#include <QSizeF>

namespace ravelo {

class AppSettings;
class NotchController;
class Scheduler;

/// The panel's own state: look, size, and whether its content exists. Main thread.
class PanelState : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(bool hasContent READ hasContent NOTIFY hasContentChanged)
    Q_PROPERTY(QSizeF contentSize READ contentSize NOTIFY contentSizeChanged)
    Q_PROPERTY(ravelo::Backdrop::Kind backdrop READ backdrop NOTIFY backdropChanged)
    Q_PROPERTY(double darkness READ darkness NOTIFY darknessChanged)
    Q_PROPERTY(bool fullBlack READ fullBlack NOTIFY darknessChanged)
    Q_PROPERTY(bool pictured READ isPictured NOTIFY picturedChanged)
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY reducedMotionChanged)

public:
    /// All outlive this.
    PanelState(NotchController& controller, AppSettings& settings, Scheduler& scheduler);

    /// Starts following whether the panel is open.
    void start();

    /// Content exists, shown or hidden. Closing deletes it, with any search, scroll position or
    /// open popover; the next is created soon after, so that opening is fast.
    [[nodiscard]] bool hasContent() const { return hasContent_; }

    /// Logical pixels. While closed, the size for the next opening.
    [[nodiscard]] QSizeF contentSize() const { return contentSize_; }

    [[nodiscard]] Backdrop::Kind backdrop() const { return backdrop_; }

    void setBackdrop(Backdrop::Kind backdrop);

    /// The next opening starts with a picture of the content.
    [[nodiscard]] bool isPictured() const { return pictured_; }

    void setPictured(bool pictured);

    [[nodiscard]] double darkness() const;
    [[nodiscard]] bool fullBlack() const;

    [[nodiscard]] bool reducedMotion() const { return reducedMotion_; }

    /// The user wants fades instead of movements.
    void setReducedMotion(bool reduced);

    /// The window has been drawn for the first time.
    void windowDrawn();

    /// The window has this size now.
    void windowResized(QSizeF size);

Q_SIGNALS:
    void opened(); ///< Before the content is created, if there is none.
    void closed(); ///< The content is hidden, and deleted once control is back in the event loop.
    void hasContentChanged();
    void contentSizeChanged();
    void backdropChanged();
    void darknessChanged();
    void picturedChanged();
    void reducedMotionChanged();

private:
    void follow();
    void buildSoon();
    void setHasContent(bool has);
    void setContentSize(QSizeF size);

    NotchController& controller_;
    AppSettings& settings_;
    Scheduler& scheduler_;
    bool drawn_ = false;
    bool hasContent_ = false;
    QSizeF contentSize_;
    Backdrop::Kind backdrop_ = Backdrop::Translucent;
    bool pictured_ = false;
    bool reducedMotion_ = false;
    Handle building_;
};

} // namespace ravelo
