#include "ui/TitledWindow.h"

#include <QIcon>
#include <QQmlEngine>
#include <QScreen>

#include <algorithm>

namespace ravelo {

using namespace Qt::StringLiterals;

TitledWindow::TitledWindow(QQuickView& panel, const QString& title, QSize size)
    : QQuickView(panel.engine(), nullptr), panel_(panel) {
    setTitle(title);
    setIcon(QIcon::fromTheme(u"org.ravelo.Ravelo"_s));
    setFlags(Qt::Window | Qt::FramelessWindowHint);
    setColor(Qt::transparent);
    setResizeMode(QQuickView::SizeRootObjectToView);
    setMinimumSize(size);
    setMaximumSize(size);
    resize(size);
    connect(this, &QWindow::visibleChanged, this, [this](bool visible) {
        if (!visible) {
            Q_EMIT closed();
        }
    });
}

void TitledWindow::load(const QString& page, QObject* host) {
    setInitialProperties({{u"host"_s, QVariant::fromValue(host)}, {u"title"_s, title()}});
    setSource(QUrl(u"qrc:/Ravelo/qml/"_s + page));
}

void TitledWindow::bringToFront() {
    if (isVisible()) {
        showNormal(); // It may have been minimised.
        raise();
    } else {
        QRect place(QPoint(), size());
        const QRect room = panel_.screen()->availableGeometry();
        place.moveCenter(room.center());
        place.moveTop(std::max(place.top(), room.top())); // With its title, where it is too high.
        setGeometry(place);
        show();
    }
    requestActivate();
}

} // namespace ravelo
