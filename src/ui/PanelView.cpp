#include "ui/PanelView.h"

#include "platform/ImageDecoder.h"
#include "ui/FileThumb.h"
#include "ui/Fonts.h"
#include "ui/ThumbnailProvider.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
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

QUrl contentUrl() {
    return QUrl(u"qrc:/Ravelo/qml/panel/Panel.qml"_s);
}

/// "<radius in device pixels>/<file name>": names lead nowhere but into `folder`.
QQuickImageProvider* clipThumbs(const QDir& folder, const std::shared_ptr<ImageDecoder>& decoder) {
    return new ThumbnailProvider([folder, decoder](const QString& name, QSize size) {
        const double radius = name.section(u'/', 0, 0).toDouble();
        const QString file = QFileInfo(name.section(u'/', 1)).fileName();
        return rounded(decoder->filling(PictureFile{QFile::encodeName(folder.filePath(file))},
                                        {size.height(), size.width(), size.width()}),
                       radius);
    });
}

/// As `fileThumbAddress` has it, asked for as wide as the widest is.
QQuickImageProvider* fileThumbs(const std::shared_ptr<const FileIcons>& icons,
                                const std::shared_ptr<ImageDecoder>& decoder) {
    return new ThumbnailProvider([icons, decoder](const QString& name, QSize size) {
        return fileThumb(fileOfThumb(name), size.width() / widestThumb, *icons, *decoder);
    });
}

} // namespace

PanelView::PanelView() : view_(chooseRenderer()), content_(view_.engine()) {
    keepStemsThin();
    initModule();
    view_.setTitle(u"Ravelo"_s);
    view_.setColor(Qt::transparent);
    view_.installEventFilter(&copyOnly_);
    view_.setResizeMode(QQuickView::SizeRootObjectToView);
    view_.engine()->addImportPath(u"qrc:/"_s);
    content_.loadUrl(contentUrl(), QQmlComponent::Asynchronous);
}

PanelView::~PanelView() = default;

void PanelView::load(PanelHost::Subjects subjects, const QLocale& locale) {
    host_ = std::make_unique<PanelHost>(subjects, locale);
    const auto resized = [this] {
        host_->windowResized(view_.size());
    };
    QObject::connect(&view_, &QWindow::widthChanged, host_.get(), resized);
    QObject::connect(&view_, &QWindow::heightChanged, host_.get(), resized);
    view_.engine()->addImageProvider(u"thumb"_s,
                                     clipThumbs(subjects.store.clipsDir(), subjects.decoder));
    view_.engine()->addImageProvider(u"file"_s, fileThumbs(subjects.icons, subjects.decoder));
    view_.setInitialProperties({{u"host"_s, QVariant::fromValue(host_.get())}});
    view_.setSource(contentUrl());
}

} // namespace ravelo
