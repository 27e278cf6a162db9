// A Qt program for tests with Ravelo: copies its arguments, prints "ready" and stays until it is
// killed, or exits at once.

#include <QClipboard>
#include <QCommandLineParser>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QTimer>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void sayReady() {
    std::puts("ready");
    std::fflush(stdout);
}

/// "text 1", "text 2", ... each replacing the previous one.
void copySeries(int count, int interval) {
    auto* timer = new QTimer(qGuiApp);
    QObject::connect(timer, &QTimer::timeout, qGuiApp, [timer, count, done = 0]() mutable {
        QGuiApplication::clipboard()->setText(u"text %1"_s.arg(++done));
        if (done == count) {
            timer->stop();
            sayReady();
        }
    });
    timer->start(interval);
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QCommandLineOption text(u"text"_s, u"Offers a text."_s, u"text"_s);
    const QCommandLineOption image(u"image"_s, u"Offers an image of one colour."_s, u"color"_s);
    const QCommandLineOption secret(u"secret"_s, u"Marks it as password managers do."_s);
    const QCommandLineOption mark(u"mark"_s, u"Adds a type; its value is percent-encoded."_s,
                                  u"type=value"_s);
    const QCommandLineOption leave(u"leave"_s, u"Ends at once."_s);
    const QCommandLineOption series(u"series"_s, u"Copies so many texts."_s, u"count"_s);
    const QCommandLineOption interval(u"interval"_s, u"Between two texts."_s, u"ms"_s, u"25"_s);
    QCommandLineParser parser;
    parser.addOptions({text, image, secret, mark, leave, series, interval});
    parser.process(application);

    if (parser.isSet(series)) {
        copySeries(parser.value(series).toInt(), parser.value(interval).toInt());
        return QGuiApplication::exec();
    }
    auto* mime = new QMimeData; // The clipboard owns it.
    if (parser.isSet(text)) {
        mime->setText(parser.value(text));
    }
    if (parser.isSet(image)) {
        QImage pixels(64, 48, QImage::Format_ARGB32);
        pixels.fill(QColor(parser.value(image)));
        mime->setImageData(pixels);
    }
    if (parser.isSet(secret)) {
        mime->setData(u"x-kde-passwordManagerHint"_s, "secret");
    }
    for (const QString& one : parser.values(mark)) {
        mime->setData(one.section(u'=', 0, 0),
                      QByteArray::fromPercentEncoding(one.section(u'=', 1).toLatin1()));
    }
    QGuiApplication::clipboard()->setMimeData(mime);
    if (parser.isSet(leave)) {
        sayReady();
        return 0;
    }
    QTimer::singleShot(0, qGuiApp, sayReady);
    return QGuiApplication::exec();
}
