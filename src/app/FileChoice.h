#pragma once

#include <QCoreApplication>
#include <QString>

#include <functional>

class QWindow;

namespace ravelo {

/// Lets the user choose a JSON file by the desktop's file dialog. Main thread.
class FileChoice {
    Q_DECLARE_TR_FUNCTIONS(ravelo::FileChoice)

public:
    enum class Kind {
        toWrite, ///< The dialog asks before an existing one is replaced.
        toRead
    };

    /// Over the window, which is blocked meanwhile. Calls `chosen` later, unless the dialog is
    /// cancelled.
    static void ask(QWindow& over, Kind kind, std::function<void(const QString& path)> chosen);
};

} // namespace ravelo
