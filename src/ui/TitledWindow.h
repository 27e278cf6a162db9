#pragma once

#include "platform/WindowFrame.h"

#include <QQuickView>

namespace ravelo {

/// A window beside the panel: the desktop manages it like any other, but its title strip and its
/// shadow are our own, and only the screen decides its size. Closing it never ends the program.
/// Main thread.
class TitledWindow : public QQuickView {
    Q_OBJECT

public:
    /// What the windows have in common; the panel outlives them.
    struct Beside {
        QQuickView& panel;              ///< They share its QML engine and open on its screen.
        MakeWindowFrame makeFrame = {}; ///< Without one they have no shadow.
    };

    /// `size` is that of its frame, in logical pixels; on a screen without room for it the window
    /// is smaller.
    TitledWindow(const Beside& beside, const QString& title, QSize size);

    /// `page` is a file of our QML module; it gets `host` as its property and `title`.
    void load(const QString& page, QObject* host);

    /// Shows it in the middle of the screen, or where it is already, before all others and with the
    /// keyboard, if the desktop lets it.
    void bringToFront();

Q_SIGNALS:
    void closed();

private:
    void fit();
    void place();
    [[nodiscard]] QRect free() const;

    QQuickView& panel_;
    QSize wanted_;
    QRectF inside_; ///< The window's frame within the window.
    std::unique_ptr<WindowFrame> frame_;
    Handle translucency_;
};

} // namespace ravelo
