// Any preferences file: its settings can be changed, and the result can be read.

#include "Input.h"
#include "base/Scheduler.h"
#include "platform/LoginItem.h"
#include "platform/Worker.h"
#include "platform/system/PreferenceFile.h"
#include "settings/AppSettings.h"

#include <QFile>
#include <QTemporaryDir>

#include <utility>
#include <vector>

using namespace ravelo;
using namespace Qt::StringLiterals;

namespace {

/// Runs each job and its end at once.
class SlowToTell final : public Worker {
public:
    void run(std::function<void()> job, std::function<void()> done) override {
        job();
        done_.push_back(std::move(done));
    }

    void drain() override {
        while (!done_.empty()) {
            const auto done = std::move(done_.front());
            done_.erase(done_.begin());
            done();
        }
    }

private:
    std::vector<std::function<void()>> done_;
};

/// A failed write is not retried.
class NoTime final : public Scheduler {
public:
    [[nodiscard]] Date now() const override { return {}; }

    [[nodiscard]] Seconds uptime() const override { return {}; }

    [[nodiscard]] Handle after(Seconds /*delay*/, std::function<void()> /*action*/) override {
        return {};
    }

    [[nodiscard]] Handle every(Seconds /*interval*/, std::function<void()> /*action*/) override {
        return {};
    }
};

class NoLogin final : public LoginItem {
public:
    [[nodiscard]] bool isEnabled() const override { return enabled_; }

    [[nodiscard]] Result<void> setEnabled(bool enabled) override {
        enabled_ = enabled;
        return failure(u"refused"_s);
    }

private:
    bool enabled_ = false;
};

void changeEach(AppSettings& settings) {
    settings.onLayoutChange = [] {
    };
    settings.bgOpacity.set(0.4);
    settings.fullBlack.set(!settings.fullBlack());
    settings.panelWidth.set(700);
    settings.hotkeyEnabled.set(!settings.hotkeyEnabled());
    settings.lastTab.set(settings.lastTab() + u'x');
    settings.pinnedBar.set(!settings.pinnedBar());
    settings.macType.set(u"notch"_s);
    settings.ignoredPatterns.set(settings.ignoredPatterns() + QStringList{u"^x"_s});
    settings.refreshLaunchAtLogin();
    settings.onboarded.set(!settings.onboarded());
    settings.setupLoginItemDefaultIfNeeded();
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    static const QTemporaryDir folder(u"/dev/shm/ravelo-fuzz-XXXXXX"_s);
    const QString path = folder.filePath(u"preferences.json"_s);
    QFile file(path);
    fuzz::require(file.open(QFile::WriteOnly));
    file.write(fuzz::view(bytes, size).toByteArray());
    file.close();

    SlowToTell worker;
    NoTime scheduler;
    NoLogin login;
    PreferenceFile preferences(path, {scheduler, worker});
    AppSettings settings(preferences, login);
    changeEach(settings);
    worker.drain();
    PreferenceFile written(path, {scheduler, worker});
    const AppSettings again(written, login);
    fuzz::require(again.lastTab() == settings.lastTab() && again.panelWidth() == 700 &&
                  again.onboarded() == settings.onboarded() &&
                  again.ignoredPatterns() == settings.ignoredPatterns());
    written.flush();
    written.erase([](const Result<void>& erased) { fuzz::require(erased.has_value()); });
    worker.drain();
    fuzz::require(!QFile::exists(path));
    return 0;
}
