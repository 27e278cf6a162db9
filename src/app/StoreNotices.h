#pragma once

#include "base/OwnFile.h"
#include "notices/Notices.h"

#include <QObject>

namespace ravelo {

class AppSettings;
class ClipboardManager;
class Encryption;
class PanelFeatures;
class PreferenceFile;
class Store;

/// What the panel says about saving, unreadable files, a locked store, secrets, and copies that are
/// too large; and what its answers do. Main thread.
class StoreNotices : public QObject {
    Q_OBJECT

public:
    struct Services {
        Notices& notices;
        Store& store;
        PreferenceFile& preferences;
        AppSettings& settings;
        ClipboardManager& clipboard;
        Encryption& encryption;
        PanelFeatures& features;
    };

    explicit StoreNotices(Services services);
    ~StoreNotices() override;

    /// It was to leave the memory while the screen was locked.
    void keyStayed(const QString& reason);

private:
    void followSaving();
    void followSecrets();
    void followLock();
    void report(Notices::Source source, const SaveOutcome& outcome);
    void reportLock();

    Services services_;
};

} // namespace ravelo
