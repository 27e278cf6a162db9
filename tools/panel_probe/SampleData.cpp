#include "SampleData.h"

#include "fakes/PanelWorld.h"

#include <QPainter>

#include <cmath>

namespace ravelo {

using namespace Qt::StringLiterals;

QImage room() {
    QImage image(56, 56, QImage::Format_RGB32);
    image.fill(QColor(u"#e9d9c6"_s));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const auto block = [&painter](const QRectF& rect, double radius, const QString& color) {
        painter.setBrush(QColor(color));
        painter.drawRoundedRect(rect, radius, radius);
    };
    block({0, 38, 56, 18}, 0, u"#b98f6b"_s);
    block({33, 8, 15, 16}, 1, u"#a9c9d6"_s);
    block({6, 28, 30, 13}, 4, u"#54757a"_s);
    block({9, 23, 24, 9}, 4, u"#668a8e"_s);
    block({43, 24, 1.6, 18}, 0, u"#4b3a2c"_s);
    painter.setBrush(QColor(u"#f6c96b"_s));
    painter.drawPolygon(QPolygonF({{38, 26}, {41, 18}, {47, 18}, {50, 26}}));
    return image;
}

QImage plan() {
    QImage image(56, 56, QImage::Format_RGB32);
    image.fill(QColor(u"#23406b"_s));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(u"#d7e6ff"_s), 1.6));
    painter.drawRect(QRectF(9, 9, 38, 38));
    painter.drawLines(
        QList<QLineF>{{9, 27, 25, 27}, {31, 27, 47, 27}, {27, 47, 27, 35}, {27, 9, 27, 19}});
    return image;
}

QImage swatches() {
    QImage image(56, 56, QImage::Format_RGB32);
    image.fill(QColor(u"#efe9e1"_s));
    QPainter painter(&image);
    painter.fillRect(4, 4, 22, 22, QColor(u"#6f8f7f"_s));
    painter.fillRect(30, 4, 22, 22, QColor(u"#c9a27e"_s));
    painter.fillRect(4, 30, 22, 22, QColor(u"#d8d2c6"_s));
    painter.fillRect(30, 30, 22, 22, QColor(u"#3f5a6b"_s));
    return image;
}

namespace {

ClipItem image(const QString& fileName, Seconds ago) {
    ClipItem item = clip(u"Image"_s, ago, ClipKind::image);
    item.imageFileName = fileName;
    return item;
}

ClipItem pinned(ClipItem item) {
    item.pinned = true;
    return item;
}

} // namespace

QList<ClipItem> sampleClips() {
    return {
        pinned(clip(u"Larkspur Interiors — 48 Alder Lane, studio 3, ring twice"_s, day * 22)),
        pinned(clip(u"https://larkspur.example/booking"_s, day * 2, ClipKind::url)),
        clip(u"Deposit received, thank you! Your date is confirmed for Thursday at 9:30."_s,
             Seconds(12)),
        image(u"room.png"_s, minute * 2),
        clip(u"https://docs.larkspur.example/estimates/2026-042?view=print"_s, minute * 5,
             ClipKind::url),
        clip(u"Oak veneer panels, 18 mm, 2440 × 1220 — 6 sheets, matt lacquer"_s, minute * 14),
        clip(u"git rebase --onto main feature/estimates~3 feature/estimates"_s, minute * 26),
        image(u"plan.png"_s, minute * 41),
        clip(u"ren@larkspur.example"_s, hour),
        clip(u"Alcove measured twice: 1184 × 2310 mm, skirting 90 mm, socket on the left"_s,
             hour * 2),
        clip(u"https://maps.example/route/48-alder-lane"_s, hour * 3, ClipKind::url),
    };
}

/// A room from above, a door, and an arrow.
QList<Stroke> sampleSketch() {
    QList<Stroke> sketch;
    const auto draw = [&sketch](int count, const auto& place) {
        Stroke stroke{QUuid::createUuid(), {}};
        for (int i = 0; i <= count; ++i) {
            const double shake = std::sin(i * 1.7) * 0.8;
            stroke.points.append(place(static_cast<double>(i) / count) + QPointF(shake, -shake));
        }
        sketch.append(stroke);
    };
    draw(40, [](double t) { return QPointF(120, 60 + 170 * t); });
    draw(40, [](double t) { return QPointF(120 + 260 * t, 230); });
    draw(40, [](double t) { return QPointF(380, 230 - 170 * t); });
    draw(40, [](double t) { return QPointF(380 - 170 * t, 60); });
    draw(24, [](double t) {
        return QPointF(210 - 90 * std::cos(t * 1.57), 60 + 90 * std::sin(t * 1.57));
    });
    draw(60, [](double t) {
        return QPointF(300 + 40 * std::cos(t * 6.3), 160 + 28 * std::sin(t * 6.3));
    });
    draw(30, [](double t) { return QPointF(560 - 150 * t, 120 + 40 * t * t); });
    draw(8, [](double t) { return QPointF(432 - 22 * t, 140 + 20 * t); });
    draw(8, [](double t) { return QPointF(440 - 30 * t, 176 - 16 * t); });
    return sketch;
}

QString sampleNote() {
    return u"Tuesday, site visit at Alder Lane\n"
           "– alcove 1184 × 2310, check the skirting behind the radiator\n"
           "– client prefers the warmer oak, send two samples by Friday\n"
           "– ask the electrician about moving the left socket\n"
           "\n"
           "Estimate: 6 sheets veneer + lacquer, two days on site.\n"
           "Call the framer about the mirror before noon."_s;
}

} // namespace ravelo
