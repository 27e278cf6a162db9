#pragma once

#include <QByteArray>
#include <QList>
#include <QProcessEnvironment>

#include <vector>

namespace ravelo {

/// For execve(2); valid as long as the list.
[[nodiscard]] inline std::vector<char*> terminated(const QList<QByteArray>& list) {
    std::vector<char*> pointers;
    for (const QByteArray& one : list) {
        pointers.push_back(const_cast<char*>(one.constData()));
    }
    pointers.push_back(nullptr);
    return pointers;
}

[[nodiscard]] inline QList<QByteArray> variables(const QProcessEnvironment& environment) {
    QList<QByteArray> variables;
    for (const QString& variable : environment.toStringList()) {
        variables.append(variable.toLocal8Bit());
    }
    return variables;
}

} // namespace ravelo
