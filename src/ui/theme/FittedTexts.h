#pragma once

#include "ui/theme/TextStyle.h"

#include <QList>
#include <QObject>
#include <QQmlEngine>
#include <QStringList>

#include <functional>

namespace ravelo {

/// The leading texts that fit on a line.
struct Fit {
    QList<double> widths; ///< Of the shown texts; at least one, shortened if needed.
    qsizetype hidden = 0;

    friend bool operator==(const Fit&, const Fit&) = default;
};

/// Fits texts of the given widths, `gap` apart, into `room`. If some are hidden, `restWidth`
/// reserves space for their count, one gap further.
[[nodiscard]] Fit fit(const QList<double>& widths, double room, double gap,
                      const std::function<double(qsizetype)>& restWidth = {});

/// For a view: the texts that fit into a line of width `room`.
class FittedTexts : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QStringList texts MEMBER texts_ NOTIFY given)
    Q_PROPERTY(ravelo::TextStyle* style MEMBER style_ NOTIFY given)
    Q_PROPERTY(double room MEMBER room_ NOTIFY given)
    Q_PROPERTY(double gap MEMBER gap_ NOTIFY given)
    /// The count of hidden texts is part of the line.
    Q_PROPERTY(bool countsRest MEMBER countsRest_ NOTIFY given)

    Q_PROPERTY(QList<double> widths READ widths NOTIFY fitted)
    Q_PROPERTY(QString rest READ rest NOTIFY fitted)

public:
    explicit FittedTexts(QObject* parent = nullptr);

    [[nodiscard]] QList<double> widths() const { return fit_.widths; }

    /// "+2"; empty if none is hidden or they are not counted.
    [[nodiscard]] QString rest() const;

Q_SIGNALS:
    void given();
    void fitted();

private:
    void refit();

    QStringList texts_;
    TextStyle* style_ = nullptr; ///< Owned by the theme, which outlives every view.
    double room_ = 0;
    double gap_ = 0;
    bool countsRest_ = true;
    Fit fit_;
};

} // namespace ravelo
