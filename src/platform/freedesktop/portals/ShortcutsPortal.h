#pragma once

#include "base/Listeners.h"
#include "platform/GlobalShortcut.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>

namespace ravelo {

/// Keys by the portal org.freedesktop.portal.GlobalShortcuts, which may ask the user and register
/// others than those that we prefer; there the user can change them later. Impossible until the
/// portal has answered. If the portal starts again, the keys are registered again. Main thread.
class ShortcutsPortal final : public QObject, public GlobalShortcut {
    Q_OBJECT

public:
    /// Asks nothing yet, so that no portal is started for users without a shortcut.
    explicit ShortcutsPortal(QDBusConnection bus);
    ~ShortcutsPortal() override;

    [[nodiscard]] State state() const override { return state_; }

    [[nodiscard]] QString description() const override { return description_; }

    [[nodiscard]] Handle onChange(std::function<void()> callback) override {
        return changes_.add(std::move(callback));
    }

    void ask() override;
    void set(const std::optional<KeyCombination>& keys) override;

    [[nodiscard]] Handle onPress(std::function<void(const QByteArray& token)> callback) override {
        return presses_.add(std::move(callback));
    }

private Q_SLOTS:
    void responded(const QDBusMessage& response);
    void activated(const QDBusMessage& signal);
    void changed(const QDBusMessage& signal);
    void closed(const QDBusMessage& signal);

private:
    enum class Listening { off, on };

    void askForVersion();
    void meet(const QString& owner);
    void follow(const QString& owner);
    void forget();
    void closeSession(const QString& session);
    void listenTo(const QString& request, Listening listening);
    void setState(State state, const QString& description = {});
    void open();
    void list();
    void bind();
    [[nodiscard]] bool accept(const QVariant& shortcuts);
    void close();
    void request(const QString& method, const QVariantList& before, QVariantMap options);
    [[nodiscard]] bool isFromPortal(const QDBusMessage& message) const;

    QDBusConnection bus_;
    QString portal_; ///< Its unique name; empty if there is none.
    std::optional<KeyCombination> keys_;
    State state_ = State::impossible;
    QString description_;
    QString session_;        ///< Its path, while there is one.
    bool isListing_ = false; ///< Whether the request is for the keys that it knows.
    QString request_;        ///< The path of the one that has not been answered.
    QStringList abandoned_;  ///< Paths of requests for sessions that are no longer wanted.
    int requests_ = 0;
    QDBusServiceWatcher watcher_; ///< Of the portal, once it was asked.
    Listeners<> changes_;
    Listeners<const QByteArray&> presses_;
    Handle asking_;
    Handle call_;
};

} // namespace ravelo
