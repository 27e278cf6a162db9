#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QSocketNotifier>

/// A keyboard by the portal org.freedesktop.portal.RemoteDesktop. Reads lines from standard input:
/// first the token of an earlier session, or nothing; then each chord to type: "control" or
/// "control shift", and "v" or "place", the key where Latin layouts have it. Prints "open", with
/// the next token if the portal gives one, and ends with "refused" by the user, "unavailable", or
/// "closed" by the desktop. Also ends with its input, once all is typed; the session ends with it.
class Keyboard : public QObject {
    Q_OBJECT

public:
    Keyboard();

private Q_SLOTS:
    void responded(const QDBusMessage& response);
    void closed(const QDBusMessage& signal);
    void ownerChanged(const QString& name, const QString& before, const QString& now);

private:
    enum class Step { create, selectDevices, start, open };

    void read();
    void meetPortal();
    void request(const QString& method, QVariantList arguments, QVariantMap options);
    void createSession();
    void selectDevices();
    void start();
    void opened(const QVariantMap& results);
    void type(const QByteArray& chord);
    struct Key;
    bool notify(const Key& key, uint state);
    QDBusMessage call(const QString& path, const QString& interface, const QString& method,
                      const QVariantList& arguments);

    QDBusConnection bus_;
    QSocketNotifier input_;
    QByteArray line_; ///< Of the input, so far.
    QString portal_;  ///< Its unique name; empty before the first line.
    uint version_ = 0;
    QString token_;
    Step step_ = Step::create;
    QString request_; ///< The path of the one that has not been answered.
    QString session_;
};
