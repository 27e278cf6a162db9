#include "ui/PanelView.h"

#include "notices/Notices.h"
#include "panel/NotchController.h"
#include "platform/ImageDecoder.h"
#include "ui/Modules.h"
#include "ui/images/FileThumb.h"
#include "ui/images/ThumbnailProvider.h"
#include "ui/theme/Fonts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QQmlEngine>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

/// Before the first window: the software renderer avoids loading a graphics driver, and only
/// windows with an alpha channel can have an outline.
QWindow* chooseRenderer() {
    if (QQuickWindow::sceneGraphBackend() != u"software") {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
    QQuickWindow::setDefaultAlphaBuffer(true);
    return nullptr;
}

QUrl closedUrl() {
    return QUrl(u"qrc:/Ravelo/Panel/Panel.qml"_s);
}

QUrl contentUrl() {
    return QUrl(u"qrc:/Ravelo/Panel/ContentView.qml"_s);
}

/// "<radius in device pixels>/<file name>"; paths outside `folder` are not possible.
QQuickImageProvider* clipThumbs(const QDir& folder, const std::shared_ptr<ImageDecoder>& decoder) {
    return new ThumbnailProvider([folder, decoder](const QString& name, QSize size) {
        const double radius = name.section(u'/', 0, 0).toDouble();
        const QString file = QFileInfo(name.section(u'/', 1)).fileName();
        return rounded(decoder->filling(PictureFile{QFile::encodeName(folder.filePath(file))},
                                        {size.height(), size.width(), size.width()}),
                       radius);
    });
}

/// For names by `fileThumbAddress`, requested at the maximum width.
QQuickImageProvider* fileThumbs(const std::shared_ptr<const FileIcons>& icons,
                                const std::shared_ptr<ImageDecoder>& decoder) {
    return new ThumbnailProvider([icons, decoder](const QString& name, QSize size) {
        return fileThumb(fileOfThumb(name), size.width() / maxThumbWidth, *icons, *decoder);
    });
}

} // namespace

PanelView::PanelView()
    : view_(chooseRenderer()), closed_(view_.engine()), content_(view_.engine()) {
    keepStemsThin();
    registerModules();
    view_.setTitle(u"Ravelo"_s);
    view_.setColor(Qt::transparent);
    view_.installEventFilter(&copyOnly_);
    view_.setResizeMode(QQuickView::SizeRootObjectToView);
    view_.engine()->addImportPath(u"qrc:/"_s);
    // One after the other: the closed panel is drawn while the thread compiles the rest.
    closed_.loadUrl(closedUrl(), QQmlComponent::Asynchronous);
    content_.loadUrl(contentUrl(), QQmlComponent::Asynchronous);
}

PanelView::~PanelView() = default;

void PanelView::load(const PanelFeatures::Services& services, const QLocale& locale) {
    features_ = std::make_unique<PanelFeatures>(services, locale, view_, *view_.engine());
    PanelFeatures& all = *features_;
    const auto resized = [this] {
        features_->state.windowResized(view_.size());
    };
    QObject::connect(&view_, &QWindow::widthChanged, &all.state, resized);
    QObject::connect(&view_, &QWindow::heightChanged, &all.state, resized);
    QObject::connect(&view_, &QQuickWindow::frameSwapped, &all.state, &PanelState::windowDrawn,
                     Qt::SingleShotConnection);
    // As in a window that has lost the keyboard: opened by the pointer, fields show no caret.
    QObject::connect(&view_, &QQuickWindow::activeFocusItemChanged, &all.state, [this] {
        if (view_.activeFocusItem() != nullptr && !view_.isActive()) {
            view_.contentItem()->setFocus(false);
        }
    });
    view_.engine()->addImageProvider(u"thumb"_s,
                                     clipThumbs(services.store.clipsDir(), services.decoder));
    view_.engine()->addImageProvider(u"file"_s, fileThumbs(services.icons, services.decoder));
    for (const Tab* tab : all.tabs.list()) {
        pages_.push_back(std::make_unique<QQmlComponent>(view_.engine(), tab->page(),
                                                         QQmlComponent::Asynchronous));
    }
    view_.setInitialProperties({{u"controller"_s, QVariant::fromValue(&services.controller)},
                                {u"panelState"_s, QVariant::fromValue(&all.state)},
                                {u"tabs"_s, QVariant::fromValue(&all.tabs)},
                                {u"pausing"_s, QVariant::fromValue(&all.pausing)},
                                {u"focusing"_s, QVariant::fromValue(&all.focus)},
                                {u"usage"_s, QVariant::fromValue(&all.usage)},
                                {u"snippets"_s, QVariant::fromValue(&all.snippets)},
                                {u"shelfFiles"_s, QVariant::fromValue(all.shelf)},
                                {u"notices"_s, QVariant::fromValue(&services.notices)},
                                {u"toast"_s, QVariant::fromValue(&all.toast)},
                                {u"actions"_s, QVariant::fromValue(&all.actions)}});
    view_.setSource(closedUrl());
}

void PanelView::unload() {
    view_.setSource({});
}

} // namespace ravelo
