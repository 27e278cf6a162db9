#pragma once

#include <QQuickView>

namespace ravelo {

/// A window beside the panel: the desktop manages it like any other, but its title strip is our own
/// and its size is fixed. Closing it never ends the program. Main thread.
class TitledWindow : public QQuickView {
    Q_OBJECT

public:
    /// Shares the panel's QML engine and opens on the panel's screen; `panel` outlives it. `size`
    /// is in logical pixels.
    TitledWindow(QQuickView& panel, const QString& title, QSize size);

    /// `page` is a file of our QML module; it gets `host` as its property and `title`.
    void load(const QString& page, QObject* host);

    /// Shows it in the middle of the screen, or where it is already, before all others and with the
    /// keyboard, if the desktop lets it.
    void bringToFront();

Q_SIGNALS:
    void closed();

private:
    QQuickView& panel_;
};

} // namespace ravelo
