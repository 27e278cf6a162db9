#pragma once

#include <QProcess>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace ravelo::live {

/// A program that ends with ours at the latest, however ours ends.
class Program {
public:
    Program(const QString& path, const QStringList& arguments);

    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program();

    /// Waits for its end; whether that was a success.
    [[nodiscard]] bool succeeds();

private:
    std::unique_ptr<QProcess> process_;
};

/// An X server of our own, $DISPLAY from now on, with the window manager openbox and two monitors:
/// DUMMY0 of 1920x1080 and, right of it, DUMMY1 of 1280x1024.
class TestServer {
public:
    TestServer();

private:
    void startServer();

    std::vector<std::unique_ptr<Program>> programs_;
};

/// Switches DUMMY1 on; whether that worked.
[[nodiscard]] bool showSecondMonitor();

/// Runs a program to its end; whether that was a success.
[[nodiscard]] bool run(const QString& path, const QStringList& arguments);

/// Runs the event loop until `condition` holds; false where it does not within ten seconds.
[[nodiscard]] bool eventually(const std::function<bool()>& condition);

} // namespace ravelo::live
