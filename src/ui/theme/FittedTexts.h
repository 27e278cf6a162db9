#pragma once

#include "ui/theme/TextStyle.h"

#include <QList>
#include <QObject>
#include <QQmlEngine>
#include <QStringList>

#include <functional>

namespace ravelo {

/// The first of some texts that share a line.
struct Fit {
    QList<double> widths; ///< Of those that are shown. One always is, if need be cut short.
    qsizetype hidden = 0;

    friend bool operator==(const Fit&, const Fit&) = default;
};

/// What of texts of the given widths, `gap` apart, fits in `room`. Where some are hidden, as many
/// as `restWidth` tells of their number stay free behind one more gap; without it nothing does.
[[nodiscard]] Fit fit(const QList<double>& widths, double room, double gap,
                      const std::function<double(qsizetype)>& restWidth = {});

/// For a view: the texts that fit in a line of the width `room`.
class FittedTexts : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QStringList texts MEMBER texts_ NOTIFY given)
    Q_PROPERTY(ravelo::TextStyle* style MEMBER style_ NOTIFY given)
    Q_PROPERTY(double room MEMBER room_ NOTIFY given)
    Q_PROPERTY(double gap MEMBER gap_ NOTIFY given)
    /// Whether the line ends with the number of those that are hidden; otherwise they are shown
    /// somewhere else.
    Q_PROPERTY(bool countsRest MEMBER countsRest_ NOTIFY given)

    Q_PROPERTY(QList<double> widths READ widths NOTIFY fitted)
    Q_PROPERTY(int hidden READ hidden NOTIFY fitted)
    Q_PROPERTY(QString rest READ rest NOTIFY fitted)

public:
    explicit FittedTexts(QObject* parent = nullptr);

    [[nodiscard]] QList<double> widths() const { return fit_.widths; }

    [[nodiscard]] int hidden() const { return static_cast<int>(fit_.hidden); }

    /// "+2"; empty where nothing is hidden or it is not counted.
    [[nodiscard]] QString rest() const;

Q_SIGNALS:
    void given();
    void fitted();

private:
    void refit();

    QStringList texts_;
    TextStyle* style_ = nullptr; ///< The theme's, which outlives every view.
    double room_ = 0;
    double gap_ = 0;
    bool countsRest_ = true;
    Fit fit_;
};

} // namespace ravelo
