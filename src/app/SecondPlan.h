#pragma once

#include "monitor/StatusText.h"
#include "platform/ChildProcess.h"
#include "platform/FolderChanges.h"

#include <QObject>

#include <functional>
#include <memory>

namespace ravelo {

class PlanUsage;

/// Why `folder` cannot be that of a second account; empty if it can, or is empty. `home` is the
/// user's home folder, `otherFolders` where the first account may be if it is not in "~/.claude".
/// Blocks; any thread.
[[nodiscard]] QString secondAccountProblem(const QString& folder, const QString& home,
                                           const QByteArrayList& otherFolders);

/// The plan of a second account, if the user has named its Claude Code folder. Main thread.
class SecondPlan : public QObject {
    Q_OBJECT

public:
    /// Makes its plan and what renews its credentials.
    struct Made {
        std::unique_ptr<ChildProcess> children; ///< Outlives `usage`.
        std::unique_ptr<PlanUsage> usage;
    };

    using Make = std::function<Made(const QByteArray& folder)>;

    explicit SecondPlan(Make make);
    ~SecondPlan() override;

    /// A path, also with "~/"; none if it is empty or not absolute.
    void setFolder(const QString& folder, const QString& home);

    [[nodiscard]] std::optional<OtherPlan> plan() const;

Q_SIGNALS:
    void changed();

private:
    Make make_;
    QString folder_;
    Made made_;
};

} // namespace ravelo
