#pragma once

#include "ui/controls/Tab.h"

#include <QQmlListProperty>

#include <memory>
#include <vector>

namespace ravelo {

class AppSettings;

/// The tabs of the panel, from left to right. The preferences say which one is shown. Main thread.
class Tabs : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(QQmlListProperty<ravelo::Tab> all READ all CONSTANT)
    Q_PROPERTY(int current READ current NOTIFY currentChanged)
    /// The first one that can be searched; -1 if there is none.
    Q_PROPERTY(int searchable READ searchable CONSTANT)

public:
    /// `settings` outlives it.
    explicit Tabs(AppSettings& settings);
    ~Tabs() override;

    /// One more, at the right.
    template <typename OneTab, typename... Arguments>
    OneTab& add(Arguments&&... arguments) {
        auto tab = std::make_unique<OneTab>(std::forward<Arguments>(arguments)...);
        OneTab& added = *tab;
        append(std::move(tab));
        return added;
    }

    [[nodiscard]] QQmlListProperty<Tab> all() { return {this, &list_}; }

    [[nodiscard]] const QList<Tab*>& list() const { return list_; }

    /// The first one if the preferences name none that there is.
    [[nodiscard]] int current() const;

    [[nodiscard]] int searchable() const;

    Q_INVOKABLE void choose(int index);

    /// The one so many places on, around the ends.
    Q_INVOKABLE void step(int by);

    void begin();
    void reset();

Q_SIGNALS:
    void currentChanged();
    void chosen(); ///< Another one than before.

private:
    void append(std::unique_ptr<Tab> tab);

    AppSettings& settings_;
    std::vector<std::unique_ptr<Tab>> owned_;
    QList<Tab*> list_;
};

} // namespace ravelo
