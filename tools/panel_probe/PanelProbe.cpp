// Renders the panel, the settings or the setup with sample data, to compare them with design
// drawings.
//
//   panel_probe [--scene NAME] [--scale 1|2] [--screen WxH] [--language NAME] [--png FILE]
//   [--behind FILE] [--time N]
//
// writes the picture (of the closed panel as a bar in scenes such as "bar-timer-reminders-notch")
// and prints the rectangles of all named elements as JSON, in logical pixels of the window.
// --behind puts a picture of a screen below; --time prints what N openings cost.

#include "Behind.h"
#include "SampleData.h"
#include "SceneEncryption.h"
#include "Stage.h"
#include "Timing.h"
#include "WindowScenes.h"
#include "fakes/UsageWorld.h"
#include "languages/Languages.h"
#include "monitor/PaceFile.h"
#include "panel_fixture/Input.h"
#include "panel_fixture/Services.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

using namespace ravelo;
using namespace Qt::StringLiterals;

namespace {

/// The slot of the content is not part of any path.
void collect(const QQuickItem* item, const QString& path, QJsonObject& into) {
    for (const QQuickItem* child : item->childItems()) {
        QString childPath = path;
        const bool named = !child->objectName().isEmpty() && child->objectName() != u"content";
        if (named && child->isVisible()) {
            childPath = path.isEmpty() ? child->objectName() : path + u'/' + child->objectName();
            const QRectF rect = child->mapRectToScene(child->boundingRect());
            into[childPath] = QJsonArray{rect.x(), rect.y(), child->width(), child->height()};
        }
        collect(child, childPath, into);
    }
}

/// So much of the session an hour ago, and of the week a little less a day ago.
void useBefore(const UsageWorld& spent, double now, double percent) {
    PlanCourse course;
    course.session.add({Date{now - 3600}, percent}, sessionKind);
    course.week.add({Date{now - 86400}, 75}, weekKind);
    if (!storeCourse(spent.home(), course)) {
        qFatal("cannot write below %s", spent.home().constData());
    }
}

StoreData dataOf(const QString& scene) {
    StoreData data;
    data.note = sampleNote();
    data.drawing = sampleSketch();
    if (scene == u"locked-copies") {
        data.clips = sampleClips().mid(2, 3);
    } else if (scene != u"empty" && !scene.startsWith(u"locked"_s)) {
        data.clips = sampleClips();
    }
    while (scene == u"settings" && data.clips.size() < 47) {
        data.clips.append(clip(QString::number(data.clips.size()), day));
    }
    return data;
}

/// The panel's scene of this name; nothing for one of another window.
std::optional<Scene> sceneOf(const QString& name) {
    for (const Scenes& family :
         {barScenes(), panelScenes(), clipScenes(), snippetScenes(), shelfScenes(), notesScenes(),
          focusScenes(), captureScenes(), noticeScenes()}) {
        for (const Scene& scene : family) {
            if (scene.name == name) {
                return scene;
            }
        }
    }
    return {};
}

void play(const Scene& scene, Stage& stage) {
    if (scene.play) {
        stage.world.controller.positionExpanded();
        stage.view.window().resize(stage.world.controller.frame().size().toSize());
        settle();
        if (QQuickItem* grid = find(stage.view.window().contentItem(), u"grid"_s)) {
            grid->setFocus(false); // Hides the focus ring of the first tile.
        }
        scene.play(stage);
    }
    settle(stage.rest);
}

void setUp(const QString& scene, const QString& screenSize, PanelWorld& world) {
    const QString usual = scene.startsWith(u"small"_s) ? u"640x400"_s : u"1440x900"_s;
    const QStringList size = (screenSize.isEmpty() ? usual : screenSize).split(u'x');
    const QRectF screen(0, 0, size.value(0).toDouble(), size.value(1).toDouble());
    world.screens.change({{u"one"_s, screen, screen.adjusted(0, 28, 0, 0), {}, {}}});
    room().save(world.store.imagePath(u"room.png"_s));
    plan().save(world.store.imagePath(u"plan.png"_s));
    world.settings.lastTab.set(scene.startsWith(u"shelf"_s)   ? u"Shelf"_s
                               : scene.startsWith(u"notes"_s) ? u"Notes"_s
                                                              : u"Clipboard"_s);
}

/// For the settings.
void setPreferences(AppSettings& settings) {
    settings.setLaunchAtLogin(true);
    settings.ignoredPrograms.set({u"KeePassXC"_s, u"Secrets"_s});
    settings.ignoredPatterns.set({u"^IBAN [A-Z]{2}\\d+"_s, u"\\b\\d{3}-\\d{4}\\b"_s});
}

void parse(QCommandLineParser& options) {
    options.addOptions({{u"scene"_s, u"What to show."_s, u"name"_s, u"clipboard"_s},
                        {u"scale"_s, u"Device pixels a logical one."_s, u"factor"_s, u"1"_s},
                        {u"screen"_s, u"How large the screen is."_s, u"size"_s},
                        {u"language"_s, u"As in the settings."_s, u"name"_s},
                        {u"png"_s, u"Where to write the picture."_s, u"file"_s},
                        {u"behind"_s, u"A picture of the screen below."_s, u"file"_s},
                        {u"time"_s, u"How many openings to time."_s, u"count"_s}});
    options.process(*QCoreApplication::instance());
}

/// The picture, if wanted, and the rectangles.
void write(QQuickWindow& window, const QCommandLineParser& options) {
    std::optional<Behind> behind;
    if (options.isSet(u"behind"_s)) {
        behind.emplace(window, options.value(u"behind"_s));
    }
    if (options.isSet(u"png"_s) && !window.grabWindow().save(options.value(u"png"_s))) {
        qFatal("cannot write %s", qPrintable(options.value(u"png"_s)));
    }
    QJsonObject rectangles;
    collect(window.contentItem(), {}, rectangles);
    std::puts(QJsonDocument(rectangles).toJson().constData());
}

} // namespace

int main(int argc, char** argv) {
    for (int i = 1; i + 1 < argc; ++i) {
        if (QByteArrayView(argv[i]) == "--scale") {
            qputenv("QT_SCALE_FACTOR", argv[i + 1]);
        }
    }
    const QGuiApplication application(argc, argv);
    QCommandLineParser options;
    parse(options);
    const QString scene = options.value(u"scene"_s);
    QLocale::setDefault(QLocale(u"en_US"_s));
    useLanguage(options.value(u"language"_s));

    PanelWorld world(dataOf(scene));
    setUp(scene, options.value(u"screen"_s), world);
    // One day later, so that received files are old.
    const double now =
        world.scheduler.now().sinceReference + (scene.startsWith(u"shelf"_s) ? day.count() : 0);
    const bool isFast = scene == u"plan-pace";
    UsageWorld spent(world.scheduler, {UsageWindow{isFast ? 71.0 : 42.0, Date{now + 125.5 * 60}},
                                       UsageWindow{78, Date{now + 76.5 * 3600}}});
    useBefore(spent, now, isFast ? 45 : 38);
    SceneEncryption encryption(scene, world);
    encryption.get()->look();
    world.scheduler.advance(Seconds(0.01));
    PanelFeatures::Services all = services(world, spent.usage);
    all.encryption = encryption.get();
    PanelView view;
    view.load(all, QLocale());
    view.features().state.setBackdrop(Backdrop::Blurred);

    Stage stage{world, view};
    const std::optional<Scene> panelScene = sceneOf(scene);
    if (panelScene) {
        panelScene->prepare(stage);
    }
    world.controller.positionCollapsed();
    view.window().resize(world.controller.frame().size().toSize());
    view.window().show();
    view.window().requestActivate();
    world.scheduler.advance(Seconds(0.05));
    if (options.isSet(u"time"_s)) {
        timeOpenings(options.value(u"time"_s).toInt(), world, view);
        return 0;
    }
    setPreferences(world.settings);
    WindowScenes windows(scene, world, view.window());
    QQuickWindow* window = windows.play();
    if (window == nullptr) {
        if (!panelScene) {
            qFatal("there is no scene \"%s\"", qPrintable(scene));
        }
        play(*panelScene, stage);
        window = &view.window();
    }
    write(*window, options);
    return 0;
}
