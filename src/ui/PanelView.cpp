#include "ui/PanelView.h"

#include "ui/Fonts.h"
#include "ui/ThumbnailProvider.h"

#include <QQmlEngine>

// Made by the build from the QML module. Named here, or the linker would leave them out.
void qml_register_types_Ravelo(); // NOLINT(readability-identifier-naming)

static void initModule() { // In no namespace: the macro declares a function where it stands.
    qml_register_types_Ravelo();
    Q_INIT_RESOURCE(qmlcache_ui);
}

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Before the first window: a program of one small panel does not pay for a graphics driver, and
/// only windows with an alpha channel can have an outline.
QWindow* chooseRenderer() {
    if (QQuickWindow::sceneGraphBackend() != u"software") {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
    QQuickWindow::setDefaultAlphaBuffer(true);
    return nullptr;
}

} // namespace

PanelView::PanelView() : view_(chooseRenderer()) {
    keepStemsThin();
    initModule();
    view_.setTitle(u"Ravelo"_s);
    view_.setColor(Qt::transparent);
    view_.installEventFilter(&copyOnly_);
    view_.setResizeMode(QQuickView::SizeRootObjectToView);
    view_.engine()->addImportPath(u"qrc:/"_s);
}

PanelView::~PanelView() = default;

void PanelView::load(PanelHost::Subjects subjects, const QLocale& locale) {
    host_ = std::make_unique<PanelHost>(subjects, locale);
    const auto resized = [this] {
        host_->windowResized(view_.size());
    };
    QObject::connect(&view_, &QWindow::widthChanged, host_.get(), resized);
    QObject::connect(&view_, &QWindow::heightChanged, host_.get(), resized);
    view_.engine()->addImageProvider(u"thumb"_s, new ThumbnailProvider(subjects.store.clipsDir()));
    view_.setInitialProperties({{u"host"_s, QVariant::fromValue(host_.get())}});
    view_.setSource(QUrl(u"qrc:/Ravelo/qml/panel/Panel.qml"_s));
}

} // namespace ravelo
