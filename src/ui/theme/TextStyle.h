#pragma once

#include <QFont>
#include <QObject>
#include <QQmlEngine>

namespace ravelo {

/// How a font sits in a line of fixed height; logical pixels.
struct LineMetrics {
    double ascent = 0;
    double descent = 0;
    double line = 0;

    /// Distance from the line's top to the baseline: ascent and descent in whole device pixels,
    /// centred in the line.
    [[nodiscard]] double baseLine(double devicePixelRatio) const;
};

/// A type style: Inter, the only family, in a line of fixed height.
class TextStyle : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int size MEMBER size_ WRITE setSize NOTIFY changed REQUIRED) ///< Logical pixels.
    Q_PROPERTY(int line MEMBER line_ NOTIFY changed REQUIRED)               ///< Logical pixels.
    Q_PROPERTY(int weight READ weight WRITE setWeight NOTIFY changed)
    Q_PROPERTY(double tracking READ tracking WRITE setTracking NOTIFY changed)
    Q_PROPERTY(QFont font READ font NOTIFY changed)

public:
    explicit TextStyle(QObject* parent = nullptr);

    [[nodiscard]] int line() const { return line_; }

    [[nodiscard]] int weight() const { return font_.weight(); }

    [[nodiscard]] double tracking() const { return font_.letterSpacing(); }

    [[nodiscard]] QFont font() const { return font_; }

    Q_INVOKABLE [[nodiscard]] double baseLine(double devicePixelRatio) const {
        return metrics().baseLine(devicePixelRatio);
    }

    void setSize(int size);
    void setWeight(int weight);
    void setTracking(double tracking);

    [[nodiscard]] LineMetrics metrics() const;

Q_SIGNALS:
    void changed();

private:
    QFont font_;
    int size_ = 13;
    int line_ = 16;
};

} // namespace ravelo
