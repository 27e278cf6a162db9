#pragma once

#include "base/Secret.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QMap>
#include <QVariant>

#include <optional>

namespace ravelo {

// The Secret Service API (org.freedesktop.secrets), as values of Qt.

namespace secrets {

inline constexpr QLatin1StringView name("org.freedesktop.secrets");
inline constexpr QLatin1StringView servicePath("/org/freedesktop/secrets");
inline constexpr QLatin1StringView defaultCollection("/org/freedesktop/secrets/aliases/default");
inline constexpr QLatin1StringView serviceInterface("org.freedesktop.Secret.Service");
inline constexpr QLatin1StringView collectionInterface("org.freedesktop.Secret.Collection");
inline constexpr QLatin1StringView itemInterface("org.freedesktop.Secret.Item");
inline constexpr QLatin1StringView sessionInterface("org.freedesktop.Secret.Session");
inline constexpr QLatin1StringView promptInterface("org.freedesktop.Secret.Prompt");

using Attributes = QMap<QString, QString>;

[[nodiscard]] QDBusMessage call(const QString& path, const QString& interface,
                                const QString& method, const QVariantList& arguments = {});

/// Closes a session, if `path` is one. Does not wait.
void closeSession(const QDBusConnection& bus, const QDBusObjectPath& path);

/// The paths in an answer; none if it is something else.
[[nodiscard]] QList<QDBusObjectPath> paths(const QVariant& answer);

/// The value in a Secret structure: session, parameters, value, type of contents.
[[nodiscard]] std::optional<Secret> valueOf(const QVariant& secret);

/// A Secret structure for a plain session.
[[nodiscard]] QVariant structure(const QDBusObjectPath& session, const Secret& secret);

} // namespace secrets

} // namespace ravelo
