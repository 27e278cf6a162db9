#pragma once

#include "ui/controls/Tab.h"

#include <QQmlListProperty>

#include <memory>
#include <vector>

namespace ravelo {

class AppSettings;

/// The panel's tabs, from left to right. The current one is stored in the preferences. Main thread.
class Tabs : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made in C++")
    Q_PROPERTY(QQmlListProperty<ravelo::Tab> all READ all CONSTANT)
    Q_PROPERTY(int current READ current NOTIFY currentChanged)
    /// The first searchable one; -1 if there is none.
    Q_PROPERTY(int searchable READ searchable CONSTANT)

public:
    /// `settings` outlives this.
    explicit Tabs(AppSettings& settings);
    ~Tabs() override;

    /// Appends a tab.
    template <typename OneTab, typename... Arguments>
    OneTab& add(Arguments&&... arguments) {
        auto tab = std::make_unique<OneTab>(std::forward<Arguments>(arguments)...);
        OneTab& added = *tab;
        append(std::move(tab));
        return added;
    }

    [[nodiscard]] QQmlListProperty<Tab> all() { return {this, &list_}; }

    [[nodiscard]] const QList<Tab*>& list() const { return list_; }

    /// The first one if the preferences name no existing tab.
    [[nodiscard]] int current() const;

    [[nodiscard]] int searchable() const;

    Q_INVOKABLE void choose(int index);

    /// The tab this many places further, with wrap-around.
    Q_INVOKABLE void step(int by);

    void begin();
    void reset();

Q_SIGNALS:
    void currentChanged();
    void chosen(); ///< The current tab changed.

private:
    void append(std::unique_ptr<Tab> tab);

    AppSettings& settings_;
    std::vector<std::unique_ptr<Tab>> owned_;
    QList<Tab*> list_;
};

} // namespace ravelo
