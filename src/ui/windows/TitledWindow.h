#pragma once

#include "platform/WindowFrame.h"

#include <QQuickView>

namespace ravelo {

/// A normal window managed by the desktop, but with our own title strip and shadow. Its size is
/// limited only by the screen. Closing it never quits the program. Main thread.
class TitledWindow : public QQuickView {
    Q_OBJECT

public:
    /// Shared by all windows; the panel outlives them.
    struct Beside {
        QQuickView& panel;              ///< Shares its QML engine and screen.
        MakeWindowFrame makeFrame = {}; ///< If unset, no shadow.
    };

    /// `size` is the frame's, in logical pixels; the window is smaller if the screen is.
    TitledWindow(const Beside& beside, const QString& title, QSize size);

    ~TitledWindow() override;

    /// `page` is a file of this QML module; it gets the properties `host` and `title`.
    void load(const QString& page, QObject* host);

    /// Shows it centred, or where it already is, on top and focused if the desktop allows it.
    void bringToFront();

Q_SIGNALS:
    void closed();

private:
    void fit();
    void place();
    void follow(QScreen* screen);
    [[nodiscard]] QScreen* screenToFit() const;
    [[nodiscard]] QRect free() const;

    QQuickView& panel_;
    QSize wanted_;
    QRectF inside_; ///< The frame within the window.
    std::unique_ptr<WindowFrame> frame_;
    Handle translucency_;
};

} // namespace ravelo
